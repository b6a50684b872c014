#include "records/Accelerogram.h"
#include "records/RecordReport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

namespace {

// 201 samples from 0.5 s to 2.5 s, a sine of 0.15 g with one trough of exactly 0.3 g.
Accelerogram HandBuiltRecord() {
    std::vector<double> t;
    std::vector<double> a;
    for (int i = 0; i <= 200; ++i) {
        t.push_back(0.5 + 0.01 * i);
        a.push_back(1471.5 * std::sin(2.0 * std::numbers::pi * 0.01 * i / 0.4));
    }
    a[120] = -2943.0;
    Accelerogram record(static_cast<int>(t.size()), t.data(), a.data());
    record.Identifier = "REC-1";
    record.Explanation = "Hand-built test record";
    return record;
}

std::vector<std::string> Lines(const CString& text) {
    std::vector<std::string> lines;
    std::string current;
    for (char c : text.str()) {
        if (c == '\n') {
            lines.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    EXPECT_EQ(current, "") << "text after the last line feed";
    return lines;
}

std::string Printed(const char* format, ...) SEISPLOT_PRINTF(1, 2);
std::string Printed(const char* format, ...) {
    char buffer[128];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    return buffer;
}

// The lines of a spectrum section: heading between two rules, the column titles, the rows.
std::vector<std::string> Section(int rule, const std::string& title, const std::string& columns,
                                 const std::vector<std::string>& rows) {
    std::vector<std::string> lines{std::string(static_cast<size_t>(rule), '-'),
                                   title,
                                   std::string(static_cast<size_t>(rule), '-'),
                                   "",
                                   "",
                                   columns,
                                   ""};
    lines.insert(lines.end(), rows.begin(), rows.end());
    lines.insert(lines.end(), {"", ""});
    return lines;
}

void ExpectBanner(const std::vector<std::string>& lines) {
    ASSERT_GE(lines.size(), 16U);
    const std::string hashes(80, '#');
    const std::string empty = "#" + std::string(78, ' ') + "#";
    EXPECT_EQ(lines[0], hashes);
    for (size_t k : {1U, 2U, 3U, 4U, 5U, 7U, 8U, 9U, 10U, 11U, 12U}) {
        EXPECT_EQ(lines[k], empty) << "banner line " << k;
    }
    EXPECT_EQ(lines[6],
              "#                                Accelerogram data                             #");
    for (size_t k : {13U, 14U}) {
        ASSERT_EQ(lines[k].size(), 80U) << "banner line " << k;
        EXPECT_EQ(lines[k].front(), '#');
        EXPECT_EQ(lines[k].back(), '#');
    }
    EXPECT_NE((lines[13] + lines[14]).find("seisplot"), std::string::npos);
    EXPECT_EQ(lines[15], hashes);
}

} // namespace

TEST(ReportTest, RecordReportLayout) {
    Accelerogram record = HandBuiltRecord();
    const CString report = BuildRecordReport(record, 1.0, 0.25);
    const std::vector<std::string> lines = Lines(report);
    ExpectBanner(lines);
    ASSERT_GT(lines.size(), 16U);

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
    EXPECT_EQ(accRows[0], "   0.000      0.300");
    EXPECT_EQ(disRows[0], "   0.000           0.000");
    EXPECT_EQ(adRows[0], "        0.000           0.300");

    std::vector<std::string> expected{"",
                                      "",
                                      "Identifier:     REC-1",
                                      "Pga (g):          0.300",
                                      "tmin (s):         0.500",
                                      "tmax (s):         2.500",
                                      "Duration (s):     2.000",
                                      "Hand-built test record",
                                      "",
                                      ""};
    for (const auto& section :
         {Section(44, "Acceleration Response Spectrum at 5% damping", "Period (s)    Acc. (g)",
                  accRows),
          Section(44, "Displacement Response Spectrum at 5% damping", "Period (s)      Displ. (mm)",
                  disRows),
          Section(57, "Acceleration-Displacement Response Spectrum at 5% damping",
                  "Displ. (mm)            Acc. (g)", adRows)}) {
        expected.insert(expected.end(), section.begin(), section.end());
    }
    const std::vector<std::string> body(lines.begin() + 16, lines.end());
    EXPECT_EQ(body, expected);

    // The rows are those of 5 % damping: at 10 % they would read otherwise.
    PCurve other;
    ASSERT_EQ(record.GetAccSpectrum(0.10, 1.0, 0.25, other), 0);
    EXPECT_NE(Printed(" %7.3lf    %7.3lf", 0.25, other[1].GetY()), accRows[1]);
}

TEST(ReportTest, RecordWithoutSpectraListsNoRows) {
    double t[] = {0.2};
    double a[] = {-981.0};
    Accelerogram record(1, t, a);
    record.Identifier = "ONE";
    const std::vector<std::string> lines = Lines(BuildRecordReport(record, 2.0, 0.1));
    ExpectBanner(lines);

    std::vector<std::string> expected{"",
                                      "",
                                      "Identifier:     ONE",
                                      "Pga (g):          0.100",
                                      "tmin (s):         0.200",
                                      "tmax (s):         0.200",
                                      "Duration (s):     0.000",
                                      "",
                                      "",
                                      ""};
    for (const auto& section :
         {Section(44, "Acceleration Response Spectrum at 5% damping", "Period (s)    Acc. (g)", {}),
          Section(44, "Displacement Response Spectrum at 5% damping", "Period (s)      Displ. (mm)",
                  {}),
          Section(57, "Acceleration-Displacement Response Spectrum at 5% damping",
                  "Displ. (mm)            Acc. (g)", {})}) {
        expected.insert(expected.end(), section.begin(), section.end());
    }
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 16, lines.end()), expected);
}
