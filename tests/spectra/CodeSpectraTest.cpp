#include "spectra/Spectrum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace {

// A worked ordinate: relative tolerance for values that went through a square root or power,
// or that were worked out in decimal.
constexpr double kRelative = 1e-12;

double Ec8(double ag, double xi, int soil, double ST, double T, double q) {
    double se = -1.0;
    EXPECT_EQ(Spectrum::GetSpettro_EC8(ag, xi, soil, ST, T, q, &se), 0);
    return se;
}

double Ntc(double ag, double xi, int soil, double ST, double F0, double TCs, double T, double q) {
    double se = -1.0;
    EXPECT_EQ(Spectrum::GetSpettro_NTC(ag, xi, soil, ST, F0, TCs, T, q, &se), 0);
    return se;
}

// The corner periods of the EC8 soils A to E (S, TB, TC, TD).
struct Ec8Soil {
    double S, TB, TC, TD;
};
constexpr Ec8Soil kEc8Soils[] = {{1.0, 0.05, 0.25, 1.2},
                                 {1.35, 0.05, 0.25, 1.2},
                                 {1.5, 0.1, 0.25, 1.2},
                                 {1.8, 0.1, 0.3, 1.2},
                                 {1.6, 0.05, 0.25, 1.2}};

// The NTC soils A to E: SS = a − b·F0·ag within lower ... upper; TC = c·TCs^e·TCs.
struct NtcSoil {
    double a, b, lower, upper, c, e;
};
constexpr NtcSoil kNtcSoils[] = {{1.0, 0.0, 1.0, 1.0, 1.0, 0.0},
                                 {1.40, 0.40, 1.0, 1.2, 1.10, -0.20},
                                 {1.70, 0.60, 1.0, 1.5, 1.05, -0.33},
                                 {2.40, 1.50, 0.9, 1.8, 1.25, -0.50},
                                 {2.00, 1.10, 1.0, 1.6, 1.15, -0.40}};

double NtcTC(const NtcSoil& p, double TCs) {
    return p.c * std::pow(TCs, p.e) * TCs;
}

// Ordinates of each soil 1 ms before TB, on the plateau (at TB, 1 ms before TC and at TC),
// 1 ms before TD and at TD; worked out in 50-digit decimal arithmetic.
struct Corners {
    double beforeTB, plateau, beforeTD, atTD;
};

// EC8, ag = 0.3, xi = 0.07 (eta = sqrt(10/12)), ST = 1.2, q = 1.
constexpr Corners kEc8Ordinates[] = {
    {0.809533896174831, 0.8215838362577492, 0.17130605426558573, 0.1711632992203644},
    {1.0928707598360217, 1.1091381789479613, 0.23126317325854073, 0.23107045394749195},
    {1.223338299324435, 1.2323757543866238, 0.2569590813983786, 0.2567449488305466},
    {1.468005959189322, 1.4788509052639485, 0.3700210772136652, 0.3697127263159871},
    {1.2952542338797295, 1.3145341380123987, 0.2740896868249372, 0.27386127875258304},
};

// NTC, ag = 0.25, F0 = 2.5, TCs = 0.5, ST = 1.2, q = 1.5 (no damping correction), so
// TD = 2.6, TB = TC / 3 and SS = 1, 1.15, 1.325, 1.4625, 1.3125 (none clamped).
constexpr Corners kNtcOrdinates[] = {
    {0.4988, 0.5, 0.09619084263178146, 0.09615384615384616},
    {0.5739078547478649, 0.575, 0.1397752423115861, 0.13972148260300474},
    {0.6612953304674568, 0.6625, 0.16822045568521485, 0.16815575550995132},
    {0.7302572220792141, 0.73125, 0.24868787694433575, 0.24859222776089562},
    {0.6552120636555417, 0.65625, 0.19157678461166192, 0.19150310123296513},
};

} // namespace

TEST(CodeSpectraTest, Ec8WorkedOrdinates) {
    // Soil A, ag = 0.25, elastic at 5 %: eta = 1.
    EXPECT_EQ(Ec8(0.25, 0.05, 0, 1.0, 0.05, 1.0), 0.625);
    EXPECT_EQ(Ec8(0.25, 0.05, 0, 1.0, 0.2499, 1.0), 0.625);
    EXPECT_DOUBLE_EQ(Ec8(0.25, 0.05, 0, 1.0, 0.0, 1.0), 0.166665); // 0.66666, not 2/3
    EXPECT_DOUBLE_EQ(Ec8(0.25, 0.05, 0, 1.0, 1.0, 1.0), 0.15625);
    EXPECT_EQ(Ec8(0.25, 0.05, 0, 1.0, 4.0, 1.0), 0.05);   // 0.01171875 raised to 0.2 ag
    EXPECT_EQ(Ec8(0.25, 0.05, 0, 1.0, 100.0, 1.0), 0.05); // far beyond TD as well
    // Beyond TD the ordinate is 0.25 * 2.5 * 0.25 * 1.2 / T^2 = 0.1875 / T^2: just above the
    // floor at T = 1.9, just below it at T = 2.
    EXPECT_DOUBLE_EQ(Ec8(0.25, 0.05, 0, 1.0, 1.9, 1.0), 0.1875 / 3.61);
    EXPECT_EQ(Ec8(0.25, 0.05, 0, 1.0, 2.0, 1.0), 0.05); // not 0.046875

    // 10 % damping: eta = sqrt(10/15) on the elastic plateau of soil B.
    EXPECT_NEAR(Ec8(0.25, 0.10, 1, 1.0, 0.1, 1.0), 0.25 * 1.35 * 2.5 * 0.81649658092772603,
                kRelative);
    // A design spectrum has no damping correction, and its plateau is ag S 2.5 / q.
    EXPECT_DOUBLE_EQ(Ec8(0.25, 0.10, 1, 1.0, 0.1, 1.5), 0.25 * 1.35 * 2.5 / 1.5);
    // First branch of a design spectrum, soil C, halfway to TB = 0.1, with ST = 1.2:
    // 0.2 * 1.8 * (0.66666 + 0.5 * (1.25 - 0.66666)) = 0.36 * 0.95833.
    EXPECT_DOUBLE_EQ(Ec8(0.2, 0.05, 2, 1.2, 0.05, 2.0), 0.3449988);
    // Soil D's corners are 0.1 / 0.3 / 1.2 and S = 1.8: 0.2 * 1.8 * 2.5 * 0.3 / 0.6.
    EXPECT_DOUBLE_EQ(Ec8(0.2, 0.05, 3, 1.0, 0.6, 1.0), 0.45);
}

TEST(CodeSpectraTest, NtcWorkedOrdinates) {
    // Soil B, F0 = 2.5: SS = 1.4 - 0.4 * 2.5 * ag, clamped to 1.0 ... 1.2. On the plateau the
    // ordinate is ag * SS * F0.
    EXPECT_DOUBLE_EQ(Ntc(0.2, 0.05, 1, 1.0, 2.5, 0.4, 0.4, 1.0) / (0.2 * 2.5), 1.2);
    EXPECT_DOUBLE_EQ(Ntc(0.05, 0.05, 1, 1.0, 2.5, 0.4, 0.4, 1.0) / (0.05 * 2.5), 1.2); // 1.35
    EXPECT_DOUBLE_EQ(Ntc(0.45, 0.05, 1, 1.0, 2.5, 0.4, 0.4, 1.0) / (0.45 * 2.5), 1.0); // 0.95
    // Soil D reaches its lower limit 0.9: 2.4 - 1.5 * 2.5 * 0.5 = 0.525.
    EXPECT_DOUBLE_EQ(Ntc(0.5, 0.05, 3, 1.0, 2.5, 0.4, 0.5, 1.0) / (0.5 * 2.5), 0.9);

    // Soil A, TCs = 0.3: TC = 0.3, TB = 0.1, TD = 4 ag + 1.6 = 2.6 for ag = 0.25.
    const double plateau = 0.25 * 2.5;
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 0.0, 1.0), 0.25);
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 0.05, 1.0), 0.25 * (0.5 * 2.5 + 0.5));
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 0.1, 1.0), plateau);
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 0.6, 1.0), plateau * 0.5);
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 2.6, 1.0), plateau * 0.3 / 2.6);
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 3.0, 1.0), plateau * 0.3 * 2.6 / 9.0);
    EXPECT_EQ(Ntc(0.25, 0.05, 0, 1.0, 2.5, 0.3, 20.0, 1.0), 0.05); // the 0.2 ag floor
    // 10 % damping corrects the elastic spectrum only.
    EXPECT_NEAR(Ntc(0.25, 0.10, 0, 1.0, 2.5, 0.3, 0.2, 1.0), plateau * 0.81649658092772603,
                kRelative);
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.10, 0, 1.0, 2.5, 0.3, 0.2, 2.0), plateau / 2.0);
    // The first branch starts at ag S for any q: at T = 0, (F0/q) (q/F0) = 1.
    EXPECT_DOUBLE_EQ(Ntc(0.25, 0.05, 0, 1.2, 2.5, 0.3, 0.0, 3.0), 0.3);
}

TEST(CodeSpectraTest, OrdinatesAroundEveryCornerOfEverySoil) {
    const auto expectAround = [](const Corners& c, double TB, double TC, double TD,
                                 const auto& se) {
        const std::pair<double, double> points[] = {{TB - 0.001, c.beforeTB}, {TB, c.plateau},
                                                    {TC - 0.001, c.plateau},  {TC, c.plateau},
                                                    {TD - 0.001, c.beforeTD}, {TD, c.atTD}};
        for (const auto& [T, expected] : points) {
            EXPECT_NEAR(se(T), expected, expected * kRelative) << "T " << T;
        }
    };
    for (int soil = 0; soil < 5; ++soil) {
        SCOPED_TRACE(testing::Message() << "soil " << soil);
        const Ec8Soil& e = kEc8Soils[soil];
        expectAround(kEc8Ordinates[soil], e.TB, e.TC, e.TD,
                     [&](double T) { return Ec8(0.3, 0.07, soil, 1.2, T, 1.0); });
        const double TC = NtcTC(kNtcSoils[soil], 0.5);
        expectAround(kNtcOrdinates[soil], TC / 3.0, TC, 2.6,
                     [&](double T) { return Ntc(0.25, 0.05, soil, 1.2, 2.5, 0.5, T, 1.5); });
    }
}

// At a corner period the branch that starts there applies. Neighbouring branches meet there
// in exact arithmetic, but for many inputs they round to different doubles; at every such
// corner the result must be the later branch's, to the bit. The branch expressions below are
// the codes' own, in their order of operations.
TEST(CodeSpectraTest, CornerPeriodBelongsToTheBranchStartingThere) {
    int decided = 0;
    for (double ag : {0.1, 0.15, 0.2, 0.25, 0.3, 0.35}) {
        for (double q : {1.5, 3.0}) {
            for (double ST : {1.0, 1.2, 1.4}) {
                for (int soil = 0; soil < 5; ++soil) {
                    const Ec8Soil& p = kEc8Soils[soil];
                    const double S = p.S * ST;
                    const double rising = ag * S * (0.66666 + (p.TB / p.TB) * (2.5 / q - 0.66666));
                    const double flatAtTB = ag * S * 2.5 / q;
                    const double falling = ag * S * (2.5 / q) * (p.TC / p.TC);
                    SCOPED_TRACE(testing::Message() << "EC8 ag " << ag << " q " << q << " ST " << ST
                                                    << " soil " << soil);
                    if (rising != flatAtTB) {
                        EXPECT_EQ(Ec8(ag, 0.05, soil, ST, p.TB, q), flatAtTB);
                        ++decided;
                    }
                    if (flatAtTB != falling) {
                        EXPECT_EQ(Ec8(ag, 0.05, soil, ST, p.TC, q), falling);
                        ++decided;
                    }
                }
            }
        }
    }
    // The inputs above decide 112 corners, TB and TC of every soil. (At TD, TC / TD and
    // TC * TD / TD^2 round alike for every EC8 soil, so no input decides it.)
    EXPECT_EQ(decided, 112);

    decided = 0;
    for (double ag : {0.15, 0.2, 0.25, 0.3, 0.35}) {
        for (double F0 : {2.4, 2.6}) {
            for (double TCs : {0.3, 0.4, 0.5}) {
                for (int soil = 0; soil < 5; ++soil) {
                    const NtcSoil& p = kNtcSoils[soil];
                    const double q = 1.5;
                    const double ST = 1.2;
                    const double SS = std::fmin(std::fmax(p.a - p.b * F0 * ag, p.lower), p.upper);
                    const double TC = NtcTC(p, TCs);
                    const double TB = TC / 3.0;
                    const double TD = 4.0 * ag + 1.6;
                    const double S = SS * ST;
                    const double rising =
                        ag * S * (F0 / q) * (TB / TB + (q / F0) * (1.0 - TB / TB));
                    const double flat = ag * S * F0 / q;
                    const double fallingAtTC = ag * S * (F0 / q) * (TC / TC);
                    const double fallingAtTD = ag * S * (F0 / q) * (TC / TD);
                    const double tail = ag * S * (F0 / q) * (TC * TD / (TD * TD));
                    SCOPED_TRACE(testing::Message() << "NTC ag " << ag << " F0 " << F0 << " TCs "
                                                    << TCs << " soil " << soil);
                    if (rising != flat) {
                        EXPECT_EQ(Ntc(ag, 0.05, soil, ST, F0, TCs, TB, q), flat);
                        ++decided;
                    }
                    if (flat != fallingAtTC) {
                        EXPECT_EQ(Ntc(ag, 0.05, soil, ST, F0, TCs, TC, q), fallingAtTC);
                        ++decided;
                    }
                    if (fallingAtTD != tail) {
                        EXPECT_EQ(Ntc(ag, 0.05, soil, ST, F0, TCs, TD, q), tail);
                        ++decided;
                    }
                }
            }
        }
    }
    EXPECT_EQ(decided, 137); // all three corners of every soil among them
}

TEST(CodeSpectraTest, UnknownSoilClassIsRefusedAndLeavesTheOrdinate) {
    for (int soil : {-1, 5, 100}) {
        double se = 7.5;
        EXPECT_EQ(Spectrum::GetSpettro_EC8(0.25, 0.05, soil, 1.0, 0.5, 1.0, &se), 1);
        EXPECT_EQ(Spectrum::GetSpettro_NTC(0.25, 0.05, soil, 1.0, 2.5, 0.4, 0.5, 1.0, &se), 1);
        EXPECT_EQ(se, 7.5);
    }
}
