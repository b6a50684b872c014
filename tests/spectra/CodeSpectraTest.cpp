#include "spectra/Spectrum.h"

#include <gtest/gtest.h>

#include <cmath>

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

struct Ordinate {
    int soil;
    double T;
    double se;
};

// EC8, ag = 0.3, xi = 0.07 (eta = sqrt(10/12)), ST = 1.2, q = 1; at and 1 ms before each
// corner period. Worked out in 50-digit decimal arithmetic.
constexpr Ordinate kEc8Table[] = {
    {0, 0.049, 0.809533896174831},  {0, 0.05, 0.8215838362577492},   {0, 0.249, 0.8215838362577492},
    {0, 0.25, 0.8215838362577492},  {0, 1.199, 0.17130605426558573}, {0, 1.2, 0.1711632992203644},
    {1, 0.049, 1.0928707598360217}, {1, 0.05, 1.1091381789479613},   {1, 0.249, 1.1091381789479613},
    {1, 0.25, 1.1091381789479613},  {1, 1.199, 0.23126317325854073}, {1, 1.2, 0.23107045394749195},
    {2, 0.099, 1.223338299324435},  {2, 0.1, 1.2323757543866238},    {2, 0.249, 1.2323757543866238},
    {2, 0.25, 1.2323757543866238},  {2, 1.199, 0.2569590813983786},  {2, 1.2, 0.2567449488305466},
    {3, 0.099, 1.468005959189322},  {3, 0.1, 1.4788509052639485},    {3, 0.299, 1.4788509052639485},
    {3, 0.3, 1.4788509052639485},   {3, 1.199, 0.3700210772136652},  {3, 1.2, 0.3697127263159871},
    {4, 0.049, 1.2952542338797295}, {4, 0.05, 1.3145341380123987},   {4, 0.249, 1.3145341380123987},
    {4, 0.25, 1.3145341380123987},  {4, 1.199, 0.2740896868249372},  {4, 1.2, 0.27386127875258304},
};

// NTC, ag = 0.25, F0 = 2.5, TCs = 0.5, ST = 1.2, q = 1.5 (no damping correction), so
// TD = 2.6 and TC = CC * 0.5 with CC = 1, 1.10 * 0.5^-0.20, 1.05 * 0.5^-0.33, 1.25 * 0.5^-0.50,
// 1.15 * 0.5^-0.40; SS = 1, 1.15, 1.325, 1.4625, 1.3125 (none clamped). At and 1 ms before
// each corner period, worked out in 50-digit decimal arithmetic.
constexpr Ordinate kNtcTable[] = {
    {0, 0.16566666666666666, 0.4988},
    {0, 0.16666666666666666, 0.5},
    {0, 0.499, 0.5},
    {0, 0.5, 0.5},
    {0, 2.599, 0.09619084263178146},
    {0, 2.6, 0.09615384615384616},
    {1, 0.20959469841612308, 0.5739078547478649},
    {1, 0.21059469841612308, 0.575},
    {1, 0.6307840952483692, 0.575},
    {1, 0.6317840952483692, 0.575},
    {1, 2.599, 0.1397752423115861},
    {1, 2.6, 0.13972148260300474},
    {2, 0.21897734054131995, 0.6612953304674568},
    {2, 0.21997734054131995, 0.6625},
    {2, 0.6589320216239599, 0.6625},
    {2, 0.6599320216239599, 0.6625},
    {2, 2.599, 0.16822045568521485},
    {2, 2.6, 0.16815575550995132},
    {3, 0.2936278254943948, 0.7302572220792141},
    {3, 0.2946278254943948, 0.73125},
    {3, 0.8828834764831844, 0.73125},
    {3, 0.8838834764831844, 0.73125},
    {3, 2.599, 0.24868787694433575},
    {3, 2.6, 0.24859222776089562},
    {4, 0.2519056828981381, 0.6552120636555417},
    {4, 0.2529056828981381, 0.65625},
    {4, 0.7577170486944143, 0.65625},
    {4, 0.7587170486944143, 0.65625},
    {4, 2.599, 0.19157678461166192},
    {4, 2.6, 0.19150310123296513},
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
    for (const Ordinate& row : kEc8Table) {
        SCOPED_TRACE(testing::Message() << "EC8 soil " << row.soil << " T " << row.T);
        EXPECT_NEAR(Ec8(0.3, 0.07, row.soil, 1.2, row.T, 1.0), row.se, row.se * kRelative);
    }
    for (const Ordinate& row : kNtcTable) {
        SCOPED_TRACE(testing::Message() << "NTC soil " << row.soil << " T " << row.T);
        EXPECT_NEAR(Ntc(0.25, 0.05, row.soil, 1.2, 2.5, 0.5, row.T, 1.5), row.se,
                    row.se * kRelative);
    }
}

// At a corner period the branch that starts there applies. Neighbouring branches meet there
// in exact arithmetic, but for many inputs they round to different doubles; at every such
// corner the result must be the later branch's, to the bit. The branch expressions below are
// the codes' own, in their order of operations.
TEST(CodeSpectraTest, CornerPeriodBelongsToTheBranchStartingThere) {
    struct Ec8Soil {
        double S, TB, TC, TD;
    };
    const Ec8Soil ec8[] = {{1.0, 0.05, 0.25, 1.2},
                           {1.35, 0.05, 0.25, 1.2},
                           {1.5, 0.1, 0.25, 1.2},
                           {1.8, 0.1, 0.3, 1.2},
                           {1.6, 0.05, 0.25, 1.2}};
    int decided = 0;
    for (double ag : {0.1, 0.15, 0.2, 0.25, 0.3, 0.35}) {
        for (double q : {1.5, 3.0}) {
            for (double ST : {1.0, 1.2, 1.4}) {
                for (int soil = 0; soil < 5; ++soil) {
                    const Ec8Soil& p = ec8[soil];
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

    struct NtcSoil {
        double a, b, lower, upper, c, e;
    };
    const NtcSoil ntc[] = {{1.0, 0.0, 1.0, 1.0, 1.0, 0.0},
                           {1.40, 0.40, 1.0, 1.2, 1.10, -0.20},
                           {1.70, 0.60, 1.0, 1.5, 1.05, -0.33},
                           {2.40, 1.50, 0.9, 1.8, 1.25, -0.50},
                           {2.00, 1.10, 1.0, 1.6, 1.15, -0.40}};
    decided = 0;
    for (double ag : {0.15, 0.2, 0.25, 0.3, 0.35}) {
        for (double F0 : {2.4, 2.6}) {
            for (double TCs : {0.3, 0.4, 0.5}) {
                for (int soil = 0; soil < 5; ++soil) {
                    const NtcSoil& p = ntc[soil];
                    const double q = 1.5;
                    const double ST = 1.2;
                    const double SS = std::fmin(std::fmax(p.a - p.b * F0 * ag, p.lower), p.upper);
                    const double TC = p.c * std::pow(TCs, p.e) * TCs;
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
    // The host calls them on a spectrum as well; they read nothing of it.
    Spectrum s;
    s.Damp = 0.5;
    double se = 0.0;
    EXPECT_EQ(s.GetSpettro_EC8(0.25, 0.05, 0, 1.0, 0.1, 1.0, &se), 0);
    EXPECT_EQ(se, 0.625);
}
