// SPDX-License-Identifier: GPL-3.0-or-later
#include "requests.h"

#include "answers.h"
#include "log.h"

#include <type_traits>

namespace {

constexpr unsigned refusalsLogged = 20; // a client must not fill the log

template <typename Message, typename = void>
struct NamesChannel : std::false_type
{
};
template <typename Message>
struct NamesChannel<Message, std::void_t<decltype(Message::channel)>> : std::true_type
{
};

// The channel that a request is about, or -1 for one that names none.
int channelOf(const Request& request)
{
    return std::visit(
        [](const auto& message) {
            if constexpr (NamesChannel<std::decay_t<decltype(message)>>::value)
                return message.channel;
            else
                return -1;
        },
        request);
}

struct StatusAnswer
{
    std::uint32_t request;
    std::uint32_t answer;
    std::string refusal;
};

// The answers by which a client learns that its request was turned down.
const StatusAnswer* statusAnswerTo(std::uint32_t type)
{
    static const StatusAnswer answers[] = {
        {MsgSetRecordMode, MsgSetRecordModeAnswer, statusAnswer(1)},
        {MsgSetQuality, MsgSetQualityAnswer, statusAnswer(1)},
        {MsgSetSensitivity, MsgSetSensitivityAnswer, statusAnswer(1)},
        {MsgSetPassword, MsgSetPasswordAnswer, statusAnswer(1)},
        {MsgSetReplayTime, MsgSetReplayTimeAnswer, replayTimeAnswer(1)},
        {MsgSetWifi, MsgSetWifiAnswer, statusAnswer(1)},
        {MsgSetTimeZone, MsgSetTimeZoneAnswer, statusAnswer(0)},
        {MsgSetSmartMode, MsgSmartMode, statusAnswer(1)},
    };
    for (const auto& candidate : answers)
        if (candidate.request == type)
            return &candidate;
    return nullptr;
}

} // namespace

RequestHandler::RequestHandler(RequestContext context)
    : context_(std::move(context))
{
}

void RequestHandler::received(const ViewerPtr& viewer, std::uint32_t type, std::string_view bytes)
{
    const auto decoded = decodeRequest(type, bytes);
    if (const auto* bad = std::get_if<BadRequest>(&decoded)) {
        refuse(*viewer, type, bad->reason);
        return;
    }
    const auto& request = std::get<Request>(decoded);
    const int named = channelOf(request);
    if (viewer->channel() >= context_.settings.channels())
        refuse(*viewer, type, "there is no such channel");
    else if (named >= 0 && named != viewer->channel())
        refuse(*viewer, type,
            "message " + std::to_string(type) + " names channel " + std::to_string(named));
    else
        std::visit([&](const auto& message) { handle(message, viewer); }, request);
}

void RequestHandler::refuse(Viewer& viewer, std::uint32_t type, const std::string& reason)
{
    ++viewer.refusals;
    if (viewer.refusals <= refusalsLogged)
        logEvent(LogLevel::Warning, context_.config.uid, viewer.channel(),
            "refused from " + viewer.link().peer() + ": " + reason);
    if (viewer.refusals == refusalsLogged)
        logEvent(LogLevel::Warning, context_.config.uid, viewer.channel(),
            "further refusals of this client are not logged");
    if (const auto* known = statusAnswerTo(type))
        viewer.answer(known->answer, known->refusal);
}

void RequestHandler::log(const Viewer& viewer, const std::string& text) const
{
    logEvent(LogLevel::Info, context_.config.uid, viewer.channel(),
        text + " by " + viewer.link().peer());
}

Feed& RequestHandler::feed(const Viewer& viewer) const
{
    return *context_.feeds[static_cast<std::size_t>(viewer.channel())];
}

// Only announces the start that follows.
void RequestHandler::handle(const VideoPrepare&, const ViewerPtr&) { }

void RequestHandler::handle(const VideoStart&, const ViewerPtr& viewer)
{
    const bool high = context_.settings.channel(viewer->channel()).high;
    log(*viewer,
        high ? "live picture started in high quality" : "live picture started in low quality");
    viewer->watching = true;
    feed(*viewer).watch(viewer, high ? Quality::High : Quality::Low);
}

// Sound belongs to the live stream: a client asks for it again after a new start.
void RequestHandler::handle(const VideoStop&, const ViewerPtr& viewer)
{
    log(*viewer, "live picture stopped");
    viewer->watching = false;
    feed(*viewer).unwatch(viewer.get());
    stopListening(*viewer);
}

void RequestHandler::handle(const AudioStart&, const ViewerPtr& viewer)
{
    log(*viewer, "sound started");
    viewer->listening = true;
    feed(*viewer).listen(viewer);
}

void RequestHandler::handle(const AudioStop&, const ViewerPtr& viewer)
{
    log(*viewer, "sound stopped");
    stopListening(*viewer);
}

void RequestHandler::stopListening(Viewer& viewer)
{
    viewer.listening = false;
    feed(viewer).unlisten(&viewer);
}

void RequestHandler::handle(const SetRecordMode& request, const ViewerPtr& viewer)
{
    log(*viewer, "record mode set to " + std::to_string(request.mode));
    context_.settings.change(
        request.channel, [&](ChannelState& state) { state.recordMode = request.mode; });
    viewer->answer(MsgSetRecordModeAnswer, statusAnswer(0));
}

void RequestHandler::handle(const GetRecordMode&, const ViewerPtr& viewer)
{
    const int channel = viewer->channel();
    viewer->answer(MsgGetRecordModeAnswer,
        recordModeAnswer(channel, context_.settings.channel(channel).recordMode));
}

void RequestHandler::handle(const ListRecords& request, const ViewerPtr& viewer)
{
    viewer->answer(MsgListRecordsAnswer, noRecordsAnswer(request.channel));
}

void RequestHandler::handle(const PlayControl& request, const ViewerPtr& viewer)
{
    refuse(*viewer, MsgPlayControl,
        "play command " + std::to_string(request.command) + ", but there are no recordings");
}

void RequestHandler::handle(const SetReplayTime&, const ViewerPtr& viewer)
{
    refuse(*viewer, MsgSetReplayTime, "a replay time, but there are no recordings");
}

void RequestHandler::handle(const SetQuality& request, const ViewerPtr& viewer)
{
    log(*viewer, request.high ? "high quality set" : "low quality set");
    context_.settings.change(
        request.channel, [&](ChannelState& state) { state.high = request.high; });
    viewer->answer(MsgSetQualityAnswer, statusAnswer(0));
}

void RequestHandler::handle(const GetQuality& request, const ViewerPtr& viewer)
{
    viewer->answer(MsgGetQualityAnswer,
        qualityAnswer(request.channel, context_.settings.channel(request.channel).high));
}

void RequestHandler::handle(const SetSensitivity& request, const ViewerPtr& viewer)
{
    log(*viewer, "sensitivity set to " + std::to_string(request.percent));
    context_.settings.change(
        viewer->channel(), [&](ChannelState& state) { state.sensitivity = request.percent; });
    viewer->answer(MsgSetSensitivityAnswer, statusAnswer(0));
}

void RequestHandler::handle(const GetSensitivity&, const ViewerPtr& viewer)
{
    const int channel = viewer->channel();
    viewer->answer(MsgGetSensitivityAnswer,
        sensitivityAnswer(channel, context_.settings.channel(channel).sensitivity));
}

// The client leaves as soon as it has the answer and comes back with the new password, so the host
// has to know it before.
void RequestHandler::handle(const SetPassword& request, const ViewerPtr& viewer)
{
    const bool posted = context_.jobs.post([this, request, viewer] {
        const bool done = context_.settings.setPassword(request.from, request.to);
        if (done)
            context_.host.setPassword(context_.config.uid, request.to);
        log(*viewer, done ? "password changed" : "change of password refused");
        viewer->answer(MsgSetPasswordAnswer, statusAnswer(done ? 0 : 1));
    });
    if (!posted)
        refuse(*viewer, MsgSetPassword, "too much is waiting for the disk");
}

void RequestHandler::handle(const ListWifi&, const ViewerPtr& viewer)
{
    viewer->answer(MsgListWifiAnswer, wifiListAnswer(context_.config.wifi));
}

void RequestHandler::handle(const SetWifi& request, const ViewerPtr& viewer)
{
    log(*viewer, "network set to \"" + request.name + '"');
    context_.settings.setWifi(request.name, request.password);
    viewer->answer(MsgSetWifiAnswer, statusAnswer(0));
}

void RequestHandler::handle(const GetWifi&, const ViewerPtr& viewer)
{
    viewer->answer(MsgGetWifiAnswer,
        wifiAnswer(context_.settings.wifiName(), context_.settings.wifiPassword()));
}

void RequestHandler::handle(const SpeakerStart& request, const ViewerPtr& viewer)
{
    if (speaker_ != nullptr && speaker_ != &viewer->link()) {
        refuse(*viewer, MsgSpeakerStart, "another client is speaking");
        return;
    }
    log(*viewer, "speech started");
    speaker_ = &viewer->link();
    context_.speech.begin();
    viewer->link().joinSpeech(request.speechChannel);
}

void RequestHandler::handle(const SpeakerStop&, const ViewerPtr& viewer)
{
    if (speaker_ != &viewer->link())
        return;
    log(*viewer, "speech stopped");
    viewer->link().leaveSpeech();
    endSpeech();
}

void RequestHandler::speech(const LinkChannel& link, const LinkFrame& frame)
{
    if (speaker_ == &link)
        context_.speech.append(frame);
}

void RequestHandler::endSpeech()
{
    speaker_ = nullptr;
    context_.speech.end();
}

// A held button repeats its command twice a second, which is no event for the log.
void RequestHandler::handle(const PtzMove& request, const ViewerPtr&)
{
    context_.settings.move(request, DeviceSettings::Clock::now());
    context_.wakeTicker();
}

void RequestHandler::handle(const PtzAction& request, const ViewerPtr& viewer)
{
    const bool known = context_.settings.act(request, DeviceSettings::Clock::now());
    context_.wakeTicker();
    if (!known)
        log(*viewer, "preset " + std::to_string(request.preset) + " that was never set asked for");
}

void RequestHandler::handle(const GetPtz&, const ViewerPtr& viewer)
{
    const auto cruise = context_.settings.cruising(viewer->channel());
    viewer->answer(MsgGetPtzAnswer, ptzAnswer(static_cast<int>(cruise)));
}

void RequestHandler::handle(const GetVersion&, const ViewerPtr& viewer)
{
    viewer->answer(MsgGetVersionAnswer, versionAnswer(context_.config.version));
}

void RequestHandler::handle(const SetTime& request, const ViewerPtr& viewer)
{
    // In turn with the zone: a client may set both without waiting in between.
    const bool posted = context_.jobs.post([this, request, viewer] {
        log(*viewer, "clock set");
        context_.settings.setTime(request.local);
    });
    if (!posted)
        refuse(*viewer, MsgSetTime, "too much is waiting for the disk");
}

void RequestHandler::handle(const Rotate& request, const ViewerPtr& viewer)
{
    log(*viewer, "rotation set to " + std::to_string(request.mode));
    context_.settings.change(
        viewer->channel(), [&](ChannelState& state) { state.rotation = request.mode; });
    viewer->answer(MsgRotateAnswer, rotateAnswer(request.mode));
}

void RequestHandler::handle(const GetRotate&, const ViewerPtr& viewer)
{
    viewer->answer(
        MsgRotateAnswer, rotateAnswer(context_.settings.channel(viewer->channel()).rotation));
}

void RequestHandler::handle(const SetTimeZone& request, const ViewerPtr& viewer)
{
    const bool posted = context_.jobs.post([this, request, viewer] {
        const bool done = context_.settings.setZone(request.zone);
        log(*viewer, (done ? "zone set to \"" : "unknown zone \"") + request.zone + '"');
        viewer->answer(MsgSetTimeZoneAnswer, statusAnswer(done ? 1 : 0));
    });
    if (!posted)
        refuse(*viewer, MsgSetTimeZone, "too much is waiting for the disk");
}

void RequestHandler::handle(const SetSmartMode& request, const ViewerPtr& viewer)
{
    log(*viewer, "smart mode set to " + std::to_string(request.mode));
    context_.settings.change(
        viewer->channel(), [&](ChannelState& state) { state.smartMode = request.mode; });
    viewer->answer(MsgSmartMode, statusAnswer(0));
}

void RequestHandler::handle(const GetSmartMode&, const ViewerPtr& viewer)
{
    const auto state = context_.settings.channel(viewer->channel());
    viewer->answer(MsgGetSmartModeAnswer, smartModeAnswer(state.smartMode));
}

void RequestHandler::closed(const Viewer& viewer)
{
    if (speaker_ == &viewer.link())
        endSpeech();
    if (viewer.channel() >= context_.settings.channels())
        return;
    feed(viewer).unwatch(&viewer);
    feed(viewer).unlisten(&viewer);
}
