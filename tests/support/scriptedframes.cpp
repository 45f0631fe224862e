// SPDX-License-Identifier: GPL-3.0-or-later
// Receiving frames from the queues of the scripted layer, and emptying those queues.
#include "AVAPIs.h"

#include "scriptedengine.h"

#include <algorithm>

namespace {

using Frame = ScriptedLayer::Frame;

ScriptedEngine& engine()
{
    return ScriptedEngine::instance();
}

// Where a caller wants a frame. The sizes may be null.
struct FrameTarget
{
    char* buffer;
    int capacity;
    char* frameInfo;
    int frameInfoCapacity;
    unsigned int* frameNumber;
    int* actualSize = nullptr;
    int* expectedSize = nullptr;
    int* actualInfoSize = nullptr;

    bool valid() const
    {
        return buffer && capacity > 0 && frameInfo && frameInfoCapacity >= AV_FRAME_INFO_BYTES
            && frameNumber;
    }
};

void give(int* output, int value)
{
    if (output)
        *output = value;
}

int deliver(const Frame& frame, const FrameTarget& target)
{
    const int size = frame.bytes.size();
    give(target.expectedSize, size);
    if (size > target.capacity)
        return AV_TOO_LARGE;
    std::copy(frame.bytes.begin(), frame.bytes.end(), target.buffer);
    std::copy(frame.info.begin(), frame.info.end(), target.frameInfo);
    *target.frameNumber = frame.number;
    give(target.actualSize, size);
    give(target.actualInfoSize, frame.info.size());
    return size;
}

int receiveFrame(CallTurn& turn, int avIndex, std::deque<Frame> ScriptedLayer::Queues::*kind,
    const FrameTarget& target)
{
    if (!target.valid())
        return AV_BAD_ARGUMENT;
    if (const int state = turn.layer.channelState(avIndex); state < 0)
        return state;
    auto& queue = turn.layer.queues(avIndex).*kind;
    if (queue.empty())
        return AV_NOTHING_READY;
    const Frame frame = std::move(queue.front());
    queue.pop_front();
    return frame.result < 0 ? frame.result : deliver(frame, target);
}

int cleanFrames(CallTurn& turn, int avIndex, bool videoToo)
{
    const int state = turn.layer.channelState(avIndex);
    if (state < 0)
        return state;
    auto& queues = turn.layer.queues(avIndex);
    queues.sound.clear();
    if (videoToo)
        queues.video.clear();
    return 0;
}

int waitingSound(CallTurn& turn, int avIndex)
{
    const int state = turn.layer.channelState(avIndex);
    return state < 0 ? state : static_cast<int>(turn.layer.queues(avIndex).sound.size());
}

} // namespace

int avClientCleanBuf(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return cleanFrames(turn, avIndex, true); };
    return engine().run(LinkFn::avClientCleanBuf, {{"avIndex", avIndex}}, {own, {}});
}

int avClientCleanAudioBuf(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return cleanFrames(turn, avIndex, false); };
    return engine().run(LinkFn::avClientCleanAudioBuf, {{"avIndex", avIndex}}, {own, {}});
}

int avCheckAudioBuf(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return waitingSound(turn, avIndex); };
    return engine().run(LinkFn::avCheckAudioBuf, {{"avIndex", avIndex}}, {own, {}});
}

// Frames are written through FrameTarget, which the check does not follow.
// NOLINTBEGIN(readability-non-const-parameter)
int avRecvFrameData2(int avIndex, char* buffer, int capacity, int* actualSize, int* expectedSize,
    char* frameInfo, int frameInfoCapacity, int* actualInfoSize, unsigned int* frameNumber)
{
    const FrameTarget target{buffer, capacity, frameInfo, frameInfoCapacity, frameNumber,
        actualSize, expectedSize, actualInfoSize};
    const auto own = [&](CallTurn& turn) {
        return receiveFrame(turn, avIndex, &ScriptedLayer::Queues::video, target);
    };
    return engine().run(LinkFn::avRecvFrameData2,
        {{"avIndex", avIndex}, {"capacity", capacity}, {"frameInfoCapacity", frameInfoCapacity}},
        {own, {}});
}

int avRecvAudioData(int avIndex, char* buffer, int capacity, char* frameInfo, int frameInfoCapacity,
    unsigned int* frameNumber)
{
    const FrameTarget target{buffer, capacity, frameInfo, frameInfoCapacity, frameNumber};
    const auto own = [&](CallTurn& turn) {
        return receiveFrame(turn, avIndex, &ScriptedLayer::Queues::sound, target);
    };
    return engine().run(LinkFn::avRecvAudioData,
        {{"avIndex", avIndex}, {"capacity", capacity}, {"frameInfoCapacity", frameInfoCapacity}},
        {own, {}});
}
// NOLINTEND(readability-non-const-parameter)
