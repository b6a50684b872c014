#include "spectra/ModesFile.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

bool ParseNumber(const std::string& word, double& value) {
    char* end = nullptr;
    value = std::strtod(word.c_str(), &end);
    return end != word.c_str() && *end == '\0' && std::isfinite(value);
}

} // namespace

namespace seisplot {

bool ReadModesFile(const std::string& path, EnvelopeModes& modes, std::string& error) {
    std::ifstream in(path);
    if (!in) {
        error = "cannot read the modes file " + path;
        return false;
    }
    EnvelopeModes read;
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
            error = where + "expected 'period X Y Z', found '" + line + "'";
            return false;
        }
        if (values[0] <= 0.0) {
            error = where + "the period must be positive";
            return false;
        }
        read.Periods.push_back(values[0]);
        read.Shares.insert(read.Shares.end(), {values[1], values[2], values[3]});
        read.Checked.push_back(true);
    }
    if (read.Periods.empty()) {
        error = "the modes file " + path + " holds no mode";
        return false;
    }
    modes = std::move(read);
    return true;
}

} // namespace seisplot
