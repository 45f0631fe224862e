// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "scriptedlink.h"

#include <algorithm>
#include <array>
#include <condition_variable>
#include <future>
#include <mutex>

// Shorthands for tests that call the link layer by themselves, in the place of the client.
namespace layercalls {

constexpr const char* uid = "ABCDEFGHIJ0123456789";
constexpr const char* otherUid = "0123456789ABCDEFGHIJ";
constexpr LinkFn connectFn = LinkFn::IOTC_Connect_ByUID_ParallelNB;

// Keeps what connect callbacks are told. Its end resets the layer, so that no report comes to an
// object that is gone.
class Reports final
{
public:
    struct Report
    {
        int state;
        int result;
        std::thread::id thread;
    };

    Reports() = default;
    ~Reports() { ScriptedLink::instance().reset(); }

    static void collect(int state, int result, void* userData)
    {
        auto* self = static_cast<Reports*>(userData);
        const std::lock_guard lock(self->mutex_);
        self->reports_.push_back({state, result, std::this_thread::get_id()});
        self->changed_.notify_all();
    }

    bool wait(std::size_t count, std::chrono::milliseconds patience = linkPatience)
    {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(
            lock, patience, [this, count] { return reports_.size() >= count; });
    }

    std::vector<Report> all()
    {
        const std::lock_guard lock(mutex_);
        return reports_;
    }

private:
    Q_DISABLE_COPY_MOVE(Reports)

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Report> reports_;
};

inline int connectTo(int sessionId, Reports& reports, const char* to = uid)
{
    return IOTC_Connect_ByUID_ParallelNB(to, sessionId, &Reports::collect, &reports);
}

inline int startClient(int sessionId, int channelId = 0)
{
    return avClientStart2(
        sessionId, "Admin", "secret", 5, nullptr, static_cast<unsigned char>(channelId), nullptr);
}

inline int acceptAll(const char*, const char*)
{
    return 1;
}

inline int startServer(int sessionId, AV_AuthCallback auth = acceptAll)
{
    return avServStart3(sessionId, auth, 20, 16, 31, nullptr);
}

inline int send(int avIndex, unsigned type = 255)
{
    return avSendIOCtrl(avIndex, type, "\0\0", 2);
}

template <typename Call>
std::future<int> onThread(Call call)
{
    return std::async(std::launch::async, call);
}

struct Message
{
    int result = 0;
    unsigned type = 0;
    QByteArray bytes;
};

inline Message receive(int avIndex, unsigned timeoutMs = 0, int capacity = 1024)
{
    QByteArray buffer(capacity, '\0');
    Message message;
    message.result = avRecvIOCtrl(avIndex, &message.type, buffer.data(), capacity, timeoutMs);
    message.bytes = buffer.left(std::max(message.result, 0));
    return message;
}

constexpr unsigned longTimeMs = 1'000'000;

inline std::future<int> receiveOnThread(int avIndex)
{
    return onThread([avIndex] { return receive(avIndex, longTimeMs).result; });
}

struct Frame
{
    int result = 0;
    QByteArray bytes;
    QByteArray info = QByteArray(AV_FRAME_INFO_BYTES, '\0');
    unsigned number = 0;
    int actualSize = 0;
    int expectedSize = 0;
    int infoSize = 0;
};

inline Frame receiveVideo(int avIndex, int capacity = 64)
{
    QByteArray buffer(capacity, '\0');
    Frame frame;
    frame.result =
        avRecvFrameData2(avIndex, buffer.data(), capacity, &frame.actualSize, &frame.expectedSize,
            frame.info.data(), AV_FRAME_INFO_BYTES, &frame.infoSize, &frame.number);
    frame.bytes = buffer.left(std::max(frame.result, 0));
    return frame;
}

inline Frame receiveSound(int avIndex, int capacity = 64)
{
    QByteArray buffer(capacity, '\0');
    Frame frame;
    frame.result = avRecvAudioData(
        avIndex, buffer.data(), capacity, frame.info.data(), AV_FRAME_INFO_BYTES, &frame.number);
    frame.bytes = buffer.left(std::max(frame.result, 0));
    return frame;
}

// The results of all functions that take a session or none, but for initialisation.
inline std::vector<int> sessionCalls(int sessionId)
{
    const auto noReport = [](int, int, void*) { qFatal("a report from a layer that is down"); };
    IOTC_SearchRecord record{};
    IOTC_Session_Close(sessionId);
    return {IOTC_DeInitialize(), IOTC_Get_SessionID(),
        IOTC_Connect_ByUID_ParallelNB(uid, sessionId, noReport, nullptr),
        IOTC_Connect_Stop_BySID(sessionId), IOTC_Search_Device_Start(5000, 1000),
        IOTC_Search_Device_Result(&record, 1, 1), IOTC_Search_Device_Stop()};
}

// The results of all functions that take an AV index.
inline std::vector<int> channelCalls(int avIndex)
{
    const std::array<char, AV_FRAME_INFO_BYTES> info{};
    unsigned size = 0;
    avClientStop(avIndex);
    avServStop(avIndex);
    return {avClientCleanBuf(avIndex), avClientCleanAudioBuf(avIndex), send(avIndex),
        avSendIOCtrlExit(avIndex), receive(avIndex).result, receiveVideo(avIndex).result,
        avCheckAudioBuf(avIndex), receiveSound(avIndex).result,
        avSendAudioData(avIndex, "x", 1, info.data(), AV_FRAME_INFO_BYTES),
        avServGetResendSize(avIndex, &size)};
}

inline bool allAre(const std::vector<int>& results, int wanted)
{
    return std::all_of(
        results.begin(), results.end(), [wanted](int result) { return result == wanted; });
}

} // namespace layercalls
