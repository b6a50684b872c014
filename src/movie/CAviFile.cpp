#include "movie/CAviFile.h"

#include "platform/avi/Heaps.h"
#include "platform/gdi/SystemMetrics.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr const char* kSucceeded = "Method Succeeded";
constexpr const char* kWriteFailed = "Unable to Write Video Stream to the output Movie File";

} // namespace

CAviFile::CAviFile(const char* fileName, unsigned long codec, unsigned long frameRate)
    : m_frameRate(frameRate), m_codec(codec) {
    AVIFileInit();
    // A name that does not fit stays empty: no movie is written under a shortened name.
    if (fileName != nullptr && std::strlen(fileName) < MAX_PATH) {
        std::strcpy(m_fileName, fileName);
    }
    SetErrorMessage(kSucceeded);
}

CAviFile::~CAviFile() {
    ReleaseMemory();
    AVIFileExit();
}

CAviFile::CAviFile(CAviFile&& other) noexcept {
    AVIFileInit();
    TakeFrom(other);
}

CAviFile& CAviFile::operator=(CAviFile&& other) noexcept {
    if (this != &other) {
        ReleaseMemory();
        TakeFrom(other);
    }
    return *this;
}

void CAviFile::TakeFrom(CAviFile& other) {
    m_memoryDC = std::exchange(other.m_memoryDC, nullptr);
    m_heap = std::exchange(other.m_heap, nullptr);
    m_frameBuffer = std::exchange(other.m_frameBuffer, nullptr);
    m_frameIndex = other.m_frameIndex;
    m_aviFile = std::exchange(other.m_aviFile, nullptr);
    m_videoStream = std::exchange(other.m_videoStream, nullptr);
    m_compressedStream = std::exchange(other.m_compressedStream, nullptr);
    m_streamInfo = other.m_streamInfo;
    m_compressOptions = other.m_compressOptions;
    m_frameRate = other.m_frameRate;
    m_codec = other.m_codec;
    std::memcpy(m_fileName, other.m_fileName, sizeof m_fileName);
    std::memcpy(m_lastError, other.m_lastError, sizeof m_lastError);
    m_appendState = std::exchange(other.m_appendState, kClosed);
    m_bitsPerPixel = other.m_bitsPerPixel;
}

long CAviFile::AppendNewFrame(HBITMAP bitmap) {
    return (this->*m_bitmapHandlers[m_appendState])(bitmap);
}

long CAviFile::AppendNewFrame(int width, int height, void* bits, int bitsPerPixel) {
    return (this->*m_bitsHandlers[m_appendState])(width, height, bits, bitsPerPixel);
}

long CAviFile::AppendClosed(HBITMAP) {
    return E_FAIL;
}

long CAviFile::AppendClosed(int, int, void*, int) {
    return E_FAIL;
}

long CAviFile::AppendFirst(HBITMAP bitmap) {
    BITMAP info;
    GetObject(bitmap, sizeof info, &info);
    if (SetUpMovie(info.bmWidth, info.bmHeight, info.bmBitsPixel) < 0) {
        ReleaseMemory();
        return E_FAIL;
    }
    m_appendState = kWriting;
    return AppendUsual(bitmap);
}

long CAviFile::AppendFirst(int width, int height, void* bits, int bitsPerPixel) {
    if (SetUpMovie(width, height, bitsPerPixel) < 0) {
        ReleaseMemory();
        return E_FAIL;
    }
    m_appendState = kWriting;
    return AppendUsual(width, height, bits, bitsPerPixel);
}

long CAviFile::AppendUsual(HBITMAP bitmap) {
    // The first call reads the bitmap's format, the second its rows in that format.
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biBitCount = 0;
    GetDIBits(m_memoryDC, bitmap, 0, 0, nullptr, &info, DIB_RGB_COLORS);
    info.bmiHeader.biCompression = BI_RGB;
    if (!FitsMovie(info.bmiHeader.biWidth, info.bmiHeader.biHeight, info.bmiHeader.biBitCount)) {
        return Fail(kWriteFailed);
    }
    GetDIBits(m_memoryDC, bitmap, 0, static_cast<UINT>(info.bmiHeader.biHeight), m_frameBuffer,
              &info, DIB_RGB_COLORS);
    return WriteFrame(m_frameBuffer, static_cast<LONG>(info.bmiHeader.biSizeImage));
}

long CAviFile::AppendUsual(int width, int height, void* bits, int bitsPerPixel) {
    if (!FitsMovie(width, height, bitsPerPixel)) {
        return Fail(kWriteFailed);
    }
    const long long size = static_cast<long long>(width) * height * bitsPerPixel / 8;
    return WriteFrame(bits, static_cast<LONG>(size));
}

HRESULT CAviFile::SetUpMovie(int width, int height, int bitsPerPixel) {
    // The frame buffer holds a screen, or the first frame when that is larger.
    const int maxWidth = std::max(GetSystemMetrics(SM_CXSCREEN), width);
    const int maxHeight = std::max(GetSystemMetrics(SM_CYSCREEN), height);
    const SIZE_T bufferSize = static_cast<SIZE_T>(maxWidth) * static_cast<SIZE_T>(maxHeight) * 4;

    m_memoryDC = CreateCompatibleDC(nullptr);
    if (m_memoryDC == nullptr) {
        SetErrorMessage("Unable to Create Compatible DC");
        return E_FAIL;
    }
    m_heap = HeapCreate(HEAP_NO_SERIALIZE, bufferSize, 0);
    if (m_heap == nullptr) {
        SetErrorMessage("Unable to Create Heap");
        return E_FAIL;
    }
    m_frameBuffer = HeapAlloc(m_heap, HEAP_ZERO_MEMORY, bufferSize);
    if (m_frameBuffer == nullptr) {
        SetErrorMessage("Unable to Allocate Memory on Heap");
        return E_FAIL;
    }
    if (AVIFileOpen(&m_aviFile, m_fileName, OF_WRITE | OF_CREATE, nullptr) < 0) {
        SetErrorMessage("Unable to Create the Movie File");
        return E_FAIL;
    }

    m_streamInfo = AVISTREAMINFO{};
    m_streamInfo.fccType = streamtypeVIDEO;
    m_streamInfo.fccHandler = m_codec;
    m_streamInfo.dwScale = 1;
    m_streamInfo.dwRate = m_frameRate; // so the rate counts frames per second
    m_streamInfo.dwSuggestedBufferSize =
        static_cast<DWORD>(std::min<SIZE_T>(bufferSize, 0xFFFFFFFF));
    m_streamInfo.dwQuality = static_cast<DWORD>(-1); // the codec's default
    m_streamInfo.rcFrame = RECT{0, 0, width, height};
    std::strcpy(m_streamInfo.szName, "Video Stream");
    if (AVIFileCreateStream(m_aviFile, &m_videoStream, &m_streamInfo) < 0) {
        SetErrorMessage("Unable to Create Video Stream in the Movie File");
        return E_FAIL;
    }

    m_compressOptions = AVICOMPRESSOPTIONS{};
    m_compressOptions.fccType = streamtypeVIDEO;
    m_compressOptions.fccHandler = m_codec;
    m_compressOptions.dwKeyFrameEvery = 1;
    m_compressOptions.dwFlags = AVICOMPRESSF_KEYFRAMES | AVICOMPRESSF_VALID;
    if (AVIMakeCompressedStream(&m_compressedStream, m_videoStream, &m_compressOptions, nullptr) <
        0) {
        SetErrorMessage("Unable to Create Compressed Stream: Check your CODEC options");
        return E_FAIL;
    }

    BITMAPINFOHEADER format;
    format.biSize = sizeof format;
    format.biWidth = width;
    format.biHeight = height;
    format.biPlanes = 1;
    format.biBitCount = static_cast<WORD>(bitsPerPixel);
    format.biCompression = BI_RGB;
    format.biSizeImage =
        static_cast<DWORD>(static_cast<long long>(width) * height * bitsPerPixel / 8);
    if (AVIStreamSetFormat(m_compressedStream, 0, &format, sizeof format) < 0) {
        SetErrorMessage("Unable to Set Video Stream Format");
        return E_FAIL;
    }
    m_bitsPerPixel = bitsPerPixel;
    return S_OK;
}

bool CAviFile::FitsMovie(LONG width, LONG height, int bitsPerPixel) const {
    return width == m_streamInfo.rcFrame.right && height == m_streamInfo.rcFrame.bottom &&
           bitsPerPixel == m_bitsPerPixel;
}

long CAviFile::WriteFrame(void* data, LONG size) {
    if (AVIStreamWrite(m_compressedStream, m_frameIndex, 1, data, size, 0, nullptr, nullptr) < 0) {
        return Fail(kWriteFailed);
    }
    ++m_frameIndex;
    return S_OK;
}

long CAviFile::Fail(const char* message) {
    SetErrorMessage(message);
    ReleaseMemory();
    return E_FAIL;
}

void CAviFile::ReleaseMemory() {
    m_appendState = kClosed;
    if (m_memoryDC != nullptr) {
        DeleteDC(m_memoryDC);
        m_memoryDC = nullptr;
    }
    if (m_compressedStream != nullptr) {
        AVIStreamRelease(m_compressedStream);
        m_compressedStream = nullptr;
    }
    if (m_videoStream != nullptr) {
        AVIStreamRelease(m_videoStream);
        m_videoStream = nullptr;
    }
    if (m_aviFile != nullptr) {
        AVIFileRelease(m_aviFile); // writes the file's index
        m_aviFile = nullptr;
    }
    if (m_frameBuffer != nullptr) {
        HeapFree(m_heap, 0, m_frameBuffer);
        m_frameBuffer = nullptr;
    }
    if (m_heap != nullptr) {
        HeapDestroy(m_heap);
        m_heap = nullptr;
    }
}

void CAviFile::SetErrorMessage(const char* message) {
    std::strncpy(m_lastError, message, MAX_PATH - 1);
    m_lastError[MAX_PATH - 1] = '\0';
}
