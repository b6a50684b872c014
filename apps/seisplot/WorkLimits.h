#pragma once
// How much work one command line may ask for. Every option that sizes work is checked against
// these before anything is read or computed, so that no command line allocates without bound
// or runs for hours. The ranges of single options (CommandLine.h) are those of the dialogs
// that set the same values; these bound what several options ask for together.

#include <string>
#include <vector>

namespace seisplot::cli {

// Most periods in one grid (the envelope run's own limit) and most dampings in one run.
inline constexpr long kMostPeriods = 32767;
inline constexpr long kMostDampings = 100;
// Most points the sinusoid generator may make in one run (about 320 MB of points).
inline constexpr double kMostSinusoidPoints = 1.0e7;
inline constexpr unsigned kMostThreads = 256;

// The number of periods of the grid up to tmax, 0 included. A period within a millionth of
// a step of tmax counts as tmax.
long PeriodCount(double tmax, double dt);
// Fails (BadUsage) when the grid has more than kMostPeriods periods, naming both options.
void CheckPeriodCount(double tmax, double dt);
// The last period to hand to the library's grid, which adds the step up by repeated addition:
// a little above tmax, so that tmax itself is computed when it is on the grid.
double GridEnd(double tmax, double dt);
// The grid's periods as i·dt.
std::vector<double> PeriodGrid(double tmax, double dt);

} // namespace seisplot::cli
