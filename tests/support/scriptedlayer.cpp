// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedlayer.h"

#include "AVAPIs.h"

#include <algorithm>

namespace {

constexpr int maxSessions = 1024;

template <typename T>
int smallestFree(const std::map<int, T>& taken)
{
    int number = 0;
    while (taken.count(number) != 0)
        ++number;
    return number;
}

} // namespace

int ScriptedLayer::reserveSession()
{
    const int sessionId = smallestFree(sessions);
    if (sessionId >= maxSessions)
        return IOTC_NO_FREE_SESSION;
    sessions.emplace(sessionId, Session::Reserved);
    return sessionId;
}

int ScriptedLayer::sessionState(int sessionId, Session wanted) const
{
    const auto session = sessions.find(sessionId);
    return session != sessions.end() && session->second == wanted ? 0 : IOTC_BAD_SESSION;
}

int ScriptedLayer::mayOpen(const Channel& channel) const
{
    const auto session = sessions.find(channel.sessionId);
    if (session != sessions.end() && session->second == Session::Lost)
        return AV_DEVICE_GONE;
    if (session == sessions.end() || session->second != Session::Connected)
        return AV_BAD_INDEX;
    const bool isOpen = std::any_of(channels.begin(), channels.end(), [&](const auto& open) {
        return open.second.sessionId == channel.sessionId
            && open.second.channelId == channel.channelId;
    });
    if (isOpen)
        return AV_CHANNEL_OPEN;
    if (static_cast<int>(channels.size()) >= maxChannels)
        return AV_NO_FREE_CHANNEL;
    return 0;
}

int ScriptedLayer::openChannel(const Channel& channel)
{
    if (const int refusal = mayOpen(channel); refusal < 0)
        return refusal;
    const int avIndex = smallestFree(channels);
    openChannelAt(avIndex, channel);
    return avIndex;
}

void ScriptedLayer::openChannelAt(int avIndex, const Channel& channel)
{
    channels.insert_or_assign(avIndex, channel);
}

void ScriptedLayer::closeChannel(int avIndex)
{
    if (channels.erase(avIndex) != 0)
        queues_.erase(avIndex);
}

int ScriptedLayer::channelState(int avIndex) const
{
    const auto channel = channels.find(avIndex);
    if (channel == channels.end())
        return AV_BAD_INDEX;
    const auto session = sessions.find(channel->second.sessionId);
    const bool lost = session != sessions.end() && session->second == Session::Lost;
    return lost ? AV_DEVICE_GONE : 0;
}

std::vector<int> ScriptedLayer::channelsOf(int sessionId) const
{
    std::vector<int> indices;
    for (const auto& [avIndex, channel] : channels) {
        if (channel.sessionId == sessionId)
            indices.push_back(avIndex);
    }
    return indices;
}

void ScriptedLayer::closeSession(int sessionId)
{
    for (const int avIndex : channelsOf(sessionId))
        closeChannel(avIndex);
    sessions.erase(sessionId);
}

void ScriptedLayer::takeDown()
{
    while (!channels.empty())
        closeChannel(channels.begin()->first);
    sessions.clear();
    sessionsUp = false;
    maxChannels = 0;
    searching = false;
}

const ScriptedLayer::Message* ScriptedLayer::nextMessage(int avIndex) const
{
    const auto queues = queues_.find(avIndex);
    if (queues == queues_.end() || queues->second.messages.empty())
        return nullptr;
    return &queues->second.messages.front();
}

ScriptedLayer::Queues ScriptedLayer::waiting(int avIndex) const
{
    const auto queues = queues_.find(avIndex);
    return queues == queues_.end() ? Queues{} : queues->second;
}
