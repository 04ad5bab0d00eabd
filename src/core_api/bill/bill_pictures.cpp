#include "core_api/bill/bill_pictures.h"

#include <stdlib.h>

#include <algorithm>
#include <filesystem>

#include "core_api/bill/piece_picture.h"
#include "platform/paths.h"

namespace {

/// The folder of the pictures that are being made.
class PictureFolder {
  public:
    bool open(int height) {
        if (m_users == 0 && !make()) return false;
        ++m_users;
        m_highest = std::max(height, usualPictureHeight);
        return true;
    }
    void close() {
        if (m_users == 0 || --m_users > 0) return;
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    bool isOpen() const { return m_users > 0; }
    int highest() const { return m_highest; }
    Vor_String nextFile() { return m_inside + "\\" + std::to_string(++m_files) + ".bmp"; }

  private:
    bool make() {
        std::error_code error;
        std::string name =
            (std::filesystem::temp_directory_path(error) / "vormant-bill-XXXXXX").string();
        if (error || !::mkdtemp(name.data())) return false;
        const auto inside = paths::toInside(name);
        if (!inside) {
            std::filesystem::remove(name, error);
            return false;
        }
        m_path = name;
        m_inside = *inside;
        return true;
    }

    int m_users = 0;
    int m_highest = 0;
    long m_files = 0;
    std::string m_path;
    Vor_String m_inside;
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
    const CBitmap picture = piecePicture(*piece, {usedWidth, usedHeight, withSizes, withName});
    std::string error;
    if (picture.isEmpty() || !writeBitmap(picture, file, error)) return Acad::eInvalidInput;
    height = usedHeight;
    width = usedWidth;
    return Acad::eOk;
}
