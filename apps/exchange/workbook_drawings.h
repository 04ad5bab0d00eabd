// What lies over the cells of a workbook's sheet: pictures and notes, each with the parts that the
// file format wants for it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "exchange/zip_archive.h"
#include "spread/control/formula/cells.h"

namespace exchange {

/// Pictures, each with its top left corner in that of a cell. Equal ones are stored once.
class WorkbookPictures {
  public:
    /// `bytes` of a bitmap, PNG, JPEG or GIF file. False when they are none of these or their size
    /// cannot be told: such a picture is left out, as it is on the screen.
    bool add(control::CellAddress cell, const std::string& bytes);
    bool isEmpty() const { return m_anchors.empty(); }
    /// The drawing, what it refers to and the pictures themselves.
    void addTo(ZipArchive& archive) const;

  private:
    struct Stored {
        std::string name;  ///< of its part, "image1.png"
        int number = 0;
    };
    std::unordered_map<std::string, Stored> m_stored;  ///< by bytes
    std::string m_anchors;
    std::string m_relations;
    int m_count = 0;
};

/// Notes that show when the mouse rests on their cells.
class WorkbookNotes {
  public:
    void add(control::CellAddress cell, std::string_view text);
    bool isEmpty() const { return m_comments.empty(); }
    void addTo(ZipArchive& archive) const;

  private:
    std::string m_comments;
    std::string m_shapes;
    int m_count = 0;
};

}  // namespace exchange
