#include "workbench/grid/cell_pictures.h"

#include <QFile>
#include <QPainter>

#include "platform/files.h"
#include "workbench/window/pictures.h"

namespace {

constexpr size_t mostKept = 500;  // decoded at a time; a long bill has thousands

QPixmap decoded(const std::string& bytes) {
    return QPixmap::fromImage(imageOfFile(bytes));
}

QPixmap readPicture(const std::string& path) {
    std::string error;
    const std::optional<std::string> bytes = files::readWhole(path, error);
    return bytes ? decoded(*bytes) : QPixmap();
}

/// As large as it is, smaller when the room is.
QSize fitted(QSize size, const QRect& room) {
    const bool fits = size.width() <= room.width() && size.height() <= room.height();
    return fits ? size : size.scaled(room.size(), Qt::KeepAspectRatio);
}

}  // namespace

const QPixmap& CellPictures::file(const std::string& path) {
    const auto found = m_files.find(path);
    if (found != m_files.end()) return found->second;
    return m_files.emplace(path, readPicture(path)).first->second;
}

const CellPictures::Numbered& CellPictures::numbered(int number) {
    const auto found = m_numbered.find(number);
    if (found != m_numbered.end()) return found->second;
    Numbered made;
    const QString drawing = QStringLiteral(":/bitmaps/%1.svg").arg(number);
    if (QFile::exists(drawing))
        made.drawing = std::make_unique<QSvgRenderer>(drawing);
    else
        made.pixels = pixmapOf(bitmapResource(number));
    return m_numbered.emplace(number, std::move(made)).first->second;
}

bool CellPictures::drawFile(QPainter& painter, const QRect& room, const std::string& path) {
    return draw(painter, room, file(path));
}

bool CellPictures::drawKept(QPainter& painter, const QRect& room, const std::string& name,
                            const std::string& bytes) {
    auto found = m_kept.find(name);
    if (found == m_kept.end()) {
        if (m_kept.size() >= mostKept) m_kept.clear();
        found = m_kept.emplace(name, decoded(bytes)).first;
    }
    return draw(painter, room, found->second);
}

bool CellPictures::draw(QPainter& painter, const QRect& room, const QPixmap& picture) {
    if (picture.isNull()) return false;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(room.topLeft(), fitted(picture.size(), room)), picture);
    return true;
}

bool CellPictures::drawNumber(QPainter& painter, const QRect& room, int number) {
    const Numbered& picture = numbered(number);
    const QSize natural = picture.drawing ? picture.drawing->defaultSize() : picture.pixels.size();
    if (natural.isEmpty()) return false;
    QRect place(QPoint(), fitted(natural, room));
    place.moveCenter(room.center());
    if (picture.drawing)
        picture.drawing->render(&painter, place);
    else
        painter.drawPixmap(place, picture.pixels);
    return true;
}
