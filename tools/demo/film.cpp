// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the film that a device of the demonstration plays: MP4 with H.264, in place of one that would
// have to be downloaded.   orva-film FILE
#include "media/testpicture.h"
#include "media/videoencoder.h"

#include <chrono>
#include <cstdio>
#include <cstring>

namespace {

constexpr int width = 640;
constexpr int height = 360;
constexpr int rate = 25; // pictures per second
constexpr int length = 20 * rate; // pictures
constexpr int kilobits = 1200;

struct OutputDelete
{
    void operator()(AVFormatContext* output) const
    {
        if (output->pb != nullptr)
            avio_closep(&output->pb);
        avformat_free_context(output);
    }
};

using OutputPtr = std::unique_ptr<AVFormatContext, OutputDelete>;

bool fail(const std::string& text)
{
    std::fprintf(stderr, "orva-film: %s\n", text.c_str());
    return false;
}

SourceSettings sourceSettings()
{
    SourceSettings source;
    source.scene = 3;
    source.width = width;
    source.height = height;
    source.framesPerSecond = rate;
    source.kilobitsPerSecond = kilobits;
    source.stamp = StampKind::Off;
    return source;
}

// The muxer takes the parameter sets from the first key frame, which begins with them.
bool begin(AVFormatContext& output, const LinkFrame& first)
{
    AVStream* stream = avformat_new_stream(&output, nullptr);
    if (stream == nullptr)
        return fail("out of memory");
    AVCodecParameters& coded = *stream->codecpar;
    coded.codec_type = AVMEDIA_TYPE_VIDEO;
    coded.codec_id = AV_CODEC_ID_H264;
    coded.format = AV_PIX_FMT_YUV420P;
    coded.width = width;
    coded.height = height;
    stream->time_base = {1, rate};
    const std::size_t size = first.bytes.size();
    coded.extradata = static_cast<std::uint8_t*>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE));
    if (coded.extradata == nullptr)
        return fail("out of memory");
    std::memcpy(coded.extradata, first.bytes.data(), size);
    coded.extradata_size = static_cast<int>(size);
    const int result = avformat_write_header(&output, nullptr);
    return result >= 0 || fail(ffmpegError(result));
}

bool write(AVFormatContext& output, const LinkFrame& frame, int number)
{
    const PacketPtr packet(av_packet_alloc());
    if (!packet || av_new_packet(packet.get(), static_cast<int>(frame.bytes.size())) < 0)
        return fail("out of memory");
    std::memcpy(packet->data, frame.bytes.data(), frame.bytes.size());
    packet->flags = frame.key ? AV_PKT_FLAG_KEY : 0;
    packet->pts = packet->dts = number;
    packet->duration = 1;
    av_packet_rescale_ts(packet.get(), {1, rate}, output.streams[0]->time_base);
    const int result = av_write_frame(&output, packet.get());
    return result >= 0 || fail(ffmpegError(result));
}

PictureMoment momentOf(int number)
{
    const std::chrono::nanoseconds since =
        std::chrono::nanoseconds(std::chrono::seconds(number)) / rate;
    PictureMoment moment;
    moment.steady += std::chrono::duration_cast<std::chrono::steady_clock::duration>(since);
    moment.wall = std::chrono::system_clock::now()
        + std::chrono::duration_cast<std::chrono::system_clock::duration>(since);
    moment.frame = static_cast<std::uint64_t>(number);
    return moment;
}

bool draw(AVFormatContext& output)
{
    std::string error;
    const SourceSettings source = sourceSettings();
    const auto encoder =
        VideoEncoder::open({VideoCodec::H264, width, height, rate, kilobits, 2 * rate}, error);
    if (!encoder)
        return fail(error);
    TestPicture picture(source, 0, std::make_shared<SceneState>());
    for (int i = 0; i < length; ++i) {
        AVFrame* drawn = picture.draw(momentOf(i));
        const auto frame = drawn == nullptr ? nullptr : encoder->encode(*drawn, i == 0);
        if (!frame)
            return fail("the encoder gives no picture");
        if ((i == 0 && !begin(output, *frame)) || !write(output, *frame, i))
            return false;
    }
    const int result = av_write_trailer(&output);
    return result >= 0 || fail(ffmpegError(result));
}

bool makeFilm(const char* path)
{
    AVFormatContext* made = nullptr;
    int result = avformat_alloc_output_context2(&made, nullptr, "mp4", nullptr);
    if (result < 0)
        return fail(ffmpegError(result));
    const OutputPtr output(made);
    result = avio_open(&output->pb, path, AVIO_FLAG_WRITE);
    if (result < 0)
        return fail(std::string(path) + ": " + ffmpegError(result));
    return draw(*output);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: orva-film FILE\n");
        return 2;
    }
    av_log_set_level(AV_LOG_WARNING);
    return makeFilm(argv[1]) ? 0 : 1;
}
