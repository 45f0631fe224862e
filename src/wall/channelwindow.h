// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Channel;
class Device;

namespace Ui {
class ChannelWindow;
}

// A channel's card in the device list: its last picture with its name on it. Selects the channel,
// opens it by a double click, and asks for its menu. Main thread. Both are borrowed; the card lets them
// go when the device leaves the registry.
class ChannelWindow final : public QWidget
{
    Q_OBJECT

public:
    explicit ChannelWindow(QWidget* parent = nullptr);
    ~ChannelWindow() override;

    void setChannel(Device* device, Channel* channel);

public slots:
    void markDev(Device* ndev);
    void markChannel(Channel* nchannel);
    void connectChannelSuccess(Channel* nchannel);
    void connectChannelFail(Channel* nchannel);
    void videoRequestStopSuccess(Channel* nchannel);
    // An empty path shows the default picture.
    void loadImage(Channel* nchannel, bool isPlaceHolder, const QString& filePath);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectSenders();
    void forgetDevice(const Device* device);
    void showName();
    void showState(const char* nameStyle, const char* dotState);

    const std::unique_ptr<Ui::ChannelWindow> ui_;
    Device* device_ = nullptr;
    Channel* channel_ = nullptr;
};
