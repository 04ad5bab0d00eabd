// The pictures that cells show: files, and the module's numbered bitmaps. Each is read once.
#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <string>

class QPainter;

class CellPictures {
  public:
    /// Files may have changed on disk: they are read again when they are drawn next.
    void forgetFiles() { m_files.clear(); }

    /// Draws a picture file (inside path) into the top left of `room`, as large as it is or as
    /// fits. False when it cannot be read.
    bool drawFile(QPainter& painter, const QRect& room, const std::string& path);
    /// The same of a picture that the sheet keeps under `name`.
    bool drawKept(QPainter& painter, const QRect& room, const std::string& name,
                  const std::string& bytes);
    /// Draws a numbered bitmap in the middle of `room`. False when there is none of that number.
    bool drawNumber(QPainter& painter, const QRect& room, int number);

  private:
    struct Numbered {
        std::unique_ptr<QSvgRenderer> drawing;  ///< null: `pixels` are shown
        QPixmap pixels;
    };
    static bool draw(QPainter& painter, const QRect& room, const QPixmap& picture);
    const QPixmap& file(const std::string& path);
    const Numbered& numbered(int number);

    std::map<std::string, QPixmap> m_files;
    std::map<std::string, QPixmap> m_kept;
    std::map<int, Numbered> m_numbered;
};
