// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>

struct ModelDevice;

struct ModelHalf
{
    bool open = false;
    bool playing = false;
    bool waiting = false;
    bool connected = false; // has its AV index
    bool taken = false; // its AV channel is open in the link layer
};

struct ModelChannel
{
    ModelDevice* device = nullptr;
    int number = 0;
    ModelHalf live;
    ModelHalf replay;
    bool userPaused = false;
    bool connecting = false;
    int tile = -1; // the ordinary one

    ModelHalf& half(bool isLive) { return isLive ? live : replay; }
};

struct ModelDevice
{
    int id = 0;
    bool hasSession = false;
    bool connecting = false;
    std::deque<ModelChannel> channels; // which stay where they are
};

struct ModelTile
{
    ModelChannel* channel = nullptr;
    bool isMirror = false;
};

struct ModelRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

// What the wall asks of the link.
class WallLink
{
public:
    WallLink() = default;
    virtual ~WallLink() = default;
    WallLink(const WallLink&) = delete;
    WallLink& operator=(const WallLink&) = delete;

    virtual void connect(ModelChannel* channel) = 0;
    virtual void startLive(ModelChannel* channel) = 0;
    virtual void stopLive(ModelChannel* channel) = 0;
    virtual void pauseReplay(ModelChannel* channel, bool isModeChange) = 0;
    virtual void resumeReplay(ModelChannel* channel, bool isModeChange) = 0;
    virtual void playReplay(ModelChannel* channel, bool forward) = 0;
    virtual void stopReplay(ModelChannel* channel) = 0;
    virtual void disconnect(ModelDevice* device) = 0;
};
