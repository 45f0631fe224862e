// SPDX-License-Identifier: GPL-3.0-or-later
#include "wallmodel.h"

#include <cmath>

namespace {

constexpr int highestMod = 11;
constexpr std::array<int, highestMod + 1> tileCounts{1, 4, 6, 6, 8, 9, 13, 16, 25, 36, 49, 64};
constexpr std::array<int, highestMod + 1> capacities{1, 4, 5, 6, 7, 9, 12, 16, 25, 36, 49, 64};

int tileCountOf(int mod)
{
    return tileCounts.at(static_cast<std::size_t>(mod));
}

int capacityOf(int mod)
{
    return capacities.at(static_cast<std::size_t>(mod));
}

bool mirrors(int mod)
{
    return mod == 2 || mod == 4 || mod == 6;
}

std::vector<ModelRect> gridRects(int columns, int rows, int width, int height)
{
    const int w = width / columns + 1;
    const int h = height / rows + 1;
    std::vector<ModelRect> rects;
    rects.reserve(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    for (int i = 0; i < columns * rows; ++i)
        rects.push_back({i % columns * w, i / columns * h, w, h});
    return rects;
}

std::vector<ModelRect> cornerRects(int columns, int side, int width, int height)
{
    const int w = width / columns + 1;
    const int h = height / (side + 1) + 1;
    std::vector<ModelRect> rects{{0, 0, (columns - 1) * w, side * h}};
    for (int i = 0; i < columns; ++i)
        rects.push_back({i * w, side * h, w, h});
    for (int i = 0; i < side; ++i)
        rects.push_back({(columns - 1) * w, i * h, w, h});
    return rects;
}

std::vector<ModelRect> centreRects(int width, int height)
{
    const int w = width / 4 + 1;
    const int h = height / 4 + 1;
    std::vector<ModelRect> rects{{w, h, 2 * w, 2 * h}};
    for (int i = 0; i < 4; ++i)
        rects.push_back({i * w, 0, w, h});
    for (int i = 0; i < 4; ++i)
        rects.push_back({i * w, 3 * h, w, h});
    for (int i = 1; i <= 2; ++i)
        rects.push_back({0, i * h, w, h});
    for (int i = 1; i <= 2; ++i)
        rects.push_back({3 * w, i * h, w, h});
    return rects;
}

} // namespace

WallModel::WallModel(WallLink& link)
    : tiles(4)
    , link_(link)
{
}

std::vector<ModelChannel*> WallModel::channels() const
{
    std::vector<ModelChannel*> all;
    for (const auto& device : devices) {
        for (ModelChannel& channel : device->channels)
            all.push_back(&channel);
    }
    return all;
}

int WallModel::pageCount() const
{
    int open = 0;
    for (ModelChannel* channel : channels()) {
        if (channel->half(isLive).open)
            ++open;
    }
    return static_cast<int>(std::ceil(double(open) / capacityOf(mod[isLive])));
}

int WallModel::ordinal(const ModelChannel* channel) const
{
    int before = 0;
    for (ModelChannel* other : channels()) {
        if (other == channel)
            break;
        if (other->half(isLive).open)
            ++before;
    }
    return before;
}

void WallModel::tellPage()
{
    pagesTold.emplace_back(page[isLive], pageCount());
}

std::vector<ModelRect> WallModel::rects(int width, int height) const
{
    switch (mod[isLive]) {
    case 2:
        return cornerRects(3, 2, width, height);
    case 3:
        return gridRects(3, 2, width, height);
    case 4:
        return cornerRects(4, 3, width, height);
    case 6:
        return centreRects(width, height);
    default:
        break;
    }
    int side = 1;
    while (side * side < tileCountOf(mod[isLive]))
        ++side;
    return gridRects(side, side, width, height);
}

void WallModel::createWindows()
{
    const int wanted = tileCountOf(mod[isLive]);
    if (wanted == static_cast<int>(tiles.size()))
        return;
    while (wanted > static_cast<int>(tiles.size()))
        tiles.emplace_back();
    while (wanted < static_cast<int>(tiles.size())) {
        if (tiles.back().channel != nullptr)
            tiles.back().channel->tile = -1;
        tiles.pop_back();
    }
    tiles[0].isMirror = mirrors(mod[isLive]);
    refill();
    ++tileCountsTold;
}

void WallModel::bindOrdinary(int tile, ModelChannel* channel)
{
    tiles[static_cast<std::size_t>(tile)].channel = channel;
    channel->tile = tile;
}

void WallModel::refill()
{
    for (const ModelTile& tile : tiles) {
        if (tile.channel != nullptr)
            unbind(tile.channel);
    }
    const std::vector<ModelChannel*> order = channels();
    std::size_t next = 0;
    int ordinal = 0;
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        if (tiles[i].isMirror)
            tiles[i].channel = mirrored();
        else if (ModelChannel* channel = nextOrdinary(order, next, ordinal); channel != nullptr)
            bindOrdinary(static_cast<int>(i), channel);
    }
}

ModelChannel* WallModel::mirrored() const
{
    if (selectedChannel != nullptr && selectedChannel->half(isLive).open)
        return selectedChannel;
    ModelChannel* last = nullptr;
    for (const auto& device : devices) {
        for (ModelChannel& channel : device->channels) {
            if (channel.half(isLive).open) {
                last = &channel;
                break;
            }
        }
    }
    return last;
}

ModelChannel* WallModel::nextOrdinary(
    const std::vector<ModelChannel*>& order, std::size_t& next, int& ordinal) const
{
    const int capacity = capacityOf(mod[isLive]);
    while (next < order.size()) {
        ModelChannel* channel = order[next++];
        if (!channel->half(isLive).open || channel->tile >= 0)
            continue;
        const int here = ordinal++;
        if (here >= page[isLive] * capacity && here < (page[isLive] + 1) * capacity)
            return channel;
    }
    return nullptr;
}

void WallModel::showChannel(ModelChannel* channel)
{
    if (channel->tile >= 0)
        return;
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        if (tiles[i].channel != nullptr)
            continue;
        if (!tiles[i].isMirror) {
            bindOrdinary(static_cast<int>(i), channel);
            return;
        }
        tiles[i].channel = channel;
    }
}

void WallModel::unbind(ModelChannel* channel)
{
    if (channel == nullptr)
        return;
    for (ModelTile& tile : tiles) {
        if (tile.channel == channel)
            tile.channel = nullptr;
    }
    channel->tile = -1;
}

void WallModel::changeShowChannel(ModelChannel* channel)
{
    if (channel == nullptr || !channel->half(isLive).playing)
        return;
    if (mod[isLive] == 0) {
        unbind(tiles[0].channel);
        bindOrdinary(0, channel);
        page[isLive] = ordinal(channel);
    }
    if (tiles[0].isMirror)
        tiles[0].channel = channel;
    tellPage();
}

void WallModel::selectDevice(ModelDevice* device)
{
    selectedDevice = device;
}

void WallModel::selectChannel(ModelChannel* channel)
{
    if (channel == selectedChannel)
        return;
    selectedChannel = channel;
    changeShowChannel(channel);
}

void WallModel::select(ModelChannel* channel)
{
    selectDevice(channel->device);
    selectChannel(channel);
}

void WallModel::changePage(bool up)
{
    int& current = page[isLive];
    if (up ? current + 1 >= pageCount() : current == 0)
        return;
    current += up ? 1 : -1;
    if (mod[isLive] != 0) {
        refill();
        tellPage();
        return;
    }
    int open = 0;
    for (ModelChannel* channel : channels()) {
        if (channel->half(isLive).open && open++ == current) {
            select(channel);
            changeShowChannel(channel);
            break;
        }
    }
    tellPage();
}

void WallModel::setWindowMod(int value, bool live)
{
    if (value < 0 || value > highestMod)
        return;
    saved[live] = value;
    const int oldCapacity = capacityOf(mod[live]);
    mod[live] = value;
    if (live != isLive) {
        page[live] = oldCapacity * page[live] / capacityOf(value);
        return;
    }
    createWindows();
    if (value != 0) {
        page[live] = oldCapacity * page[live] / capacityOf(value);
        refill();
    } else if (selectedChannel == nullptr) {
        if (ModelChannel* shown = tiles[0].channel; shown != nullptr) {
            select(shown);
            page[live] = ordinal(shown);
        }
        return;
    } else {
        unbind(tiles[0].channel);
        bindOrdinary(0, selectedChannel);
        page[live] = ordinal(selectedChannel);
    }
    tellPage();
}

void WallModel::doubleClick(ModelChannel* channel)
{
    if (mod[isLive] != 0) {
        lastMod[isLive] = mod[isLive];
        setWindowMod(0, isLive);
        select(channel);
    } else {
        unbind(channel);
        setWindowMod(lastMod[isLive], isLive);
        selectDevice(channel->device);
        selectChannel(nullptr);
    }
}

void WallModel::changeMod(bool live)
{
    if (live == isLive)
        return;
    for (const auto& device : devices) {
        if (!device->hasSession)
            continue;
        for (ModelChannel& channel : device->channels)
            changeModOf(&channel, live);
    }
    isLive = live;
    setWindowMod(mod[live], live);
    for (const ModelTile& tile : tiles) {
        if (tile.channel != nullptr)
            tile.channel->half(live).waiting = true;
    }
    refill();
    modesTold.push_back(live);
}

void WallModel::changeModOf(ModelChannel* channel, bool live)
{
    if (channel->half(!live).open && (!live || !channel->userPaused)) {
        if (!live)
            link_.stopLive(channel);
        else
            link_.pauseReplay(channel, true);
    }
    if (channel->half(live).open && (live || !channel->userPaused)) {
        if (live)
            link_.startLive(channel);
        else
            link_.resumeReplay(channel, true);
    }
}

void WallModel::connectChannel(ModelChannel* channel, bool isRetry, bool live)
{
    if (channel == nullptr)
        return;
    if (!isRetry && live == isLive)
        channel->half(live).open = true;
    link_.connect(channel);
}

void WallModel::connectChannelSuccess(ModelChannel* channel)
{
    if (!isLive || !channel->live.open || channel->live.playing)
        return;
    showChannel(channel);
    link_.startLive(channel);
    saveOpenChannels();
    tellPage();
}

void WallModel::saveOpenChannels()
{
    savedOpen.clear();
    for (ModelChannel* channel : channels()) {
        if (channel->live.open)
            savedOpen.emplace_back(channel->device->id, channel->number);
    }
}

void WallModel::openReplayChannel(ModelChannel* channel)
{
    channel->replay.open = true;
    connectChannel(channel, true, true);
}

void WallModel::autoPlayReplay(ModelChannel* channel)
{
    if (isLive || !channel->replay.open || channel->replay.playing)
        return;
    playReplay(channel, true);
}

void WallModel::playReplay(ModelChannel* channel, bool forward)
{
    if (!channel->device->hasSession || !channel->live.connected || isLive)
        return;
    channel->replay.open = true;
    link_.playReplay(channel, forward);
}

void WallModel::startReplaySuccess(ModelChannel* channel)
{
    if (isLive || !channel->replay.open)
        return;
    showChannel(channel);
    tellPage();
    advance(channel);
}

void WallModel::playAllReplay(ModelDevice* device)
{
    playAllDevice = device;
    if (device != nullptr)
        openReplayChannel(&device->channels[0]);
}

void WallModel::advance(const ModelChannel* channel)
{
    if (playAllDevice != channel->device)
        return;
    const auto next = static_cast<std::size_t>(channel->number) + 1;
    if (next < channel->device->channels.size())
        openReplayChannel(&channel->device->channels[next]);
    else
        playAllDevice = nullptr;
}

void WallModel::closeChannel(ModelChannel* channel)
{
    channel->half(isLive).open = false;
    if (isLive) {
        link_.stopLive(channel);
        saveOpenChannels();
    } else {
        link_.stopReplay(channel);
    }
    unbind(channel);
}

void WallModel::streamEnded(ModelChannel*)
{
    if (pageCount() != 0) {
        tellPage();
        return;
    }
    page[isLive] = 0;
    pagesTold.emplace_back(-1, 0);
}

void WallModel::connectDevFail(ModelChannel* channel)
{
    for (ModelChannel& each : channel->device->channels) {
        unbind(&each);
        each.live.open = false;
        each.replay.open = false;
    }
}

void WallModel::connectChannelFail(ModelChannel* channel)
{
    channel->half(isLive).open = false;
    if (!isLive)
        advance(channel);
}

void WallModel::startLiveFail(ModelChannel* channel)
{
    channel->live.open = false;
}

void WallModel::startReplayFail(ModelChannel* channel)
{
    channel->replay.open = false;
    if (!isLive)
        advance(channel);
}

void WallModel::closeDevice(ModelDevice* device)
{
    link_.disconnect(device);
    for (ModelChannel& channel : device->channels)
        unbind(&channel);
}

void WallModel::deleteDevice(ModelDevice* device)
{
    for (ModelChannel& channel : device->channels)
        unbind(&channel);
    link_.disconnect(device);
}

void WallModel::closeAll()
{
    for (const auto& device : devices)
        link_.disconnect(device.get());
}

ModelDevice* WallModel::addDevice(int id, int channelCount, bool isConnected)
{
    ModelDevice* device = devices.emplace_back(std::make_unique<ModelDevice>()).get();
    device->id = id;
    growDevice(device, channelCount);
    device->hasSession = isConnected;
    for (ModelChannel& channel : device->channels)
        channel.live.connected = channel.live.taken = isConnected;
    return device;
}

void WallModel::growDevice(ModelDevice* device, int channelCount)
{
    while (static_cast<int>(device->channels.size()) < channelCount) {
        ModelChannel& channel = device->channels.emplace_back();
        channel.device = device;
        channel.number = static_cast<int>(device->channels.size()) - 1;
    }
}

// It is out of the list before anybody hears of it.
void WallModel::removeDevice(ModelDevice* device)
{
    std::unique_ptr<ModelDevice> leaving;
    for (std::size_t i = 0; i < devices.size(); ++i) {
        if (devices[i].get() == device) {
            leaving = std::move(devices[i]);
            devices.erase(devices.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
    }
    if (selectedDevice == device)
        selectedDevice = nullptr;
    if (selectedChannel != nullptr && selectedChannel->device == device)
        selectChannel(nullptr);
    link_.disconnect(device);
    for (ModelChannel& channel : device->channels)
        unbind(&channel);
    if (playAllDevice == device)
        playAllDevice = nullptr;
}
