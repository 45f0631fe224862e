// SPDX-License-Identifier: GPL-3.0-or-later
#include "link_layer.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

constexpr unsigned int openSeconds = 10;
constexpr unsigned int requestType = 511;

// Gathers the final reports of some connects.
class Reports
{
public:
    static void callback(int state, int result, void* self)
    {
        if (state != IOTC_STATE_CONNECTED && state != IOTC_STATE_FAILED)
            return;
        auto& reports = *static_cast<Reports*>(self);
        const std::lock_guard lock(reports.mutex_);
        reports.results_.push_back(result);
        reports.came_.notify_all();
    }
    // Blocks until so many have come.
    std::vector<int> await(std::size_t count)
    {
        std::unique_lock lock(mutex_);
        came_.wait(lock, [this, count] { return results_.size() >= count; });
        return results_;
    }

private:
    std::mutex mutex_;
    std::condition_variable came_;
    std::vector<int> results_; // guarded by mutex_
};

class LayerPipe final : public LinkPipe
{
public:
    LayerPipe(LinkChannelPtr device, int avIndex, std::shared_ptr<BenchSession> session)
        : session_(std::move(session))
        , device_(std::move(device))
        , avIndex_(avIndex)
    {
    }
    ~LayerPipe() override { avClientStop(avIndex_); }

    void prepare(const Frame& frame) override { frame_ = benchFrame(frame); }
    bool send() override { return device_->sendVideo(frame_) == LinkChannel::Sent::Queued; }
    std::size_t receive(std::vector<char>& buffer) override
    {
        buffer.resize(LinkFrame::maxBytes);
        char info[AV_FRAME_INFO_BYTES];
        unsigned int number = 0;
        const int size = avRecvFrameData2(avIndex_, buffer.data(), static_cast<int>(buffer.size()),
            nullptr, nullptr, info, sizeof info, nullptr, &number);
        return size > 0 ? static_cast<std::size_t>(size) : 0;
    }
    void request() override { avSendIOCtrl(avIndex_, requestType, "please", 6); }

private:
    const std::shared_ptr<BenchSession> session_;
    const LinkChannelPtr device_;
    const int avIndex_;
    LinkFrame frame_;
};

} // namespace

LinkFrame benchFrame(const Frame& bytes)
{
    LinkFrame frame;
    frame.bytes = bytes;
    describe(frame, LinkCodecH264, true, 0);
    return frame;
}

BenchSession::BenchSession(const std::string& uid)
{
    Reports report;
    IOTC_Connect_ByUID_ParallelNB(uid.c_str(), IOTC_Get_SessionID(), Reports::callback, &report);
    id_ = report.await(1).front();
}

std::vector<BenchSession> BenchSession::connect(const std::string& uid, std::size_t count)
{
    Reports reports;
    for (std::size_t i = 0; i < count; ++i)
        IOTC_Connect_ByUID_ParallelNB(
            uid.c_str(), IOTC_Get_SessionID(), Reports::callback, &reports);
    std::vector<BenchSession> sessions;
    for (const int id : reports.await(count)) {
        if (id >= 0)
            sessions.push_back(BenchSession(id));
    }
    return sessions;
}

BenchSession::~BenchSession()
{
    if (id_ >= 0)
        IOTC_Session_Close(id_);
}

int BenchSession::openChannel(int number) const
{
    return avClientStart2(id_, benchAccount, benchPassword, openSeconds, nullptr,
        static_cast<unsigned char>(number), nullptr);
}

LinkDevice BenchDevice::device(const std::string& uid)
{
    LinkDevice device;
    device.uid = uid;
    device.version = "bench";
    device.account = benchAccount;
    device.password = benchPassword;
    device.channels = 64;
    return device;
}

void BenchDevice::setAnswer(const Frame& frame)
{
    const std::lock_guard lock(mutex_);
    answer_ = benchFrame(frame);
}

LinkChannelPtr BenchDevice::awaitChannel(int number)
{
    std::unique_lock lock(mutex_);
    const bool came = changed_.wait_for(
        lock, std::chrono::seconds(5), [&] { return channels_.count(number) != 0; });
    return came ? channels_[number] : nullptr;
}

void BenchDevice::channelOpened(const LinkChannelPtr& channel)
{
    const std::lock_guard lock(mutex_);
    channels_[channel->number()] = channel;
    changed_.notify_all();
}

void BenchDevice::channelClosed(const LinkChannelPtr& channel)
{
    const std::lock_guard lock(mutex_);
    const auto known = channels_.find(channel->number());
    if (known != channels_.end() && known->second == channel)
        channels_.erase(known);
}

bool BenchDevice::controlReceived(
    const LinkChannelPtr& channel, std::uint32_t /*type*/, std::string_view /*bytes*/)
{
    const std::lock_guard lock(mutex_);
    channel->sendVideo(answer_);
    return true;
}

LayerCandidate::LayerCandidate(
    LinkHost& host, const std::string& direct, const std::string& relayed)
    : directUid_(direct)
    , relayedUid_(relayed)
{
    host.publish(BenchDevice::device(direct), direct_);
    host.publish(BenchDevice::device(relayed), relayed_);
}

LinkPipes LayerCandidate::open(int count, bool throughRelay)
{
    BenchDevice& device = throughRelay ? relayed_ : direct_;
    const auto session = std::make_shared<BenchSession>(throughRelay ? relayedUid_ : directUid_);
    LinkPipes pipes;
    for (int number = 0; number < count; ++number) {
        const int avIndex = session->openChannel(number);
        LinkChannelPtr channel = avIndex < 0 ? nullptr : device.awaitChannel(number);
        if (!channel)
            return {};
        pipes.push_back(std::make_unique<LayerPipe>(std::move(channel), avIndex, session));
    }
    return pipes;
}

void LayerCandidate::setAnswer(const Frame& frame)
{
    direct_.setAnswer(frame);
    relayed_.setAnswer(frame);
}
