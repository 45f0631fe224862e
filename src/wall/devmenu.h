// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Channel;
class Device;
class DevMenuItem;

namespace Ui {
class DevMenu;
}

// The menu on a device or on one of its channels. Lives from the right click to an action or a click
// elsewhere; every action ends in ViewControl's closeMenuMsg. Main thread. Device and channel are
// borrowed; the menu lets them go, and asks to be closed, when the device leaves the registry.
class DevMenu final : public QWidget
{
    Q_OBJECT

public:
    // `channel` is null for a menu on the device.
    DevMenu(Device* device, Channel* channel, QWidget* parent);
    ~DevMenu() override;

    // A press anywhere else closes it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private slots:
    void videoRequestSuccess(Channel* channel);
    void changeQualitySuccess(Channel* channel);
    void audioControlSuccess(Channel* channel);
    void play();
    void stop();
    void allPlay();
    void allStop();
    void changeSD();
    void changeHD();
    void restart();
    void openRecordFolder();
    void openScreenshotFolder();
    void openDelDeviceAlert();
    void synchronizeTimeline();

private:
    using Action = void (DevMenu::*)();

    void connectRows();
    void connectRow(DevMenuItem* row, Action action);
    void connectSenders();
    void showRows();
    void showMarks();
    void openFolder(bool isVideo);
    void stepFocus(int direction);
    void forgetDevice(const Device* device);

    const std::unique_ptr<Ui::DevMenu> ui_;
    Device* device_;
    Channel* channel_;
};
