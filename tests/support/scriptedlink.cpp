// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedlink.h"

#include "AVAPIs.h"
#include "scriptedengine.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr int allChannels = 4096;

ScriptedEngine& engine()
{
    return ScriptedEngine::instance();
}

// The caller holds the engine's lock.
template <typename Visit>
void forEachCall(LinkFn function, const CallMatcher& matches, Visit visit)
{
    for (const LinkCall& call : engine().calls()) {
        if (call.function == function && (!matches || matches(call)))
            visit(call);
    }
}

int countCalls(LinkFn function, const CallMatcher& matches)
{
    int count = 0;
    forEachCall(function, matches, [&count](const LinkCall&) { ++count; });
    return count;
}

int countReturned(LinkFn function, const CallMatcher& matches)
{
    int count = 0;
    forEachCall(
        function, matches, [&count](const LinkCall& call) { count += call.returned ? 1 : 0; });
    return count;
}

LinkRule ruleFor(LinkFn function, CallMatcher matches, bool once)
{
    LinkRule rule;
    rule.function = function;
    rule.matches = std::move(matches);
    rule.once = once;
    return rule;
}

void bringUp(ScriptedLayer& layer)
{
    layer.sessionsUp = true;
    layer.maxChannels = std::max(layer.maxChannels, allChannels);
}

template <typename T>
std::vector<int> keysOf(const std::map<int, T>& map)
{
    std::vector<int> keys;
    keys.reserve(map.size());
    for (const auto& entry : map)
        keys.push_back(entry.first);
    return keys;
}

template <std::size_t size>
void copyText(char (&target)[size], const QByteArray& text)
{
    const auto length = std::min(static_cast<std::size_t>(text.size()), size - 1);
    std::memcpy(target, text.constData(), length);
    target[length] = '\0';
}

void queueFrame(std::deque<ScriptedLayer::Frame>& queue, unsigned& nextNumber,
    ScriptedLayer::Frame frame, std::optional<unsigned> number)
{
    frame.number = number.value_or(nextNumber);
    nextNumber = frame.number + 1;
    queue.push_back(std::move(frame));
}

void queueVideoFrame(int avIndex, ScriptedLayer::Frame frame, std::optional<unsigned> number)
{
    engine().change([&] {
        auto& queues = engine().layer().queues(avIndex);
        queueFrame(queues.video, queues.nextVideoNumber, std::move(frame), number);
    });
}

void queueSoundFrame(int avIndex, ScriptedLayer::Frame frame, std::optional<unsigned> number)
{
    engine().change([&] {
        auto& queues = engine().layer().queues(avIndex);
        queueFrame(queues.sound, queues.nextSoundNumber, std::move(frame), number);
    });
}

} // namespace

QByteArray LinkFrameInfo::bytes() const
{
    QByteArray bytes(AV_FRAME_INFO_BYTES, '\0');
    qToLittleEndian(codec, bytes.data());
    bytes[2] = static_cast<char>(flags);
    qToLittleEndian(timestamp, bytes.data() + 12);
    return bytes;
}

ScriptedLink& ScriptedLink::instance()
{
    static ScriptedLink link;
    return link;
}

void ScriptedLink::reset()
{
    engine().reset();
}

std::vector<LinkCall> ScriptedLink::calls() const
{
    const auto lock = engine().lock();
    return {engine().calls().begin(), engine().calls().end()};
}

std::vector<LinkCall> ScriptedLink::calls(LinkFn function, const CallMatcher& matches) const
{
    const auto lock = engine().lock();
    std::vector<LinkCall> found;
    forEachCall(function, matches, [&found](const LinkCall& call) { found.push_back(call); });
    return found;
}

int ScriptedLink::count(LinkFn function, const CallMatcher& matches) const
{
    const auto lock = engine().lock();
    return countCalls(function, matches);
}

int ScriptedLink::inFlight(LinkFn function, const CallMatcher& matches) const
{
    const auto lock = engine().lock();
    return countCalls(function, matches) - countReturned(function, matches);
}

LinkCall ScriptedLink::last(LinkFn function, const CallMatcher& matches) const
{
    const auto found = calls(function, matches);
    if (found.empty())
        qFatal("ScriptedLink::last: no such call of %s", functionName(function));
    return found.back();
}

QStringList ScriptedLink::order(const std::vector<LinkFn>& only) const
{
    const auto lock = engine().lock();
    QStringList names;
    for (const LinkCall& call : engine().calls()) {
        if (only.empty() || std::find(only.begin(), only.end(), call.function) != only.end())
            names.append(QString::fromLatin1(functionName(call.function)));
    }
    return names;
}

bool ScriptedLink::waitForCalls(
    int calls, LinkFn function, const CallMatcher& matches, Ms patience) const
{
    return engine().waitFor([&] { return countCalls(function, matches) >= calls; }, patience);
}

bool ScriptedLink::waitForReturns(
    int calls, LinkFn function, const CallMatcher& matches, Ms patience) const
{
    return engine().waitFor([&] { return countReturned(function, matches) >= calls; }, patience);
}

LinkRuleBuilder ScriptedLink::next(LinkFn function, CallMatcher matches)
{
    return LinkRuleBuilder(ruleFor(function, std::move(matches), true));
}

LinkRuleBuilder ScriptedLink::always(LinkFn function, CallMatcher matches)
{
    return LinkRuleBuilder(ruleFor(function, std::move(matches), false));
}

void ScriptedLink::nextResults(LinkFn function, const std::vector<int>& results)
{
    for (const int result : results)
        next(function).answers(result);
}

bool ScriptedLink::report(int sessionId, const ConnectStep& step)
{
    const auto lock = engine().lock();
    return engine().connects().report(sessionId, step);
}

void ScriptedLink::initialize()
{
    engine().change([] { bringUp(engine().layer()); });
}

int ScriptedLink::openSession()
{
    const auto lock = engine().lock();
    ScriptedLayer& layer = engine().layer();
    bringUp(layer);
    const int sessionId = layer.reserveSession();
    if (sessionId >= 0)
        layer.sessions[sessionId] = ScriptedLayer::Session::Connected;
    return sessionId;
}

int ScriptedLink::openChannel(int sessionId, int channelId)
{
    const auto lock = engine().lock();
    return engine().layer().openChannel({sessionId, channelId, false});
}

void ScriptedLink::loseDevice(int sessionId)
{
    engine().change([sessionId] {
        engine().endSession(sessionId, AV_DEVICE_GONE);
        engine().layer().sessions[sessionId] = ScriptedLayer::Session::Lost;
    });
}

std::vector<int> ScriptedLink::openSessions() const
{
    const auto lock = engine().lock();
    return keysOf(engine().layer().sessions);
}

std::vector<int> ScriptedLink::openIndices() const
{
    const auto lock = engine().lock();
    return keysOf(engine().layer().channels);
}

void ScriptedLink::queueMessage(int avIndex, unsigned type, const QByteArray& payload)
{
    engine().change([&] { engine().layer().queues(avIndex).messages.push_back({type, payload}); });
}

void ScriptedLink::queueVideo(
    int avIndex, const QByteArray& frame, const LinkFrameInfo& info, std::optional<unsigned> number)
{
    queueVideoFrame(avIndex, {0, frame, info.bytes(), 0}, number);
}

void ScriptedLink::queueSound(
    int avIndex, const QByteArray& frame, const LinkFrameInfo& info, std::optional<unsigned> number)
{
    queueSoundFrame(avIndex, {0, frame, info.bytes(), 0}, number);
}

void ScriptedLink::queueVideoResult(int avIndex, int result)
{
    queueVideoFrame(avIndex, {result, {}, {}, 0}, std::nullopt);
}

void ScriptedLink::queueSoundResult(int avIndex, int result)
{
    queueSoundFrame(avIndex, {result, {}, {}, 0}, std::nullopt);
}

int ScriptedLink::waitingMessages(int avIndex) const
{
    const auto lock = engine().lock();
    return static_cast<int>(engine().layer().waiting(avIndex).messages.size());
}

int ScriptedLink::waitingVideo(int avIndex) const
{
    const auto lock = engine().lock();
    return static_cast<int>(engine().layer().waiting(avIndex).video.size());
}

int ScriptedLink::waitingSound(int avIndex) const
{
    const auto lock = engine().lock();
    return static_cast<int>(engine().layer().waiting(avIndex).sound.size());
}

void ScriptedLink::addDevice(
    const QByteArray& uid, const QByteArray& ip, quint16 port, const QByteArray& versionText)
{
    IOTC_SearchRecord record{};
    copyText(record.uid, uid);
    copyText(record.ip, ip);
    record.port = port;
    copyText(record.name, versionText);
    engine().change([&record] { engine().layer().found.push_back(record); });
}

void ScriptedLink::setSpeaker(const QByteArray& account, const QByteArray& password)
{
    engine().change([&] {
        engine().layer().speakerAccount = account;
        engine().layer().speakerPassword = password;
    });
}

void ScriptedLink::setUnconfirmedBytes(unsigned bytes)
{
    engine().change([bytes] { engine().layer().unconfirmedBytes = bytes; });
}
