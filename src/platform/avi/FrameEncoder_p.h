#pragma once
// One FFmpeg encoder fed with DIB rows: the rows are converted to the encoder's pixel format
// and the packets it gives are handed to a sink.

#include "platform/avi/AviCodecs.h"
#include "platform/core/BitmapInfo.h"

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <cstddef>
#include <functional>
#include <memory>

struct SwsContext;

namespace seisplot {

// Takes a packet in the encoder's time base; false when it could not be written.
using PacketSink = std::function<bool(AVPacket*)>;

class FrameEncoder {
public:
    // The encoder of `compressor` for frames of `input` (BI_RGB, 24 or 32 bits per pixel),
    // `timeBase` seconds per frame and a key frame every `keyFrameEvery` frames (0: the
    // encoder's choice); null when it cannot take them.
    static std::unique_ptr<FrameEncoder> Open(const VideoCompressor& compressor,
                                              const BITMAPINFOHEADER& input, AVRational timeBase,
                                              int keyFrameEvery);
    ~FrameEncoder();
    FrameEncoder(const FrameEncoder&) = delete;
    FrameEncoder& operator=(const FrameEncoder&) = delete;

    const AVCodecContext& Context() const { return *m_context; }
    // Encodes the image of bottom-up `rows`, `stride` bytes apart, as frame `index`.
    bool Encode(const BYTE* rows, std::ptrdiff_t stride, long index, const PacketSink& sink);
    // Hands over the packets the encoder still holds.
    bool Flush(const PacketSink& sink);

private:
    FrameEncoder() = default;
    bool Drain(const PacketSink& sink);

    AVCodecContext* m_context = nullptr;
    SwsContext* m_scaler = nullptr;
    AVFrame* m_frame = nullptr;
    AVPacket* m_packet = nullptr;
};

} // namespace seisplot
