// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "device/linkhost.h"
#include "linkcandidate.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

constexpr char benchAccount[] = "Admin";
constexpr char benchPassword[] = "measure";

// `bytes` as a key frame.
LinkFrame benchFrame(const Frame& bytes);

// A session of the client's end; closed at the end of its life.
class BenchSession
{
public:
    // Blocks until the layer reports.
    explicit BenchSession(const std::string& uid);
    BenchSession(BenchSession&& other) noexcept
        : id_(std::exchange(other.id_, -1))
    {
    }
    BenchSession(const BenchSession&) = delete;
    BenchSession& operator=(const BenchSession&) = delete;
    ~BenchSession();

    // Many at a time; without those that did not come about.
    static std::vector<BenchSession> connect(const std::string& uid, std::size_t count);

    int openChannel(int number) const; // the AV index, or a negative result

private:
    explicit BenchSession(int id)
        : id_(id)
    {
    }

    int id_ = -1; // negative: it did not come about
};

// The device's end: admits everybody, and answers each message with one frame.
class BenchDevice final : public LinkDeviceHandler
{
public:
    static LinkDevice device(const std::string& uid);

    void setAnswer(const Frame& frame);
    // Null when the channel has not opened within 5 s.
    LinkChannelPtr awaitChannel(int number);

    bool admit(const std::string& /*peer*/) override { return true; }
    void channelOpened(const LinkChannelPtr& channel) override;
    void channelClosed(const LinkChannelPtr& channel) override;
    bool controlReceived(
        const LinkChannelPtr& channel, std::uint32_t type, std::string_view bytes) override;
    void speechReceived(const LinkChannelPtr& /*channel*/, const LinkFrame& /*frame*/) override { }
    void wrongPassword(const std::string& /*peer*/, bool /*lockedOut*/) override { }

private:
    std::mutex mutex_; // guards all below
    std::condition_variable changed_;
    std::map<int, LinkChannelPtr> channels_; // the last of each number
    LinkFrame answer_;
};

// The link layer, which must be up. `host` must end before this does.
class LayerCandidate final : public LinkCandidate
{
public:
    LayerCandidate(LinkHost& host, const std::string& direct, const std::string& relayed);

    LinkPipes open(int count, bool throughRelay) override;
    void setAnswer(const Frame& frame) override;

private:
    const std::string directUid_;
    const std::string relayedUid_;
    BenchDevice direct_;
    BenchDevice relayed_;
};
