// movie: a record drawn over time, as an AVI movie for a presentation.
//
// Every frame is the record's plot up to one instant: the whole record in light blue-grey on the
// plot's fixed axes (drawn once with DrawCurve), the part already past in the plot's dark blue,
// a green disc at the instant and its time in the corner. The movie runs in real time: one
// frame every 1/fps seconds of the record, the last at its end.

#include "Archives.h"
#include "AtomicFile.h"
#include "Commands.h"
#include "Errors.h"
#include "FileChecks.h"

#include "draw/gdi/Text.h"
#include "movie/CAviFile.h"
#include "platform/avi/AviCodecs.h"
#include "plot/CurvePlot.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <iostream>

namespace seisplot::cli {
namespace {

constexpr unsigned long kGhost = 0xDCC8BE; // light blue-grey: RGB(190, 200, 220)
constexpr unsigned long kDrawn = 0x800000; // the plot's dark blue
constexpr int kWidth = 25;                 // hundredths of a millimetre
constexpr int kDiscWidth = 150;            // a disc of 2 mm radius

DWORD CodecOf(const std::string& text) {
    const std::optional<DWORD> fourcc = ParseFourcc(text);
    if (!fourcc || !FindVideoCompressor(*fourcc)) {
        std::string known;
        for (const VideoCompressor& c : KnownVideoCompressors()) {
            if (c.fourcc != 0 && IsAvailable(c)) {
                known += (known.empty() ? "" : ", ") + FourccText(c.fourcc);
            }
        }
        BadUsage("--codec " + text + ": this system writes " + known);
    }
    return *fourcc;
}

void CheckOutput(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension != ".avi") {
        BadUsage(path + ": the movie must be an .avi file");
    }
}

// The part of `curve` from point `from` to point `to` (from 0), both included.
PCurve Part(const PCurve& curve, int from, int to) {
    PCurve part;
    part.XUnit = curve.XUnit;
    part.YUnit = curve.YUnit;
    for (int i = from; i <= to; ++i) {
        part.AddPoint(curve[i].GetX(), curve[i].GetY());
    }
    return part;
}

// Draws `frames` frames into `movie`: the plot builds up in `window`, each frame is a copy of
// it with the disc and the time.
void DrawFrames(PCurve& curve, CWnd& window, int frames, double fps, CAviFile& movie) {
    Units units;
    SFont title(12, 0), axes(10, 0), labels(8, 0), clock(12, 0);
    {
        CDC* dc = window.GetDC();
        DrawCurve(&curve, &window, dc, 1, &units, title, axes, labels, 0, 0, 0, 1, kGhost, kWidth,
                  0, 0, 0.0, 0.0);
        window.ReleaseDC(dc);
    }
    CRect client;
    window.GetClientRect(&client);
    CBitmap picture;
    picture.CreateBitmap(client.Width(), client.Height(), 1, 32, nullptr);

    const int n = curve.GetNP();
    const double start = curve[0].GetX();
    int drawn = 0; // the last point drawn in blue
    for (int k = 0; k < frames; ++k) {
        const double now = start + k / fps;
        int last = drawn;
        while (last + 1 < n && curve[last + 1].GetX() <= now + 1e-9) {
            ++last;
        }
        if (last > drawn) {
            CDC* dc = window.GetDC();
            seisplot::PlotAxes a = CurvePlotAxes(&curve, &window, dc, &units, 0);
            PCurve part = Part(curve, drawn, last);
            DrawOnlyCurve(&part, &window, dc, &units, labels, 0, 0, 0, a.sx, a.sy, a.area, a.wx,
                          a.wy, kDrawn, kWidth);
            window.ReleaseDC(dc);
            drawn = last;
        }

        CDC frame;
        frame.CreateCompatibleDC(nullptr);
        CBitmap* previous = frame.SelectObject(&picture);
        CDC* source = window.GetDC();
        frame.BitBlt(0, 0, client.Width(), client.Height(), source, 0, 0, SRCCOPY);
        window.ReleaseDC(source);
        seisplot::PlotAxes a = CurvePlotAxes(&curve, &window, &frame, &units, 0);
        PCurve instant = Part(curve, drawn, drawn);
        DrawOnlyCurve(&instant, &window, &frame, &units, labels, 1, 0, 0, a.sx, a.sy, a.area, a.wx,
                      a.wy, kDrawn, kDiscWidth);
        char time[64];
        std::snprintf(time, sizeof time, "t = %.2f s", now);
        outx(&frame, time, a.area.right / 20, a.area.top * 19 / 20, clock, 0.0);
        frame.SelectObject(previous);
        if (movie.AppendNewFrame(&picture) != S_OK) {
            Fail(std::string("cannot write the movie: ") + movie.GetLastErrorMessage());
        }
    }
}

} // namespace

void RunMovie(const MovieOptions& options, std::ostream& out) {
    CheckOutput(options.output);
    RefuseOverwritingInput("-o", options.output, {{options.set, "the record set"}});
    const DWORD codec = CodecOf(options.codec);
    const PictureSize size = ParsePictureSize(options.size);
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram& record = RecordAt(records, options.record, options.set);
    PCurve curve = record.Record;
    curve.SetName(record.Identifier);
    const int n = curve.GetNP();
    if (n < 2 || !(curve[n - 1].GetX() > curve[0].GetX())) {
        Fail("record " + std::to_string(options.record) + " lasts no time: there is no movie");
    }
    const double duration = curve[n - 1].GetX() - curve[0].GetX();
    const double fps = static_cast<double>(options.fps);
    const int frames = static_cast<int>(std::floor(duration * fps + 1e-9)) + 1;

    ReplaceFile(options.output, [&](const std::string& temporary) {
        CWnd window;
        window.SetClientSize(size.width, size.height);
        CAviFile movie(temporary.c_str(), codec, options.fps);
        DrawFrames(curve, window, frames, fps, movie);
    });
    out << "Movie of record " << options.record << " (" << record.Identifier.GetString()
        << ") written to " << options.output << ": " << frames << " frames of " << size.width << "x"
        << size.height << " at " << options.fps << " fps (" << Printf("%.2f", frames / fps)
        << " s, " << FourccText(codec) << ")\n";
}

void AddMovieCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<MovieOptions>();
    CLI::App* command = app.add_subcommand(
        "movie", "Make an AVI movie of one record being drawn over time, in real time");
    command->add_option("SET", options->set, "Record set (*.acc)")->required();
    command->add_option("N", options->record, "Record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    command->add_option("-o,--output", options->output, "The movie: FILE.avi")->required();
    command->add_option("--fps", options->fps, "Frames per second")
        ->capture_default_str()
        ->check(CLI::Range(1, 120));
    command
        ->add_option("--codec", options->codec,
                     "Compressor FOURCC: MPG4, MJPG, XVID, FMP4, MP42, H264, ... or DIB "
                     "(uncompressed)")
        ->capture_default_str();
    command->add_option("--size", options->size, "Frame size WIDTHxHEIGHT in pixels")
        ->capture_default_str();
    SetAction(*command, action, options, [](const MovieOptions& o) { RunMovie(o, std::cout); });
}

} // namespace seisplot::cli
