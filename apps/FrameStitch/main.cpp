// FrameStitch: makes an AVI movie of a folder's JPEG pictures, the tool CreateAvi starts.
//
//   FrameStitch FOLDER [-fpi N] [-nth N] [-fps F] [-codec FOURCC]
//
// The movie is written beside the folder, as FOLDER.avi. Exit status: 0 done, 1 the movie
// could not be made, 2 a wrong command line.

#include "PictureFolder.h"

#include "movie/CAviFile.h"
#include "platform/avi/AviCodecs.h"

#include <QImage>
#include <QImageReader>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

struct Options {
    fs::path folder;
    long fpi = 1;
    long nth = 1;
    long fps = 25;
    DWORD codec = mmioFOURCC('M', 'P', 'G', '4');
};

// The tool's end: a message for the error stream and the exit status.
struct Stop {
    int status;
    std::string message;
};

void PrintHelp() {
    std::cout
        << "Usage: FrameStitch FOLDER [-fpi N] [-nth N] [-fps F] [-codec FOURCC]\n"
           "Makes a movie of the JPEG pictures (*.jpg, *.jpeg) of FOLDER, in the order of their\n"
           "names (numbers by value: frame2 before frame10), and writes it beside the folder as\n"
           "FOLDER.avi. Every picture takes the size of the first.\n"
           "  -fpi N        show each picture for N frames (default 1)\n"
           "  -nth N        take every Nth picture, from the first (default 1)\n"
           "  -fps F        frames per second (default 25)\n"
           "  -codec FOURCC the compressor (default MPG4; DIB: uncompressed). Here:";
    for (const seisplot::VideoCompressor& c : seisplot::KnownVideoCompressors()) {
        if (c.fourcc != 0 && seisplot::IsAvailable(c)) {
            std::cout << ' ' << seisplot::FourccText(c.fourcc);
        }
    }
    std::cout << "\nExit status: 0 done, 1 the movie could not be made, 2 a wrong command line.\n";
}

long WholeNumber(const std::string& option, const char* text) {
    std::size_t used = 0;
    long value = 0;
    try {
        value = std::stol(text, &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used == 0 || text[used] != '\0' || value < 1 || value > 100000) {
        throw Stop{2, option + " needs a whole number from 1 to 100000, not '" + text + "'"};
    }
    return value;
}

std::optional<Options> ParseArguments(int argc, char** argv) {
    Options options;
    bool haveFolder = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "-h" || arg == "-help" || arg == "--help") {
            PrintHelp();
            return std::nullopt;
        }
        const bool takesValue = arg == "-fpi" || arg == "-nth" || arg == "-fps" || arg == "-codec";
        if (takesValue && i + 1 >= argc) {
            throw Stop{2, arg + " needs a value"};
        }
        if (arg == "-fpi") {
            options.fpi = WholeNumber(arg, argv[++i]);
        } else if (arg == "-nth") {
            options.nth = WholeNumber(arg, argv[++i]);
        } else if (arg == "-fps") {
            options.fps = WholeNumber(arg, argv[++i]);
        } else if (arg == "-codec") {
            const std::string text = argv[++i];
            const std::optional<DWORD> fourcc = seisplot::ParseFourcc(text);
            if (!fourcc || !seisplot::FindVideoCompressor(*fourcc)) {
                throw Stop{2, "-codec " + text + ": no such compressor here (see -help)"};
            }
            options.codec = *fourcc;
        } else if (!arg.empty() && arg[0] == '-') {
            throw Stop{2, "unknown option " + arg};
        } else if (haveFolder) {
            throw Stop{2, "one folder only, not also " + arg};
        } else {
            options.folder = arg;
            haveFolder = true;
        }
    }
    if (!haveFolder) {
        throw Stop{2, "give the folder of the pictures (see -help)"};
    }
    return options;
}

// FOLDER.avi beside the folder.
fs::path MoviePath(const fs::path& folder) {
    const fs::path full = fs::weakly_canonical(fs::absolute(folder));
    if (!full.has_filename() || full == full.root_path()) {
        throw Stop{1, "no place beside " + folder.string() + " for the movie"};
    }
    return full.parent_path() / (full.filename().string() + ".avi");
}

// The picture as 32-bit DIB rows (bottom-up) of `size`, or the reason it cannot be read.
QImage ReadPicture(const fs::path& path, const QSize& size) {
    QImageReader reader(QString::fromStdString(path.string()));
    QImage picture = reader.read();
    if (picture.isNull()) {
        throw Stop{1, "cannot read the picture " + path.string() + ": " +
                          reader.errorString().toStdString()};
    }
    if (size.isValid() && picture.size() != size) {
        picture = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    // In place: a picture is a few megabytes, and there are hundreds of them.
    picture.convertTo(QImage::Format_RGB32);
    picture.mirror(false, true);
    return picture;
}

struct Result {
    std::size_t pictures = 0;
    std::size_t taken = 0;
    long frames = 0;
    QSize size;
};

Result Stitch(const Options& options, const std::vector<fs::path>& pictures,
              const fs::path& moviePath) {
    Result result;
    result.pictures = pictures.size();
    CAviFile movie(moviePath.c_str(), options.codec, static_cast<unsigned long>(options.fps));
    for (std::size_t i = 0; i < pictures.size(); i += static_cast<std::size_t>(options.nth)) {
        QImage rows = ReadPicture(pictures[i], result.size);
        result.size = rows.size();
        ++result.taken;
        for (long k = 0; k < options.fpi; ++k, ++result.frames) {
            if (movie.AppendNewFrame(rows.width(), rows.height(), rows.bits(), 32) != S_OK) {
                throw Stop{1, "cannot write the movie " + moviePath.string() + ": " +
                                  movie.GetLastErrorMessage()};
            }
        }
    }
    return result;
}

int Run(const Options& options) {
    std::vector<fs::path> pictures;
    try {
        pictures = framestitch::JpegPictures(options.folder);
    } catch (const fs::filesystem_error&) {
        throw Stop{1, "cannot read the folder " + options.folder.string()};
    }
    if (pictures.empty()) {
        throw Stop{1, "no JPEG pictures (*.jpg, *.jpeg) in " + options.folder.string()};
    }
    const fs::path moviePath = MoviePath(options.folder);
    Result result;
    try {
        result = Stitch(options, pictures, moviePath);
    } catch (const Stop&) {
        std::error_code ignored;
        fs::remove(moviePath, ignored); // no half movie
        throw;
    }
    char line[512];
    std::snprintf(line, sizeof line,
                  "FrameStitch: %zu pictures, %zu taken, %ld frames of %dx%d at %ld fps (%.2f s, "
                  "%s) -> %s\n",
                  result.pictures, result.taken, result.frames, result.size.width(),
                  result.size.height(), options.fps,
                  static_cast<double>(result.frames) / static_cast<double>(options.fps),
                  seisplot::FourccText(options.codec).c_str(), moviePath.c_str());
    std::cout << line;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::optional<Options> options = ParseArguments(argc, argv);
        return options ? Run(*options) : 0;
    } catch (const Stop& stop) {
        std::cerr << "FrameStitch: " << stop.message << '\n';
        if (stop.status == 2) {
            std::cerr << "Run 'FrameStitch -help' for the options.\n";
        }
        return stop.status;
    }
}
