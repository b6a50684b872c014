// CAviFile: movies written from bitmaps and from raw rows, read back with FFmpeg; the state
// the object is in after each failure, and the hand-over by move.

#include "movie/CAviFile.h"

#include "platform/gdi/SystemMetrics.h"

#include "support/DrawProbes.h"
#include "support/MovieReader.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using seisplot::test::Canvas;
using seisplot::test::Fourcc;
using seisplot::test::ReadMovie;
using seisplot::test::TempDir;

constexpr const char* kWriteFailed = "Unable to Write Video Stream to the output Movie File";

// A picture that shows which way up and which way round it is: a red block at the top-left,
// a blue bar along the bottom, and a green square placed by `frame`.
void Paint(Canvas& c, int frame) {
    c.Fill(CRect(0, 0, c.width, c.height), 0xFFFFFF);
    c.Fill(CRect(0, 0, 20, 10), 0x0000FF);
    c.Fill(CRect(0, c.height - 3, c.width, c.height), 0xFF0000);
    c.Fill(CRect(30 + 10 * frame, 20, 40 + 10 * frame, 30), 0x00FF00);
}

// The DIB rows a 32-bit frame of the canvas is stored as: bottom-up blue, green, red, 255.
std::string DibRows(Canvas& c) {
    const std::vector<COLORREF> pixels = c.Pixels();
    std::string rows;
    for (int y = c.height - 1; y >= 0; --y) {
        for (int x = 0; x < c.width; ++x) {
            const COLORREF p = pixels[static_cast<std::size_t>(y) * c.width + x];
            rows += {static_cast<char>(GetBValue(p)), static_cast<char>(GetGValue(p)),
                     static_cast<char>(GetRValue(p)), static_cast<char>(0xFF)};
        }
    }
    return rows;
}

TEST(CAviFile, BitmapFramesLargerThanTheScreenAreStoredExactly) {
    TempDir dir;
    const std::string path = dir.Path("frames.avi");
    // Wider and taller than the screen: the frame buffer must take the first frame's size.
    const int width = GetSystemMetrics(SM_CXSCREEN) + 37;
    const int height = GetSystemMetrics(SM_CYSCREEN) + 23;
    ASSERT_GT(width, 37);
    Canvas canvas(width, height);
    std::vector<std::string> expected;
    {
        CAviFile movie(path.c_str(), mmioFOURCC('D', 'I', 'B', ' '), 5);
        EXPECT_STREQ(movie.GetLastErrorMessage(), "Method Succeeded");
        for (int frame = 0; frame < 3; ++frame) {
            Paint(canvas, frame);
            expected.push_back(DibRows(canvas));
            ASSERT_EQ(movie.AppendNewFrame(&canvas.bitmap), S_OK);
        }
        EXPECT_STREQ(movie.GetLastErrorMessage(), "Method Succeeded");
    }
    const seisplot::test::Movie movie = ReadMovie(path);
    EXPECT_EQ(movie.handler, Fourcc("DIB "));
    EXPECT_EQ(movie.scale, 1u);
    EXPECT_EQ(movie.rate, 5u);
    EXPECT_EQ(movie.streamName, "Video Stream");
    EXPECT_EQ(movie.formatSize, 40u);
    EXPECT_EQ(movie.formatWidth, width);
    EXPECT_EQ(movie.formatHeight, height);
    EXPECT_EQ(movie.bitCount, 32);
    EXPECT_EQ(movie.compression, 0u);
    EXPECT_EQ(movie.packets, expected);
    // As a player shows it: red top-left, blue along the bottom, the green square moved.
    ASSERT_EQ(movie.pictures.size(), 3u);
    const seisplot::test::RgbPicture& last = movie.pictures[2];
    EXPECT_EQ(std::vector<int>(last.At(5, 5), last.At(5, 5) + 3), (std::vector<int>{255, 0, 0}));
    EXPECT_EQ(std::vector<int>(last.At(5, height - 1), last.At(5, height - 1) + 3),
              (std::vector<int>{0, 0, 255}));
    EXPECT_EQ(last.At(55, 25)[1], 255);
}

TEST(CAviFile, RawFramesWithTheDefaultCodecDecodeClose) {
    TempDir dir;
    const std::string path = dir.Path("raw.avi");
    Canvas canvas(160, 120);
    std::vector<seisplot::test::RgbPicture> shown;
    {
        CAviFile movie(path.c_str());
        for (int frame = 0; frame < 4; ++frame) {
            Paint(canvas, frame);
            // 24-bit rows of 480 bytes: the 32-bit rows without their fourth byte.
            std::string rows = DibRows(canvas);
            std::string packed;
            for (std::size_t i = 0; i < rows.size(); i += 4) {
                packed.append(rows, i, 3);
            }
            ASSERT_EQ(movie.AppendNewFrame(160, 120, packed.data(), 24), S_OK);
            seisplot::test::RgbPicture picture{160, 120, {}};
            for (const COLORREF p : canvas.Pixels()) {
                picture.rgb.insert(picture.rgb.end(), {GetRValue(p), GetGValue(p), GetBValue(p)});
            }
            shown.push_back(picture);
        }
    }
    const seisplot::test::Movie movie = ReadMovie(path);
    EXPECT_EQ(movie.handler, Fourcc("MPG4"));
    EXPECT_EQ(movie.compression, Fourcc("MP42"));
    EXPECT_EQ(movie.rate, 1u);
    EXPECT_EQ(movie.bitCount, 24);
    EXPECT_EQ(movie.width, 160);
    EXPECT_EQ(movie.height, 120);
    ASSERT_EQ(movie.pictures.size(), 4u);
    for (int i = 0; i < 4; ++i) {
        // Within 6 levels on average over every channel of every pixel: the codec moves flat
        // areas by a few levels (white comes back near 251) and blurs colour at edges.
        EXPECT_LT(seisplot::test::MeanDifference(movie.pictures[i], shown[i]), 6.0) << i;
    }
}

TEST(CAviFile, AFailureClosesTheMovieAndKeepsItsText) {
    TempDir dir;
    char bits[16 * 16 * 4] = {};
    const auto failsWith = [&](CAviFile& movie, int bitsPerPixel, const char* message) {
        EXPECT_EQ(movie.AppendNewFrame(16, 16, bits, bitsPerPixel), E_FAIL);
        EXPECT_STREQ(movie.GetLastErrorMessage(), message);
        // Closed: later frames fail and the text stays.
        EXPECT_EQ(movie.AppendNewFrame(16, 16, bits, 32), E_FAIL);
        EXPECT_STREQ(movie.GetLastErrorMessage(), message);
    };
    CAviFile unknown(dir.Path("unknown.avi").c_str(), mmioFOURCC('A', 'B', 'C', 'D'), 25);
    failsWith(unknown, 32, "Unable to Create Compressed Stream: Check your CODEC options");
    CAviFile missing(dir.Path("no/folder.avi").c_str(), 0, 25);
    failsWith(missing, 32, "Unable to Create the Movie File");
    const std::string tooLong = dir.Path(std::string(300, 'a') + ".avi");
    CAviFile longName(tooLong.c_str(), 0, 25);
    failsWith(longName, 32, "Unable to Create the Movie File");
    CAviFile still(dir.Path("still.avi").c_str(), 0, 0);
    failsWith(still, 32, "Unable to Create Video Stream in the Movie File");
    CAviFile sixteen(dir.Path("sixteen.avi").c_str(), 0, 25);
    failsWith(sixteen, 16, "Unable to Set Video Stream Format");
    // None of them left a file: there was no movie to keep.
    EXPECT_TRUE(std::filesystem::is_empty(dir.Path("")));

    // The first frame fixes size and depth; the movie keeps what came before the failure.
    const std::string path = dir.Path("mixed.avi");
    {
        CAviFile movie(path.c_str(), mmioFOURCC('M', 'J', 'P', 'G'), 25);
        ASSERT_EQ(movie.AppendNewFrame(16, 16, bits, 32), S_OK);
        Canvas other(16, 8);
        EXPECT_EQ(movie.AppendNewFrame(&other.bitmap), E_FAIL);
        EXPECT_STREQ(movie.GetLastErrorMessage(), kWriteFailed);
        EXPECT_EQ(movie.AppendNewFrame(16, 16, bits, 32), E_FAIL);
    }
    EXPECT_EQ(ReadMovie(path).pictures.size(), 1u);
}

TEST(CAviFile, MovingHandsTheMovieOver) {
    TempDir dir;
    const std::string path = dir.Path("moved.avi");
    char bits[32 * 16 * 4] = {};
    {
        CAviFile first(path.c_str(), mmioFOURCC('M', 'J', 'P', 'G'), 10);
        ASSERT_EQ(first.AppendNewFrame(32, 16, bits, 32), S_OK);
        CAviFile second(std::move(first));
        EXPECT_EQ(first.AppendNewFrame(32, 16, bits, 32), E_FAIL);
        ASSERT_EQ(second.AppendNewFrame(32, 16, bits, 32), S_OK);
        CAviFile third;
        third = std::move(second);
        EXPECT_EQ(second.AppendNewFrame(32, 16, bits, 32), E_FAIL);
        ASSERT_EQ(third.AppendNewFrame(32, 16, bits, 32), S_OK);
    }
    EXPECT_EQ(ReadMovie(path).pictures.size(), 3u);
}

} // namespace
