// A standard as detailers write them: 8 inputs, 12 outputs, 20 locals and 120 equations of some 38
// characters, and the same computation as a hand-written C++ function. Both are made from one
// list, so that they stay the same.
#pragma once

#include <array>

#include "bench/written_standard.h"

namespace typical {

using namespace bench;

inline constexpr int blocks = 3;  // of 40 equations, each with a K of its own

// clang-format off
#define TYPICAL_EQUATIONS(EQ, EQP, TEXT) \
    EQ(Hole, Bolt+IF(Bolt<16,1,IF(Bolt<27,2,K))) \
    EQ(Area, (Height-2*Flange)*Web+2*Width*Flange) \
    EQ(Lever, Height-Flange-K*(Bolt+Hole)/2) \
    EQ(Moment, Force*Lever/1000+Force*K/100) \
    EQ(Stress, ABS(Moment)*1000/(Area*K+1)) \
    EQ(Limit, IF(AND(Grade>=235,Grade<=460),Grade,235)/K) \
    EQ(Ratio, MIN(Stress/Limit,K)+MAX(0,Force-250)/900) \
    EQ(Lines, MAX(2,INT(Force/(Bolt*Bolt*K*0.3))+1)) \
    EQ(Gauge, ROUND((Width-2*Web)/(K+1),1)) \
    EQ(Net, Area-Lines*Hole*Flange*(K+0.5)) \
    EQP(Slope, "SQRT(Height^2+Width^2)/(Height+K)", SQRT(Height*Height+Width*Width)/(Height+K)) \
    EQ(Shear, IF(OR(Ratio>1,Lines>K),Force*0.9,Force)) \
    EQ(Bearing, 2.5*Grade*Bolt*Flange/1.25/1000*K) \
    EQ(Extra, INT((Shear-Bearing)/(Bearing+K))) \
    EQ(Side, MAX(1.2*Hole,MIN(K*Bolt,4*Flange+40))) \
    EQ(Space, ROUND(3*Bolt+ABS(Extra)*K,0)) \
    EQ(Step, (Space+Side)*(Lines-1)/(Lines+K)) \
    EQ(Offset, ROUND(Side*1.5+Hole/(K+2),2)-Web/2) \
    EQ(Gross, (2*Side+(Lines-1)*Space)*(Flange+K)) \
    EQ(Gross, MIN(Gross,Net)*0.9*Grade/(1.25*K)) \
    EQ(BoltCount, MAX(Lines,INT(Force/(Bearing+K))+1)*2) \
    EQ(PlateWidth, ROUND(2*Side+Gauge*(K+1),0)+Web) \
    EQ(PlateLength, ROUND((Lines-1)*Space+2*Side*K,0)) \
    EQ(PlateThickness, MAX(Flange,ROUND(Bolt*0.6+K,1),Web)) \
    EQ(Pitch, IF(Space<2.2*Hole,2.2*Hole,Space)+K) \
    EQ(EdgeEnd, MAX(Side,1.2*Hole,ROUND(K*Bolt,0))) \
    EQ(EdgeSide, IF(Gauge>EdgeEnd,EdgeEnd,Gauge/K)+5) \
    EQ(Weld, ROUND(0.46*MIN(Flange,PlateThickness)+K,0)) \
    EQ(Gap, ABS(PlateLength-Height)/(K+Lines)+Web) \
    EQ(Use, MAX(Ratio,Shear/(Gross+1),Force/(Net+K))) \
    EQ(Cope, IF(AND(Use<1,Gap>K),Flange+10,Flange*2)) \
    TEXT(Label, "Section&\"-\"&ROUND(Height*K,0)&\"x\"&INT(Web)", join(Section, "-", ROUND(Height*K,0), "x", INT(Web))) \
    TEXT(Mark, "IF(Section=\"HEA\",\"H\",\"P\")&BoltCount&\"/\"&Weld", join(Section == "HEA" ? "H" : "P", BoltCount, "/", Weld)) \
    EQ(Slope, (Slope*Height+Offset)/(Height+ABS(Offset)*K)) \
    EQ(Moment, ROUND(Moment+Shear*EdgeEnd/1000*K,3)) \
    EQ(Stress, SQRT(ABS(Moment*Slope)+Use*K)*(1+Ratio)) \
    EQ(Extra, MAX(0,MIN(Extra+K,INT(Stress/10)))-1) \
    EQ(Ratio, (Ratio+Use*(K-1))/(K*(1+ABS(Extra)))) \
    EQ(Step, IF(OR(Step>Space,Extra<0),Space/K,Step)) \
    EQ(Use, ROUND((Use+Ratio+Stress/Limit)/(K+2),4))
// clang-format on

inline constexpr const char* inputs[] = {"String Section", "Int Grade",     "Double Height",
                                         "Double Width",   "Double Flange", "Double Web",
                                         "Double Force",   "Double Bolt"};
inline constexpr const char* outputs[] = {
    "String Mark",           "Int BoltCount", "Double PlateWidth", "Double PlateLength",
    "Double PlateThickness", "Double Pitch",  "Double EdgeEnd",    "Double EdgeSide",
    "Double Weld",           "Double Gap",    "Double Use",        "Double Cope"};
inline constexpr const char* locals[] = {
    "Double Hole",  "Double Area",  "Double Lever",   "Double Moment", "Double Stress",
    "Double Limit", "Double Ratio", "Double Lines",   "Double Gauge",  "Double Net",
    "Double Slope", "Double Shear", "Double Bearing", "Double Extra",  "Double Side",
    "Double Space", "Double Step",  "Double Offset",  "Double Gross",  "String Label"};

/// The equations with their K's written in, in sheet order.
inline std::vector<std::string> equations(const std::array<std::string, blocks>& ks) {
    constexpr const char* patterns[] = {
        TYPICAL_EQUATIONS(BENCH_PATTERN_EQ, BENCH_PATTERN, BENCH_PATTERN)};
    return bench::equations(patterns, ks);
}

inline std::string document(const std::vector<std::string>& equations) {
    return bench::document(inputs, outputs, locals, equations);
}

inline TwVarCells variables() {
    const char* values[] = {"HEA-200", "355", "190", "200", "10", "6.5", "312.5", "20"};
    return bench::variables(inputs, values, outputs);
}

// --- the same in C++ ----------------------------------------------------------------------------

struct Results {
    std::string Mark;
    double BoltCount = 0, PlateWidth = 0, PlateLength = 0, PlateThickness = 0, Pitch = 0,
           EdgeEnd = 0, EdgeSide = 0, Weld = 0, Gap = 0, Use = 0, Cope = 0;
};

struct Inputs {
    std::string Section = "HEA-200";
    double Grade = 355, Height = 190, Width = 200, Flange = 10, Web = 6.5, Force = 312.5, Bolt = 20;
};

inline void handWritten(const Inputs& in, const std::array<double, blocks>& ks, Results& out) {
    const std::string& Section = in.Section;
    const double Grade = in.Grade, Height = in.Height, Width = in.Width, Flange = in.Flange,
                 Web = in.Web, Force = in.Force, Bolt = in.Bolt;
    double Hole = 0, Area = 0, Lever = 0, Moment = 0, Stress = 0, Limit = 0, Ratio = 0, Lines = 0,
           Gauge = 0, Net = 0, Slope = 0, Shear = 0, Bearing = 0, Extra = 0, Side = 0, Space = 0,
           Step = 0, Offset = 0, Gross = 0;
    std::string Label;
    auto& [Mark, BoltCount, PlateWidth, PlateLength, PlateThickness, Pitch, EdgeEnd, EdgeSide, Weld,
           Gap, Use, Cope] = out;
    for (const double K : ks) {
        TYPICAL_EQUATIONS(BENCH_STORE_EQ, BENCH_STORE_EQP, BENCH_STORE_TEXT)
    }
}

}  // namespace typical
