// SPDX-License-Identifier: GPL-3.0-or-later
#include "clips.h"

#include "clip.h"
#include "media/ffmpegowners.h"

#include <algorithm>
#include <memory>

namespace {

struct OutputDelete
{
    void operator()(AVFormatContext* output) const
    {
        avio_closep(&output->pb);
        avformat_free_context(output);
    }
};

// A file with one stream of pictures.
class ClipFile
{
public:
    // `first`: a key frame. The file takes the parameter sets in it for its head.
    bool open(const QByteArray& path, const ClipSettings& settings, const QByteArray& first);
    bool write(const ClipFrame& frame);
    bool finish() { return av_write_trailer(output_.get()) >= 0; }

private:
    bool describe(AVCodecParameters& about, const ClipSettings& settings, const QByteArray& first);

    std::unique_ptr<AVFormatContext, OutputDelete> output_;
    const PacketPtr packet_{av_packet_alloc()};
};

bool ClipFile::open(const QByteArray& path, const ClipSettings& settings, const QByteArray& first)
{
    AVFormatContext* output = nullptr;
    avformat_alloc_output_context2(&output, nullptr, "mp4", path.constData());
    output_.reset(output);
    AVStream* stream = output != nullptr ? avformat_new_stream(output, nullptr) : nullptr;
    if (stream == nullptr || !describe(*stream->codecpar, settings, first))
        return false;
    stream->time_base = {1, clipFramesPerSecond};
    stream->avg_frame_rate = {clipFramesPerSecond, 1};
    return avio_open(&output->pb, path.constData(), AVIO_FLAG_WRITE) >= 0
        && avformat_write_header(output, nullptr) >= 0;
}

bool ClipFile::describe(
    AVCodecParameters& about, const ClipSettings& settings, const QByteArray& first)
{
    const auto size = static_cast<std::size_t>(first.size());
    about.extradata = static_cast<std::uint8_t*>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE));
    if (about.extradata == nullptr)
        return false;
    std::copy(first.begin(), first.end(), about.extradata);
    about.extradata_size = first.size();
    about.codec_type = AVMEDIA_TYPE_VIDEO;
    about.codec_id = AV_CODEC_ID_H264;
    about.width = settings.width;
    about.height = settings.height;
    return true;
}

bool ClipFile::write(const ClipFrame& frame)
{
    if (av_new_packet(packet_.get(), frame.bytes.size()) < 0)
        return false;
    std::copy(frame.bytes.begin(), frame.bytes.end(), packet_->data);
    packet_->flags = frame.isKey ? AV_PKT_FLAG_KEY : 0;
    packet_->pts = packet_->dts = frame.index;
    packet_->duration = 1;
    av_packet_rescale_ts(packet_.get(), {1, clipFramesPerSecond}, output_->streams[0]->time_base);
    const int result = av_write_frame(output_.get(), packet_.get());
    av_packet_unref(packet_.get());
    return result >= 0;
}

bool writeClip(const QByteArray& path, int number)
{
    ClipSettings settings;
    settings.width = 1280;
    settings.height = 720;
    settings.count = clipFrames;
    settings.framesPerSecond = clipFramesPerSecond;
    settings.kilobitsPerSecond = 2000;
    // No two have their key pictures at the same time, as cameras do not.
    settings.keyInterval = 50 - number;
    settings.firstStamp = static_cast<std::uint32_t>(number) * clipFrames;
    const auto frames = makeClip(settings);
    ClipFile file;
    return file.open(path, settings, frames.front().bytes)
        && std::all_of(frames.begin(), frames.end(),
            [&file](const ClipFrame& frame) { return file.write(frame); })
        && file.finish();
}

} // namespace

QStringList writeClips(const QString& folder, int count, std::string& error)
{
    QStringList clips;
    for (int number = 0; number < count; ++number) {
        clips += folder + QStringLiteral("/clip%1.mp4").arg(number);
        if (!writeClip(clips.back().toLocal8Bit(), number)) {
            error = "cannot write " + clips.back().toStdString();
            return {};
        }
    }
    return clips;
}
