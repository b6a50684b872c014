#pragma once
// Reads a written AVI file back: its stream header and format straight from the file's bytes,
// its frames through libavformat (the packets as stored) and libavcodec (the pictures as a
// player shows them, in RGB).

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace seisplot::test {

// One picture: rows top-down of red, green, blue bytes.
struct RgbPicture {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> rgb;
    // The channel values at (x, y) from the top-left corner.
    const uint8_t* At(int x, int y) const {
        return rgb.data() + (static_cast<std::size_t>(y) * width + x) * 3;
    }
};

struct Movie {
    bool opened = false;
    // The stream header ("strh") and format ("strf") as stored.
    uint32_t handler = 0;
    uint32_t scale = 0;
    uint32_t rate = 0;
    uint32_t formatSize = 0;
    int32_t formatWidth = 0;
    int32_t formatHeight = 0;
    uint16_t bitCount = 0;
    uint32_t compression = 0;
    std::string streamName; // "strn"
    // What FFmpeg reads.
    std::string codec;
    int width = 0;
    int height = 0;
    std::vector<std::string> packets;
    std::vector<RgbPicture> pictures;
};

inline uint32_t Le32(const std::string& b, std::size_t at) {
    return static_cast<uint32_t>(static_cast<uint8_t>(b[at])) |
           static_cast<uint32_t>(static_cast<uint8_t>(b[at + 1])) << 8 |
           static_cast<uint32_t>(static_cast<uint8_t>(b[at + 2])) << 16 |
           static_cast<uint32_t>(static_cast<uint8_t>(b[at + 3])) << 24;
}

inline uint32_t Fourcc(const char (&text)[5]) {
    return static_cast<uint32_t>(static_cast<uint8_t>(text[0])) |
           static_cast<uint32_t>(static_cast<uint8_t>(text[1])) << 8 |
           static_cast<uint32_t>(static_cast<uint8_t>(text[2])) << 16 |
           static_cast<uint32_t>(static_cast<uint8_t>(text[3])) << 24;
}

inline void ReadHeaders(const std::string& path, Movie& movie) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    const std::string bytes = content.str();
    const std::size_t strh = bytes.find("strh");
    if (strh != std::string::npos && strh + 36 <= bytes.size()) {
        movie.handler = Le32(bytes, strh + 12);
        movie.scale = Le32(bytes, strh + 28);
        movie.rate = Le32(bytes, strh + 32);
    }
    const std::size_t strf = bytes.find("strf");
    if (strf != std::string::npos && strf + 8 + 40 <= bytes.size()) {
        const std::size_t f = strf + 8;
        movie.formatSize = Le32(bytes, f);
        movie.formatWidth = static_cast<int32_t>(Le32(bytes, f + 4));
        movie.formatHeight = static_cast<int32_t>(Le32(bytes, f + 8));
        movie.bitCount = static_cast<uint16_t>(Le32(bytes, f + 12) >> 16);
        movie.compression = Le32(bytes, f + 16);
    }
    const std::size_t strn = bytes.find("strn");
    if (strn != std::string::npos && strn + 8 <= bytes.size()) {
        movie.streamName = bytes.substr(strn + 8, Le32(bytes, strn + 4));
        movie.streamName.resize(std::strlen(movie.streamName.c_str()));
    }
}

inline void Decode(AVCodecContext* decoder, const AVPacket* packet, AVFrame* frame,
                   std::vector<RgbPicture>& pictures) {
    if (avcodec_send_packet(decoder, packet) < 0) {
        return;
    }
    while (avcodec_receive_frame(decoder, frame) == 0) {
        RgbPicture picture;
        picture.width = frame->width;
        picture.height = frame->height;
        picture.rgb.resize(static_cast<std::size_t>(frame->width) * frame->height * 3);
        SwsContext* sws = sws_getContext(
            frame->width, frame->height, static_cast<AVPixelFormat>(frame->format), frame->width,
            frame->height, AV_PIX_FMT_RGB24, SWS_POINT, nullptr, nullptr, nullptr);
        uint8_t* out[1] = {picture.rgb.data()};
        const int stride[1] = {frame->width * 3};
        sws_scale(sws, frame->data, frame->linesize, 0, frame->height, out, stride);
        sws_freeContext(sws);
        pictures.push_back(std::move(picture));
    }
}

// The movie at `path`; `decode` also decodes every frame.
inline Movie ReadMovie(const std::string& path, bool decode = true) {
    Movie movie;
    ReadHeaders(path, movie);
    AVFormatContext* format = nullptr;
    if (avformat_open_input(&format, ("file:" + path).c_str(), nullptr, nullptr) < 0) {
        return movie;
    }
    if (avformat_find_stream_info(format, nullptr) < 0 || format->nb_streams != 1) {
        avformat_close_input(&format);
        return movie;
    }
    movie.opened = true;
    const AVCodecParameters* par = format->streams[0]->codecpar;
    movie.codec = avcodec_get_name(par->codec_id);
    movie.width = par->width;
    movie.height = par->height;
    const AVCodec* codec = avcodec_find_decoder(par->codec_id);
    AVCodecContext* decoder = codec != nullptr ? avcodec_alloc_context3(codec) : nullptr;
    if (decoder != nullptr) {
        avcodec_parameters_to_context(decoder, par);
        decoder->thread_count = 1;
        if (avcodec_open2(decoder, codec, nullptr) < 0) {
            avcodec_free_context(&decoder);
        }
    }
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    while (av_read_frame(format, packet) >= 0) {
        movie.packets.emplace_back(reinterpret_cast<const char*>(packet->data),
                                   static_cast<std::size_t>(packet->size));
        if (decode && decoder != nullptr) {
            Decode(decoder, packet, frame, movie.pictures);
        }
        av_packet_unref(packet);
    }
    if (decode && decoder != nullptr) {
        Decode(decoder, nullptr, frame, movie.pictures);
    }
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&decoder);
    avformat_close_input(&format);
    return movie;
}

// The mean absolute difference of two pictures of one size, over every channel value.
inline double MeanDifference(const RgbPicture& a, const RgbPicture& b) {
    if (a.rgb.size() != b.rgb.size() || a.rgb.empty()) {
        return 1e9;
    }
    double sum = 0.0;
    for (std::size_t i = 0; i < a.rgb.size(); ++i) {
        sum += std::abs(static_cast<int>(a.rgb[i]) - static_cast<int>(b.rgb[i]));
    }
    return sum / static_cast<double>(a.rgb.size());
}

} // namespace seisplot::test
