// Import of two-column text records: a time and an acceleration per line, at any spacing.

#include "records/Accelerogram.h"

#include "platform/core/UserInterface.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <limits>
#include <string>

namespace {

// Lines that begin with one of these are comments.
bool IsComment(const std::string& line) {
    return !line.empty() && line[0] != '\0' && std::strchr("$%\\&#\n", line[0]) != nullptr;
}

// Successive steps count as one constant step within this tolerance (seconds).
constexpr double kStepTolerance = 1.0e-8;

// How many lines of `in` could hold a point: at least three characters ("0 0") and not a
// comment; `in` is left at its start. Long records are sized once from it instead of growing
// by doubling, which holds up to three times their points during the last growth.
long CountDataLines(std::ifstream& in) {
    long lines = 0;
    long length = 0;
    char first = '\0';
    char block[1 << 16];
    const auto endLine = [&] {
        if (length >= 3 && std::strchr("$%\\&#", first) == nullptr) {
            ++lines;
        }
        length = 0;
    };
    while (in.read(block, sizeof block) || in.gcount() > 0) {
        const auto size = static_cast<size_t>(in.gcount());
        for (size_t i = 0; i < size; ++i) {
            if (block[i] == '\n') {
                endLine();
            } else if (length++ == 0) {
                first = block[i];
            }
        }
    }
    endLine();
    in.clear();
    in.seekg(0);
    return lines;
}

} // namespace

int Accelerogram::ReadTXTPLT(int quiet, CString name, CString path) {
    AfxMessageBox(14840);
    Units units;
    units.Reset(nullptr, 1, 0, 1, 0);
    return ReadTXTPLT(quiet, name, path, units);
}

int Accelerogram::ReadTXTPLT(int quiet, CString name, CString path, Units& units) {
    std::ifstream in(path.GetString(), std::ios::binary);
    if (!in) {
        AfxMessageBox("Unable to open text file");
        return 1;
    }
    PrepareImport();
    const long lines = CountDataLines(in);
    if (lines <= std::numeric_limits<int>::max()) {
        Record.GetPColl().Reserve(static_cast<int>(lines));
    }
    double pga = 0.0;
    double tmax = -1.0e12;
    double tmin = 1.0e12;
    long n = 0;
    double previousTime = 0.0;
    double step = 0.0;
    bool constantStep = true;
    std::string line;
    while (std::getline(in, line)) {
        double t = 0.0;
        double a = 0.0;
        if (line.empty() || IsComment(line) || std::sscanf(line.c_str(), "%le  %le", &t, &a) != 2) {
            continue;
        }
        ++n;
        t = units.T_M(t);
        a = units.Acc_M(a);
        Record.AddPoint(t, a);
        pga = std::max(pga, std::fabs(a));
        const double dt = t - previousTime;
        if (n >= 3 && std::fabs(dt - step) > kStepTolerance) {
            constantStep = false;
        }
        step = dt;
        previousTime = t;
        tmax = std::max(tmax, t);
        tmin = std::min(tmin, t);
    }
    in.close();

    CString summary;
    if (constantStep) {
        summary.Format("PGA= %7.3lf  NP= %ld  dT= %7.4lf  Tmin = %7.3lf  Tmax= %7.3lf", pga / kG, n,
                       step, tmin, tmax);
    } else {
        summary.Format("PGA= %7.3lf  NP= %ld  dT= varying  Tmin = %7.3lf  Tmax= %7.3lf", pga / kG,
                       n, tmin, tmax);
    }
    if (quiet == 0) {
        AfxMessageBox(summary);
    }
    FileIdentifier = name;
    Identifier = name;
    SetName(Identifier);
    Record.SetName(Identifier);
    Explanation = summary;
    return 0;
}
