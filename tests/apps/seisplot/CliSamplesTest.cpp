// The built program on the sample records of data/samples, and the demo over them.

#include "CliFixtures.h"

#include "platform/core/ScriptedUserInterface.h"
#include "spectra/Envelope.h"

#include <gmock/gmock.h>

using seisplot::test::CliResult;
using seisplot::test::TempDir;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

const fs::path kSamples = SEISPLOT_SAMPLES_DIR;

TEST(CliSamples, DemoWritesEveryResult) {
    ASSERT_TRUE(fs::exists(kSamples / "structure.modes")) << "sample records missing: " << kSamples;
    TempDir dir;
    const std::string out = dir.Path("demo");
    const CliResult r = seisplot::test::RunCli({"demo", out}, dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;
    for (const char* file :
         {"records.acc", "import.txt", "list.txt", "spectrum-1.csv", "envelope-pairs.txt",
          "envelope-modes.txt", "spectra.spc", "record-1-report.txt", "spectrum-1-report.txt",
          "record-1.png", "spectrum-1-xi0.050.png", "spectrum-1-xi0.100.png",
          "envelope-pairs.png"}) {
        EXPECT_TRUE(fs::exists(fs::path(out) / file)) << file;
        EXPECT_THAT(r.out, HasSubstr(file));
    }
    SpectrumColl spectra;
    CString path = (fs::path(out) / "spectra.spc").c_str();
    spectra.ReadFromFile(path);
    ASSERT_EQ(spectra.GetSpectrumNum(), 2u);
    EXPECT_EQ(std::string(spectra.GetSpectrum(1).GetName()),
              "Generic - Complete Envelope - Damping  0.050");
    // The modes envelope: T = 0 and the six modes of the sample structure.
    EXPECT_EQ(spectra.GetSpectrum(2).Curve.GetNP(), 7);
    const Ec8Rating rating = MatchEc8SoilClasses(spectra.GetSpectrum(2));
    std::string verdict = rating.Verdict.GetString();
    verdict.pop_back();
    EXPECT_THAT(r.out, HasSubstr(verdict));
}

} // namespace
