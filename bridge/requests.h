// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "config.h"
#include "device/linkhost.h"
#include "jobqueue.h"
#include "media/feed.h"
#include "messages.h"
#include "settings.h"
#include "speech.h"
#include "viewer.h"

#include <functional>
#include <memory>
#include <vector>

// What a device's requests work on. All of it outlives the handler.
struct RequestContext
{
    const DeviceConfig& config;
    LinkHost& host;
    JobQueue& jobs;
    DeviceSettings& settings;
    SpeechFile& speech;
    const std::vector<std::unique_ptr<Feed>>& feeds; // by channel
    std::function<void()> wakeTicker; // a head has begun to move
};

// Obeys the messages of one device's clients, and refuses those of wrong form, for a channel that
// does not exist, and for another channel than the one they came on.
// Threads: the host's event thread.
class RequestHandler
{
public:
    explicit RequestHandler(RequestContext context);

    void received(
        const std::shared_ptr<Viewer>& viewer, std::uint32_t type, std::string_view bytes);
    // One sound frame from the client that speaks.
    void speech(const LinkChannel& link, const LinkFrame& frame);
    void closed(const Viewer& viewer);

private:
    using ViewerPtr = std::shared_ptr<Viewer>;

    void handle(const VideoPrepare& request, const ViewerPtr& viewer);
    void handle(const VideoStart& request, const ViewerPtr& viewer);
    void handle(const VideoStop& request, const ViewerPtr& viewer);
    void handle(const AudioStart& request, const ViewerPtr& viewer);
    void handle(const AudioStop& request, const ViewerPtr& viewer);
    void handle(const SetRecordMode& request, const ViewerPtr& viewer);
    void handle(const GetRecordMode& request, const ViewerPtr& viewer);
    void handle(const ListRecords& request, const ViewerPtr& viewer);
    void handle(const PlayControl& request, const ViewerPtr& viewer);
    void handle(const SetQuality& request, const ViewerPtr& viewer);
    void handle(const GetQuality& request, const ViewerPtr& viewer);
    void handle(const SetSensitivity& request, const ViewerPtr& viewer);
    void handle(const GetSensitivity& request, const ViewerPtr& viewer);
    void handle(const SetPassword& request, const ViewerPtr& viewer);
    void handle(const SetReplayTime& request, const ViewerPtr& viewer);
    void handle(const ListWifi& request, const ViewerPtr& viewer);
    void handle(const SetWifi& request, const ViewerPtr& viewer);
    void handle(const GetWifi& request, const ViewerPtr& viewer);
    void handle(const SpeakerStart& request, const ViewerPtr& viewer);
    void handle(const SpeakerStop& request, const ViewerPtr& viewer);
    void handle(const PtzMove& request, const ViewerPtr& viewer);
    void handle(const PtzAction& request, const ViewerPtr& viewer);
    void handle(const GetPtz& request, const ViewerPtr& viewer);
    void handle(const GetVersion& request, const ViewerPtr& viewer);
    void handle(const SetTime& request, const ViewerPtr& viewer);
    void handle(const Rotate& request, const ViewerPtr& viewer);
    void handle(const GetRotate& request, const ViewerPtr& viewer);
    void handle(const SetTimeZone& request, const ViewerPtr& viewer);
    void handle(const SetSmartMode& request, const ViewerPtr& viewer);
    void handle(const GetSmartMode& request, const ViewerPtr& viewer);

    Feed& feed(const Viewer& viewer) const;
    void refuse(Viewer& viewer, std::uint32_t type, const std::string& reason);
    void log(const Viewer& viewer, const std::string& text) const;
    void stopListening(Viewer& viewer);
    void endSpeech();

    const RequestContext context_;
    const LinkChannel* speaker_ = nullptr; // whose speech is heard
};
