// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modeldata.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

// The wall once more, as slow and as plain as can be: what the program's wall must come to. It shares
// no line with it. Everything may be looked at; arrays by mode have live view at 1.
class WallModel final
{
public:
    explicit WallModel(WallLink& link);

    // What users do.
    void setWindowMod(int value, bool live);
    void changeMod(bool live);
    void changePage(bool up);
    void connectChannel(ModelChannel* channel, bool isRetry, bool live);
    void openReplayChannel(ModelChannel* channel);
    void playAllReplay(ModelDevice* device); // or null
    void playReplay(ModelChannel* channel, bool forward);
    void closeChannel(ModelChannel* channel);
    void closeDevice(ModelDevice* device);
    void deleteDevice(ModelDevice* device);
    void closeAll();
    void doubleClick(ModelChannel* channel);
    void selectDevice(ModelDevice* device);
    void selectChannel(ModelChannel* channel);
    void showChannel(ModelChannel* channel);
    void unbind(ModelChannel* channel);
    ModelDevice* addDevice(int id, int channelCount, bool isConnected);
    static void growDevice(ModelDevice* device, int channelCount);
    void removeDevice(ModelDevice* device);

    // What the link tells.
    void connectDevFail(ModelChannel* channel);
    void connectChannelSuccess(ModelChannel* channel);
    void connectChannelFail(ModelChannel* channel);
    void startLiveFail(ModelChannel* channel);
    void autoPlayReplay(ModelChannel* channel);
    void startReplaySuccess(ModelChannel* channel);
    void startReplayFail(ModelChannel* channel);
    void streamEnded(ModelChannel* channel);

    int pageCount() const;
    std::vector<ModelChannel*> channels() const; // in the wall's order
    std::vector<ModelRect> rects(int width, int height) const; // by tile

    bool isLive = true;
    std::array<int, 2> page{0, 0};
    std::array<int, 2> mod{1, 1};
    std::array<int, 2> lastMod{1, 1};
    std::array<int, 2> saved{1, 1};
    std::vector<ModelTile> tiles;
    std::vector<std::unique_ptr<ModelDevice>> devices;
    ModelDevice* selectedDevice = nullptr;
    ModelChannel* selectedChannel = nullptr;
    ModelDevice* playAllDevice = nullptr;
    std::vector<std::pair<int, int>> savedOpen; // device id, channel
    // What it has told.
    std::vector<std::pair<int, int>> pagesTold;
    std::vector<bool> modesTold;
    int tileCountsTold = 0;

private:
    void createWindows();
    void refill();
    void bindOrdinary(int tile, ModelChannel* channel);
    ModelChannel* mirrored() const;
    ModelChannel* nextOrdinary(
        const std::vector<ModelChannel*>& order, std::size_t& next, int& ordinal) const;
    void changeShowChannel(ModelChannel* channel);
    void changeModOf(ModelChannel* channel, bool live);
    void select(ModelChannel* channel);
    int ordinal(const ModelChannel* channel) const;
    void advance(const ModelChannel* channel);
    void saveOpenChannels();
    void tellPage();

    WallLink& link_;
};
