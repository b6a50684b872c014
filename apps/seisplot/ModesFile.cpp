#include "ModesFile.h"

#include "Errors.h"
#include "FileChecks.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace seisplot::cli {
namespace {

bool ParseNumber(const std::string& word, double& value) {
    char* end = nullptr;
    value = std::strtod(word.c_str(), &end);
    return end != word.c_str() && *end == '\0' && std::isfinite(value);
}

} // namespace

EnvelopeModes ReadModesFile(const std::string& path) {
    CheckInput("the modes file", path);
    std::ifstream in(path);
    if (!in) {
        Fail("cannot read the modes file " + path);
    }
    EnvelopeModes modes;
    std::string line;
    for (int row = 1; std::getline(in, line); ++row) {
        line = line.substr(0, line.find('#'));
        std::istringstream words(line);
        std::vector<std::string> fields;
        for (std::string word; words >> word;) {
            fields.push_back(word);
        }
        if (fields.empty()) {
            continue;
        }
        double values[4] = {};
        bool numbers = fields.size() == 4;
        for (size_t i = 0; numbers && i < 4; ++i) {
            numbers = ParseNumber(fields[i], values[i]);
        }
        const std::string where = path + ":" + std::to_string(row) + ": ";
        if (!numbers) {
            Fail(where + "expected 'period X Y Z', found '" + line + "'");
        }
        if (values[0] <= 0.0) {
            Fail(where + "the period must be positive");
        }
        modes.Periods.push_back(values[0]);
        modes.Shares.insert(modes.Shares.end(), {values[1], values[2], values[3]});
        modes.Checked.push_back(true);
    }
    if (modes.Periods.empty()) {
        Fail("the modes file " + path + " holds no mode");
    }
    return modes;
}

} // namespace seisplot::cli
