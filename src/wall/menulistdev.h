// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Channel;
class Device;
class LabelFoldBtn;
class MenuDevTitle;

namespace Ui {
class MenuListDev;
}

// One device in the device list: its title row and, unfolded, the cards of its channels. A device with
// a single channel is that channel's row too. Main thread. The device is borrowed; the block lets it go
// when it leaves the registry.
class MenuListDev final : public QWidget
{
    Q_OBJECT

public:
    explicit MenuListDev(QWidget* parent = nullptr);
    ~MenuListDev() override;

    void setDevice(Device* device);
    Device* device() const { return device_; }
    bool isUnfolded() const { return isUnfolded_; }
    void setUnfolded(bool unfolded); // without a signal
    int wantedHeight() const; // pixels, of title and unfolded cards

signals:
    void folded(); // or unfolded

private slots:
    void clickedFold(LabelFoldBtn* foldBtn, bool status);
    void clickedDev(MenuDevTitle* devTitle);
    void doubleClickedDev(MenuDevTitle* devTitle);
    void rightClickedDev(MenuDevTitle* devTitle, QMouseEvent* event);
    void connectDevSuccess(Channel* iChannel);
    void connectChannelSuccess(Channel* iChannel);
    void connectDevFail(Channel* iChannel);
    void connectChannelFail(Channel* iChannel);
    void videoRequestStopSuccess(Channel* iChannel);
    void showDevClosed(Channel* iChannel);
    void selectDev(Device* dev);
    void selectChannel(Channel* channel);
    void changeMod(bool isLive);

private:
    enum class State { Idle, Run, Fail };

    void connectSenders();
    bool isOurs(const Channel* channel) const;
    bool isAnyPlaying() const;
    void makeCards();
    void showTitle();
    void showState(State state);
    void showPlaying();
    void forgetDevice(const Device* device);

    const std::unique_ptr<Ui::MenuListDev> ui_;
    Device* device_ = nullptr;
    Channel* channel_ = nullptr; // of a device with a single one
    bool isUnfolded_ = false;
};
