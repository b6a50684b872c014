#include "records/Accelerogram.h"
#include "records/RecordReport.h"
#include "support/ReportText.h"
#include "support/SampledRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

using seisplot::test::Banner;

namespace {

std::string Printed(const char* format, ...) SEISPLOT_PRINTF(1, 2);
std::string Printed(const char* format, ...) {
    char buffer[128];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    return buffer;
}

// A spectrum section: heading between two rules, the column titles, the rows.
std::string Section(size_t rule, const std::string& title, const std::string& columns,
                    const std::vector<std::string>& rows) {
    std::string text = std::string(rule, '-') + "\n" + title + "\n" + std::string(rule, '-') +
                       "\n\n\n" + columns + "\n\n";
    for (const std::string& row : rows) {
        text += row + "\n";
    }
    return text + "\n\n";
}

// The whole report: banner, the six summary lines, the three sections at 5 % damping.
std::string Report(const std::string& summary, const std::vector<std::string>& acc,
                   const std::vector<std::string>& dis, const std::vector<std::string>& ad) {
    return Banner(
               "#                                Accelerogram data                             #") +
           "\n\n" + summary + "\n\n\n" +
           Section(44, "Acceleration Response Spectrum at 5% damping", "Period (s)    Acc. (g)",
                   acc) +
           Section(44, "Displacement Response Spectrum at 5% damping",
                   "Period (s)      Displ. (mm)", dis) +
           Section(57, "Acceleration-Displacement Response Spectrum at 5% damping",
                   "Displ. (mm)            Acc. (g)", ad);
}

} // namespace

TEST(ReportTest, RecordReportLayout) {
    // 201 samples from 0.5 s to 2.5 s, a sine of 0.15 g with one trough of exactly 0.3 g.
    Accelerogram record = seisplot::test::SampledRecord(
        201, 0.01,
        [i = 0](double) mutable {
            const int k = i++;
            return k == 120 ? -2943.0 : 1471.5 * std::sin(2.0 * std::numbers::pi * 0.01 * k / 0.4);
        },
        0.5);
    record.Identifier = "REC-1";
    record.Explanation = "Hand-built test record";

    // Rows: the periods 0, 0.25, 0.5, 0.75 and 1 are known beforehand; the ordinates are the
    // record's own spectra at 5 % damping, and the acceleration-displacement rows pair them.
    PCurve acc;
    PCurve dis;
    ASSERT_EQ(record.GetAccSpectrum(0.05, 1.0, 0.25, acc), 0);
    ASSERT_EQ(record.GetDisSpectrum(0.05, 1.0, 0.25, dis), 0);
    ASSERT_EQ(acc.GetNP(), 5);
    ASSERT_EQ(dis.GetNP(), 5);
    std::vector<std::string> accRows;
    std::vector<std::string> disRows;
    std::vector<std::string> adRows;
    for (int k = 0; k < 5; ++k) {
        const double T = 0.25 * k;
        accRows.push_back(Printed(" %7.3lf    %7.3lf", T, acc[k].GetY()));
        disRows.push_back(Printed(" %7.3lf    %12.3lf", T, dis[k].GetY()));
        adRows.push_back(Printed(" %12.3lf    %12.3lf", dis[k].GetY(), acc[k].GetY()));
    }
    EXPECT_EQ(adRows[0], "        0.000           0.300");
    EXPECT_EQ(BuildRecordReport(record, 1.0, 0.25).str(),
              Report("Identifier:     REC-1\nPga (g):          0.300\ntmin (s):         0.500\n"
                     "tmax (s):         2.500\nDuration (s):     2.000\nHand-built test record",
                     accRows, disRows, adRows));

    // The rows are those of 5 % damping: at 10 % they would read otherwise.
    PCurve other;
    ASSERT_EQ(record.GetAccSpectrum(0.10, 1.0, 0.25, other), 0);
    EXPECT_NE(Printed(" %7.3lf    %7.3lf", 0.25, other[1].GetY()), accRows[1]);

    // A record of one sample has no spectra: the sections have no rows.
    double t[] = {0.2};
    double a[] = {-981.0};
    Accelerogram one(1, t, a);
    one.Identifier = "ONE";
    EXPECT_EQ(BuildRecordReport(one, 2.0, 0.1).str(),
              Report("Identifier:     ONE\nPga (g):          0.100\ntmin (s):         0.200\n"
                     "tmax (s):         0.200\nDuration (s):     0.000\n",
                     {}, {}, {}));
}
