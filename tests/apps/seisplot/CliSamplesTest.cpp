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

TEST(CliSamples, ImportedSamplesMatchTheLibraryImport) {
    if (!fs::exists(kSamples / "SYNA_SY01_HNE.ASC")) {
        GTEST_SKIP() << "no sample records in " << kSamples;
    }
    TempDir dir;
    const std::string set = dir.Path("samples.acc");
    std::vector<std::string> itaca;
    for (const auto& entry : fs::directory_iterator(kSamples)) {
        const std::string ext = entry.path().extension().string();
        if (ext == ".ASC" || ext == ".RA" || ext == ".TR" || ext == ".UP") {
            itaca.push_back(entry.path().string());
        }
    }
    std::sort(itaca.begin(), itaca.end());
    std::vector<std::string> args = {"import"};
    args.insert(args.end(), itaca.begin(), itaca.end());
    args.insert(args.end(), {"-o", set, "--quiet"});
    CliResult r = seisplot::test::RunCli(args, dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "");
    const std::string plt = (kSamples / "synthetic_varying_step.plt").string();
    r = seisplot::test::RunCli({"import", plt, "-o", set, "--append", "--units", "m"},
                               dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;

    const nlohmann::json list =
        nlohmann::json::parse(seisplot::test::RunCli({"list", set, "--json"}, dir.Path("")).out);
    ASSERT_EQ(list["records"].size(), itaca.size() + 1);
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    for (size_t i = 0; i < itaca.size(); ++i) {
        Accelerogram record;
        const CString path = itaca[i].c_str();
        ASSERT_EQ(record.ReadASC(1, fs::path(itaca[i]).filename().c_str(), path), 0);
        const nlohmann::json& row = list["records"][i];
        EXPECT_EQ(row["identifier"], fs::path(itaca[i]).filename().string());
        EXPECT_DOUBLE_EQ(row["pga_g"].get<double>(), record.GetPga()) << itaca[i];
        EXPECT_EQ(row["angle_we"].get<double>(), record.AngleWE) << itaca[i];
        EXPECT_EQ(row["vertical"].get<bool>(), record.IsVertical != 0) << itaca[i];
    }
    // The two-column sample in m/s²: PGA 0.12 g as its header says, a varying step.
    const nlohmann::json& last = list["records"].back();
    EXPECT_NEAR(last["pga_g"].get<double>(), 0.12, 5e-5);
    EXPECT_TRUE(last["step_s"].is_null());
}

TEST(CliSamples, DemoWritesEveryResult) {
    if (!fs::exists(kSamples / "structure.modes")) {
        GTEST_SKIP() << "no sample records in " << kSamples;
    }
    TempDir dir;
    const std::string out = dir.Path("demo");
    const CliResult r = seisplot::test::RunCli({"demo", out}, dir.Path(""));
    ASSERT_EQ(r.status, 0) << r.err;
    for (const char* file :
         {"records.acc", "import.txt", "list.txt", "spectrum-1.csv", "envelope-pairs.txt",
          "envelope-modes.txt", "spectra.spc", "record-1-report.txt", "spectrum-1-report.txt"}) {
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
