// Speed of movie writing: 800 by 600 frames of a record's plot appended to a CAviFile with the
// default MPG4, with MJPG and uncompressed (frames a second, as items), from raw DIB rows and
// from a bitmap; and FrameStitch making a movie of 300 JPEG pictures (pictures a second).
// Encoders run threads and FrameStitch is a process of its own: the times are wall-clock.

#include "movie/CAviFile.h"
#include "plot/CurvePlot.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

namespace fs = std::filesystem;

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kDistinctFrames = 25; // a second of movie, each frame different
constexpr int kFramesPerMovie = 50;

fs::path Scratch() {
    static const fs::path folder = [] {
        const fs::path f =
            fs::temp_directory_path() / ("seisplot-bench-" + std::to_string(getpid()));
        fs::create_directories(f);
        return f;
    }();
    return folder;
}

// Frame k of a record's plot: the record up to k/25 of it marked by a disc at that point.
void DrawFrame(CWnd& window, int k) {
    PCurve curve;
    curve.XUnit = seisplot::UnitKind::Time;
    curve.YUnit = seisplot::UnitKind::Acceleration;
    curve.SetName("Record");
    for (int i = 0; i < 4000; ++i) {
        const double t = i * 0.005;
        curve.AddPoint(t, 3000.0 * std::exp(-t / 8.0) * std::sin(2.0 * 3.14159265 * 1.3 * t));
    }
    Units units;
    SFont title(12, 0), axis(10, 0), labels(8, 0);
    CDC* dc = window.GetDC();
    DrawCurve(&curve, &window, dc, 1, &units, title, axis, labels, 1 + k * 4000 / kDistinctFrames,
              0, 0, 1, 0x800000, 25, 0, 0, 0.0, 0.0);
    window.ReleaseDC(dc);
}

// The frames as bottom-up 32-bit DIB rows.
const std::vector<std::vector<unsigned char>>& RawFrames() {
    static const std::vector<std::vector<unsigned char>> frames = [] {
        std::vector<std::vector<unsigned char>> all;
        CWnd window;
        window.SetClientSize(kWidth, kHeight);
        for (int k = 0; k < kDistinctFrames; ++k) {
            DrawFrame(window, k);
            const seisplot::PictureBits bits = window.Bits();
            std::vector<unsigned char> rows(static_cast<std::size_t>(kWidth) * kHeight * 4);
            for (int y = 0; y < kHeight; ++y) {
                std::copy_n(bits.data + static_cast<std::ptrdiff_t>(y) * bits.bytesPerLine,
                            kWidth * 4,
                            rows.data() + static_cast<std::size_t>(kHeight - 1 - y) * kWidth * 4);
            }
            all.push_back(std::move(rows));
        }
        return all;
    }();
    return frames;
}

void AppendRawFrames(benchmark::State& state, DWORD codec) {
    const auto& frames = RawFrames();
    const std::string path = (Scratch() / "raw.avi").string();
    for (auto _ : state) {
        CAviFile movie(path.c_str(), codec, 25);
        for (int k = 0; k < kFramesPerMovie; ++k) {
            auto* bits = const_cast<unsigned char*>(frames[k % kDistinctFrames].data());
            if (movie.AppendNewFrame(kWidth, kHeight, bits, 32) != S_OK) {
                state.SkipWithError(movie.GetLastErrorMessage());
                return;
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kFramesPerMovie);
    fs::remove(path);
}
BENCHMARK_CAPTURE(AppendRawFrames, MPG4, mmioFOURCC('M', 'P', 'G', '4'))
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(AppendRawFrames, MJPG, mmioFOURCC('M', 'J', 'P', 'G'))
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(AppendRawFrames, uncompressed, mmioFOURCC('D', 'I', 'B', ' '))
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The same from a bitmap, as a host appends what it drew: the movie reads the bitmap's bits.
void AppendBitmapFrames(benchmark::State& state) {
    const auto& frames = RawFrames();
    std::vector<CBitmap> bitmaps(kDistinctFrames);
    for (int k = 0; k < kDistinctFrames; ++k) {
        // CreateBitmap takes rows top-down: turn the DIB rows over.
        std::vector<unsigned char> top(frames[k].size());
        for (int y = 0; y < kHeight; ++y) {
            std::copy_n(frames[k].data() + static_cast<std::size_t>(kHeight - 1 - y) * kWidth * 4,
                        kWidth * 4, top.data() + static_cast<std::size_t>(y) * kWidth * 4);
        }
        bitmaps[k].CreateBitmap(kWidth, kHeight, 1, 32, top.data());
    }
    const std::string path = (Scratch() / "bitmap.avi").string();
    for (auto _ : state) {
        CAviFile movie(path.c_str(), mmioFOURCC('M', 'P', 'G', '4'), 25);
        for (int k = 0; k < kFramesPerMovie; ++k) {
            if (movie.AppendNewFrame(&bitmaps[k % kDistinctFrames]) != S_OK) {
                state.SkipWithError(movie.GetLastErrorMessage());
                return;
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kFramesPerMovie);
    fs::remove(path);
}
BENCHMARK(AppendBitmapFrames)->Unit(benchmark::kMillisecond)->UseRealTime();

#ifdef SEISPLOT_FRAMESTITCH
// 300 JPEG pictures of the record's plot, made once.
fs::path JpegFolder() {
    static const fs::path folder = [] {
        const fs::path f = Scratch() / "frames";
        fs::create_directories(f);
        CWnd window;
        window.SetClientSize(kWidth, kHeight);
        for (int k = 0; k < 300; ++k) {
            DrawFrame(window, k % kDistinctFrames);
            char name[32];
            std::snprintf(name, sizeof name, "frame%03d.jpg", k);
            window.SavePicture((f / name).c_str(), "JPG");
        }
        return f;
    }();
    return folder;
}

void FrameStitch(benchmark::State& state) {
    const std::string folder = JpegFolder().string();
    std::string tool = SEISPLOT_FRAMESTITCH;
    std::vector<char*> argv = {tool.data(), const_cast<char*>(folder.c_str()), nullptr};
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", 1, 0);
    for (auto _ : state) {
        pid_t pid = 0;
        int status = 0;
        if (posix_spawn(&pid, tool.c_str(), &quiet, nullptr, argv.data(), environ) != 0 ||
            waitpid(pid, &status, 0) != pid || status != 0) {
            state.SkipWithError("FrameStitch failed");
            break;
        }
    }
    posix_spawn_file_actions_destroy(&quiet);
    state.SetItemsProcessed(state.iterations() * 300);
}
BENCHMARK(FrameStitch)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
#endif

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::error_code ignored;
    fs::remove_all(Scratch(), ignored);
    return 0;
}
