// AVI files on FFmpeg: every compressor's file read back, the stored bytes of uncompressed
// frames, the failures, and the system services the movie writer starts programs and finds
// files with.

#include "platform/avi/AviFile.h"
#include "platform/avi/AviCodecs.h"
#include "platform/avi/FileSearch.h"
#include "platform/avi/Processes.h"

#include "support/MovieReader.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace {

using seisplot::test::Fourcc;
using seisplot::test::ReadMovie;
using seisplot::test::RgbPicture;
using seisplot::test::TempDir;

// A picture of `width` by `height` as DIB rows (bottom-up, blue green red [0]), each row
// `stride` bytes: a smooth field with a dark block that moves with `frame`.
struct Dib {
    int width;
    int height;
    int bitCount;
    std::size_t stride;
    std::vector<BYTE> rows;
};

Dib MakeDib(int width, int height, int bitCount, bool padded, int frame) {
    const std::size_t packed = static_cast<std::size_t>(width) * bitCount / 8;
    Dib dib{width, height, bitCount, padded ? (packed + 3) / 4 * 4 : packed, {}};
    dib.rows.assign(dib.stride * height, 0);
    for (int row = 0; row < height; ++row) {
        const int y = height - 1 - row; // from the top
        for (int x = 0; x < width; ++x) {
            BYTE* p = dib.rows.data() + row * dib.stride + x * (bitCount / 8);
            const bool block = x >= 8 + 4 * frame && x < 24 + 4 * frame && y >= 10 && y < 26;
            p[0] = block ? 40 : static_cast<BYTE>(100 + 2 * x);  // blue
            p[1] = block ? 30 : static_cast<BYTE>(60 + 3 * y);   // green
            p[2] = block ? 120 : static_cast<BYTE>(200 - x - y); // red
        }
    }
    return dib;
}

// What a player shows of a DIB: top-down red, green, blue.
RgbPicture Shown(const Dib& dib) {
    RgbPicture picture{dib.width, dib.height, {}};
    for (int y = 0; y < dib.height; ++y) {
        const BYTE* row = dib.rows.data() + (dib.height - 1 - y) * dib.stride;
        for (int x = 0; x < dib.width; ++x) {
            const BYTE* p = row + x * (dib.bitCount / 8);
            picture.rgb.insert(picture.rgb.end(), {p[2], p[1], p[0]});
        }
    }
    return picture;
}

BITMAPINFOHEADER FormatOf(const Dib& dib) {
    BITMAPINFOHEADER format;
    format.biSize = sizeof format;
    format.biWidth = dib.width;
    format.biHeight = dib.height;
    format.biPlanes = 1;
    format.biBitCount = static_cast<WORD>(dib.bitCount);
    format.biCompression = BI_RGB;
    format.biSizeImage = static_cast<DWORD>(dib.rows.size());
    return format;
}

// The objects of one movie being written, released as a writer releases them.
struct Writer {
    PAVIFILE file = nullptr;
    PAVISTREAM stream = nullptr;
    PAVISTREAM compressed = nullptr;
    HRESULT made = AVIERR_OK;

    Writer(const std::string& path, DWORD fourcc, DWORD fps, const Dib& first) {
        AVIFileInit();
        made = AVIFileOpen(&file, path.c_str(), OF_WRITE | OF_CREATE, nullptr);
        AVISTREAMINFO info;
        info.fccType = streamtypeVIDEO;
        info.fccHandler = fourcc;
        info.dwScale = 1;
        info.dwRate = fps;
        info.rcFrame = RECT{0, 0, first.width, first.height};
        if (made == AVIERR_OK) {
            made = AVIFileCreateStream(file, &stream, &info);
        }
        AVICOMPRESSOPTIONS options;
        options.fccType = streamtypeVIDEO;
        options.fccHandler = fourcc;
        options.dwKeyFrameEvery = 1;
        options.dwFlags = AVICOMPRESSF_KEYFRAMES | AVICOMPRESSF_VALID;
        if (made == AVIERR_OK) {
            made = AVIMakeCompressedStream(&compressed, stream, &options, nullptr);
        }
        BITMAPINFOHEADER format = FormatOf(first);
        if (made == AVIERR_OK) {
            made = AVIStreamSetFormat(compressed, 0, &format, sizeof format);
        }
    }
    HRESULT Write(LONG index, Dib& dib) const {
        return AVIStreamWrite(compressed, index, 1, dib.rows.data(),
                              static_cast<LONG>(dib.rows.size()), 0, nullptr, nullptr);
    }
    ~Writer() {
        AVIStreamRelease(compressed);
        AVIStreamRelease(stream);
        AVIFileRelease(file);
        AVIFileExit();
    }
};

TEST(AviFile, EveryCompressorWritesAFileThatReadsBack) {
    // What the library promises at least, on every system built from the project's packages.
    for (const char* wanted : {"MPG4", "MJPG", "XVID", "FMP4", "MP42", "DIB "}) {
        EXPECT_TRUE(seisplot::FindVideoCompressor(*seisplot::ParseFourcc(wanted))) << wanted;
    }
    EXPECT_TRUE(seisplot::FindVideoCompressor(0));
    EXPECT_TRUE(seisplot::FindVideoCompressor(Fourcc("mjpg"))); // any case

    TempDir dir;
    std::set<std::string> tried;
    for (const seisplot::VideoCompressor& c : seisplot::KnownVideoCompressors()) {
        if (!seisplot::IsAvailable(c)) {
            continue;
        }
        const std::string name = seisplot::FourccText(c.fourcc);
        SCOPED_TRACE(name);
        tried.insert(name);
        const std::string path = dir.Path(name + ".avi");
        std::vector<Dib> frames = {MakeDib(64, 48, 32, false, 0), MakeDib(64, 48, 32, false, 1),
                                   MakeDib(64, 48, 32, false, 2)};
        {
            Writer w(path, c.fourcc, 12, frames[0]);
            ASSERT_EQ(w.made, AVIERR_OK);
            for (LONG i = 0; i < 3; ++i) {
                ASSERT_EQ(w.Write(i, frames[i]), AVIERR_OK);
            }
        }
        const seisplot::test::Movie movie = ReadMovie(path);
        ASSERT_TRUE(movie.opened);
        EXPECT_EQ(movie.handler, c.fourcc);
        EXPECT_EQ(movie.compression, c.storedTag);
        EXPECT_EQ(movie.scale, 1u);
        EXPECT_EQ(movie.rate, 12u);
        EXPECT_EQ(movie.width, 64);
        EXPECT_EQ(movie.height, 48);
        EXPECT_EQ(movie.packets.size(), 3u);
        ASSERT_EQ(movie.pictures.size(), 3u);
        // Lossy codecs stay within 6 levels on average; the block must have moved.
        const bool lossless = c.encoder == nullptr || name == "HFYU" || name == "FFV1";
        for (int i = 0; i < 3; ++i) {
            const double error =
                seisplot::test::MeanDifference(movie.pictures[i], Shown(frames[i]));
            EXPECT_LE(error, lossless ? 0.0 : 6.0) << "frame " << i;
        }
        EXPECT_GT(seisplot::test::MeanDifference(movie.pictures[0], movie.pictures[2]), 3.0);
    }
    EXPECT_TRUE(tried.count("MPG4") && tried.count("DIB ") && tried.count("0"));
}

TEST(AviFile, UncompressedFramesAreStoredAsDibRows) {
    TempDir dir;
    // Three pixels of 24 bits make a 9-byte row, stored padded to 12; a frame may come either
    // way. 32-bit rows are never padded.
    for (const bool padded : {false, true}) {
        SCOPED_TRACE(padded ? "padded" : "packed");
        const std::string path = dir.Path(padded ? "padded.avi" : "packed.avi");
        Dib first = MakeDib(3, 5, 24, padded, 0);
        Dib second = MakeDib(3, 5, 24, padded, 1);
        {
            Writer w(path, Fourcc("DIB "), 25, first);
            ASSERT_EQ(w.made, AVIERR_OK);
            ASSERT_EQ(w.Write(0, first), AVIERR_OK);
            ASSERT_EQ(w.Write(1, second), AVIERR_OK);
        }
        const seisplot::test::Movie movie = ReadMovie(path);
        EXPECT_EQ(movie.formatSize, 40u);
        EXPECT_EQ(movie.formatWidth, 3);
        EXPECT_EQ(movie.formatHeight, 5); // positive: bottom-up
        EXPECT_EQ(movie.bitCount, 24);
        EXPECT_EQ(movie.compression, 0u);
        ASSERT_EQ(movie.packets.size(), 2u);
        const Dib expected = MakeDib(3, 5, 24, true, 1);
        EXPECT_EQ(movie.packets[1], std::string(expected.rows.begin(), expected.rows.end()));
        ASSERT_EQ(movie.pictures.size(), 2u);
        EXPECT_EQ(movie.pictures[1].rgb, Shown(expected).rgb);
    }
}

TEST(AviFile, RefusesFramesOfAnotherSizeOrOutOfOrder) {
    TempDir dir;
    Dib dib = MakeDib(16, 16, 32, false, 0);
    Writer w(dir.Path("frames.avi"), Fourcc("MJPG"), 25, dib);
    ASSERT_EQ(w.made, AVIERR_OK);
    Dib half = MakeDib(16, 8, 32, false, 0);
    EXPECT_EQ(w.Write(0, half), AVIERR_BADSIZE);
    EXPECT_EQ(w.Write(3, dib), AVIERR_OK);
    EXPECT_EQ(w.Write(2, dib), AVIERR_BADPARAM); // frames go forward
}

TEST(Processes, CommandLinesSplitAsTheRuntimeReadsThem) {
    using Words = std::vector<CString>;
    EXPECT_EQ(seisplot::SplitCommandLine(R"(/opt/tools/FrameStitch "/tmp/my frames" -fpi 5)"),
              (Words{"/opt/tools/FrameStitch", "/tmp/my frames", "-fpi", "5"}));
    // The program's quotes hold blanks and no escapes; backslashes escape only quotes.
    EXPECT_EQ(
        seisplot::SplitCommandLine(R"("/a b\"c d\e \"q\" x\\\"y z\\\\"w v" "" "a""b")"),
        (Words{R"(/a b\)", R"(c)", R"(d\e)", R"("q")", R"(x\"y)", R"(z\\w v)", "", R"(a"b)"}));
    EXPECT_TRUE(seisplot::SplitCommandLine("   ").empty());
}

TEST(Processes, StartsAProgramWithoutAShellAndWaitsForIt) {
    TempDir dir;
    const std::string done = dir.Path("done");
    std::string line = "/bin/sh -c \"sleep 0.3; echo $0 > '" + done + "'\" \"a;b\"";
    STARTUPINFO startup;
    PROCESS_INFORMATION process;
    ASSERT_TRUE(CreateProcess(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE,
                              nullptr, nullptr, &startup, &process));
    EXPECT_EQ(WaitForSingleObject(process.hProcess, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(dir.Read("done"), "a;b\n"); // the argument reached it whole
    EXPECT_TRUE(CloseHandle(process.hThread));
    EXPECT_TRUE(CloseHandle(process.hProcess));

    std::string missing = dir.Path("no-such-tool") + " x";
    EXPECT_FALSE(CreateProcess(nullptr, missing.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &startup, &process));
}

TEST(FileSearch, ListsMatchesWithoutRegardToCaseAndRemovesOnlyWhatItMay) {
    TempDir dir;
    dir.Write("frames/b.jpg", "b");
    dir.Write("frames/A.JPG", "a");
    dir.Write("frames/notes.txt", "n");
    std::filesystem::create_directory(dir.Path("frames/old.jpg"));
    const std::string folder = dir.Path("frames");

    WIN32_FIND_DATA found;
    HANDLE search = FindFirstFile((folder + "/*.jpg").c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    std::set<std::string> names;
    std::set<std::string> folders;
    do {
        (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY ? folders : names)
            .insert(found.cFileName);
        EXPECT_TRUE(DeleteFile((folder + "/" + found.cFileName).c_str()) ==
                    !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY));
    } while (FindNextFile(search, &found));
    EXPECT_TRUE(FindClose(search));
    EXPECT_EQ(names, (std::set<std::string>{"A.JPG", "b.jpg"}));
    EXPECT_EQ(folders, (std::set<std::string>{"old.jpg"}));

    EXPECT_FALSE(RemoveDirectory(folder.c_str())); // notes.txt and old.jpg are left
    EXPECT_EQ(FindFirstFile((folder + "/*.png").c_str(), &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(FindFirstFile(dir.Path("missing/*.jpg").c_str(), &found), INVALID_HANDLE_VALUE);
    EXPECT_TRUE(RemoveDirectory((folder + "/old.jpg").c_str()));
    EXPECT_TRUE(DeleteFile((folder + "/notes.txt").c_str()));
    EXPECT_TRUE(RemoveDirectory(folder.c_str()));
}

} // namespace
