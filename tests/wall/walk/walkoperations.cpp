// SPDX-License-Identifier: GPL-3.0-or-later
// What the walk does: each operation once on the wall and once on the model.
#include "wallwalk.h"

#include "store/location.h"
#include "wall/glwidgetviewwindow.h"

namespace {

constexpr int mostDevices = 9;
constexpr int mostChannels = 9;
constexpr int noResult = -1;

QString nameOf(const ModelDevice* device)
{
    return QStringLiteral("D%1").arg(device->id);
}

WINDOW_MOD windowMod(int mod)
{
    return static_cast<WINDOW_MOD>(mod);
}

} // namespace

const std::vector<WallWalk::Operation>& WallWalk::operations()
{
    static const std::vector<Operation> all{
        {"open a channel", 100, &WallWalk::openOne},
        {"open many channels of a device", 30, &WallWalk::openMany},
        {"open a channel for the mode that is not on view", 10, &WallWalk::openOtherMode},
        {"close a channel", 60, &WallWalk::closeOne},
        {"page up", 130, &WallWalk::pageUp},
        {"page down", 100, &WallWalk::pageDown},
        {"change the layout", 120, &WallWalk::changeLayout},
        {"change the layout of the mode that is not on view", 10, &WallWalk::changeOtherLayout},
        {"change to an unknown layout", 5, &WallWalk::unknownLayout},
        {"switch the mode", 25, &WallWalk::switchMode},
        {"switch to the mode that is on view", 5, &WallWalk::keepMode},
        {"select a channel", 90, &WallWalk::selectOne},
        {"select a device", 10, &WallWalk::selectDeviceOnly},
        {"select nothing", 30, &WallWalk::selectNone},
        {"double click", 70, &WallWalk::doubleClick},
        {"a device fails", 6, &WallWalk::failDevice},
        {"a channel fails to connect", 20, &WallWalk::failChannel},
        {"a live stream fails to start", 20, &WallWalk::failLive},
        {"a replay fails to start", 20, &WallWalk::failReplay},
        {"a day is empty", 20, &WallWalk::emptyDay},
        {"close a device", 6, &WallWalk::closeDevice},
        {"reset the connection of a device", 6, &WallWalk::deleteDevice},
        {"close all devices", 1, &WallWalk::closeAll},
        {"connect again", 30, &WallWalk::reconnect},
        {"connect to a slow device", 15, &WallWalk::connectSlowly, false},
        {"a slow device answers", 25, &WallWalk::endSlowness, false},
        {"somebody else writes the settings", 5, &WallWalk::writeSettings},
        {"add a device", 12, &WallWalk::addDevice},
        {"a device gets more channels", 4, &WallWalk::growDevice},
        {"remove a device", 8, &WallWalk::removeDevice},
        {"play all of a device", 25, &WallWalk::playAll},
        {"play all of none", 2, &WallWalk::playAllOfNone},
        {"pause", 25, &WallWalk::pause},
        {"resume", 12, &WallWalk::resume},
        {"play from a point", 15, &WallWalk::play},
        {"show a channel", 10, &WallWalk::show},
        {"unbind a channel", 10, &WallWalk::unbind},
        {"make the tiles again", 10, &WallWalk::resize},
    };
    return all;
}

void WallWalk::openBoth(ModelChannel* channel)
{
    if (model_->isLive) {
        target_->wall().connectChannel(realOf(channel), false, true);
        model_->connectChannel(channel, false, true);
    } else {
        target_->wall().openReplayChannel(realOf(channel));
        model_->openReplayChannel(channel);
    }
}

bool WallWalk::openOne()
{
    ModelChannel* channel = pickChannel(false);
    if (!mayConnect(channel->device))
        return false;
    planFault(channel);
    say(QStringLiteral("open ") + textOf(nameOf(channel)));
    openBoth(channel);
    return true;
}

bool WallWalk::openMany()
{
    ModelDevice* device = pickDevice();
    if (!mayOpenSeveral(device) || !mayConnect(device))
        return false;
    const int count = 1 + pick(static_cast<int>(device->channels.size()));
    planFault(&device->channels[static_cast<std::size_t>(pick(count))]);
    say(QStringLiteral("open the first %1 of %2").arg(count).arg(nameOf(device)));
    for (int i = 0; i < count; ++i)
        openBoth(&device->channels[static_cast<std::size_t>(i)]);
    return true;
}

bool WallWalk::openOtherMode()
{
    ModelChannel* channel = pickChannel();
    const bool live = !model_->isLive;
    if (!mayConnect(channel->device))
        return false;
    say(QStringLiteral("connect %1 for the other mode").arg(textOf(nameOf(channel))));
    target_->wall().connectChannel(realOf(channel), false, live);
    model_->connectChannel(channel, false, live);
    return true;
}

bool WallWalk::closeOne()
{
    ModelChannel* channel = chance(90) ? pickChannel(true) : pickChannel();
    planUnsent(channel, model_->isLive ? 767 : 794, model_->isLive ? -1 : 1);
    say(QStringLiteral("close ") + textOf(nameOf(channel)));
    target_->wall().closeChannel(realOf(channel));
    model_->closeChannel(channel);
    return true;
}

bool WallWalk::pageUp()
{
    say(QStringLiteral("page up"));
    target_->wall().changePage(ViewControl::PageUp);
    model_->changePage(true);
    return true;
}

bool WallWalk::pageDown()
{
    say(QStringLiteral("page down"));
    target_->wall().changePage(ViewControl::PageDown);
    model_->changePage(false);
    return true;
}

bool WallWalk::changeLayout()
{
    const int mod = pickMod();
    say(QStringLiteral("layout %1").arg(mod));
    target_->wall().setWindowMod(windowMod(mod), model_->isLive);
    model_->setWindowMod(mod, model_->isLive);
    return true;
}

bool WallWalk::changeOtherLayout()
{
    const int mod = pickMod();
    const bool live = !model_->isLive;
    say(QStringLiteral("layout %1 of the other mode").arg(mod));
    target_->wall().setWindowMod(windowMod(mod), live);
    model_->setWindowMod(mod, live);
    return true;
}

bool WallWalk::unknownLayout()
{
    const int mod = chance(50) ? -1 : windowModCount + pick(3);
    say(QStringLiteral("layout %1").arg(mod));
    target_->wall().setWindowMod(windowMod(mod), model_->isLive);
    model_->setWindowMod(mod, model_->isLive);
    return true;
}

bool WallWalk::switchMode()
{
    ModelChannel* channel = pickChannel(true);
    planUnsent(channel, model_->isLive ? 767 : 794, model_->isLive ? -1 : 0);
    if (faults_.unsent.empty())
        planUnsent(channel, model_->isLive ? 794 : 255, model_->isLive ? 0 : -1);
    const bool live = !model_->isLive;
    say(live ? QStringLiteral("to live view") : QStringLiteral("to playback"));
    target_->wall().changeMod(live);
    model_->changeMod(live);
    return true;
}

bool WallWalk::keepMode()
{
    say(QStringLiteral("to the same mode"));
    target_->wall().changeMod(model_->isLive);
    model_->changeMod(model_->isLive);
    return true;
}

bool WallWalk::selectOne()
{
    ModelChannel* channel = chance(50) ? pickShown() : pickChannel(true);
    if (channel == nullptr)
        return false;
    say(QStringLiteral("select ") + textOf(nameOf(channel)));
    Dev::instance()->selectDevice(realOf(channel->device));
    Dev::instance()->selectChannel(realOf(channel));
    model_->selectDevice(channel->device);
    model_->selectChannel(channel);
    return true;
}

bool WallWalk::selectDeviceOnly()
{
    ModelDevice* device = pickDevice();
    say(QStringLiteral("select ") + nameOf(device));
    Dev::instance()->selectDevice(realOf(device));
    model_->selectDevice(device);
    return true;
}

bool WallWalk::selectNone()
{
    say(QStringLiteral("select nothing"));
    Dev::instance()->selectDevice(nullptr);
    Dev::instance()->selectChannel(nullptr);
    model_->selectDevice(nullptr);
    model_->selectChannel(nullptr);
    return true;
}

bool WallWalk::doubleClick()
{
    std::vector<int> shown;
    for (std::size_t i = 0; i < model_->tiles.size(); ++i) {
        if (model_->tiles[i].channel != nullptr)
            shown.push_back(static_cast<int>(i));
    }
    if (shown.empty())
        return false;
    const int tile = shown[static_cast<std::size_t>(pick(static_cast<int>(shown.size())))];
    ModelChannel* channel = model_->tiles[static_cast<std::size_t>(tile)].channel;
    say(QStringLiteral("double click on tile %1, %2").arg(tile).arg(textOf(nameOf(channel))));
    if (plan_.withTiles)
        emit target_->test().tile(tile)->doubleClicked(realOf(channel));
    else
        target_->wall().doubleClickScreen(realOf(channel));
    model_->doubleClick(channel);
    return true;
}

bool WallWalk::failDevice()
{
    ModelChannel* channel = pickChannel();
    say(QStringLiteral("the device of %1 fails").arg(textOf(nameOf(channel))));
    emit target_->io().connectDevFailMsg(realOf(channel), noResult, QString());
    model_->connectDevFail(channel);
    return true;
}

bool WallWalk::failChannel()
{
    ModelChannel* channel = pickChannel(true);
    if (!mayConnect(model_->playAllDevice))
        return false;
    say(textOf(nameOf(channel)) + QStringLiteral(" fails to connect"));
    emit target_->io().connectChannelFailMsg(realOf(channel), noResult, QString());
    model_->connectChannelFail(channel);
    return true;
}

bool WallWalk::failLive()
{
    ModelChannel* channel = pickChannel(true);
    say(QStringLiteral("live view of %1 fails to start").arg(textOf(nameOf(channel))));
    emit target_->io().videoRequestFailMsg(realOf(channel), noResult, QString());
    model_->startLiveFail(channel);
    return true;
}

bool WallWalk::failReplay()
{
    ModelChannel* channel = pickChannel(true);
    if (!mayConnect(model_->playAllDevice))
        return false;
    say(QStringLiteral("replay of %1 fails to start").arg(textOf(nameOf(channel))));
    emit target_->io().startReplayFailMsg(realOf(channel), noResult, QString());
    model_->startReplayFail(channel);
    return true;
}

bool WallWalk::emptyDay()
{
    ModelChannel* channel = pickChannel(true);
    if (!mayConnect(model_->playAllDevice))
        return false;
    say(QStringLiteral("the day of %1 is empty").arg(textOf(nameOf(channel))));
    emit target_->io().receiveVideoTimeEmptyMsg(realOf(channel), 0, QString());
    model_->connectChannelFail(channel);
    return true;
}

bool WallWalk::closeDevice()
{
    ModelDevice* device = pickDevice();
    say(QStringLiteral("close ") + nameOf(device));
    target_->wall().closeDevice(realOf(device));
    model_->closeDevice(device);
    return true;
}

bool WallWalk::deleteDevice()
{
    ModelDevice* device = pickDevice();
    say(QStringLiteral("reset the connection of ") + nameOf(device));
    target_->wall().deleteDevice(realOf(device));
    model_->deleteDevice(device);
    return true;
}

bool WallWalk::closeAll()
{
    say(QStringLiteral("close all devices"));
    target_->wall().closeAll();
    model_->closeAll();
    return true;
}

bool WallWalk::reconnect()
{
    for (const auto& device : model_->devices) {
        if (device->hasSession || !mayConnect(device.get()))
            continue;
        ModelChannel* first =
            &device->channels[static_cast<std::size_t>(pick(int(device->channels.size())))];
        planFault(first);
        const bool isRetry = chance(40);
        say(QStringLiteral("connect %1 again, %2")
                .arg(textOf(nameOf(first)),
                    isRetry ? QStringLiteral("closed") : QStringLiteral("open")));
        for (ModelChannel& channel : device->channels) {
            if (&channel != first && (!mayOpenSeveral(device.get()) || chance(40)))
                continue;
            target_->wall().connectChannel(realOf(&channel), isRetry, model_->isLive);
            model_->connectChannel(&channel, isRetry, model_->isLive);
        }
        return true;
    }
    return false;
}

bool WallWalk::connectSlowly()
{
    // The event loop, which tiles need, would end the attempt after some seconds.
    if (link_->slow != nullptr || plan_.withTiles)
        return false;
    for (const auto& device : model_->devices) {
        if (device->hasSession)
            continue;
        ModelChannel* channel =
            &device->channels[static_cast<std::size_t>(pick(int(device->channels.size())))];
        say(QStringLiteral("open %1 of a slow device").arg(textOf(nameOf(channel))));
        target_->setSlow(device->id);
        link_->slow = device.get();
        openBoth(channel);
        return true;
    }
    return false;
}

bool WallWalk::endSlowness()
{
    for (const auto& device : model_->devices) {
        if (device.get() != link_->slow)
            continue;
        const bool isReached = chance(50);
        say(nameOf(device.get())
            + (isReached ? QStringLiteral(" answers at last") : QStringLiteral(" never answers")));
        target_->setSlow(-1);
        link_->slow = nullptr;
        if (device->connecting && target_->endAttempt(device->id, isReached))
            link_->endAttempt(device.get(), isReached);
        return true;
    }
    return false;
}

bool WallWalk::writeSettings()
{
    const int mod = pick(windowModCount);
    say(QStringLiteral("layout %1 into the settings").arg(mod));
    if (model_->isLive)
        Location::instance()->setWindowNum(mod);
    else
        Location::instance()->setReplayWindowNum(mod);
    model_->saved.at(model_->isLive) = mod;
    return true;
}

bool WallWalk::addDevice()
{
    if (int(model_->devices.size()) >= mostDevices)
        return false;
    const int id = nextDevice_++;
    const int count = 1 + pick(mostChannels);
    const bool isConnected = chance(75);
    say(QStringLiteral("D%1 comes with %2 channels%3")
            .arg(id)
            .arg(count)
            .arg(isConnected ? QString() : QStringLiteral(", not connected")));
    target_->addDevice(id, count, isConnected);
    model_->addDevice(id, count, isConnected);
    return true;
}

bool WallWalk::growDevice()
{
    ModelDevice* device = pickDevice();
    const int count = int(device->channels.size()) + 1 + pick(2);
    if (count > mostChannels)
        return false;
    say(QStringLiteral("%1 has %2 channels now").arg(nameOf(device)).arg(count));
    target_->growDevice(device->id, count);
    WallModel::growDevice(device, count);
    return true;
}

bool WallWalk::removeDevice()
{
    ModelDevice* device = pickDevice();
    if (model_->devices.size() < 3 || device == link_->slow)
        return false;
    say(nameOf(device) + QStringLiteral(" leaves"));
    target_->removeDevice(device->id);
    link_->forget(device);
    model_->removeDevice(device);
    return true;
}

bool WallWalk::playAll()
{
    ModelDevice* device = pickDevice();
    if (!mayConnect(device))
        return false;
    planFault(&device->channels[static_cast<std::size_t>(pick(int(device->channels.size())))]);
    say(QStringLiteral("play all of ") + nameOf(device));
    target_->wall().playAllReplay(realOf(device));
    model_->playAllReplay(device);
    return true;
}

bool WallWalk::playAllOfNone()
{
    say(QStringLiteral("play all of none"));
    target_->wall().playAllReplay(nullptr);
    model_->playAllReplay(nullptr);
    return true;
}

bool WallWalk::pause()
{
    ModelChannel* channel = pickChannel(true);
    if (model_->isLive || !channel->replay.playing)
        return false;
    planUnsent(channel, 794, 0);
    say(QStringLiteral("pause ") + textOf(nameOf(channel)));
    target_->io().pauseReplay(realOf(channel), false);
    link_->pauseReplay(channel, false);
    return true;
}

bool WallWalk::resume()
{
    for (ModelChannel* channel : model_->channels()) {
        if (model_->isLive || !channel->userPaused || chance(50))
            continue;
        planUnsent(channel, 794, 0);
        say(QStringLiteral("resume ") + textOf(nameOf(channel)));
        target_->io().stopPauseReplay(realOf(channel), false);
        link_->resumeReplay(channel, false);
        return true;
    }
    return false;
}

bool WallWalk::play()
{
    ModelChannel* channel = pickChannel();
    const bool forward = chance(50);
    planFault(channel);
    say(QStringLiteral("play %1 from a point").arg(textOf(nameOf(channel))));
    const QDateTime start(QDate(2024, 5, 17), QTime(12, 0));
    target_->wall().playReplay(realOf(channel), start, 0, forward, PLAY_SPEED_X1);
    model_->playReplay(channel, forward);
    return true;
}

bool WallWalk::show()
{
    ModelChannel* channel = pickChannel(true);
    say(QStringLiteral("show ") + textOf(nameOf(channel)));
    target_->wall().showChannel(realOf(channel));
    model_->showChannel(channel);
    return true;
}

bool WallWalk::unbind()
{
    ModelChannel* channel = chance(5) ? nullptr : pickChannel(true);
    say(QStringLiteral("unbind ") + textOf(nameOf(channel)));
    target_->wall().unbind(channel == nullptr ? nullptr : realOf(channel));
    model_->unbind(channel);
    return true;
}

bool WallWalk::resize()
{
    QWidget& screen = target_->test().screen;
    const QSize size(200 + pick(120), 150 + pick(90));
    say(QStringLiteral("tiles again in %1x%2").arg(size.width()).arg(size.height()));
    screen.resize(size);
    if (chance(50))
        target_->wall().recreateWindows();
    else
        target_->wall().layoutWindows(size.width(), size.height());
    return true;
}
