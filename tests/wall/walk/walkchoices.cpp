// SPDX-License-Identifier: GPL-3.0-or-later
// With what the walk does something, and what fails then.
#include "wallwalk.h"

int WallWalk::pickMod()
{
    // The larger ones hold all there is.
    constexpr int mostWithPages = 6;
    return chance(50) ? pick(mostWithPages + 1) : pick(windowModCount);
}

ModelDevice* WallWalk::pickDevice()
{
    return model_->devices[static_cast<std::size_t>(pick(static_cast<int>(model_->devices.size())))]
        .get();
}

ModelChannel* WallWalk::pickChannel()
{
    const std::vector<ModelChannel*> all = model_->channels();
    return all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
}

ModelChannel* WallWalk::pickChannel(bool isOpen)
{
    constexpr int attempts = 8;
    for (int i = 0; i < attempts; ++i) {
        ModelChannel* channel = pickChannel();
        if (channel->half(model_->isLive).open == isOpen)
            return channel;
    }
    return pickChannel();
}

ModelChannel* WallWalk::pickShown()
{
    std::vector<ModelChannel*> shown;
    for (const ModelTile& tile : model_->tiles) {
        if (tile.channel != nullptr)
            shown.push_back(tile.channel);
    }
    return shown.empty() ? nullptr
                         : shown[static_cast<std::size_t>(pick(static_cast<int>(shown.size())))];
}

// One attempt at a time: its end would come to us at any time among the results of tasks.
bool WallWalk::mayConnect(const ModelDevice* device) const
{
    return device == nullptr || device->hasSession || link_->slow == nullptr
        || link_->slow == device;
}

// In playback, where the channels of a device open each other in turn, one of them could be asked for
// twice at the same time; what is sent then is for the threads to decide.
bool WallWalk::mayOpenSeveral(const ModelDevice* device) const
{
    return model_->isLive || model_->playAllDevice != device;
}

// Something of what this channel is about to be asked for does not come off.
void WallWalk::planFault(ModelChannel* channel)
{
    constexpr int percent = 30;
    if (!chance(percent))
        return;
    const ChannelName name = nameOf(channel);
    if (!channel->device->hasSession && chance(50)) {
        faults_.withoutSession.insert(name.device);
    } else if (!channel->live.connected) {
        faults_.withoutAv.insert({name, true});
    } else if (model_->isLive) {
        faults_.unsent.insert({name, chance(50) ? 255 : 511, -1});
    } else {
        planReplayFault(name);
    }
    say(QStringLiteral("... with a failure of %1 ahead").arg(textOf(name)));
    beginBoth();
}

void WallWalk::planReplayFault(const ChannelName& name)
{
    switch (pick(5)) {
    case 0:
        faults_.withoutAv.insert({name, false});
        break;
    case 1:
        faults_.emptyDays.insert(name);
        break;
    case 2:
        faults_.refusedReplays.insert(name);
        break;
    case 3:
        faults_.silentReplays.insert(name);
        break;
    default:
        faults_.unsent.insert({name, 794, 16});
    }
}

void WallWalk::planUnsent(const ModelChannel* channel, int type, int command)
{
    constexpr int percent = 15;
    if (!chance(percent))
        return;
    faults_.unsent.insert({nameOf(channel), type, command});
    say(QStringLiteral("... where %1 does not take a message").arg(textOf(nameOf(channel))));
    beginBoth();
}
