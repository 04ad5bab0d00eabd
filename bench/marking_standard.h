// A standard that gives marks and remarks: half of its outputs and of its 120 equations are texts,
// with nested IF, AND, OR and &. As in typical_standard.h the same computation stands beside it in
// C++, made from one list.
#pragma once

#include <array>

#include "bench/written_standard.h"

namespace marking {

using namespace bench;

inline constexpr int blocks = 6;  // of 20 equations, each with a K of its own

// clang-format off
#define MARKING_EQUATIONS(EQ, EQP, TEXT) \
    EQ(Hole, Bolt+IF(Bolt<16,1,IF(Bolt<27,2,K))) \
    TEXT(Series, "IF(Height<150,\"light\",IF(Height<300,\"medium\",IF(Height<600,\"heavy\",\"extra\")))", \
         Height<150 ? "light" : Height<300 ? "medium" : Height<600 ? "heavy" : "extra") \
    EQ(Lines, MAX(2,INT(Force/(Bolt*K))+1)) \
    TEXT(Size, "Section&\"-\"&ROUND(Height,0)&\"x\"&ROUND(Width*K,1)", join(Section, "-", ROUND(Height,0), "x", ROUND(Width*K,1))) \
    EQ(Ratio, IF(AND(Grade>=235,Grade<=460),Force/(Height*K),IF(Grade>460,Force/(Width*K),1))) \
    TEXT(Kind, "IF(AND(Ratio<1,OR(Series=\"light\",Series=\"medium\")),\"F\",IF(Lines>3,\"G\",\"H\"))", \
         Ratio<1 && (Series == "light" || Series == "medium") ? "F" : Lines>3 ? "G" : "H") \
    TEXT(BoltName, "\"M\"&ROUND(Bolt,0)&\"-\"&IF(Grade>355,\"10.9\",\"8.8\")", join("M", ROUND(Bolt,0), "-", Grade>355 ? "10.9" : "8.8")) \
    EQP(BoltCount, "IF(Kind=\"F\",2,IF(Kind=\"G\",4,6))*Lines", (Kind == "F" ? 2 : Kind == "G" ? 4 : 6)*Lines) \
    TEXT(Profile, "IF(Section=\"HEA-200\",\"H\",IF(Section=\"IPE-200\",\"I\",\"U\"))&Size", \
         join(Section == "HEA-200" ? "H" : Section == "IPE-200" ? "I" : "U", Size)) \
    EQP(Plate, "ROUND(IF(Series=\"heavy\",Flange*K,Flange+K),1)", ROUND(Series == "heavy" ? Flange*K : Flange+K,1)) \
    TEXT(Mark, "Kind&BoltCount&\"/\"&Plate", join(Kind, BoltCount, "/", Plate)) \
    EQ(Gap, ABS(Height-Width)/(K+Lines)) \
    TEXT(WeldNote, "IF(Gap>K,\"a=\"&ROUND(0.46*Flange+K,0),IF(AND(Plate>10,Bolt>12),\"all round\",\"none\"))", \
         Gap>K ? join("a=", ROUND(0.46*Flange+K,0)) : Plate>10 && Bolt>12 ? "all round" : "none") \
    EQP(Weld, "IF(WeldNote=\"none\",0,ROUND(0.46*Flange+K,0))", WeldNote == "none" ? 0 : ROUND(0.46*Flange+K,0)) \
    TEXT(Class, "Steel&IF(Ratio>1,\"!\",\"\")&\"/\"&ROUND(Ratio*10,0)", join(Steel, Ratio>1 ? "!" : "", "/", ROUND(Ratio*10,0))) \
    EQ(Use, MIN(Ratio,Gap/(Height+K))+MAX(0,Lines-K)/900) \
    TEXT(Remark, "IF(AND(Use<1,Gap>K),\"ok\",IF(Use<K,\"check \"&Mark,\"fails\"))", \
         Use<1 && Gap>K ? "ok" : Use<K ? join("check ", Mark) : "fails") \
    EQP(Edge, "IF(OR(Remark=\"ok\",Kind=\"F\"),1.5*Hole,MAX(K*Bolt,1.2*Hole))", \
        Remark == "ok" || Kind == "F" ? 1.5*Hole : MAX(K*Bolt,1.2*Hole)) \
    TEXT(Size, "IF(Size=Profile,\"same\",Size&\"+\"&Kind)", Size == Profile ? "same" : join(Size, "+", Kind)) \
    EQP(Hole, "ROUND(Hole+IF(Remark=\"fails\",K,0),2)", ROUND(Hole+(Remark == "fails" ? K : 0),2))
// clang-format on

inline constexpr const char* inputs[] = {"String Section", "String Steel", "Int Grade",
                                         "Double Height",  "Double Width", "Double Flange",
                                         "Double Force",   "Double Bolt"};
inline constexpr const char* outputs[] = {"String Mark",    "Int BoltCount",   "String Remark",
                                          "Double Plate",   "String BoltName", "Double Gap",
                                          "String Profile", "Double Weld",     "String WeldNote",
                                          "Double Use",     "String Class",    "Double Edge"};
inline constexpr const char* locals[] = {"String Series", "String Size",  "String Kind",
                                         "Double Hole",   "Double Lines", "Double Ratio"};

/// The equations with their K's written in, in sheet order.
inline std::vector<std::string> equations(const std::array<std::string, blocks>& ks) {
    constexpr const char* patterns[] = {
        MARKING_EQUATIONS(BENCH_PATTERN_EQ, BENCH_PATTERN, BENCH_PATTERN)};
    return bench::equations(patterns, ks);
}

inline std::string document(const std::vector<std::string>& equations) {
    return bench::document(inputs, outputs, locals, equations);
}

inline TwVarCells variables() {
    const char* values[] = {"HEA-200", "S355", "355", "190", "200", "10", "312.5", "20"};
    return bench::variables(inputs, values, outputs);
}

// --- the same in C++ ----------------------------------------------------------------------------

struct Results {
    std::string Mark, Remark, BoltName, Profile, WeldNote, Class;
    double BoltCount = 0, Plate = 0, Gap = 0, Weld = 0, Use = 0, Edge = 0;
};

struct Inputs {
    std::string Section = "HEA-200", Steel = "S355";
    double Grade = 355, Height = 190, Width = 200, Flange = 10, Force = 312.5, Bolt = 20;
};

inline void handWritten(const Inputs& in, const std::array<double, blocks>& ks, Results& out) {
    const auto& [Section, Steel, Grade, Height, Width, Flange, Force, Bolt] = in;
    std::string Series, Size, Kind;
    double Hole = 0, Lines = 0, Ratio = 0;
    auto& [Mark, Remark, BoltName, Profile, WeldNote, Class, BoltCount, Plate, Gap, Weld, Use,
           Edge] = out;
    for (const double K : ks) {
        MARKING_EQUATIONS(BENCH_STORE_EQ, BENCH_STORE_EQP, BENCH_STORE_TEXT)
    }
}

}  // namespace marking
