// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"

#include <QTest>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

// Gathers the reports of one connect.
class Reports
{
public:
    static void callback(int state, int result, void* self)
    {
        auto& reports = *static_cast<Reports*>(self);
        const std::lock_guard lock(reports.mutex_);
        reports.all_.emplace_back(state, result);
        reports.changed_.notify_all();
    }

    // The result of the final report; waits for it. A number that no connect has when none comes.
    int final()
    {
        constexpr int none = -999;
        std::unique_lock lock(mutex_);
        const bool came =
            changed_.wait_for(lock, std::chrono::seconds(20), [this] { return finals() > 0; });
        return came ? all_.back().second : none;
    }
    int finalCount()
    {
        const std::lock_guard lock(mutex_);
        return finals();
    }
    std::vector<std::pair<int, int>> all()
    {
        const std::lock_guard lock(mutex_);
        return all_;
    }

private:
    int finals() const
    {
        int count = 0;
        for (const auto& [state, result] : all_)
            count += state == IOTC_STATE_CONNECTED || state == IOTC_STATE_FAILED ? 1 : 0;
        return count;
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::pair<int, int>> all_;
};

// The session id, or the negative result of the connect.
inline int connectTo(const std::string& uid)
{
    Reports reports;
    const int id = IOTC_Get_SessionID();
    if (id < 0)
        return id;
    IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &reports);
    return reports.final();
}

inline int openChannel(int session, int number, const char* password = "secret")
{
    return avClientStart2(
        session, "Admin", password, 5, nullptr, static_cast<unsigned char>(number), nullptr);
}

struct ReceivedFrame
{
    int result = 0; // the size, or a negative number
    unsigned int number = 0;
    int actualSize = 0;
    int expectedSize = 0;
    int infoSize = 0;
    std::string info = std::string(AV_FRAME_INFO_BYTES, '\0');
    std::string bytes;
};

inline ReceivedFrame receiveVideo(int avIndex, int capacity = 2304000)
{
    ReceivedFrame frame;
    std::string buffer(static_cast<std::size_t>(capacity), '\0');
    frame.result =
        avRecvFrameData2(avIndex, buffer.data(), capacity, &frame.actualSize, &frame.expectedSize,
            frame.info.data(), AV_FRAME_INFO_BYTES, &frame.infoSize, &frame.number);
    if (frame.result > 0)
        frame.bytes = buffer.substr(0, static_cast<std::size_t>(frame.result));
    return frame;
}

inline ReceivedFrame receiveSound(int avIndex, int capacity = 1024)
{
    ReceivedFrame frame;
    std::string buffer(static_cast<std::size_t>(capacity), '\0');
    frame.result = avRecvAudioData(
        avIndex, buffer.data(), capacity, frame.info.data(), AV_FRAME_INFO_BYTES, &frame.number);
    if (frame.result > 0)
        frame.bytes = buffer.substr(0, static_cast<std::size_t>(frame.result));
    return frame;
}

// Waits until something else than "nothing ready" comes, for ten seconds at most.
inline ReceivedFrame awaitVideo(int avIndex, int capacity = 2304000)
{
    ReceivedFrame frame;
    for (int i = 0; i < 10000; ++i) {
        frame = receiveVideo(avIndex, capacity);
        if (frame.result != AV_NOTHING_READY)
            break;
        QTest::qWait(1);
    }
    return frame;
}

struct ReceivedMessage
{
    int result = 0; // the length, or a negative number
    unsigned int type = 0;
    std::string bytes;
};

inline ReceivedMessage receiveMessage(int avIndex, unsigned int timeoutMs, int capacity = 1024)
{
    ReceivedMessage message;
    std::string buffer(static_cast<std::size_t>(capacity), '\0');
    message.result = avRecvIOCtrl(avIndex, &message.type, buffer.data(), capacity, timeoutMs);
    if (message.result > 0)
        message.bytes = buffer.substr(0, static_cast<std::size_t>(message.result));
    return message;
}

inline int sendMessage(int avIndex, unsigned int type, const std::string& bytes)
{
    return avSendIOCtrl(avIndex, type, bytes.data(), static_cast<int>(bytes.size()));
}
