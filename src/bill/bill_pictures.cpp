#include "bill/bill_pictures.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>

#include "bill/piece_picture.h"
#include "platform/scratch.h"

namespace {

/// The files of pictures drawn so far: a bill lists many pieces that look alike.
class DrawnPictures {
  public:
    /// Empty when nothing can be drawn. Valid until the next call.
    const std::string& fileOf(const Vor_BillPart& piece, const PiecePaper& paper) {
        const Key key{piece.kind,   piece.name.str(), piece.section.str(), piece.length,
                      piece.width,  piece.thickness,  piece.diameter,      paper.width,
                      paper.height, paper.hasSizes,   paper.hasName};
        if (const auto known = m_files.find(key); known != m_files.end()) return known->second;
        if (m_files.size() >= mostFiles) m_files.clear();
        const CBitmap picture = piecePicture(piece, paper);
        return m_files[key] = picture.isEmpty() ? std::string() : packBitmap(picture);
    }

  private:
    static constexpr size_t mostFiles = 200;  // of the usual size: 10 megabytes
    using Key = std::tuple<BillPartKind, std::string, std::string, double, double, double, double,
                           int, int, bool, bool>;
    std::map<Key, std::string> m_files;
};

/// The pictures that are being made, with the folder of their files.
class PictureFolder {
  public:
    bool open(int height) {
        std::string ignored;
        if (m_users == 0) m_folder = files::ScratchFolder::make(ignored);
        if (!m_folder) return false;
        ++m_users;
        m_highest = std::max(height, usualPictureHeight);
        return true;
    }
    void close() {
        if (m_users == 0 || --m_users > 0) return;
        m_folder.reset();
        m_drawn = {};
    }
    bool isOpen() const { return m_users > 0; }
    int highest() const { return m_highest; }
    Vor_String nextFile() { return m_folder->inside(std::to_string(++m_files) + ".bmp"); }
    DrawnPictures& drawn() { return m_drawn; }

  private:
    int m_users = 0;
    int m_highest = 0;
    long m_files = 0;
    std::optional<files::ScratchFolder> m_folder;
    DrawnPictures m_drawn;
};

PictureFolder& pictures() {
    static PictureFolder folder;
    return folder;
}

}  // namespace

ErrorStatus initBMPDialog(int height) {
    return pictures().open(height) ? Acad::eOk : Acad::eInvalidInput;
}

void closeBMPDialog() {
    pictures().close();
}

Vor_String nextPictureFile() {
    return pictures().isOpen() ? pictures().nextFile() : Vor_String();
}

ErrorStatus createImage(int& row, int& height, int& width, bool& withSizes, bool& withName,
                        const Vor_Bill* bill, AcTransaction* transaction, const Vor_String& file) {
    if (!bill || !transaction || !transaction->isActive() || !pictures().isOpen())
        return Acad::eInvalidInput;
    const int usedHeight = height > 0 ? height : usualPictureHeight;
    const int usedWidth = width > 0 ? width : usualPictureWidth;
    const Vor_BillPart* piece = bill->piece(row < 0 ? bill->currentRow : row);
    if (!piece || usedHeight > pictures().highest()) return Acad::eInvalidInput;
    const std::string& picture =
        pictures().drawn().fileOf(*piece, {usedWidth, usedHeight, withSizes, withName});
    std::string error;
    if (picture.empty()) return Acad::eInvalidInput;
    if (!files::writeScratch(file, picture, error)) return Acad::eFileAccessErr;
    height = usedHeight;
    width = usedWidth;
    return Acad::eOk;
}
