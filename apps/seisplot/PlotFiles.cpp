#include "PlotFiles.h"

#include "AtomicFile.h"
#include "Errors.h"

#include "draw/font/SFont.h"
#include "host/Units.h"
#include "platform/gdi/CWnd.h"
#include "platform/gdi/DocumentDC.h"
#include "plot/CurvePlot.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace seisplot::cli {
namespace {

enum class PictureKind { Png, Svg, Pdf };

PictureKind KindOf(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".png") {
        return PictureKind::Png;
    }
    if (extension == ".svg") {
        return PictureKind::Svg;
    }
    if (extension == ".pdf") {
        return PictureKind::Pdf;
    }
    BadUsage(path + ": the picture must be a .png, .svg or .pdf file");
}

// The plot as the tool draws it: title 12 points, axis titles 10, tick labels 8; the curve in
// dark blue a quarter of a millimetre wide.
template <class Curve> void DrawPlot(Curve& curve, CWnd& window, CDC& dc) {
    Units units;
    SFont title(12, 0);
    SFont axes(10, 0);
    SFont labels(8, 0);
    DrawCurve(&curve, &window, &dc, 1, &units, title, axes, labels, 0, 0, 0, 1, 0x800000, 25, 0, 0,
              0.0, 0.0);
}

template <class Curve>
void Write(const PlotOptions& options, const std::string& path, Curve& curve) {
    const PictureKind kind = KindOf(path);
    const PictureSize size = ParsePictureSize(options.size);
    ReplaceFile(path, [&](const std::string& temporary) {
        CWnd window;
        window.SetClientSize(size.width, size.height);
        bool written = false;
        if (kind == PictureKind::Png) {
            CDC* dc = window.GetDC();
            DrawPlot(curve, window, *dc);
            window.ReleaseDC(dc);
            written = window.SavePicture(temporary.c_str(), "PNG");
        } else {
            // A printed page holds the plot's 200 mm square.
            auto dc = kind == PictureKind::Pdf
                          ? DocumentDC::OpenPdf(temporary.c_str(), 200.0, 200.0, 600)
                          : DocumentDC::OpenSvg(temporary.c_str(), size.width, size.height);
            if (dc) {
                DrawPlot(curve, window, *dc);
                written = dc->Close();
            }
        }
        if (!written) {
            Fail("cannot write the plot " + path);
        }
    });
}

std::string WithSuffix(const std::string& path, const std::string& suffix) {
    if (suffix.empty()) {
        return path;
    }
    const std::filesystem::path p(path);
    return (p.parent_path() / (p.stem().string() + suffix + p.extension().string())).string();
}

} // namespace

PictureSize ParsePictureSize(const std::string& text) {
    int width = 0, height = 0;
    char x = 0, rest = 0;
    if (std::sscanf(text.c_str(), "%d%c%d%c", &width, &x, &height, &rest) != 3 ||
        (x != 'x' && x != 'X') || width < 100 || height < 100 || width > 8000 || height > 8000) {
        BadUsage("--size " + text + ": give WIDTHxHEIGHT in pixels, each 100 to 8000");
    }
    return {width, height};
}

namespace {
void AddSizeOption(CLI::App& command, PlotOptions& options) {
    command.add_option("--size", options.size, "Picture size WIDTHxHEIGHT in pixels (PNG, SVG)")
        ->capture_default_str();
}
} // namespace

void AddPlotOptions(CLI::App& command, PlotOptions& options) {
    command.add_option("--plot", options.file,
                       "Also draw the curve into a picture: FILE.png, FILE.svg or FILE.pdf");
    AddSizeOption(command, options);
}

void AddPictureOptions(CLI::App& command, PlotOptions& options) {
    command.add_option("-o,--output", options.file, "Picture: FILE.png, FILE.svg or FILE.pdf")
        ->required();
    AddSizeOption(command, options);
}

void CheckPlotOptions(const PlotOptions& options) {
    if (options.file) {
        KindOf(*options.file);
        ParsePictureSize(options.size);
    }
}

std::string PlotPath(const PlotOptions& options, const std::string& suffix) {
    return WithSuffix(*options.file, suffix);
}

void WritePlot(const PlotOptions& options, PCurve& curve, const std::string& suffix) {
    Write(options, WithSuffix(*options.file, suffix), curve);
}
void WritePlot(const PlotOptions& options, PMCurve& curve, const std::string& suffix) {
    Write(options, WithSuffix(*options.file, suffix), curve);
}

} // namespace seisplot::cli
