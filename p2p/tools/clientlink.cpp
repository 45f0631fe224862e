// SPDX-License-Identifier: GPL-3.0-or-later
#include "clientlink.h"

namespace {

enum Message : std::uint32_t {
    VideoPrepare = 255,
    VideoStart = 511,
    VideoStop = 767,
    AudioStart = 768,
    SetQuality = 800,
};

constexpr int maxChannels = 2048;
constexpr unsigned int openSeconds = 5;

// The final report of one connect.
struct FinalReport
{
    std::mutex mutex;
    std::condition_variable came;
    bool done = false;
    int result = 0;

    static void callback(int state, int result, void* self)
    {
        if (state != IOTC_STATE_CONNECTED && state != IOTC_STATE_FAILED)
            return;
        auto& report = *static_cast<FinalReport*>(self);
        const std::lock_guard lock(report.mutex);
        report.done = true;
        report.result = result;
        report.came.notify_all();
    }
};

std::string word(std::uint32_t value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<char>(value >> shift & 0xff));
    return bytes;
}

} // namespace

ClientLink::ClientLink()
{
    const int sessions = IOTC_Initialize2(0);
    const int channels = sessions < 0 ? sessions : avInitialize(maxChannels);
    error_ = channels < 0 ? channels : 0;
}

ClientSession ClientSession::connect(const std::string& uid, std::chrono::milliseconds patience)
{
    ClientSession session;
    session.result_ = IOTC_Get_SessionID();
    if (!session.connected())
        return session;
    const int id = std::exchange(session.result_, -1);
    FinalReport report;
    IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, FinalReport::callback, &report);
    std::unique_lock lock(report.mutex);
    const auto done = [&report] { return report.done; };
    if (!report.came.wait_for(lock, patience, done)) {
        lock.unlock();
        IOTC_Connect_Stop_BySID(id);
        lock.lock();
        // The layer promises the report; it writes to this stack frame, so there is no leaving.
        report.came.wait(lock, done);
    }
    session.result_ = report.result;
    return session;
}

ClientChannel::ClientChannel(const ClientSession& session, int number, const std::string& account,
    const std::string& password)
    : index_(avClientStart2(session.result(), account.c_str(), password.c_str(), openSeconds,
        nullptr, static_cast<unsigned char>(number), nullptr))
    , number_(number)
{
}

int ClientChannel::send(std::uint32_t type, const std::string& bytes) const
{
    return avSendIOCtrl(index_, type, bytes.data(), static_cast<int>(bytes.size()));
}

int ClientChannel::sendChannelWord(std::uint32_t type, std::uint32_t second) const
{
    return send(type, word(static_cast<std::uint32_t>(number_)) + word(second));
}

int ClientChannel::startVideo() const
{
    const int prepared = send(VideoPrepare, std::string(2, '\0'));
    return prepared < 0 ? prepared : sendChannelWord(VideoStart, 0);
}

int ClientChannel::stopVideo() const
{
    return sendChannelWord(VideoStop, 0);
}

int ClientChannel::startSound() const
{
    return send(AudioStart, word(0));
}

int ClientChannel::setQuality(bool high) const
{
    return sendChannelWord(SetQuality, high ? 1 : 0);
}
