// The features of a member: holes, notches and the like, each switched on or off.
#pragma once

#include "core_api/text/vor_array.h"
#include "core_api/text/vor_string.h"

struct ProfFeature {
    Vor_String name;
    bool isOn = true;
    double position = 0;  ///< millimetres from the start of the member
    double size = 0;      ///< millimetres: diameter or depth

    bool operator==(const ProfFeature&) const = default;
};

class VORMANT_API DlgProfFeaturesData {
  public:
    virtual ~DlgProfFeaturesData() = default;

    Vor_String sectionName;
    Vor_Array<ProfFeature> features;
};
