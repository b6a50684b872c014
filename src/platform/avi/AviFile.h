#pragma once
// AVI movie files written stream by stream, on FFmpeg.
//
// A file holds one video stream. Its header names the handler and the frame rate (rate over
// scale frames per second) given when the stream is made. Frames reach it through a
// compressing stream made over it for a FOURCC (AviCodecs.h): the format set on that stream
// is the frames' own, a BITMAPINFOHEADER of BI_RGB rows at 24 or 32 bits per pixel, stored
// bottom-up; the compressor turns them into what the file's format then records. Frames left
// uncompressed are stored as those rows, and the file's format is that header.
//
// Objects are counted by reference: each stream holds its file, a compressing stream the
// stream under it. The file is finished (its index written) when the last reference goes; a
// file whose stream never received a format holds no movie and is removed then.

#include "platform/avi/SystemTypes.h"
#include "platform/core/BitmapInfo.h"
#include "platform/core/CPoint.h"

namespace seisplot {
class AviFile;
class AviStream;
} // namespace seisplot

using PAVIFILE = seisplot::AviFile*;
using PAVISTREAM = seisplot::AviStream*;

// A FOURCC: four characters in byte order, the first in the low byte.
constexpr DWORD mmioFOURCC(char a, char b, char c, char d) {
    return static_cast<DWORD>(static_cast<BYTE>(a)) |
           (static_cast<DWORD>(static_cast<BYTE>(b)) << 8) |
           (static_cast<DWORD>(static_cast<BYTE>(c)) << 16) |
           (static_cast<DWORD>(static_cast<BYTE>(d)) << 24);
}

inline constexpr DWORD streamtypeVIDEO = mmioFOURCC('v', 'i', 'd', 's');

// Open modes
inline constexpr UINT OF_WRITE = 0x00000001;
inline constexpr UINT OF_CREATE = 0x00001000;

// Compression option flags
inline constexpr DWORD AVICOMPRESSF_KEYFRAMES = 0x00000004;
inline constexpr DWORD AVICOMPRESSF_VALID = 0x00000008;

// Results
constexpr HRESULT MakeAviError(int code) {
    return static_cast<HRESULT>(0x80044000u + static_cast<unsigned>(code));
}
inline constexpr HRESULT AVIERR_OK = 0;
inline constexpr HRESULT AVIERR_UNSUPPORTED = MakeAviError(101);
inline constexpr HRESULT AVIERR_BADFORMAT = MakeAviError(102);
inline constexpr HRESULT AVIERR_MEMORY = MakeAviError(103);
inline constexpr HRESULT AVIERR_BADPARAM = MakeAviError(106);
inline constexpr HRESULT AVIERR_BADSIZE = MakeAviError(107);
inline constexpr HRESULT AVIERR_BADHANDLE = MakeAviError(108);
inline constexpr HRESULT AVIERR_FILEWRITE = MakeAviError(110);
inline constexpr HRESULT AVIERR_FILEOPEN = MakeAviError(111);
inline constexpr HRESULT AVIERR_NOCOMPRESSOR = MakeAviError(113);

struct AVISTREAMINFOA {
    DWORD fccType = 0;
    DWORD fccHandler = 0;
    DWORD dwFlags = 0;
    DWORD dwCaps = 0;
    WORD wPriority = 0;
    WORD wLanguage = 0;
    DWORD dwScale = 0;
    DWORD dwRate = 0;
    DWORD dwStart = 0;
    DWORD dwLength = 0;
    DWORD dwInitialFrames = 0;
    DWORD dwSuggestedBufferSize = 0;
    DWORD dwQuality = 0;
    DWORD dwSampleSize = 0;
    RECT rcFrame = {0, 0, 0, 0};
    DWORD dwEditCount = 0;
    DWORD dwFormatChangeCount = 0;
    char szName[64] = {};
};
using AVISTREAMINFO = AVISTREAMINFOA;

struct AVICOMPRESSOPTIONS {
    DWORD fccType = 0;
    DWORD fccHandler = 0;
    DWORD dwKeyFrameEvery = 0; // with AVICOMPRESSF_KEYFRAMES: a key frame every so many frames
    DWORD dwQuality = 0;
    DWORD dwBytesPerSecond = 0;
    DWORD dwFlags = 0;
    LPVOID lpFormat = nullptr;
    DWORD cbFormat = 0;
    LPVOID lpParms = nullptr;
    DWORD cbParms = 0;
    DWORD dwInterleaveEvery = 0;
};

// The library is in use between AVIFileInit and AVIFileExit (calls may nest).
void AVIFileInit();
void AVIFileExit();

// Creates (or empties) the file at `path` for writing: `mode` must hold OF_WRITE and OF_CREATE;
// `handler` must be null. AVIERR_FILEOPEN when it cannot be created.
HRESULT AVIFileOpen(PAVIFILE* file, LPCSTR path, UINT mode, void* handler);
// The file's video stream, as `info` describes it (a video type, a rate and a scale above 0,
// a frame rectangle); one stream per file.
HRESULT AVIFileCreateStream(PAVIFILE file, PAVISTREAM* stream, AVISTREAMINFOA* info);
// A stream that compresses frames into `source` with the compressor of options->fccHandler;
// AVIERR_NOCOMPRESSOR when this system has none for it.
HRESULT AVIMakeCompressedStream(PAVISTREAM* compressed, PAVISTREAM source,
                                AVICOMPRESSOPTIONS* options, void* handler);
// The frames' format (a BITMAPINFOHEADER), set once, at position 0. AVIERR_BADFORMAT for
// frames the compressor cannot take.
HRESULT AVIStreamSetFormat(PAVISTREAM stream, LONG position, LPVOID format, LONG formatSize);
// Writes one frame (`samples` 1) at frame number `start`, from or after the last one: the
// image's rows bottom-up, each either `width` · bits / 8 bytes or padded to 4 bytes, as the
// buffer's size tells.
HRESULT AVIStreamWrite(PAVISTREAM stream, LONG start, LONG samples, LPVOID buffer, LONG bufferSize,
                       DWORD flags, LONG* samplesWritten, LONG* bytesWritten);
// Drop a reference; the count left.
ULONG AVIStreamRelease(PAVISTREAM stream);
ULONG AVIFileRelease(PAVIFILE file);
