// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>

class Channel;
class Device;
class QMouseEvent;

// The model of the video wall. Singleton, main thread; lives to the end of the process.
//
// It has no tiles and no timeline yet, only what the device link asks of it. Virtual so that a test
// of the link can stand in: the first object is the singleton.
class ViewControl : public QObject
{
    Q_OBJECT

public:
    static ViewControl* instance();

    ViewControl();
    ~ViewControl() override;
    Q_DISABLE_COPY_MOVE(ViewControl)

    // The mode of the whole program: true is live view, false is remote playback.
    virtual bool getIsLive() const { return isLive_; }

    // How tiles fit pictures: 0 fills the tile, 1 keeps 4:3, 2 keeps 16:9. Emits scaleChangeMsg
    // when it has changed.
    int getScale() const { return scale_; }
    void setScale(int scale);

    // Starts or stops recording the channel in the current mode.
    virtual void setRecord(Channel* channel, bool isRecord);

    // The start of the next recorded block at or after the point of the timeline; false where there
    // is none, and *out stays as it was.
    virtual bool getNextBlock(QDateTime* out) const;

    // Disconnects the device and takes its channels off the wall.
    virtual void closeDevice(Device* device);

signals:
    void recordMsg(Channel* channel, bool isRecord);
    void quitMsg(); // the program is closing
    void windowNumberChangeMsg();
    void openedSubWindowMenuMsg(Device* device, Channel* channel, QMouseEvent* event);
    void glErrorMsg(int code, const QString& text);
    void scaleChangeMsg();

private slots:
    void stopSaveRecord(Channel* channel);

private:
    bool isLive_ = true;
    int scale_ = 0;
};
