#include "platform/avi/FrameEncoder_p.h"

extern "C" {
#include <libswscale/swscale.h>
}

#include <cstring>

namespace seisplot {
namespace {

// Plots are thin lines on flat colour: a fine fixed quantiser keeps them sharp.
constexpr int kQuantiser = 3;

bool IsRgb(AVPixelFormat format) {
    switch (format) {
    case AV_PIX_FMT_BGR0:
    case AV_PIX_FMT_BGRA:
    case AV_PIX_FMT_RGB24:
    case AV_PIX_FMT_BGR24:
        return true;
    default:
        return false;
    }
}

// An RGB format when the encoder takes one (a lossless codec then stays lossless), else the
// encoder's own first choice.
AVPixelFormat PixelFormatFor(const AVCodec& codec) {
    if (codec.pix_fmts == nullptr) {
        return AV_PIX_FMT_YUV420P;
    }
    for (const AVPixelFormat* f = codec.pix_fmts; *f != AV_PIX_FMT_NONE; ++f) {
        if (IsRgb(*f)) {
            return *f;
        }
    }
    return codec.pix_fmts[0];
}

} // namespace

std::unique_ptr<FrameEncoder> FrameEncoder::Open(const VideoCompressor& compressor,
                                                 const BITMAPINFOHEADER& input, AVRational timeBase,
                                                 int keyFrameEvery) {
    const AVCodec* codec = avcodec_find_encoder_by_name(compressor.encoder);
    if (codec == nullptr) {
        return nullptr;
    }
    std::unique_ptr<FrameEncoder> encoder(new FrameEncoder);
    AVCodecContext* c = encoder->m_context = avcodec_alloc_context3(codec);
    encoder->m_frame = av_frame_alloc();
    encoder->m_packet = av_packet_alloc();
    if (c == nullptr || encoder->m_frame == nullptr || encoder->m_packet == nullptr) {
        return nullptr;
    }
    c->width = input.biWidth;
    c->height = input.biHeight;
    c->pix_fmt = PixelFormatFor(*codec);
    c->time_base = timeBase;
    c->framerate = av_inv_q(timeBase);
    c->max_b_frames = 0;
    c->thread_count = 0;
    if (keyFrameEvery > 0) {
        c->gop_size = keyFrameEvery;
    }
    if (std::strcmp(compressor.encoder, "libx264") != 0) {
        c->flags |= AV_CODEC_FLAG_QSCALE;
        c->global_quality = kQuantiser * FF_QP2LAMBDA;
    }
    if (avcodec_open2(c, codec, nullptr) < 0) {
        return nullptr;
    }

    AVFrame* frame = encoder->m_frame;
    frame->format = c->pix_fmt;
    frame->width = c->width;
    frame->height = c->height;
    if (av_frame_get_buffer(frame, 0) < 0) {
        return nullptr;
    }
    const AVPixelFormat source = input.biBitCount == 32 ? AV_PIX_FMT_BGR0 : AV_PIX_FMT_BGR24;
    encoder->m_scaler = sws_getContext(c->width, c->height, source, c->width, c->height, c->pix_fmt,
                                       SWS_BICUBIC, nullptr, nullptr, nullptr);
    if (encoder->m_scaler == nullptr) {
        return nullptr;
    }
    return encoder;
}

FrameEncoder::~FrameEncoder() {
    sws_freeContext(m_scaler);
    av_packet_free(&m_packet);
    av_frame_free(&m_frame);
    avcodec_free_context(&m_context);
}

bool FrameEncoder::Encode(const BYTE* rows, std::ptrdiff_t stride, long index,
                          const PacketSink& sink) {
    if (av_frame_make_writable(m_frame) < 0) {
        return false;
    }
    // Read bottom-up rows from the last one upwards: the picture top first.
    const uint8_t* top[1] = {rows + stride * (m_context->height - 1)};
    const int strides[1] = {static_cast<int>(-stride)};
    sws_scale(m_scaler, top, strides, 0, m_context->height, m_frame->data, m_frame->linesize);
    m_frame->pts = index;
    return avcodec_send_frame(m_context, m_frame) == 0 && Drain(sink);
}

bool FrameEncoder::Flush(const PacketSink& sink) {
    return avcodec_send_frame(m_context, nullptr) == 0 && Drain(sink);
}

bool FrameEncoder::Drain(const PacketSink& sink) {
    for (;;) {
        const int r = avcodec_receive_packet(m_context, m_packet);
        if (r == AVERROR(EAGAIN) || r == AVERROR_EOF) {
            return true;
        }
        if (r < 0) {
            return false;
        }
        const bool written = sink(m_packet);
        av_packet_unref(m_packet);
        if (!written) {
            return false;
        }
    }
}

} // namespace seisplot
