// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/playspeed.h"
#include "wall/recordedblocks.h"
#include "wall/wallboard.h"
#include "wall/walllayout.h"
#include "wall/wallplan.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QTime>
#include <QWidget>

#include <vector>

class Channel;
class Device;
class GlWidgetViewWindow;
class QMouseEvent;

// The model of the video wall: which channel stands on which tile, in which of the two modes (live
// view, remote playback), on which page, in which layout; and the point, the recorded blocks and the
// speeds of the playback timeline. Every button of the wall calls it, and its signals tell the rest of
// the interface what has changed. It reports no failure: a channel that does not start is closed.
//
// Layout and page only decide which of the open channels have a tile: a channel without one keeps its
// stream. A channel stands on one tile at most, which its `tile` names, and on the mirror tile beside.
//
// Singleton, main thread; lives to the end of the process. It owns the tiles. A few operations are
// virtual so that a test of the link can stand in: the first object is the singleton.
class ViewControl : public QObject
{
    Q_OBJECT

public:
    using WINDOW_MOD = ::WINDOW_MOD;
    enum PageChangeType { PageUp, PageDown }; // to the next page, to the one before
    Q_ENUM(PageChangeType)

    static ViewControl* instance();

    ViewControl();
    ~ViewControl() override;
    Q_DISABLE_COPY_MOVE(ViewControl)

    // The mode of the whole program: true is live view, false is remote playback.
    virtual bool getIsLive() const { return isLive_; }
    WINDOW_MOD getWindowMod(bool isLive) const { return half(isLive).windowMod; }
    static int getWindowCapacity(WINDOW_MOD mod) { return windowCapacity(mod); }
    int getPage() const { return half(isLive_).page; } // from 0, of the current mode
    void setPage(int page) { half(isLive_).page = page; }
    int getPageCount() const; // 0 where no channel is open
    bool getFull() const { return isFull_; }
    // How tiles fit pictures: 0 fills the tile, 1 keeps 4:3, 2 keeps 16:9.
    int getScale() const { return scale_; }

    // What stands on the tiles, 0 to getTileCount() - 1; null on an empty one. Before there are
    // widgets too.
    int getTileCount() const { return board_.count(); }
    Channel* getTileChannel(int tile) const { return board_.at(tile); }

    // Tiles. `createWindows` makes as many as the layout has, inside `parent`, and lays them out.
    void createWindows(QWidget* parent);
    void recreateWindows();
    // At once; the channels keep their places. Before the window that holds the tiles changes.
    void deleteWindows();
    void layoutWindows(int width, int height);

    void setWindowMod(WINDOW_MOD mod, bool isLive); // also into the settings
    void changeMod(bool isLive);
    void changePage(PageChangeType type);
    void setFull(bool isFull);
    void setScale(int scale);

    // Channels. `connectChannel` opens one for live view unless it is a retry. It, `closeChannel` and
    // `deleteDevice` ignore null.
    void connectChannel(Channel* channel, bool isRetry, bool isLive);
    void openReplayChannel(Channel* channel);
    void playAllReplay(Device* device); // one channel after another
    void closeChannel(Channel* channel); // in the current mode
    virtual void closeDevice(Device* device); // disconnects it and takes its channels off the wall
    void deleteDevice(Device* device); // the same, off the wall first
    void closeAll(); // disconnects every device with a session
    // Starts or stops recording the channel in the current mode.
    virtual void setRecord(Channel* channel, bool isRecord);

    // Playback of a connected channel.
    void playReplay(
        Channel* channel, const QDateTime& start, int offset, bool forward, PLAY_SPEED speed);
    // By the time between `time` and the start of the playback, always forward.
    void seekChannel(Channel* channel, const QTime& time);
    void synchronizeDevice(Device* device); // its open channels, to the timeline's time
    void synchronizeChannel(Channel* channel);

    // The point on the timeline; local time.
    QDate getDate() const { return date_; }
    QDateTime getDateTime() const { return {date_, time_}; }
    void setDate(const QDate& date);
    void setTime(const QTime& time) { time_ = time; }

    // Recorded blocks. Where to start a playback for the point, and the seconds from there to it.
    QDateTime getPlayStart(int* offset) const;
    // The start of the next recorded block at or after the point; false where there is none, and
    // *out stays as it was.
    virtual bool getNextBlock(QDateTime* out) const;
    void appendVideoTime(const QList<int>& block) { blocks_.append(block); }
    int getVideoTimeCount() const { return blocks_.count(); }
    QList<int> getVideoTime(int index) const { return blocks_.at(index); }

    PLAY_SPEED getSpeed(bool back) const { return back ? backSpeed_ : speed_; }
    void setSpeed(PLAY_SPEED speed, bool back);

    void openDelAlert(Device* device); // openDelAlertMsg, where it is not null

signals:
    void changeModMsg(bool isLive);
    void dateChangeMsg();
    void closeMenuMsg(); // a menu entry has been acted on
    void quitMsg(); // the program is closing
    void recordMsg(Channel* channel, bool isRecord);
    void resizeMsg(); // the tiles were laid out anew
    void windowNumberChangeMsg();
    void openedSubWindowMenuMsg(Device* device, Channel* channel, QMouseEvent* event);
    void openDevManageMsg(Device* device);
    void enteredRow(int row);
    void clickedRow(int row);
    void leaveTable();
    void speedChangeMsg(PLAY_SPEED speed);
    void speedBackChangeMsg(PLAY_SPEED speed);
    void fullGLMsg(bool isFull);
    void openDelAlertMsg(Device* device);
    void closeDelAlertMsg();
    void glErrorMsg(int code, const QString& text);
    void createPageMsg(int page, int total); // what the page label is to show; page -1: none
    void scaleChangeMsg();
    void closeSpeedListMsg(bool isForward);

public slots:
    // A channel that has just started takes the first free tile, if there is one.
    void showChannel(Channel* channel);
    void unbind(Channel* channel);
    void doubleClickScreen(Channel* channel); // one tile for it, and back
    void changeShowChannel(Channel* channel); // it has been selected

private slots:
    void connectDevFail(Channel* channel);
    void connectChannelSuccess(Channel* channel);
    void connectChannelFail(Channel* channel);
    void startLiveFail(Channel* channel);
    void autoPlayReplay(Channel* channel);
    void startReplaySuccess(Channel* channel);
    void startReplayFail(Channel* channel);
    void cleanScreen(Channel* channel);
    void stopSaveRecord(Channel* channel);
    void forgetDevice(const Device* device);

private:
    // What exists once for each mode.
    struct Half
    {
        WINDOW_MOD windowMod = WINDOW_MOD_4;
        WINDOW_MOD lastWindowMod = WINDOW_MOD_4; // what a double click returns to
        int page = 0;
    };

    Half& half(bool isLive) { return isLive ? live_ : replay_; }
    const Half& half(bool isLive) const { return isLive ? live_ : replay_; }
    WINDOW_MOD windowMod() const { return half(isLive_).windowMod; }

    void connectSenders();
    void fitTiles();
    void addTile();
    void removeLastTile();
    void forgetTile(const GlWidgetViewWindow* tile);
    void showBoard();
    void refill();
    void unbindAll(const Device* device);
    void showOnFirstTile(Channel* channel);
    void showOneTile();
    void showPageOnOneTile();
    static void select(Channel* channel);
    std::vector<WallChannel> planChannels(const QList<Channel*>& channels) const;
    int ordinalOfChannel(Channel* channel) const;
    void changeModOf(Channel* channel, bool isLive);
    void advancePlayAll(Channel* channel);
    void emitPage();

    Half live_;
    Half replay_;
    WallBoard board_; // of the current mode
    QPointer<QWidget> screen_; // the tiles' parent
    std::vector<GlWidgetViewWindow*> windows_; // tile 0 first; none before createWindows
    bool isLive_ = true;
    bool isFull_ = false;
    int scale_ = 0;

    QDate date_ = QDate::currentDate();
    QTime time_{0, 0};
    RecordedBlocks blocks_;
    PLAY_SPEED speed_ = PLAY_SPEED_X1;
    PLAY_SPEED backSpeed_ = PLAY_SPEED_X1;
    Device* playAllDevice_ = nullptr; // its channels are opened one after another
};
