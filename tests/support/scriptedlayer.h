// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IOTCAPIs.h"

#include <QByteArray>

#include <deque>
#include <map>
#include <vector>

// The state of the layer itself: what is up, which sessions and channels are open, what waits to
// be received. Plain data without a lock: ScriptedEngine owns the one object and its mutex guards
// it. Functions answer 0 or a negative result of the layer.
class ScriptedLayer final
{
public:
    enum class Session { Reserved, Connecting, Connected, Lost };

    struct Channel
    {
        int sessionId;
        int channelId;
        bool server;
    };

    struct Message
    {
        unsigned type;
        QByteArray payload;
    };

    struct Frame
    {
        int result; // negative: this is told in place of a frame
        QByteArray bytes;
        QByteArray info;
        unsigned number;
    };

    struct Queues
    {
        std::deque<Message> messages;
        std::deque<Frame> video;
        std::deque<Frame> sound;
        unsigned nextVideoNumber = 0;
        unsigned nextSoundNumber = 0;
    };

    int reserveSession(); // -18 when none is left
    int sessionState(int sessionId, Session wanted) const; // 0 or -14
    int mayOpen(const Channel& channel) const;
    int openChannel(const Channel& channel); // the AV index
    void openChannelAt(int avIndex, const Channel& channel);
    void closeChannel(int avIndex);
    int channelState(int avIndex) const;
    std::vector<int> channelsOf(int sessionId) const;
    void closeSession(int sessionId);
    void takeDown();

    // For receiving: null or empty when nothing waits, also when the index has no queues.
    const Message* nextMessage(int avIndex) const;
    Queues& queues(int avIndex) { return queues_[avIndex]; }
    Queues waiting(int avIndex) const;

    bool sessionsUp = false;
    int maxChannels = 0; // 0: the channel half is down
    std::map<int, Session> sessions;
    std::map<int, Channel> channels;

    bool searching = false;
    std::vector<IOTC_SearchRecord> found;

    unsigned unconfirmedBytes = 0;
    QByteArray speakerAccount;
    QByteArray speakerPassword;

private:
    std::map<int, Queues> queues_; // may be filled before the index opens; dropped as it closes
};
