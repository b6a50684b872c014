// The bundled sample records: each imports, and a set of them survives an *.acc archive.

#include "platform/core/ScriptedUserInterface.h"
#include "records/AccelerogramColl.h"
#include "support/ArchiveBytes.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

struct Sample {
    const char* file;
    int points;
    double step;
    double pga;
    double angle;
    int vertical;
};

// From the samples' own description: points, step, PGA, and the direction the header gives.
const Sample kSamples[] = {
    {"SYNA_SY01_HNE.ASC", 8001, 0.005, 0.2100, 0.0, 0},
    {"SYNA_SY01_HNN.ASC", 8001, 0.005, 0.1800, 90.0, 0},
    {"SYNA_SY01_HNZ.ASC", 8001, 0.005, 0.0900, 0.0, 1},
    {"SYNA_SY01_HNR.RA", 8001, 0.005, 0.1470, 90.0 - 212.0, 0},
    {"SYNA_SY01_HNT.TR", 8001, 0.005, 0.1935, 180.0 - 212.0, 0},
    {"SYNA_SY01_HNZ.UP", 8001, 0.005, 0.0900, 0.0, 1},
    {"SYNB_SY02_HNE.ASC", 5001, 0.010, 0.0700, 0.0, 0},
    {"SYNB_SY02_HNN.ASC", 5001, 0.010, 0.0850, 90.0, 0},
    {"SYNB_SY02_HNZ.ASC", 5001, 0.010, 0.0550, 0.0, 1},
};

} // namespace

TEST(SamplesTest, EveryRecordImportsAndSurvivesAnArchive) {
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    AccelerogramColl set;
    for (const Sample& s : kSamples) {
        SCOPED_TRACE(s.file);
        Accelerogram r;
        const CString path = CString(SEISPLOT_SAMPLES_DIR "/") + s.file;
        ASSERT_EQ(r.ReadASC(1, s.file, path), 0);
        EXPECT_EQ(r.Record.GetNP(), s.points);
        EXPECT_NEAR(r.Record[1].GetX(), s.step, 1e-12);
        EXPECT_NEAR(r.GetPga(), s.pga, 5e-5); // the table rounds to four decimals
        EXPECT_EQ(r.AngleWE, s.angle);
        EXPECT_EQ(r.IsVertical, s.vertical);
        EXPECT_EQ(r.IsSynthetic, 0); // the headers carry complete dates
        set.AddAccelerogram(r);
    }
    const auto twoColumn = [&](const char* file, const char* length, int points, double pga) {
        SCOPED_TRACE(file);
        Accelerogram r;
        Units units;
        ASSERT_TRUE(units.SetUnit(length));
        const CString path = CString(SEISPLOT_SAMPLES_DIR "/") + file;
        ASSERT_EQ(r.ReadTXTPLT(1, file, path, units), 0);
        EXPECT_EQ(r.Record.GetNP(), points);
        EXPECT_NEAR(r.GetPga(), pga, 5e-5);
        set.AddAccelerogram(r);
    };
    twoColumn("synthetic_constant_step.txt", "cm", 6001, 0.32);
    twoColumn("synthetic_varying_step.plt", "m", 3331, 0.12);
    EXPECT_TRUE(ui.Messages().empty());

    seisplot::test::TempDir dir;
    CString path = dir.Path("samples.acc").c_str();
    ASSERT_EQ(set.WriteToFile(path), 0);
    AccelerogramColl back;
    ASSERT_EQ(back.ReadFromFile(path), 0);
    ASSERT_EQ(back.GetAccelerogramNum(), set.GetAccelerogramNum());
    // Every archived field and sample: a record read back stores the same bytes again.
    for (unsigned long i = 1; i <= set.GetAccelerogramNum(); ++i) {
        EXPECT_EQ(seisplot::test::StoreObject(*back.GetP(i)),
                  seisplot::test::StoreObject(*set.GetP(i)))
            << i;
    }
    EXPECT_EQ(back.GetP(1)->EventId, "SYN.20170412.0309");
    EXPECT_EQ(back.GetP(1)->EventName, ""); // a plain file's event name is not kept
    EXPECT_EQ(back.GetP(4)->EventName, "SYNTHETIC_VALLE_FITTIZIA"); // suffix removed from .RA
    EXPECT_EQ(back.GetP(4)->EventId, "SYN.20170412.0309");
}
