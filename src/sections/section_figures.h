// The figures of a section that follow from its shape: what catalogues print beside the dimensions,
// area and mass, where the centroid lies, moments of inertia, section moduli, radii of gyration.
// They are asked for by the names of a table's columns, "Iy cm4".
//
// The y axis lies in the drawing of a type and the z axis stands; both go through the centroid. u
// and v are the principal axes. Rolled sections, bars and tubes are measured with their fillets,
// toes and slopes; cold-formed ones as they are drawn, but for area and mass (see section_area.h).
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "core_api/text/vor_string.h"
#include "drawing/plane.h"

class Vor_ProfValuesTable;

class VORMANT_API SectionFigures {
  public:
    /// `values` in the order of the type's value columns, more of them are left out. Nothing when
    /// they give no shape.
    static std::optional<SectionFigures> of(int type, std::span<const double> values);
    /// The same of a size as its table has it.
    static std::optional<SectionFigures> of(std::string_view drawnAs,
                                            std::span<const std::string_view> values);
    static std::optional<SectionFigures> of(const Vor_ProfValuesTable& table, int row);

    /// In the unit that the column names: "Mass kg/m", "Area cm2", "I", "Iy", "Iz", "Iu", "Iv" (a
    /// length to the fourth, "Iy cm4", "Iy mm4"), "Wel,y", "Wpl,z" (to the third), "iy" (a length),
    /// "cy", "cz" (the centroid from the section's lower and left edge), "ez" (of channels, from
    /// the back of the web), "Inner radius" (of rectangular tubes, mm). "I", "Wel", "Wpl" and "i"
    /// without an axis are those of sections that are alike about both. Nothing for other columns.
    std::optional<double> valueOf(std::string_view column) const;
    /// With four significant digits, as catalogues print them; empty for other columns.
    Vor_String textOf(std::string_view column) const;
    /// False when a column that follows from the shape has a number that is more than rounding
    /// away: beyond 1 % (masses, which are rounded twice, 1.5 %) and half of the last printed
    /// place. Of cold-formed sections, whose bends tables do not tell, beyond 15 %.
    bool allows(std::string_view column, std::string_view printed) const;
    struct Figure {
        std::string_view column;
        double value;  ///< in the column's unit
    };
    /// In the order of catalogues, those columns of theirs that this section has a figure for. Each
    /// figure is calculated once: a plastic modulus is searched for, which takes its time.
    std::vector<Figure> catalogueFigures() const;

  private:
    SectionFigures(int type, std::vector<drawing::Contour> contours, double area);

    enum class Axis { none, y, z, u, v };
    std::optional<double> momentAbout(Axis axis) const;
    std::optional<double> elasticModulus(Axis axis) const;
    std::optional<double> plasticModulus(Axis axis) const;
    std::optional<double> measure(std::string_view name, int power) const;
    bool isAlikeAboutBothAxes() const;

    int m_type = 0;
    std::vector<drawing::Contour> m_contours;  // holes run clockwise
    double m_area = 0;                         // mm2, as it is weighed
    double m_innerRadius = 0;
    drawing::Box m_box;
    double m_measured = 0;  // the area of the contours
    drawing::Point m_centroid;
    double m_y = 0, m_z = 0, m_yz = 0;  // moments of inertia about the centroid, mm4
};

/// Whether a column of this name holds a figure of the section, not one of its dimensions: a mass,
/// an area, moments, moduli, radii of gyration, a centroid. Also where nothing calculates it.
VORMANT_API bool namesFigure(std::string_view column);

/// What a section's table says of its mass, and what its shape weighs, in kg/m.
struct DoubtfulMass {
    Vor_String printed;
    Vor_String calculated;
};
/// Of a section by its full or user name; nothing when both agree, or one is not known.
VORMANT_API std::optional<DoubtfulMass> doubtfulMass(std::string_view section);
