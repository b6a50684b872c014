#pragma once
// CAviFile: a movie written frame by frame into an AVI file, each frame compressed by the
// codec its FOURCC names.
//
// The first frame fixes the movie's size and depth (24 or 32 bits per pixel); a later frame of
// another size or depth fails. The file is complete once the object is destroyed. Any failure
// leaves its text in GetLastErrorMessage, releases everything, and makes every later append
// fail with E_FAIL.
//
// A CAviFile owns its file, streams, memory context and frame buffer: it cannot be copied
// (two objects would write the same stream and release it twice). Moving hands everything
// over; the object moved from is closed, and its appends fail.

#include "platform/avi/AviFile.h"
#include "platform/avi/SystemTypes.h"
#include "platform/gdi/BitmapBits.h"

class CAviFile {
public:
    // `fileName`: the movie's path, at most 259 characters (a longer one cannot be created);
    // `codec`: the compressor's FOURCC (AviCodecs.h), 0 or "DIB " for uncompressed frames;
    // `frameRate`: frames per second.
    explicit CAviFile(const char* fileName = "Output.avi",
                      unsigned long codec = mmioFOURCC('M', 'P', 'G', '4'),
                      unsigned long frameRate = 1);
    ~CAviFile();
    CAviFile(const CAviFile&) = delete;
    CAviFile& operator=(const CAviFile&) = delete;
    CAviFile(CAviFile&& other) noexcept;
    CAviFile& operator=(CAviFile&& other) noexcept;

    // Appends the picture of a bitmap; S_OK or E_FAIL.
    long AppendNewFrame(HBITMAP bitmap);
    // Appends `height` rows of `width` pixels at `bitsPerPixel` (24 or 32), bottom-up, as a
    // DIB holds them, each row width · bitsPerPixel / 8 bytes long; S_OK or E_FAIL.
    long AppendNewFrame(int width, int height, void* bits, int bitsPerPixel);

    // The text of the last failure; "Method Succeeded" until one happens.
    const char* GetLastErrorMessage() const { return m_lastError; }

private:
    enum AppendState { kClosed = 0, kFirstFrame = 1, kWriting = 2 };
    using BitmapHandler = long (CAviFile::*)(HBITMAP);
    using BitsHandler = long (CAviFile::*)(int, int, void*, int);

    long AppendClosed(HBITMAP bitmap);
    long AppendFirst(HBITMAP bitmap);
    long AppendUsual(HBITMAP bitmap);
    long AppendClosed(int width, int height, void* bits, int bitsPerPixel);
    long AppendFirst(int width, int height, void* bits, int bitsPerPixel);
    long AppendUsual(int width, int height, void* bits, int bitsPerPixel);

    HRESULT SetUpMovie(int width, int height, int bitsPerPixel);
    // Whether a frame has the first frame's size and depth.
    bool FitsMovie(LONG width, LONG height, int bitsPerPixel) const;
    long WriteFrame(void* data, LONG size);
    long Fail(const char* message);
    void ReleaseMemory();
    void SetErrorMessage(const char* message);
    void TakeFrom(CAviFile& other);

    HDC m_memoryDC = nullptr;
    HANDLE m_heap = nullptr;
    void* m_frameBuffer = nullptr;
    long m_frameIndex = 0;
    PAVIFILE m_aviFile = nullptr;
    PAVISTREAM m_videoStream = nullptr;
    PAVISTREAM m_compressedStream = nullptr;
    AVISTREAMINFO m_streamInfo;
    AVICOMPRESSOPTIONS m_compressOptions;
    unsigned long m_frameRate = 1;
    unsigned long m_codec = 0;
    char m_fileName[MAX_PATH] = {};
    char m_lastError[MAX_PATH] = {};
    int m_appendState = kFirstFrame;
    int m_bitsPerPixel = 0; // of the first frame
    // The handler of each state (closed, first frame, writing), per overload.
    BitmapHandler m_bitmapHandlers[3] = {&CAviFile::AppendClosed, &CAviFile::AppendFirst,
                                         &CAviFile::AppendUsual};
    BitsHandler m_bitsHandlers[3] = {&CAviFile::AppendClosed, &CAviFile::AppendFirst,
                                     &CAviFile::AppendUsual};
};
