#include "exchange/workbook_drawings.h"

#include <vector>

#include "exchange/sheet_writing.h"
#include "exchange/xml_text.h"
#include "spread/picture_size.h"

namespace exchange {

namespace {

std::string_view extensionOf(std::string_view bytes) {
    static constexpr std::pair<std::string_view, std::string_view> kinds[] = {
        {"BM", "bmp"}, {"\x89PNG", "png"}, {"\xFF\xD8", "jpeg"}, {"GIF8", "gif"}};
    for (const auto& [start, extension] : kinds)
        if (bytes.starts_with(start)) return extension;
    return {};
}

std::string element(const char* name, long long number) {
    return std::string("<") + name + ">" + std::to_string(number) + "</" + name + ">";
}

}  // namespace

bool WorkbookPictures::add(control::CellAddress cell, const std::string& bytes) {
    constexpr int unitsOfPixel = 9525;  // 914,400 to the inch, 96 pixels to the inch
    const auto size = pictureSizeOf(bytes);
    const std::string_view extension = extensionOf(bytes);
    if (!size || extension.empty()) return false;
    const auto [stored, isNew] = m_stored.try_emplace(bytes);
    if (isNew) {
        stored->second.number = static_cast<int>(m_stored.size());
        stored->second.name =
            "image" + std::to_string(stored->second.number) + "." + std::string(extension);
        m_relations +=
            "<Relationship Id=\"rId" + std::to_string(stored->second.number) +
            "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/image\" "
            "Target=\"../media/" +
            stored->second.name + "\"/>";
    }
    const std::string number = std::to_string(++m_count);
    const std::string extent = " cx=\"" + std::to_string(size->width * unitsOfPixel) + "\" cy=\"" +
                               std::to_string(size->height * unitsOfPixel) + "\"/>";
    m_anchors += "<xdr:oneCellAnchor><xdr:from>" + element("xdr:col", cell.col - 1) +
                 element("xdr:colOff", 0) + element("xdr:row", cell.row - 1) +
                 element("xdr:rowOff", 0) + "</xdr:from><xdr:ext" + extent +
                 "<xdr:pic><xdr:nvPicPr><xdr:cNvPr id=\"" + number + "\" name=\"Picture " + number +
                 "\"/><xdr:cNvPicPr><a:picLocks noChangeAspect=\"1\"/></xdr:cNvPicPr>"
                 "</xdr:nvPicPr><xdr:blipFill><a:blip r:embed=\"rId" +
                 std::to_string(stored->second.number) +
                 "\"/><a:stretch><a:fillRect/></a:stretch></xdr:blipFill><xdr:spPr><a:xfrm>"
                 "<a:off x=\"0\" y=\"0\"/><a:ext" +
                 extent +
                 "</a:xfrm><a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom></xdr:spPr></xdr:pic>"
                 "<xdr:clientData/></xdr:oneCellAnchor>";
    return true;
}

void WorkbookPictures::addTo(ZipArchive& archive) const {
    archive.add(
        "xl/drawings/drawing1.xml",
        xmlPart("<xdr:wsDr "
                "xmlns:xdr=\"http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing\" "
                "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
                "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\">" +
                m_anchors + "</xdr:wsDr>"));
    archive.add("xl/drawings/_rels/drawing1.xml.rels",
                xmlPart("<Relationships xmlns=\"http://schemas.openxmlformats.org/package/"
                        "2006/relationships\">" +
                        m_relations + "</Relationships>"));
    // In the order in which they came, so that the same sheet gives the same archive.
    std::vector<const std::string*> byNumber(m_stored.size());
    for (const auto& [bytes, stored] : m_stored)
        byNumber[static_cast<std::size_t>(stored.number - 1)] = &bytes;
    for (const std::string* bytes : byNumber)
        archive.add("xl/media/" + m_stored.at(*bytes).name, *bytes);
}

void WorkbookNotes::add(control::CellAddress cell, std::string_view text) {
    m_comments += "<comment ref=\"" + cellName(cell) + "\" authorId=\"0\"><text>" +
                  xmlTextElement(text) + "</text></comment>";
    // The box reaches two columns to the right and four rows down.
    const int left = cell.col, top = cell.row > 1 ? cell.row - 2 : 0;
    std::string anchor;
    for (const int number : {left, 15, top, 10, left + 2, 15, top + 4, 4})
        anchor += (anchor.empty() ? "" : ", ") + std::to_string(number);
    m_shapes +=
        "<v:shape id=\"_x0000_s" + std::to_string(1024 + ++m_count) +
        "\" type=\"#_x0000_t202\" style=\"position:absolute;visibility:hidden\" "
        "fillcolor=\"#ffffe1\" o:insetmode=\"auto\"><v:fill color2=\"#ffffe1\"/>"
        "<v:shadow on=\"t\" color=\"black\" obscured=\"t\"/><v:path o:connecttype=\"none\"/>"
        "<v:textbox/><x:ClientData ObjectType=\"Note\"><x:MoveWithCells/>"
        "<x:SizeWithCells/>" +
        std::string("<x:Anchor>") + anchor + "</x:Anchor><x:AutoFill>False</x:AutoFill>" +
        element("x:Row", cell.row - 1) + element("x:Column", cell.col - 1) +
        "</x:ClientData></v:shape>";
}

void WorkbookNotes::addTo(ZipArchive& archive) const {
    archive.add("xl/comments1.xml",
                xmlPart("<comments xmlns=\"http://schemas.openxmlformats.org/"
                        "spreadsheetml/2006/main\"><authors><author></author></authors>"
                        "<commentList>" +
                        m_comments + "</commentList></comments>"));
    archive.add("xl/drawings/vmlDrawing1.vml",
                "<xml xmlns:v=\"urn:schemas-microsoft-com:vml\" "
                "xmlns:o=\"urn:schemas-microsoft-com:office:office\" "
                "xmlns:x=\"urn:schemas-microsoft-com:office:excel\">"
                "<v:shapetype id=\"_x0000_t202\" coordsize=\"21600,21600\" o:spt=\"202\" "
                "path=\"m,l,21600r21600,l21600,xe\"><v:stroke joinstyle=\"miter\"/>"
                "<v:path gradientshapeok=\"t\" o:connecttype=\"rect\"/></v:shapetype>" +
                    m_shapes + "</xml>");
}

}  // namespace exchange
