#pragma once
// The compressors an AVI stream can be made with, chosen by FOURCC, on the encoders of the
// FFmpeg this system has.
//
// A FOURCC is matched without regard to case. 0 and "DIB " leave frames uncompressed. A
// FOURCC whose own codec FFmpeg cannot write is served by the nearest one it can, and the
// file's format records what was written: "MPG4" (Microsoft's first MPEG-4) is written as its
// successor "MP42", which every player that knows the family decodes. The stream header keeps
// the FOURCC asked for.

#include "platform/core/Types.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace seisplot {

struct VideoCompressor {
    DWORD fourcc = 0;              // as asked for, upper case
    const char* encoder = nullptr; // FFmpeg's encoder; null: frames stored uncompressed
    DWORD storedTag = 0;           // the compression the file's format records
    const char* description = "";
};

// Every FOURCC the writer knows, whether or not this system has its encoder.
std::span<const VideoCompressor> KnownVideoCompressors();
// Whether this system's FFmpeg has the compressor's encoder.
bool IsAvailable(const VideoCompressor& compressor);
// The compressor for `fourcc` when this system has it.
std::optional<VideoCompressor> FindVideoCompressor(DWORD fourcc);

// "MJPG" -> its FOURCC; "DIB" and "0" (uncompressed) -> 0 and "DIB "; nothing for a text of
// another length.
std::optional<DWORD> ParseFourcc(std::string_view text);
// The four characters ("0" for 0; unprintable ones as '?').
std::string FourccText(DWORD fourcc);

} // namespace seisplot
