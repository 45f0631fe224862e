// SPDX-License-Identifier: GPL-3.0-or-later
// The wall itself: modes, layouts, pages, and which channel stands on which tile.
#include "wall/viewcontrol.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "model/device.h"
#include "store/location.h"
#include "wall/glwidgetviewwindow.h"

#include <algorithm>

namespace {

ViewControl* theViewControl = nullptr;

// A settings file that was edited by hand may hold anything.
WINDOW_MOD windowModFrom(int stored)
{
    return isWindowMod(stored) ? static_cast<WINDOW_MOD>(stored) : WINDOW_MOD_4;
}

} // namespace

ViewControl* ViewControl::instance()
{
    if (theViewControl == nullptr)
        new ViewControl; // stores itself
    return theViewControl;
}

ViewControl::ViewControl()
{
    if (theViewControl != nullptr)
        return;
    theViewControl = this;
    const Location* settings = Location::instance();
    live_.windowMod = windowModFrom(settings->getWindowNum());
    replay_.windowMod = windowModFrom(settings->getReplayWindowNum());
    scale_ = settings->getScale();
    board_.setTiles(windowTiles(windowMod()), hasMirrorTile(windowMod()));
    connectSenders();
}

ViewControl::~ViewControl()
{
    deleteWindows();
    if (theViewControl == this)
        theViewControl = nullptr;
}

void ViewControl::connectSenders()
{
    using Wall = ViewControl;
    const IoConnect* io = IoConnect::instance();
    connect(io, &IoConnect::connectDevFailMsg, this, &Wall::connectDevFail);
    connect(io, &IoConnect::connectChannelSuccessMsg, this, &Wall::connectChannelSuccess);
    connect(io, &IoConnect::finishVideoTimeMsg, this, &Wall::autoPlayReplay);
    connect(io, &IoConnect::connectChannelFailMsg, this, &Wall::connectChannelFail);
    connect(io, &IoConnect::receiveVideoTimeEmptyMsg, this, &Wall::connectChannelFail);
    connect(io, &IoConnect::startReplaySuccessMsg, this, &Wall::startReplaySuccess);
    connect(io, &IoConnect::startReplayFailMsg, this, &Wall::startReplayFail);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, &Wall::cleanScreen);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, &Wall::cleanScreen);
    connect(io, &IoConnect::videoRequestFailMsg, this, &Wall::startLiveFail);
    connect(Dev::instance(), &Dev::selectChannelMsg, this, &Wall::changeShowChannel);
    connect(Dev::instance(), &Dev::deleteDevMsg, this, &Wall::forgetDevice);
}

int ViewControl::getPageCount() const
{
    const QList<Channel*> channels = Dev::instance()->channels();
    return pageCountFor(openCount(planChannels(channels)), windowCapacity(windowMod()));
}

void ViewControl::setFull(bool isFull)
{
    isFull_ = isFull;
    emit fullGLMsg(isFull);
}

void ViewControl::setScale(int scale)
{
    if (scale == scale_)
        return;
    scale_ = scale;
    emit scaleChangeMsg();
}

void ViewControl::openDelAlert(Device* device)
{
    if (device != nullptr)
        emit openDelAlertMsg(device);
}

void ViewControl::createWindows(QWidget* parent)
{
    screen_ = parent;
    fitTiles();
    layoutWindows(parent->width(), parent->height());
}

void ViewControl::recreateWindows()
{
    if (screen_ != nullptr)
        createWindows(screen_);
    else
        fitTiles();
}

void ViewControl::deleteWindows()
{
    while (!windows_.empty())
        delete windows_.back(); // which takes itself out, see addTile()
}

void ViewControl::fitTiles()
{
    const int wanted = windowTiles(windowMod());
    const bool haveTiles = screen_ == nullptr || static_cast<int>(windows_.size()) == wanted;
    // Where the number stays, so does the mirror tile: from value 2 to 3 it is kept, by design.
    if (board_.count() == wanted && haveTiles)
        return;
    while (screen_ != nullptr && static_cast<int>(windows_.size()) < wanted)
        addTile();
    while (static_cast<int>(windows_.size()) > wanted)
        removeLastTile();
    board_.setTiles(wanted, hasMirrorTile(windowMod()));
    refill();
    emit windowNumberChangeMsg();
}

void ViewControl::layoutWindows(int width, int height)
{
    if (windows_.empty())
        return;
    const std::vector<QRect> rects = windowRects(windowMod(), QSize(width, height));
    for (std::size_t i = 0; i < std::min(rects.size(), windows_.size()); ++i) {
        const QRect& rect = rects[i];
        windows_[i]->resize(rect.width(), rect.height(), rect.x(), rect.y());
    }
    emit resizeMsg();
}

void ViewControl::addTile()
{
    auto* tile = new GlWidgetViewWindow(screen_);
    connect(tile, &GlWidgetViewWindow::doubleClicked, this, &ViewControl::doubleClickScreen);
    connect(tile, &QObject::destroyed, this, [this, tile] { forgetTile(tile); });
    // In its place before it is shown, or its buffer would be made twice.
    tile->setGeometry(windowRects(windowMod(), screen_->size())[windows_.size()]);
    tile->show();
    windows_.push_back(tile);
}

// It may be the tile whose double click is being dealt with, so it goes later.
void ViewControl::removeLastTile()
{
    GlWidgetViewWindow* tile = windows_.back();
    windows_.pop_back();
    if (Channel* channel = tile->getChannel(); channel != nullptr && channel->tile == tile)
        channel->tile = nullptr;
    tile->setChannel(nullptr, nullptr);
    tile->hide();
    tile->deleteLater();
}

// Its parent has deleted it.
void ViewControl::forgetTile(const GlWidgetViewWindow* tile)
{
    const auto at = std::find(windows_.begin(), windows_.end(), tile);
    if (at == windows_.end())
        return;
    windows_.erase(at);
    for (int i = 0; i < board_.count(); ++i) {
        if (board_.at(i) != nullptr && board_.at(i)->tile == tile)
            board_.at(i)->tile = nullptr;
    }
}

// Brings the widgets to what the board says. A tile that keeps its channel is left alone: what it shows
// stays on the screen.
void ViewControl::showBoard()
{
    // A tile that is being made may tell of itself before all are there.
    const std::size_t count = std::min(windows_.size(), std::size_t(board_.count()));
    for (std::size_t i = 0; i < count; ++i) {
        Channel* held = windows_[i]->getChannel();
        if (held != nullptr && held->tile == windows_[i])
            held->tile = nullptr;
    }
    for (std::size_t i = 0; i < count; ++i) {
        GlWidgetViewWindow* tile = windows_[i];
        Channel* channel = board_.at(static_cast<int>(i));
        tile->setMirror(i == 0 && board_.hasMirror());
        if (tile->getChannel() != channel)
            tile->setChannel(channel != nullptr ? channel->device() : nullptr, channel);
        if (channel != nullptr && !tile->isMirror())
            channel->tile = tile;
    }
}

void ViewControl::unbind(Channel* channel)
{
    if (channel == nullptr)
        return;
    board_.remove(channel);
    showBoard();
}

void ViewControl::unbindAll(const Device* device)
{
    for (int i = 0; i < device->channelListSize(); ++i)
        board_.remove(device->channel(i));
    showBoard();
}

void ViewControl::refill()
{
    const QList<Channel*> channels = Dev::instance()->channels();
    const std::vector<int> plan =
        fillTiles(planChannels(channels), channels.indexOf(Dev::instance()->selectedChannel()),
            {board_.count(), board_.hasMirror()}, getPage(), windowCapacity(windowMod()));
    std::vector<Channel*> filled;
    filled.reserve(plan.size());
    for (const int channel : plan)
        filled.push_back(channel != noChannel ? channels.at(channel) : nullptr);
    board_.fill(std::move(filled));
    showBoard();
}

std::vector<WallChannel> ViewControl::planChannels(const QList<Channel*>& channels) const
{
    std::vector<WallChannel> plan;
    plan.reserve(static_cast<std::size_t>(channels.size()));
    const Device* device = nullptr;
    int number = 0;
    for (const Channel* channel : channels) {
        if (channel->device() != device)
            ++number;
        device = channel->device();
        plan.push_back({number, channel->mode(isLive_).open});
    }
    return plan;
}

int ViewControl::ordinalOfChannel(Channel* channel) const
{
    const QList<Channel*> channels = Dev::instance()->channels();
    const int index = channels.indexOf(channel);
    return index >= 0 ? ordinalOf(planChannels(channels), index) : 0;
}

void ViewControl::showChannel(Channel* channel)
{
    if (channel == nullptr || channel->device()->isRetired())
        return; // an answer that was under way when its device left
    board_.show(channel);
    showBoard();
}

void ViewControl::showOnFirstTile(Channel* channel)
{
    board_.showFirst(channel);
    showBoard();
    setPage(ordinalOfChannel(channel));
}

void ViewControl::changeShowChannel(Channel* channel)
{
    if (channel == nullptr || !channel->mode(isLive_).playing)
        return;
    if (windowMod() == WINDOW_MOD_1) {
        showOnFirstTile(channel);
    } else if (board_.hasMirror()) {
        board_.showFirst(channel);
        showBoard();
    }
    emitPage();
}

void ViewControl::select(Channel* channel)
{
    Dev::instance()->selectDevice(channel->device());
    Dev::instance()->selectChannel(channel);
}

void ViewControl::changePage(PageChangeType type)
{
    const int page = type == PageUp ? getPage() + 1 : getPage() - 1;
    if (page < 0 || (type == PageUp && page >= getPageCount()))
        return;
    setPage(page);
    if (windowMod() == WINDOW_MOD_1)
        showPageOnOneTile();
    else
        refill();
    emitPage();
}

// The channel of this page goes onto the one tile, as the selected one.
void ViewControl::showPageOnOneTile()
{
    const QList<Channel*> channels = Dev::instance()->channels();
    const int index = channelAt(planChannels(channels), getPage());
    if (index == noChannel)
        return;
    select(channels.at(index));
    changeShowChannel(channels.at(index));
}

void ViewControl::setWindowMod(WINDOW_MOD mod, bool isLive)
{
    if (!isWindowMod(mod))
        return;
    if (isLive)
        Location::instance()->setWindowNum(mod);
    else
        Location::instance()->setReplayWindowNum(mod);
    Half& changed = half(isLive);
    const int oldCapacity = windowCapacity(changed.windowMod);
    const int page = pageAfterLayoutChange(changed.page, oldCapacity, windowCapacity(mod));
    changed.windowMod = mod;
    if (isLive != isLive_) {
        changed.page = page; // the tiles show the other mode
        return;
    }
    recreateWindows();
    if (mod == WINDOW_MOD_1) {
        showOneTile();
        return;
    }
    setPage(page);
    refill();
    emitPage();
}

// The selected channel stays in sight; where there is none, the first tile's is selected.
void ViewControl::showOneTile()
{
    if (Channel* selected = Dev::instance()->selectedChannel(); selected != nullptr) {
        showOnFirstTile(selected);
        emitPage();
    } else if (Channel* shown = board_.at(0); shown != nullptr) {
        select(shown);
        setPage(ordinalOfChannel(shown));
    }
}

void ViewControl::doubleClickScreen(Channel* channel)
{
    Half& current = half(isLive_);
    if (current.windowMod != WINDOW_MOD_1) {
        current.lastWindowMod = current.windowMod;
        setWindowMod(WINDOW_MOD_1, isLive_);
        select(channel);
        return;
    }
    unbind(channel);
    setWindowMod(current.lastWindowMod, isLive_);
    Dev::instance()->selectDevice(channel->device());
    Dev::instance()->selectChannel(nullptr);
}

void ViewControl::changeMod(bool isLive)
{
    if (isLive == isLive_)
        return;
    const QList<Channel*> channels = Dev::instance()->channels();
    for (Channel* channel : channels) {
        if (channel->device()->sid >= 0)
            changeModOf(channel, isLive);
    }
    isLive_ = isLive;
    setWindowMod(windowMod(), isLive);
    for (int tile = 0; tile < board_.count(); ++tile) {
        if (board_.at(tile) != nullptr)
            board_.at(tile)->mode(isLive).waiting = true;
    }
    board_.clear();
    showBoard(); // what the tiles show is the other mode's
    refill();
    emit changeModMsg(isLive);
}

// Leaves the mode that ends and enters the other one. What the user has paused stays so.
void ViewControl::changeModOf(Channel* channel, bool isLive)
{
    IoConnect* io = IoConnect::instance();
    if (channel->mode(isLive_).open) {
        if (isLive_)
            io->stopLife(channel, false);
        else if (!channel->replayPaused)
            io->pauseReplay(channel, true);
    }
    if (channel->mode(isLive).open) {
        if (isLive)
            io->startLive(channel);
        else if (!channel->replayPaused)
            io->stopPauseReplay(channel, true);
    }
}

void ViewControl::emitPage()
{
    emit createPageMsg(getPage(), getPageCount());
}

void ViewControl::forgetDevice(const Device* device)
{
    unbindAll(device);
    if (playAllDevice_ == device)
        playAllDevice_ = nullptr;
}
