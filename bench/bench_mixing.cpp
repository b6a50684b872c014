// Speed of curve formulas: one formula over six bound curves of 1 000 000 points each, as the
// mixing dialog and `seisplot curves mix` evaluate it (ApplyCurveFormula: units converted both
// ways, every point at once with muParser's bulk evaluation), as a host that follows the
// mixing loop literally evaluates it (a fresh VarMan per point, the formula compiled once and
// reused), and muParser's bulk evaluation alone on columns already displayed.

#include "host/CurveFormula.h"
#include "host/PCurve.h"
#include "host/VarMan.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr const char* kFormula = "(A - B) * C + D / (1 + E*E) - sqrt(abs(F))";

const std::array<PCurve, 6>& Curves() {
    static const std::array<PCurve, 6> curves = [] {
        std::array<PCurve, 6> made;
        for (int c = 0; c < 6; ++c) {
            made[static_cast<size_t>(c)].XUnit = seisplot::UnitKind::Time;
            made[static_cast<size_t>(c)].YUnit = seisplot::UnitKind::Length;
            for (int k = 0; k < kPoints; ++k) {
                made[static_cast<size_t>(c)].AddPoint(0.001 * k,
                                                      100.0 * std::sin(0.001 * k * (c + 1)));
            }
        }
        return made;
    }();
    return curves;
}

void Formula(benchmark::State& state) {
    const auto& curves = Curves();
    std::array<seisplot::FormulaSlot, seisplot::kFormulaSlots> slots;
    const char* names[] = {"A", "B", "C", "D", "E", "F"};
    for (size_t s = 0; s < slots.size(); ++s) {
        slots[s] = {&curves[s], names[s]};
    }
    Units units;
    for (auto _ : state) {
        PCurve result;
        const auto outcome = seisplot::ApplyCurveFormula(slots, kFormula, seisplot::FormulaAxis::Y,
                                                         seisplot::UnitKind::Length, units, result);
        benchmark::DoNotOptimize(outcome);
        benchmark::DoNotOptimize(result.GetNP());
    }
    state.counters["points_per_second"] = benchmark::Counter(
        static_cast<double>(kPoints), benchmark::Counter::kIsIterationInvariantRate);
}

void PerPoint(benchmark::State& state) {
    const auto& curves = Curves();
    const char* names[] = {"A", "B", "C", "D", "E", "F"};
    Units units;
    for (auto _ : state) {
        double sum = 0.0;
        for (int k = 0; k < kPoints; ++k) {
            VarMan vars;
            for (size_t s = 0; s < 6; ++s) {
                vars.AddVar(names[s], units.L_U(curves[s][k].GetY()), 1);
            }
            std::string text = kFormula;
            VarMan::DeleteBlanks(text.data());
            char* cursor = text.data();
            Variable value;
            vars.expression(&cursor, &value);
            sum += value.GetAsDouble();
        }
        benchmark::DoNotOptimize(sum);
    }
    state.counters["points_per_second"] = benchmark::Counter(
        static_cast<double>(kPoints), benchmark::Counter::kIsIterationInvariantRate);
}

// muParser's bulk evaluation of the same formula over the six columns, already displayed.
void MuParserBulk(benchmark::State& state) {
    const auto& curves = Curves();
    std::vector<std::vector<double>> columns(6, std::vector<double>(kPoints));
    for (size_t s = 0; s < 6; ++s) {
        for (int k = 0; k < kPoints; ++k) {
            columns[s][static_cast<size_t>(k)] = curves[s][k].GetY() / 1000.0;
        }
    }
    mu::Parser parser;
    const char* names[] = {"A", "B", "C", "D", "E", "F"};
    for (size_t s = 0; s < 6; ++s) {
        parser.DefineVar(names[s], columns[s].data());
    }
    parser.SetExpr(kFormula);
    std::vector<double> results(kPoints);
    for (auto _ : state) {
        parser.Eval(results.data(), kPoints);
        benchmark::DoNotOptimize(results.data());
    }
    state.counters["points_per_second"] = benchmark::Counter(
        static_cast<double>(kPoints), benchmark::Counter::kIsIterationInvariantRate);
}

} // namespace

BENCHMARK(MuParserBulk)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Formula)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PerPoint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_MAIN();
