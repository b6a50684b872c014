#include "platform/avi/AviCodecs.h"

#include "platform/avi/AviFile.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <array>
#include <cctype>

namespace seisplot {
namespace {

constexpr DWORD Tag(const char (&t)[5]) {
    return mmioFOURCC(t[0], t[1], t[2], t[3]);
}

constexpr std::array kCompressors = {
    VideoCompressor{0, nullptr, 0, "uncompressed DIB rows"},
    VideoCompressor{Tag("DIB "), nullptr, 0, "uncompressed DIB rows"},
    VideoCompressor{Tag("MPG4"), "msmpeg4v2", Tag("MP42"), "Microsoft MPEG-4 (written as v2)"},
    VideoCompressor{Tag("MP42"), "msmpeg4v2", Tag("MP42"), "Microsoft MPEG-4 v2"},
    VideoCompressor{Tag("MP43"), "msmpeg4", Tag("MP43"), "Microsoft MPEG-4 v3"},
    VideoCompressor{Tag("DIV3"), "msmpeg4", Tag("DIV3"), "Microsoft MPEG-4 v3"},
    VideoCompressor{Tag("XVID"), "mpeg4", Tag("XVID"), "MPEG-4 part 2"},
    VideoCompressor{Tag("FMP4"), "mpeg4", Tag("FMP4"), "MPEG-4 part 2"},
    VideoCompressor{Tag("DIVX"), "mpeg4", Tag("DIVX"), "MPEG-4 part 2"},
    VideoCompressor{Tag("DX50"), "mpeg4", Tag("DX50"), "MPEG-4 part 2"},
    VideoCompressor{Tag("MJPG"), "mjpeg", Tag("MJPG"), "Motion JPEG"},
    VideoCompressor{Tag("H264"), "libx264", Tag("H264"), "H.264"},
    VideoCompressor{Tag("X264"), "libx264", Tag("X264"), "H.264"},
    VideoCompressor{Tag("WMV2"), "wmv2", Tag("WMV2"), "Windows Media Video 8"},
    VideoCompressor{Tag("HFYU"), "huffyuv", Tag("HFYU"), "Huffyuv, lossless"},
    VideoCompressor{Tag("FFV1"), "ffv1", Tag("FFV1"), "FFV1, lossless"},
};

DWORD UpperCase(DWORD fourcc) {
    DWORD upper = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto c = static_cast<unsigned char>(fourcc >> shift);
        upper |= static_cast<DWORD>(std::toupper(c)) << shift;
    }
    return upper;
}

} // namespace

std::span<const VideoCompressor> KnownVideoCompressors() {
    return kCompressors;
}

bool IsAvailable(const VideoCompressor& compressor) {
    return compressor.encoder == nullptr ||
           avcodec_find_encoder_by_name(compressor.encoder) != nullptr;
}

std::optional<VideoCompressor> FindVideoCompressor(DWORD fourcc) {
    const DWORD wanted = UpperCase(fourcc);
    for (const VideoCompressor& c : kCompressors) {
        if (c.fourcc == wanted) {
            return IsAvailable(c) ? std::optional(c) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<DWORD> ParseFourcc(std::string_view text) {
    if (text == "0") {
        return 0;
    }
    if (text == "DIB" || text == "dib") {
        return Tag("DIB ");
    }
    if (text.size() != 4) {
        return std::nullopt;
    }
    return mmioFOURCC(text[0], text[1], text[2], text[3]);
}

std::string FourccText(DWORD fourcc) {
    if (fourcc == 0) {
        return "0";
    }
    std::string text;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto c = static_cast<unsigned char>(fourcc >> shift);
        text += std::isprint(c) ? static_cast<char>(c) : '?';
    }
    return text;
}

} // namespace seisplot
