// The movie file, its video stream and the compressing stream over it.

#include "platform/avi/AviFile.h"

#include "platform/avi/AviCodecs.h"
#include "platform/avi/FrameEncoder_p.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

#include <atomic>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>

namespace seisplot {

// What every object of the interface shares: a reference count.
class AviObject {
public:
    AviObject() = default;
    AviObject(const AviObject&) = delete;
    AviObject& operator=(const AviObject&) = delete;
    virtual ~AviObject() = default;

    void AddRef() { ++m_references; }
    ULONG Release() {
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }

private:
    std::atomic<ULONG> m_references{1};
};

class AviFile final : public AviObject {
public:
    // The file at `path`, created empty; null when it cannot be.
    static AviFile* Create(const char* path) {
        std::unique_ptr<AviFile> file(new AviFile(path));
        if (avformat_alloc_output_context2(&file->m_context, nullptr, "avi", nullptr) < 0 ||
            avio_open(&file->m_context->pb, ("file:" + file->m_path).c_str(), AVIO_FLAG_WRITE) <
                0) {
            return nullptr;
        }
        file->m_created = true;
        return file.release();
    }

    ~AviFile() override { Finish(); }

    // The one video stream, for its header `info`.
    AVStream* NewStream(const AVISTREAMINFOA& info) {
        if (m_context->nb_streams != 0) {
            return nullptr;
        }
        AVStream* stream = avformat_new_stream(m_context, nullptr);
        if (stream == nullptr) {
            return nullptr;
        }
        stream->time_base =
            AVRational{static_cast<int>(info.dwScale), static_cast<int>(info.dwRate)};
        stream->avg_frame_rate = av_inv_q(stream->time_base);
        stream->codecpar->codec_type = AVMEDIA_TYPE_VIDEO;
        char name[sizeof info.szName + 1] = {};
        std::memcpy(name, info.szName, sizeof info.szName);
        if (name[0] != '\0') {
            av_dict_set(&stream->metadata, "title", name, 0);
        }
        m_handler = info.fccHandler;
        return stream;
    }

    // Writes the file's header before the first packet, whose times count in `timeBase`.
    HRESULT Write(AVPacket* packet, AVRational timeBase) {
        if (!m_headerWritten && !WriteHeader()) {
            return AVIERR_FILEWRITE;
        }
        av_packet_rescale_ts(packet, timeBase, m_context->streams[packet->stream_index]->time_base);
        return av_write_frame(m_context, packet) < 0 ? AVIERR_FILEWRITE : AVIERR_OK;
    }

    void FormatSet() { m_hasFormat = true; }

private:
    explicit AviFile(const char* path) : m_path(path) {}

    bool WriteHeader() {
        AVDictionary* options = nullptr;
        // A DIB's rows are stored bottom-up, and the format says so with a positive height.
        av_dict_set(&options, "flipped_raw_rgb", "1", 0);
        m_headerWritten = avformat_write_header(m_context, &options) >= 0;
        av_dict_free(&options);
        return m_headerWritten;
    }

    void Finish() {
        if (m_context == nullptr) {
            return;
        }
        if (m_hasFormat && !m_headerWritten) {
            WriteHeader(); // a movie without frames
        }
        if (m_headerWritten) {
            av_write_trailer(m_context);
        }
        const DWORD stored =
            m_context->nb_streams != 0 ? m_context->streams[0]->codecpar->codec_tag : 0;
        avio_closep(&m_context->pb);
        avformat_free_context(m_context);
        m_context = nullptr;
        if (!m_headerWritten) {
            if (m_created) {
                std::remove(m_path.c_str());
            }
        } else if (stored != m_handler) {
            PatchHandler();
        }
    }

    // The stream header names the handler asked for, also when the format records another
    // compression ("MPG4" written as "MP42", "DIB " as plain rows).
    void PatchHandler() const {
        std::fstream file(m_path, std::ios::in | std::ios::out | std::ios::binary);
        char head[4096] = {};
        file.read(head, sizeof head);
        const std::size_t size = static_cast<std::size_t>(file.gcount());
        for (std::size_t i = 0; i + 16 <= size; ++i) {
            if (std::memcmp(head + i, "strh", 4) == 0 &&
                std::memcmp(head + i + 8, "vids", 4) == 0) {
                const unsigned char bytes[4] = {static_cast<unsigned char>(m_handler),
                                                static_cast<unsigned char>(m_handler >> 8),
                                                static_cast<unsigned char>(m_handler >> 16),
                                                static_cast<unsigned char>(m_handler >> 24)};
                file.clear();
                file.seekp(static_cast<std::streamoff>(i + 12));
                file.write(reinterpret_cast<const char*>(bytes), 4);
                return;
            }
        }
    }

    std::string m_path;
    AVFormatContext* m_context = nullptr;
    DWORD m_handler = 0;
    bool m_created = false; // the file at the path is ours to remove
    bool m_hasFormat = false;
    bool m_headerWritten = false;
};

class AviStream : public AviObject {
public:
    virtual HRESULT SetFormat(LONG position, const void* format, LONG size) = 0;
    virtual HRESULT Write(LONG start, const void* buffer, LONG size) = 0;
};

namespace {

// The frames' own format, when it is one the writer takes: plain rows at 24 or 32 bits per
// pixel, bottom-up.
bool ReadFormat(const void* format, LONG size, BITMAPINFOHEADER& header) {
    if (format == nullptr || size < static_cast<LONG>(sizeof header)) {
        return false;
    }
    std::memcpy(&header, format, sizeof header);
    return header.biSize >= sizeof header && header.biWidth > 0 && header.biHeight > 0 &&
           header.biPlanes == 1 && (header.biBitCount == 24 || header.biBitCount == 32) &&
           header.biCompression == BI_RGB;
}

std::size_t PackedRow(const BITMAPINFOHEADER& h) {
    return static_cast<std::size_t>(h.biWidth) * h.biBitCount / 8;
}
std::size_t PaddedRow(const BITMAPINFOHEADER& h) {
    return (static_cast<std::size_t>(h.biWidth) * h.biBitCount + 31) / 32 * 4;
}

// The distance between rows of a frame of `size` bytes: packed or padded; 0 for another size.
std::size_t RowStride(const BITMAPINFOHEADER& h, LONG size) {
    const auto bytes = static_cast<std::size_t>(size);
    const auto height = static_cast<std::size_t>(h.biHeight);
    if (bytes == PackedRow(h) * height) {
        return PackedRow(h);
    }
    return bytes == PaddedRow(h) * height ? PaddedRow(h) : 0;
}

class VideoStream final : public AviStream {
public:
    VideoStream(AviFile* file, AVStream* stream)
        : m_file(file), m_stream(stream), m_frameTime(stream->time_base) {
        m_file->AddRef();
    }
    ~VideoStream() override { m_file->Release(); }

    // Seconds per frame, as the stream was made: frame numbers count in it.
    AVRational FrameTime() const { return m_frameTime; }

    // Uncompressed frames: the file's format is their header.
    HRESULT SetFormat(LONG position, const void* format, LONG size) override {
        BITMAPINFOHEADER header;
        if (position != 0 || m_hasFormat) {
            return AVIERR_UNSUPPORTED;
        }
        if (!ReadFormat(format, size, header)) {
            return AVIERR_BADFORMAT;
        }
        AVCodecParameters* p = m_stream->codecpar;
        p->codec_id = AV_CODEC_ID_RAWVIDEO;
        p->codec_tag = 0;
        p->width = header.biWidth;
        p->height = header.biHeight;
        p->bits_per_coded_sample = header.biBitCount;
        p->format = header.biBitCount == 32 ? AV_PIX_FMT_BGRA : AV_PIX_FMT_BGR24;
        Formatted(header);
        return AVIERR_OK;
    }

    // Compressed frames: the file's format is what the encoder writes, under `tag`.
    HRESULT SetEncodedFormat(const BITMAPINFOHEADER& input, const AVCodecContext& encoder,
                             DWORD tag) {
        if (m_hasFormat) {
            return AVIERR_UNSUPPORTED;
        }
        if (avcodec_parameters_from_context(m_stream->codecpar, &encoder) < 0) {
            return AVIERR_MEMORY;
        }
        m_stream->codecpar->codec_tag = tag;
        Formatted(input);
        return AVIERR_OK;
    }

    HRESULT Write(LONG start, const void* buffer, LONG size) override {
        if (!m_hasFormat) {
            return AVIERR_BADFORMAT;
        }
        if (buffer == nullptr || RowStride(m_format, size) == 0) {
            return AVIERR_BADSIZE;
        }
        AVPacket* packet = av_packet_alloc();
        if (packet == nullptr) {
            return AVIERR_MEMORY;
        }
        packet->data = static_cast<uint8_t*>(const_cast<void*>(buffer));
        packet->size = size;
        packet->pts = packet->dts = start;
        packet->flags |= AV_PKT_FLAG_KEY;
        const HRESULT result = WritePacket(packet, m_frameTime);
        av_packet_free(&packet);
        return result;
    }

    // A packet whose times count in `timeBase`.
    HRESULT WritePacket(AVPacket* packet, AVRational timeBase) {
        if (packet->pts < m_next) {
            return AVIERR_BADPARAM;
        }
        m_next = packet->pts + 1;
        packet->stream_index = m_stream->index;
        // Writing the header may change the stream's time base: rescale to it after.
        return m_file->Write(packet, timeBase);
    }

    const BITMAPINFOHEADER& Format() const { return m_format; }

private:
    void Formatted(const BITMAPINFOHEADER& header) {
        m_format = header;
        m_hasFormat = true;
        m_file->FormatSet();
    }

    AviFile* m_file;
    AVStream* m_stream;
    AVRational m_frameTime;
    BITMAPINFOHEADER m_format;
    bool m_hasFormat = false;
    int64_t m_next = 0;
};

class CompressedStream final : public AviStream {
public:
    CompressedStream(VideoStream* source, const VideoCompressor& compressor,
                     const AVICOMPRESSOPTIONS& options)
        : m_source(source), m_compressor(compressor), m_options(options) {
        m_source->AddRef();
    }

    ~CompressedStream() override {
        if (m_encoder) {
            m_encoder->Flush(Sink());
        }
        m_source->Release();
    }

    HRESULT SetFormat(LONG position, const void* format, LONG size) override {
        if (m_compressor.encoder == nullptr) {
            return m_source->SetFormat(position, format, size);
        }
        BITMAPINFOHEADER header;
        if (position != 0 || m_encoder) {
            return AVIERR_UNSUPPORTED;
        }
        if (!ReadFormat(format, size, header)) {
            return AVIERR_BADFORMAT;
        }
        const bool keyFrames = (m_options.dwFlags & AVICOMPRESSF_KEYFRAMES) != 0;
        m_encoder = FrameEncoder::Open(m_compressor, header, m_source->FrameTime(),
                                       keyFrames ? static_cast<int>(m_options.dwKeyFrameEvery) : 0);
        if (!m_encoder) {
            return AVIERR_BADFORMAT;
        }
        return m_source->SetEncodedFormat(header, m_encoder->Context(), m_compressor.storedTag);
    }

    HRESULT Write(LONG start, const void* buffer, LONG size) override {
        if (m_compressor.encoder == nullptr) {
            return m_source->Write(start, buffer, size);
        }
        if (!m_encoder) {
            return AVIERR_BADFORMAT;
        }
        const std::size_t stride = RowStride(m_source->Format(), size);
        if (buffer == nullptr || stride == 0) {
            return AVIERR_BADSIZE;
        }
        // An encoder may hand a frame's packet over frames later: check the order now.
        if (start < m_next) {
            return AVIERR_BADPARAM;
        }
        m_next = start + 1;
        m_result = AVIERR_OK;
        const bool encoded = m_encoder->Encode(static_cast<const BYTE*>(buffer),
                                               static_cast<std::ptrdiff_t>(stride), start, Sink());
        return !encoded && m_result == AVIERR_OK ? AVIERR_FILEWRITE : m_result;
    }

private:
    PacketSink Sink() {
        return [this](AVPacket* packet) {
            m_result = m_source->WritePacket(packet, m_encoder->Context().time_base);
            return m_result == AVIERR_OK;
        };
    }

    VideoStream* m_source;
    VideoCompressor m_compressor;
    AVICOMPRESSOPTIONS m_options;
    std::unique_ptr<FrameEncoder> m_encoder;
    HRESULT m_result = AVIERR_OK;
    LONG m_next = 0;
};

int g_initialised = 0;

} // namespace
} // namespace seisplot

void AVIFileInit() {
    // FFmpeg's own notes would go to the error stream; the results say what failed.
    if (seisplot::g_initialised++ == 0) {
        av_log_set_level(AV_LOG_ERROR);
    }
}

void AVIFileExit() {
    if (seisplot::g_initialised > 0) {
        --seisplot::g_initialised;
    }
}

HRESULT AVIFileOpen(PAVIFILE* file, LPCSTR path, UINT mode, void* handler) {
    if (file == nullptr) {
        return AVIERR_BADPARAM;
    }
    *file = nullptr;
    if (path == nullptr || handler != nullptr ||
        (mode & (OF_WRITE | OF_CREATE)) != (OF_WRITE | OF_CREATE)) {
        return AVIERR_BADPARAM;
    }
    *file = seisplot::AviFile::Create(path);
    return *file != nullptr ? AVIERR_OK : AVIERR_FILEOPEN;
}

HRESULT AVIFileCreateStream(PAVIFILE file, PAVISTREAM* stream, AVISTREAMINFOA* info) {
    if (stream == nullptr) {
        return AVIERR_BADPARAM;
    }
    *stream = nullptr;
    if (file == nullptr || info == nullptr) {
        return AVIERR_BADHANDLE;
    }
    if (info->fccType != streamtypeVIDEO || info->dwScale == 0 || info->dwRate == 0 ||
        info->dwScale > 0x7FFFFFFF || info->dwRate > 0x7FFFFFFF) {
        return AVIERR_BADPARAM;
    }
    AVStream* created = file->NewStream(*info);
    if (created == nullptr) {
        return AVIERR_UNSUPPORTED;
    }
    *stream = new seisplot::VideoStream(file, created);
    return AVIERR_OK;
}

HRESULT AVIMakeCompressedStream(PAVISTREAM* compressed, PAVISTREAM source,
                                AVICOMPRESSOPTIONS* options, void* handler) {
    if (compressed == nullptr) {
        return AVIERR_BADPARAM;
    }
    *compressed = nullptr;
    auto* video = dynamic_cast<seisplot::VideoStream*>(source);
    if (video == nullptr || options == nullptr || handler != nullptr) {
        return AVIERR_BADHANDLE;
    }
    const auto compressor = seisplot::FindVideoCompressor(options->fccHandler);
    if (!compressor) {
        return AVIERR_NOCOMPRESSOR;
    }
    *compressed = new seisplot::CompressedStream(video, *compressor, *options);
    return AVIERR_OK;
}

HRESULT AVIStreamSetFormat(PAVISTREAM stream, LONG position, LPVOID format, LONG formatSize) {
    return stream != nullptr ? stream->SetFormat(position, format, formatSize) : AVIERR_BADHANDLE;
}

HRESULT AVIStreamWrite(PAVISTREAM stream, LONG start, LONG samples, LPVOID buffer, LONG bufferSize,
                       DWORD /*flags*/, LONG* samplesWritten, LONG* bytesWritten) {
    if (stream == nullptr) {
        return AVIERR_BADHANDLE;
    }
    if (samples != 1 || start < 0) {
        return AVIERR_BADPARAM;
    }
    const HRESULT result = stream->Write(start, buffer, bufferSize);
    if (samplesWritten != nullptr) {
        *samplesWritten = result == AVIERR_OK ? 1 : 0;
    }
    if (bytesWritten != nullptr) {
        *bytesWritten = result == AVIERR_OK ? bufferSize : 0;
    }
    return result;
}

ULONG AVIStreamRelease(PAVISTREAM stream) {
    return stream != nullptr ? stream->Release() : 0;
}

ULONG AVIFileRelease(PAVIFILE file) {
    return file != nullptr ? file->Release() : 0;
}
