// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediasupport.h"

#include "media/stamp.h"
#include "media/videoencoder.h"

#include <QFile>

#include <cmath>

namespace {

constexpr int rate = 25;
constexpr int soundRate = 8000;

class SampleWriter
{
public:
    ~SampleWriter();
    bool open(const QString& path, const SampleFile& sample);
    bool writeVideo(const SampleFile& sample);
    bool writeAudio(const SampleFile& sample);
    bool finish();

private:
    bool addVideo(const SampleFile& sample);
    bool addAudio(const SampleFile& sample);
    bool addStream(AVCodecContext& codec, int index);
    bool encode(AVCodecContext& codec, int index, const AVFrame* frame);

    AVFormatContext* output_ = nullptr;
    CodecPtr video_;
    CodecPtr audio_;
    PacketPtr packet_{av_packet_alloc()};
};

SampleWriter::~SampleWriter()
{
    if (output_ == nullptr)
        return;
    avio_closep(&output_->pb);
    avformat_free_context(output_);
}

bool SampleWriter::open(const QString& path, const SampleFile& sample)
{
    const QByteArray name = QFile::encodeName(path);
    if (avformat_alloc_output_context2(&output_, nullptr, nullptr, name.constData()) < 0)
        return false;
    return addVideo(sample) && (sample.audio == AV_CODEC_ID_NONE || addAudio(sample))
        && avio_open(&output_->pb, name.constData(), AVIO_FLAG_WRITE) >= 0
        && avformat_write_header(output_, nullptr) >= 0;
}

bool SampleWriter::addVideo(const SampleFile& sample)
{
    const AVCodec* kind = sample.video == AV_CODEC_ID_H264 ? avcodec_find_encoder_by_name("libx264")
        : sample.video == AV_CODEC_ID_HEVC                 ? avcodec_find_encoder_by_name("libx265")
                                                           : avcodec_find_encoder(sample.video);
    video_.reset(avcodec_alloc_context3(kind));
    video_->width = sample.width;
    video_->height = sample.height;
    video_->pix_fmt = sample.video == AV_CODEC_ID_MJPEG ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUV420P;
    video_->time_base = {1, rate};
    video_->framerate = {rate, 1};
    video_->gop_size = 10;
    video_->bit_rate = 1'000'000;
    video_->max_b_frames = sample.bFrames;
    video_->thread_count = 1;
    av_opt_set(video_->priv_data, "preset", "ultrafast", 0);
    av_opt_set(
        video_->priv_data, "x265-params", "log-level=none:pools=none:wpp=0:frame-threads=1", 0);
    return addStream(*video_, 0);
}

bool SampleWriter::addAudio(const SampleFile& sample)
{
    const AVCodec* kind = avcodec_find_encoder(sample.audio);
    audio_.reset(avcodec_alloc_context3(kind));
    audio_->sample_rate = soundRate;
    audio_->sample_fmt = sample.audio == AV_CODEC_ID_AAC ? AV_SAMPLE_FMT_FLTP : AV_SAMPLE_FMT_S16;
    av_channel_layout_default(&audio_->ch_layout, 1);
    audio_->time_base = {1, soundRate};
    return addStream(*audio_, 1);
}

bool SampleWriter::addStream(AVCodecContext& codec, int index)
{
    if ((output_->oformat->flags & AVFMT_GLOBALHEADER) != 0)
        codec.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVStream* stream = avformat_new_stream(output_, nullptr);
    return stream != nullptr && stream->index == index
        && avcodec_open2(&codec, nullptr, nullptr) >= 0
        && avcodec_parameters_from_context(stream->codecpar, &codec) >= 0
        && (stream->time_base = codec.time_base, stream->avg_frame_rate = codec.framerate, true);
}

bool SampleWriter::encode(AVCodecContext& codec, int index, const AVFrame* frame)
{
    if (avcodec_send_frame(&codec, frame) < 0)
        return false;
    while (avcodec_receive_packet(&codec, packet_.get()) >= 0) {
        packet_->stream_index = index;
        av_packet_rescale_ts(packet_.get(), codec.time_base, output_->streams[index]->time_base);
        if (av_interleaved_write_frame(output_, packet_.get()) < 0)
            return false;
    }
    return true;
}

// A grey picture that carries its number as stamp.
bool SampleWriter::writeVideo(const SampleFile& sample)
{
    const FramePtr picture = makePicture(sample.width, sample.height);
    picture->format = video_->pix_fmt;
    for (int i = 0; i < sample.frames; ++i) {
        if (av_frame_make_writable(picture.get()) < 0)
            return false;
        for (int y = 0; y < sample.height; ++y)
            std::fill_n(picture->data[0] + std::ptrdiff_t{picture->linesize[0]} * y, sample.width,
                static_cast<std::uint8_t>(60 + (y + i) % 120));
        for (const int plane : {1, 2})
            std::fill_n(
                picture->data[plane], picture->linesize[plane] * ((sample.height + 1) / 2), 128);
        drawStamp(*picture, static_cast<std::uint32_t>(i));
        picture->pts = i;
        if (!encode(*video_, 0, picture.get()))
            return false;
    }
    return encode(*video_, 0, nullptr);
}

// A tone as long as the pictures.
bool SampleWriter::writeAudio(const SampleFile& sample)
{
    const FramePtr sound(av_frame_alloc());
    sound->format = audio_->sample_fmt;
    sound->nb_samples = audio_->frame_size > 0 ? audio_->frame_size : 320;
    sound->sample_rate = soundRate;
    av_channel_layout_default(&sound->ch_layout, 1);
    if (av_frame_get_buffer(sound.get(), 0) < 0)
        return false;
    const int samples = soundRate * sample.frames / rate;
    for (int first = 0; first + sound->nb_samples <= samples; first += sound->nb_samples) {
        av_frame_make_writable(sound.get());
        for (int i = 0; i < sound->nb_samples; ++i) {
            const double level = 0.4 * std::sin(0.4 * (first + i));
            if (audio_->sample_fmt == AV_SAMPLE_FMT_FLTP)
                reinterpret_cast<float*>(sound->data[0])[i] = static_cast<float>(level);
            else
                reinterpret_cast<std::int16_t*>(sound->data[0])[i] =
                    static_cast<std::int16_t>(level * 32767);
        }
        sound->pts = first;
        if (!encode(*audio_, 1, sound.get()))
            return false;
    }
    return encode(*audio_, 1, nullptr);
}

bool SampleWriter::finish()
{
    return av_write_trailer(output_) >= 0;
}

} // namespace

bool writeSample(const QString& path, const SampleFile& sample)
{
    SampleWriter writer;
    return writer.open(path, sample)
        && (sample.audio == AV_CODEC_ID_NONE || writer.writeAudio(sample))
        && writer.writeVideo(sample) && writer.finish();
}
