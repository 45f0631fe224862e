// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/devmenu.h"
#include "wall/devmenuitem.h"
#include "wall/labelfoldbtn.h"
#include "wall/menudevlist.h"
#include "wall/menudevtitle.h"
#include "wall/menulistdev.h"
#include "walltest.h"

#include <QColor>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QObject>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStringList>

class ChannelWindow;

// A login to the local list, which is empty at first, while it exists.
class LocalLogin final
{
public:
    LocalLogin();
    ~LocalLogin();
    Q_DISABLE_COPY_MOVE(LocalLogin)

    static void store(const QString& uid, const QString& name = {}, int channels = 1, int type = 7);
};

// Stands in the place of the cloud: requests for a page are counted, and stay without an answer until
// the test gives one. Lives within one test function.
class CloudRequests final : public QObject
{
public:
    CloudRequests();
    bool eventFilter(QObject* watched, QEvent* event) override;

    int count(); // since the last take
    int take();
    static void answer(int devices) { emit Dev::instance()->getDevFinishMsg(devices); }
    static void fail(const QString& type = QStringLiteral("getDev"));

private:
    int asked_ = 0;
};

// What the form of a block names.
struct BlockParts
{
    explicit BlockParts(const MenuListDev& block);

    QColor nameColour() const; // what the name is painted with
    QColor ground() const; // of the title; invalid where it has none of its own
    QString dotState() const { return dot->property("state").toString(); }
    QList<ChannelWindow*> cards() const;

    MenuDevTitle* title = nullptr;
    LabelFoldBtn* fold = nullptr;
    QLabel* icon = nullptr;
    QLabel* dot = nullptr;
    QLabel* name = nullptr;
    QWidget* cardArea = nullptr;
};

// The panel in a window of its own. Lives within one test function.
class PanelTest final
{
public:
    PanelTest();

    [[nodiscard]] bool show(QSize size = QSize(240, 400));
    // So many devices come into the registry; a page of them is told by the test.
    void addDevices(int count, int channels = 1);

    QList<MenuListDev*> blocks() const; // from the top
    MenuListDev* block(int number) const { return blocks().at(number); }
    QStringList titles() const;
    bool isWaiting() const;
    // As they would be seen if the panel were on the screen; empty where they are hidden.
    QString emptyText() const { return textOf("label_empty"); }
    QString moreText() const { return textOf("label_loadMore"); }
    QWidget* list() const { return panel.findChild<QWidget*>(QStringLiteral("widget_blocks")); }
    QLineEdit* search() const { return panel.findChild<QLineEdit*>(); }
    QPushButton* key(const char* name) const;
    QScrollBar* bar() const;

    WallTest wall;
    MenuDevList panel;

private:
    QString textOf(const char* label) const;
};

// A block of the list as a window of its own, for a device with so many channels. Lives within one
// test function.
class BlockTest final
{
public:
    explicit BlockTest(int channels, bool isConnected = true);

    [[nodiscard]] bool show();
    BlockParts parts() const { return BlockParts(block); }
    Channel* channel(int number = 0) const { return device->channel(number); }
    void markPlaying(bool isPlaying, bool isLive = true, int number = 0) const
    {
        channel(number)->mode(isLive).playing = isPlaying;
    }

    WallTest wall;
    Device* device;
    Device* other; // with one channel
    MenuListDev block;
};

// The menu on a device of the wall, or on a channel of it, in a window. Lives within one test
// function, shorter than `wall`.
class MenuTest final
{
public:
    MenuTest(const WallTest& wall, Device* device, Channel* channel);

    [[nodiscard]] bool show();
    QStringList rows() const; // the texts of those that are shown, from the top
    QStringList marked() const; // of those
    DevMenuItem* row(const char* text) const; // shown or not

    QWidget window;
    DevMenu* menu;
    QSignalSpy closed; // the menu asks for it
};
