// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"

#include <QTest>

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

    // The result of the final report; waits for it.
    int final()
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, std::chrono::seconds(20), [this] { return finals() > 0; });
        return finals() > 0 ? all_.back().second : 0;
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
    std::string info = std::string(16, '\0');
    std::string bytes;
};

inline ReceivedFrame receiveVideo(int avIndex, int capacity = 2304000)
{
    ReceivedFrame frame;
    std::string buffer(static_cast<std::size_t>(capacity), '\0');
    frame.result = avRecvFrameData2(avIndex, buffer.data(), capacity, nullptr, nullptr,
        frame.info.data(), 16, nullptr, &frame.number);
    if (frame.result > 0)
        frame.bytes = buffer.substr(0, static_cast<std::size_t>(frame.result));
    return frame;
}

// Waits until something else than "nothing ready" comes.
inline ReceivedFrame awaitVideo(int avIndex)
{
    ReceivedFrame frame;
    for (int i = 0; i < 10000; ++i) {
        frame = receiveVideo(avIndex);
        if (frame.result != AV_NOTHING_READY)
            break;
        QTest::qWait(1);
    }
    return frame;
}
