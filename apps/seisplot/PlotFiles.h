#pragma once
// Plots of curves written to picture files: PNG (a raster image), SVG (a vector picture of
// the same size) or PDF (a printed page: the plot's 200 mm square).

#include "CommandLine.h"

#include "host/PCurve.h"

#include <optional>
#include <string>

namespace seisplot::cli {

struct PlotOptions {
    std::optional<std::string> file; // --plot FILE.png|FILE.svg|FILE.pdf
    std::string size = "800x600";    // --size WxH, pixels (PNG and SVG)
};
void AddPlotOptions(CLI::App& command, PlotOptions& options);
// -o FILE (required) and --size: for the commands whose whole output is the picture.
void AddPictureOptions(CLI::App& command, PlotOptions& options);

struct PictureSize {
    int width;
    int height;
};
// "800x600": fails (BadUsage) unless it gives a width and a height of 100 to 8000 pixels.
PictureSize ParsePictureSize(const std::string& text);

// Fails (BadUsage) on an unknown extension or a bad size when a picture is asked for: run
// before any work, so that a long computation does not end in a usage error.
void CheckPlotOptions(const PlotOptions& options);

// The picture file with `suffix` put before the extension ("a.png", "-2" -> "a-2.png").
std::string PlotPath(const PlotOptions& options, const std::string& suffix);

// Writes the plot of `curve`, with `suffix` put before the extension ("a.png", "-2" ->
// "a-2.png"); fails (CommandError) on an unknown extension, a bad size or a file that cannot
// be written.
void WritePlot(const PlotOptions& options, PCurve& curve, const std::string& suffix = "");
void WritePlot(const PlotOptions& options, PMCurve& curve, const std::string& suffix = "");

} // namespace seisplot::cli
