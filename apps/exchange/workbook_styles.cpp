#include "exchange/workbook_styles.h"

#include <array>

#include "exchange/xml_text.h"

namespace exchange {

namespace {

constexpr int firstOwnNumberFormat = 164;

std::string colourXml(const char* element, control::Colour colour) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string rgb;
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) rgb += digits[colour >> shift & 0xFU];
    return std::string("<") + element + " rgb=\"FF" + rgb + "\"/>";
}

std::string fontXml(const control::CellFormat& format) {
    constexpr double pointsOfPixel = 0.75;  // at 96 pixels to the inch
    const control::Font& font = format.font;
    std::string xml = "<font>";
    if (font.weight >= 600) xml += "<b/>";
    if (font.italic) xml += "<i/>";
    if (font.underlined) xml += "<u/>";
    xml += "<sz val=\"" + xmlNumber(font.height * pointsOfPixel) + "\"/>";
    if (format.textColour != control::automatic) xml += colourXml("color", format.textColour);
    return xml + "<name val=\"" + xmlAttribute(font.name) + "\"/><family val=\"2\"/></font>";
}

std::string fillXml(const control::CellFormat& format) {
    if (format.background == control::automatic)
        return "<fill><patternFill patternType=\"none\"/></fill>";
    return "<fill><patternFill patternType=\"solid\">" + colourXml("fgColor", format.background) +
           "<bgColor indexed=\"64\"/></patternFill></fill>";
}

std::string borderXml(const control::CellFormat& format) {
    static constexpr std::pair<const char*, control::BorderSide> sides[] = {
        {"left", control::borderLeft},
        {"right", control::borderRight},
        {"top", control::borderTop},
        {"bottom", control::borderBottom}};
    const std::string colour = format.borderColour == control::automatic
                                   ? "<color auto=\"1\"/>"
                                   : colourXml("color", format.borderColour);
    std::string xml = "<border>";
    for (const auto& [name, side] : sides) {
        const bool isDrawn = format.borderStyle != 0 && (format.borderSides & side) != 0;
        xml += std::string("<") + name;
        xml += isDrawn ? " style=\"thin\">" + colour + "</" + name + ">" : "/>";
    }
    return xml + "<diagonal/></border>";
}

std::string formatXml(int numberFormat, int font, int fill, int border, uint8_t alignment) {
    static constexpr const char* alignments[] = {nullptr, "left", "right", "center"};
    std::string xml = "<xf numFmtId=\"" + std::to_string(numberFormat) + "\" fontId=\"" +
                      std::to_string(font) + "\" fillId=\"" + std::to_string(fill) +
                      "\" borderId=\"" + std::to_string(border) + "\" xfId=\"0\"";
    if (numberFormat != 0) xml += " applyNumberFormat=\"1\"";
    if (font != 0) xml += " applyFont=\"1\"";
    if (fill != 0) xml += " applyFill=\"1\"";
    if (border != 0) xml += " applyBorder=\"1\"";
    if (alignment == 0 || alignment >= std::size(alignments)) return xml + "/>";
    return xml + " applyAlignment=\"1\"><alignment horizontal=\"" + alignments[alignment] +
           "\"/></xf>";
}

}  // namespace

int NumberedPieces::numberOf(const std::string& xml) {
    const auto [found, isNew] = m_numbers.try_emplace(xml, m_count);
    if (isNew) {
        m_all += xml;
        ++m_count;
    }
    return found->second;
}

std::string NumberedPieces::list(const std::string& name) const {
    return "<" + name + " count=\"" + std::to_string(m_count) + "\">" + m_all + "</" + name + ">";
}

WorkbookStyles::WorkbookStyles() {
    // The first of each is what a cell without a format has: widths of columns are measured in
    // digits of this font. The second fill is always this one.
    m_fonts.numberOf("<font><sz val=\"11\"/><name val=\"Calibri\"/><family val=\"2\"/></font>");
    m_fills.numberOf("<fill><patternFill patternType=\"none\"/></fill>");
    m_fills.numberOf("<fill><patternFill patternType=\"gray125\"/></fill>");
    m_borders.numberOf(borderXml({}));
    m_formats.numberOf(formatXml(0, 0, 0, 0, 0));
}

// A formula that is edited where everything is text becomes a text.
int WorkbookStyles::numberFormatOf(const control::CellType& type, bool isFormula) {
    constexpr int whole = 1, twoDecimals = 2, text = 49;  // numbers that the format itself has
    if (!type.isNumber()) return type.keepsText() && !isFormula ? text : 0;
    if (type.decimals == 0) return whole;
    if (type.decimals == 2) return twoDecimals;
    m_decimals.insert(type.decimals);
    return firstOwnNumberFormat + type.decimals;
}

int WorkbookStyles::numberOf(const control::CellFormat& format, bool isFormula) {
    constexpr int mostFormats = 64000;
    const std::string xml = formatXml(
        numberFormatOf(format.type, isFormula), m_fonts.numberOf(fontXml(format)),
        m_fills.numberOf(fillXml(format)), m_borders.numberOf(borderXml(format)), format.alignment);
    return m_formats.count() < mostFormats ? m_formats.numberOf(xml) : 0;
}

std::string WorkbookStyles::xml() const {
    std::string xml =
        "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">";
    if (!m_decimals.empty()) {
        xml += "<numFmts count=\"" + std::to_string(m_decimals.size()) + "\">";
        for (const int decimals : m_decimals)
            xml += "<numFmt numFmtId=\"" + std::to_string(firstOwnNumberFormat + decimals) +
                   "\" formatCode=\"0." + std::string(static_cast<size_t>(decimals), '0') + "\"/>";
        xml += "</numFmts>";
    }
    xml += m_fonts.list("fonts") + m_fills.list("fills") + m_borders.list("borders") +
           "<cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\"/>"
           "</cellStyleXfs>" +
           m_formats.list("cellXfs") +
           "<cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/>"
           "</cellStyles><dxfs count=\"0\"/><tableStyles count=\"0\"/></styleSheet>";
    return xmlPart(xml);
}

}  // namespace exchange
