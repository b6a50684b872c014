// libFuzzer target: formulas of the expression library on arbitrary text. Whatever the text,
// evaluating it must not crash, and the point-by-point evaluation (VarMan::expression) and the
// evaluation of many rows at once (VarMan::EvaluateRows) must agree: both refuse it, or both
// give the same value on the same row. The seeds in corpus/fuzz_formula are formulas of the
// kind the curve mixing dialog takes.

#include "ScratchFiles.h"

#include "host/VarMan.h"

#include <cmath>
#include <string>

namespace {

constexpr const char* kNames[] = {"A", "B", "C", "D", "E", "F"};
constexpr double kRows[3][6] = {{1.5, -2.0, 0.0, 1e10, -1e-10, 3.0},
                                {0.0, 0.0, 0.0, 0.0, 0.0, 0.0},
                                {-7.25, 4.0, 2.0, -1e-3, 1e3, 0.5}};

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "fuzz_formula: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
    static const bool prepared = (seisplot::fuzz::Prepare("formula", {}), true);
    (void)prepared;
    // A formula holds at most 298 characters.
    std::string text(reinterpret_cast<const char*>(data), std::min<size_t>(size, 298));
    text = text.substr(0, text.find('\0'));
    VarMan::DeleteBlanks(text.data());
    text.resize(std::char_traits<char>::length(text.c_str()));

    double columns[6][3];
    std::vector<double*> data6;
    for (int v = 0; v < 6; ++v) {
        for (int r = 0; r < 3; ++r) {
            columns[v][r] = kRows[r][v];
        }
        data6.push_back(columns[v]);
    }
    VarMan rows;
    for (const char* name : kNames) {
        rows.AddVar(name, 0.0, 0);
    }
    double bulk[3] = {};
    const bool bulkDone = rows.EvaluateRows(text.c_str(), 3, data6, bulk) == 0;

    bool pointsDone = true;
    for (int r = 0; r < 3; ++r) {
        VarMan vars;
        for (int v = 0; v < 6; ++v) {
            vars.AddVar(kNames[v], kRows[r][v], 0);
        }
        std::string formula = text;
        char* cursor = formula.data();
        Variable value;
        if (vars.expression(&cursor, &value) != 0) {
            pointsDone = false;
            break;
        }
        if (!std::isfinite(value.GetAsDouble())) {
            Fail("a value that is not finite was accepted");
        }
        if (bulkDone && value.GetAsDouble() != bulk[r] &&
            !(std::isnan(value.GetAsDouble()) && std::isnan(bulk[r]))) {
            Fail("the two evaluations gave different values");
        }
    }
    if (bulkDone != pointsDone) {
        Fail("one evaluation refused the formula and the other took it");
    }
    return 0;
}
