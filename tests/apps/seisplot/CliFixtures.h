#pragma once
// Small record files for the command-line tests, and the record sets they become.

#include "CliRunner.h"

#include "records/AccelerogramColl.h"
#include "support/TempDir.h"

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace seisplot::test {

// n samples at dt seconds of a decaying two-tone signal, starting at exactly 0.
inline double Signal(double t, double scale, double phase) {
    const double pi = 2.0 * std::asin(1.0);
    return scale * std::exp(-0.3 * t) *
           (std::sin(2 * pi * 1.7 * t) + 0.5 * std::sin(2 * pi * 4.1 * t) * std::cos(phase));
}

// An ITACA ASCII file in cm/s², its stream ending in E, N or Z.
inline std::string ItacaText(const std::string& eventId, const std::string& stream, double scale,
                             int n = 1001, double dt = 0.01) {
    std::string text = "EVENT_NAME: TEST_EVENT\nEVENT_ID: " + eventId +
                       "\nEVENT_DATE_YYYYMMDD: 20200102\nEVENT_TIME_HHMMSS: 030405\n";
    char line[64];
    std::snprintf(line, sizeof line, "SAMPLING_INTERVAL_S: %.6f\nNDATA: %d\n", dt, n);
    text += line;
    text += "STREAM: HN" + stream + "\nUNITS: cm/s^2\nDATA_TYPE: ACCELERATION\nUSER5:\n";
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line, "%.6E\n",
                      Signal(i * dt, scale, stream == "N" ? 1.0 : 0.0));
        text += line;
    }
    return text;
}

// A two-column file: "time acceleration" per line after a comment.
inline std::string TwoColumnText(int n, double dt, double scale) {
    std::string text = "# time (s) and acceleration\n";
    char line[64];
    for (int i = 0; i < n; ++i) {
        std::snprintf(line, sizeof line, "%.4f %.6E\n", i * dt, Signal(i * dt, scale, 0.3));
        text += line;
    }
    return text;
}

inline AccelerogramColl ReadSet(const std::string& path) {
    AccelerogramColl records;
    CString file(path.c_str());
    records.ReadFromFile(file);
    return records;
}

// A folder with a record set of one event's E, N and Z components (200, 150 and 80 cm/s²
// scale), in that order.
struct EventSet {
    TempDir dir;
    std::string set = dir.Path("set.acc");
    EventSet() {
        const std::vector<std::string> files = {dir.Write("EV_E.ASC", ItacaText("EV1", "E", 200)),
                                                dir.Write("EV_N.ASC", ItacaText("EV1", "N", 150)),
                                                dir.Write("EV_Z.ASC", ItacaText("EV1", "Z", 80))};
        std::vector<std::string> args = {"import"};
        args.insert(args.end(), files.begin(), files.end());
        args.insert(args.end(), {"-o", set, "--quiet"});
        const CliResult r = RunCli(args, dir.Path(""));
        EXPECT_EQ(r.status, 0) << r.err;
    }
    CliResult Run(const std::vector<std::string>& args) const { return RunCli(args, dir.Path("")); }
    nlohmann::json Json(const std::vector<std::string>& args) const {
        const CliResult r = Run(args);
        EXPECT_EQ(r.status, 0) << r.err;
        return nlohmann::json::parse(r.out);
    }
};

} // namespace seisplot::test
