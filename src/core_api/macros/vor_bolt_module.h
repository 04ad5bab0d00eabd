// The bolts of a macro: their size and the patterns they stand in.
#pragma once

#include "core_api/macros/vor_module.h"
#include "platform/host/object_id.h"

/// The type codes of patterns. Only a grid has a second direction.
enum class Vor_PatternType { row = 281, grid = 282, circle = 283 };

struct Vor_BoltPattern {
    AcDbObjectId id;  ///< unique in its module; given when the pattern is added
    Vor_String name;
    Vor_PatternType type = Vor_PatternType::row;
    int nrBolts1 = 0;            ///< 0 to 10,000 bolts in the first direction
    int nrBolts2 = 0;            ///< in the second; 0 where there is none
    bool reverseStart1 = false;  ///< the first direction starts at its other end
    bool reverseStart2 = false;

    bool hasSecondDirection() const { return type == Vor_PatternType::grid; }
    bool operator==(const Vor_BoltPattern&) const = default;
};

class VORMANT_API Vor_BoltModule : public Vor_Module {
  public:
    explicit Vor_BoltModule(std::string_view name) : Vor_Module(name) {}
    Vor_ModuleType type() const override { return Vor_ModuleType::bolt; }
    std::unique_ptr<Vor_Module> clone() const override;

    /// Bolt diameter in millimetres, above 0; how much wider the hole is, from 0.
    double boltDiameter() const { return m_boltDiameter; }
    double holeOffset() const { return m_holeOffset; }
    /// eInvalidInput, with the old value kept, when out of range.
    ErrorStatus setBoltDiameter(double diameter);
    ErrorStatus setHoleOffset(double offset);

    /// In the order in which they were added.
    AcArray<AcDbObjectId> getPatternIds() const;
    /// Null when there is none of that id.
    const Vor_BoltPattern* getPattern(AcDbObjectId id) const;
    /// By name, letter case aside; null when there is none. Valid until something is added.
    const Vor_BoltPattern* findPattern(std::string_view name) const;

    /// The id in `pattern` is not read. eInvalidInput for a bad or taken name, a count out of
    /// range, or second-direction values in a pattern that has none.
    ErrorStatus addPattern(const Vor_BoltPattern& pattern);
    /// `first` says which direction. eInvalidInput, with the old value kept, for an unknown id, a
    /// direction that the pattern lacks, or a count out of range.
    ErrorStatus setNrBolts(AcDbObjectId id, bool first, int count);
    ErrorStatus setReverseStart(AcDbObjectId id, bool first, bool reverse);

  protected:
    bool hasSameContent(const Vor_Module& other) const override;

  private:
    Vor_BoltPattern* patternOf(AcDbObjectId id, bool first);

    double m_boltDiameter = 16;
    double m_holeOffset = 2;
    Vor_Array<Vor_BoltPattern> m_patterns;
};

/// The module as a bolt module; null when it is missing or another kind.
VORMANT_API Vor_BoltModule* asBoltModule(Vor_Module* module);
VORMANT_API const Vor_BoltModule* asBoltModule(const Vor_Module* module);
