// The --json output of every command is a contract: its field names, their order and what
// each holds, against the options given and the library's values.

#include "CliFixtures.h"

#include <gmock/gmock.h>

using seisplot::test::EventSet;
using seisplot::test::ReadSet;

namespace {

using Keys = std::vector<std::string>;
using Json = nlohmann::ordered_json;

// The command's JSON with its keys in the order printed.
Json Ordered(const EventSet& event, const std::vector<std::string>& args) {
    const seisplot::test::CliResult r = event.Run(args);
    EXPECT_EQ(r.status, 0) << r.err;
    return Json::parse(r.out);
}

Keys KeysOf(const Json& object) {
    Keys keys;
    for (auto it = object.begin(); it != object.end(); ++it) {
        keys.push_back(it.key());
    }
    return keys;
}

TEST(CliJson, EveryCommandNamesItsFields) {
    EventSet event;
    AccelerogramColl records = ReadSet(event.set);
    const Accelerogram& north = records.GetAccelerogram(2);

    const std::string copy = event.dir.Path("copy.acc");
    const Json imported =
        Ordered(event, {"import", event.dir.Path("EV_N.ASC"), "-o", copy, "--json"});
    EXPECT_EQ(KeysOf(imported), (Keys{"output", "records", "imported", "skipped"}));
    EXPECT_EQ(imported["output"], copy);
    EXPECT_EQ(imported["records"], 1);
    EXPECT_EQ(KeysOf(imported["imported"][0]),
              (Keys{"file", "identifier", "number", "summary", "pga_g", "points"}));
    EXPECT_EQ(imported["imported"][0]["summary"], std::string(north.Explanation));
    EXPECT_EQ(imported["imported"][0]["pga_g"].get<double>(), north.GetPga());
    EXPECT_EQ(imported["imported"][0]["points"], 1001);
    EXPECT_EQ(imported["skipped"], Json::array());

    const Json list = Ordered(event, {"list", event.set, "--json"});
    EXPECT_EQ(KeysOf(list), (Keys{"file", "records"}));
    const Json& row = list["records"][1];
    EXPECT_EQ(KeysOf(row), (Keys{"number", "identifier", "file_identifier", "pga_g", "points",
                                 "step_s", "duration_s", "event_id", "angle_we", "vertical"}));
    EXPECT_EQ(row["number"], 2);
    EXPECT_EQ(row["file_identifier"], "EV_N.ASC");
    EXPECT_NEAR(row["step_s"].get<double>(), 0.01, 1e-15);
    EXPECT_EQ(row["duration_s"].get<double>(), north.Record.GetMaxX() - north.Record.GetMinX());
    EXPECT_EQ(row["event_id"], "EV1");
    EXPECT_EQ(row["angle_we"], 90.0);
    EXPECT_EQ(row["vertical"], false);

    const Json shown = Ordered(event, {"show", event.set, "2", "--json"});
    EXPECT_EQ(KeysOf(shown), (Keys{"number",
                                   "identifier",
                                   "file_identifier",
                                   "name",
                                   "explanation",
                                   "event_name",
                                   "event_id",
                                   "event_date",
                                   "event_time",
                                   "synthetic",
                                   "synthetic_kind",
                                   "mw",
                                   "ml",
                                   "epicentral_distance_km",
                                   "hypocentral_depth_km",
                                   "strike",
                                   "dip",
                                   "rake",
                                   "latitude",
                                   "longitude",
                                   "angle_we",
                                   "backazimuth",
                                   "vertical",
                                   "user1",
                                   "user2",
                                   "user3",
                                   "user4",
                                   "user5",
                                   "analysis_id",
                                   "record_version",
                                   "points",
                                   "step_s",
                                   "tmin_s",
                                   "tmax_s",
                                   "duration_s",
                                   "pga_g",
                                   "pga_time_s",
                                   "curve_axes"}));
    EXPECT_EQ(shown["event_name"].get<std::string>(), ""); // a plain ITACA file keeps none
    EXPECT_EQ(shown["synthetic"], 0);
    EXPECT_EQ(shown["record_version"], 104);
    EXPECT_EQ(shown["tmax_s"].get<double>(), north.Record.GetMaxX());
    EXPECT_EQ(shown["curve_axes"].get<std::string>(), "t, a");

    const Json spectrum = Ordered(event, {"spectrum", event.set, "2", "--kind", "ads", "--tmax",
                                          "0.5", "--dt", "0.25", "--json"});
    EXPECT_EQ(KeysOf(spectrum), (Keys{"file", "record", "identifier", "kind", "max_period_s",
                                      "period_step_s", "curves"}));
    EXPECT_EQ(spectrum["record"], 2);
    EXPECT_EQ(spectrum["kind"], "ads");
    EXPECT_EQ(spectrum["max_period_s"], 0.5);
    EXPECT_EQ(spectrum["period_step_s"], 0.25);
    EXPECT_EQ(KeysOf(spectrum["curves"][0]), (Keys{"damping", "points"}));
    EXPECT_EQ(KeysOf(spectrum["curves"][0]["points"][1]), (Keys{"sd_mm", "sa_g"}));
    EXPECT_EQ(spectrum["curves"][0]["points"].size(), 3u);

    // EC8 design spectrum: the header repeats the options; NTC adds f0 and tcs_s.
    const Json ec8 =
        Ordered(event, {"code", "ec8", "--ag", "0.25", "--soil", "c", "--st", "1.2", "--xi", "0.07",
                        "--q", "3", "--tmax", "0.2", "--dt", "0.1", "--json"});
    EXPECT_EQ(KeysOf(ec8), (Keys{"code", "kind", "ag_g", "soil", "st", "damping", "q", "points"}));
    EXPECT_EQ(ec8["code"], "ec8");
    EXPECT_EQ(ec8["kind"], "design");
    EXPECT_EQ(ec8["ag_g"], 0.25);
    EXPECT_EQ(ec8["soil"], "C");
    EXPECT_EQ(ec8["st"], 1.2);
    EXPECT_EQ(ec8["damping"], 0.07);
    EXPECT_EQ(ec8["q"], 3.0);
    EXPECT_EQ(KeysOf(ec8["points"][2]), (Keys{"period_s", "se_g"}));
    const Json ntc = Ordered(event, {"code", "ntc", "--ag", "0.2", "--soil", "B", "--f0", "2.4",
                                     "--tcs", "0.35", "--tmax", "0.2", "--dt", "0.1", "--json"});
    EXPECT_EQ(KeysOf(ntc), (Keys{"code", "kind", "ag_g", "soil", "st", "damping", "q", "points",
                                 "f0", "tcs_s"}));
    EXPECT_EQ(ntc["kind"], "elastic");
    EXPECT_EQ(ntc["f0"], 2.4);
    EXPECT_EQ(ntc["tcs_s"], 0.35);

    const std::string spectra = event.dir.Path("set.spc");
    const Json envelope =
        Ordered(event, {"envelope", event.set, "--records", "1-2", "--pairs", "--tmax", "0.5",
                        "--dt", "0.25", "--spectra", spectra, "--json"});
    EXPECT_EQ(KeysOf(envelope), (Keys{"title", "name", "damping", "statistic", "points", "pairs",
                                      "ec8", "spectra_file", "spectrum_number"}));
    EXPECT_EQ(envelope["statistic"], "envelope");
    EXPECT_EQ(envelope["damping"], 0.05);
    EXPECT_EQ(KeysOf(envelope["points"][1]), (Keys{"period_s", "sa_g", "signal"}));
    EXPECT_EQ(envelope["pairs"], Json::parse(R"([{"pair": 1, "records": [1, 2]}])"));
    EXPECT_EQ(KeysOf(envelope["ec8"]), (Keys{"peak_g", "peak_period_s", "damping", "verdict"}));
    EXPECT_EQ(envelope["spectra_file"], spectra);
    EXPECT_EQ(envelope["spectrum_number"], 1);
    const Json percentile = Ordered(event, {"envelope", event.set, "--tmax", "0.5", "--dt", "0.25",
                                            "--percentile", "90", "--json"});
    EXPECT_EQ(KeysOf(percentile), (Keys{"title", "name", "damping", "statistic", "points", "pairs",
                                        "ec8", "percentile"}));
    EXPECT_EQ(percentile["statistic"], "percentile");
    EXPECT_EQ(percentile["percentile"], 90.0);
    EXPECT_EQ(KeysOf(percentile["points"][0]), (Keys{"period_s", "sa_g"}));
}

} // namespace
