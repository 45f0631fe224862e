// SPDX-License-Identifier: GPL-3.0-or-later
// The road of a compressed frame through the client, from avRecvFrameData2 to decodeSuccess, beside
// a bare loop of libavcodec with the same settings and one copy of the picture. What is told is the
// processor time of the whole process for one frame.
//
//     bench_decode [--json FILE]
//
// The layer of the tests stands in for the link, which costs little; what it does cost is told.
#include "AVAPIs.h"
#include "clip.h"
#include "link/ioconnect.h"
#include "measure.h"
#include "media/decode.h"
#include "media/ffmpegowners.h"
#include "media/stream.h"
#include "media/video.h"
#include "media/yuvpicture.h"
#include "model/device.h"
#include "scriptedlink.h"
#include "store/deployment.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QTimer>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>

using namespace std::chrono_literals;

namespace {

constexpr int keyInterval = 50;
// Frames under way at a time: enough that no poll comes back empty, and few enough that the client,
// which bounds what waits for its decoder, leaves none out.
constexpr int underWay = 24;
constexpr double bar = 1.15; // at 720 lines and above

struct Row
{
    const char* name;
    quint16 codec;
    int width;
    int height;
    int kilobitsPerSecond;
    int framesPerRound; // whole clips
};

constexpr Row rows[]{
    {"H.264  640x360", clipH264, 640, 360, 700, 500},
    {"H.264 1280x720", clipH264, 1280, 720, 2000, 250},
    {"H.264 1920x1080", clipH264, 1920, 1080, 4000, 150},
    {"H.264 3840x2160", clipH264, 3840, 2160, 12000, 50},
    {"H.265 1280x720", clipH265, 1280, 720, 1200, 250},
    {"H.265 1920x1080", clipH265, 1920, 1080, 2500, 150},
};

std::vector<ClipFrame> clipOf(const Row& row)
{
    ClipSettings settings;
    settings.codec = row.codec;
    settings.width = row.width;
    settings.height = row.height;
    settings.kilobitsPerSecond = row.kilobitsPerSecond;
    settings.count = keyInterval;
    settings.keyInterval = keyInterval;
    settings.stamped = false;
    return makeClip(settings);
}

double processMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// Processor time of `work` for each of `frames`, with what the decoder's threads still do after it.
// Without an event loop meanwhile, so that no poll of the client falls in between.
template <typename Work>
double millisecondsPerFrame(int frames, Work work)
{
    const double start = processMilliseconds();
    work();
    std::this_thread::sleep_for(200ms);
    return (processMilliseconds() - start) / frames;
}

[[noreturn]] void giveUp(const char* why)
{
    std::fprintf(stderr, "bench_decode: %s\n", why);
    std::exit(1);
}

// The frames of a clip over and over.
class Cycle
{
public:
    explicit Cycle(const std::vector<ClipFrame>& frames)
        : frames_(frames)
    {
    }
    const ClipFrame& next() { return frames_[at_++ % frames_.size()]; }

private:
    const std::vector<ClipFrame>& frames_;
    std::size_t at_ = 0;
};

// The reference. Its packets are made beforehand and not copied again.
class BareLoop
{
public:
    explicit BareLoop(const std::vector<ClipFrame>& frames)
        : picture_(av_frame_alloc())
        , buffer_(yuvBufferBytes)
    {
        for (const ClipFrame& frame : frames)
            packets_.push_back(packetOf(frame.bytes));
        open(frames.front().codec == clipH264 ? AV_CODEC_ID_H264 : AV_CODEC_ID_HEVC);
    }

    void decode(int frames)
    {
        for (int i = 0; i < frames; ++i) {
            if (avcodec_send_packet(codec_.get(), packets_[at_++ % packets_.size()].get()) < 0)
                giveUp("the bare loop does not decode");
            if (avcodec_receive_frame(codec_.get(), picture_.get()) < 0)
                continue; // the first ones, which the decoder's threads keep back
            copy();
            av_frame_unref(picture_.get());
        }
    }

private:
    static PacketPtr packetOf(const QByteArray& bytes)
    {
        PacketPtr packet(av_packet_alloc());
        if (av_new_packet(packet.get(), bytes.size()) < 0)
            giveUp("no memory for a packet");
        std::copy(bytes.begin(), bytes.end(), packet->data);
        return packet;
    }

    void open(AVCodecID id)
    {
        const AVCodec* kind = avcodec_find_decoder(id);
        codec_.reset(avcodec_alloc_context3(kind));
        codec_->thread_count = 4;
        codec_->thread_type = FF_THREAD_FRAME;
        if (Deployment::instance().decoder == Deployment::Decoder::LowDelay)
            codec_->flags |= AV_CODEC_FLAG_LOW_DELAY;
        if (avcodec_open2(codec_.get(), kind, nullptr) < 0)
            giveUp("the bare decoder does not open");
    }

    void copy()
    {
        std::uint8_t* target = buffer_.data();
        for (const int plane : {0, 1, 2}) {
            const int shift = plane == 0 ? 0 : 1;
            const auto width = static_cast<std::size_t>(picture_->width >> shift);
            const std::uint8_t* source = picture_->data[plane];
            for (int y = 0; y < picture_->height >> shift; ++y) {
                std::memcpy(target, source, width);
                source += picture_->linesize[plane];
                target += width;
            }
        }
    }

    std::vector<PacketPtr> packets_;
    CodecPtr codec_;
    const FramePtr picture_;
    std::vector<std::uint8_t> buffer_;
    std::size_t at_ = 0;
};

// One live stream of the client. There is one at a time.
class ClientRoad final : public QObject
{
public:
    explicit ClientRoad(const std::vector<ClipFrame>& frames)
        : cycle_(frames)
        , device_(new Device)
    {
        device_->setChannelCount(1);
        device_->sid = link_.openSession();
        avIndex_ = link_.openChannel(device_->sid);
        channel()->mode(true).avIndex = avIndex_;
        connect(Decode::instance(), &Decode::decodeSuccess, this, [this] { pictureCame(); });
        connect(&patience_, &QTimer::timeout, &loop_, &QEventLoop::quit);
        Decode::instance()->createLiveStream(channel());
    }
    ~ClientRoad() override
    {
        Decode::instance()->removeStream(channel(), true);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::sendPostedEvents();
    }
    Q_DISABLE_COPY_MOVE(ClientRoad)

    // Until the decoder is in its steady state: then a picture comes for each frame.
    void warmUp()
    {
        toFeed_ = keyInterval;
        feed(underWay);
        runUntilQuiet();
        if (shown_ == 0)
            giveUp("no picture came");
    }

    void decode(int frames)
    {
        toFeed_ = frames;
        toShow_ = shown_ + frames;
        feed(underWay);
        patience_.start(60s);
        loop_.exec();
        if (shown_ < toShow_ || video().leftOutFrames() > 0 || video().unshownPictures() > 0)
            giveUp("pictures are missing");
    }

    // The same, but for the decoder: frames that say that they are no picture.
    void receive(int frames)
    {
        for (int i = 0; i < frames; ++i)
            link_.queueVideo(avIndex_, cycle_.next().bytes, {clipH264, 2, 0});
        while (link_.waitingVideo(avIndex_) > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    Channel* channel() const { return device_->channel(0); }
    const Video& video() const { return *Decode::instance()->streams().first()->video(); }

    void pictureCame()
    {
        ++shown_;
        feed(1);
        if (shown_ == toShow_)
            loop_.quit();
    }

    void feed(int frames)
    {
        for (; frames > 0 && toFeed_ > 0; --frames, --toFeed_) {
            const ClipFrame& frame = cycle_.next();
            const quint8 flags = frame.isKey ? 1 : 0;
            link_.queueVideo(avIndex_, frame.bytes, {frame.codec, flags, 0});
        }
    }

    void runUntilQuiet()
    {
        int before = -1;
        while (before != shown_) {
            before = shown_;
            QTimer::singleShot(500ms, &loop_, &QEventLoop::quit);
            loop_.exec();
        }
    }

    ScriptedLink& link_ = ScriptedLink::instance();
    Cycle cycle_;
    const DeviceOwner device_;
    int avIndex_ = -1;
    QEventLoop loop_;
    QTimer patience_; // for a stream that gives nothing any more
    int toFeed_ = 0;
    int shown_ = 0;
    int toShow_ = -1;
};

// What the layer of the tests itself takes for a frame, whoever receives it.
class LayerAlone
{
public:
    explicit LayerAlone(const std::vector<ClipFrame>& frames)
        : cycle_(frames)
        , avIndex_(link_.openChannel(link_.openSession()))
        , buffer_(2304000)
    {
    }

    void receive(int frames)
    {
        for (int i = 0; i < frames; ++i) {
            link_.queueVideo(avIndex_, cycle_.next().bytes);
            std::array<char, AV_FRAME_INFO_BYTES> info{};
            unsigned number = 0;
            int sizes[3]{};
            if (avRecvFrameData2(avIndex_, buffer_.data(), static_cast<int>(buffer_.size()),
                    &sizes[0], &sizes[1], info.data(), AV_FRAME_INFO_BYTES, &sizes[2], &number)
                < 0)
                giveUp("the layer gives no frame");
        }
    }

private:
    ScriptedLink& link_ = ScriptedLink::instance();
    Cycle cycle_;
    int avIndex_;
    std::vector<char> buffer_;
};

struct Figures // milliseconds of processor time for one frame
{
    double road;
    double bare;
    double received; // the road as far as the decoder
    double layer; // of both, what is the tests'

    double ratio() const { return road / bare; }
};

Figures measure(const Row& row)
{
    const std::vector<ClipFrame> frames = clipOf(row);
    ScriptedLink::instance().reset();
    ClientRoad road(frames);
    BareLoop bare(frames);
    LayerAlone layer(frames);
    road.warmUp();
    bare.decode(keyInterval);
    std::array<std::vector<double>, 4> taken;
    const int count = row.framesPerRound;
    for (int round = 0; round < rounds; ++round) {
        taken[0].push_back(millisecondsPerFrame(count, [&] { road.decode(count); }));
        taken[1].push_back(millisecondsPerFrame(count, [&] { bare.decode(count); }));
        taken[2].push_back(millisecondsPerFrame(count, [&] { road.receive(count); }));
        taken[3].push_back(millisecondsPerFrame(count, [&] { layer.receive(count); }));
    }
    return {median(taken[0]), median(taken[1]), median(taken[2]), median(taken[3])};
}

bool hasBar(const Row& row)
{
    return row.height >= 720;
}

void printHead(const char* decoder)
{
    std::printf(
        "decoder: %s; processor time for one frame, median of %d rounds\n", decoder, rounds);
    std::printf("%-16s %11s %11s %7s  %-6s %14s %12s\n", "", "road", "bare", "ratio", "bar",
        "received only", "layer alone");
}

void print(const Row& row, const Figures& figures)
{
    std::array<char, 8> most{"-"};
    if (hasBar(row))
        std::snprintf(most.data(), most.size(), "%.2f", bar);
    std::printf("%-16s %8.3f ms %8.3f ms %7.3f  %-6s %11.1f us %9.1f us\n", row.name, figures.road,
        figures.bare, figures.ratio(), most.data(), figures.received * 1e3, figures.layer * 1e3);
    std::fflush(stdout);
}

nlohmann::json jsonOf(const Row& row, const Figures& figures)
{
    nlohmann::json json = {{"codec", row.codec == clipH264 ? "H.264" : "H.265"},
        {"width", row.width}, {"height", row.height}, {"kilobitsPerSecond", row.kilobitsPerSecond},
        {"framesPerRound", row.framesPerRound}, {"roadMs", figures.road}, {"bareMs", figures.bare},
        {"ratio", figures.ratio()}, {"receivedMs", figures.received}, {"layerMs", figures.layer}};
    if (hasBar(row))
        json["bar"] = bar;
    return json;
}

void write(const QString& path, const nlohmann::json& json)
{
    QFile file(path);
    const QByteArray text = QByteArray::fromStdString(json.dump(1)) + '\n';
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
        giveUp(qPrintable(path + QStringLiteral(": ") + file.errorString()));
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir settings; // not those of who runs this
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    const QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    if (!arguments.isEmpty() && (arguments.size() != 2 || arguments[0] != QLatin1String("--json")))
        giveUp("usage: bench_decode [--json FILE]");
    av_log_set_level(AV_LOG_ERROR);
    Decode::instance();
    QThreadPool::globalInstance()->waitForDone(); // the layer comes up by a task

    const bool lowDelay = Deployment::instance().decoder == Deployment::Decoder::LowDelay;
    const char* decoder = lowDelay ? "lowDelay" : "throughput";
    printHead(decoder);
    nlohmann::json json = {{"decoder", decoder}, {"rounds", rounds}};
    for (const Row& row : rows) {
        const Figures figures = measure(row);
        print(row, figures);
        json["rows"].push_back(jsonOf(row, figures));
    }
    if (!arguments.isEmpty())
        write(arguments[1], json);
    return 0;
}
