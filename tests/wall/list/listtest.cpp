// SPDX-License-Identifier: GPL-3.0-or-later
#include "listtest.h"

#include "cardtest.h"
#include "cloud/userservice.h"
#include "store/localstore.h"
#include "wall/channelwindow.h"
#include "wall/waitingcircle.h"

#include <QCoreApplication>
#include <QLayout>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTest>

#include <algorithm>
#include <utility>

namespace {

void clearStore()
{
    const QList<LocalDeviceRecord> records = LocalStore::instance()->loadDevices();
    for (const LocalDeviceRecord& record : records)
        LocalStore::instance()->removeDevice(record.uid);
}

} // namespace

LocalLogin::LocalLogin()
{
    clearStore();
    UserService::instance()->setLocalMode(true);
}

LocalLogin::~LocalLogin()
{
    clearStore();
    UserService::instance()->setLocalMode(false);
}

void LocalLogin::store(const QString& uid, const QString& name, int channels, int type)
{
    LocalDeviceRecord record;
    record.uid = uid;
    record.nickname = name;
    record.channel = channels;
    record.type = type;
    LocalStore::instance()->saveDevice(record);
}

// The registry's own answer, which is that there is no cloud, is a call that waits for its turn.
CloudRequests::CloudRequests()
{
    Dev::instance()->installEventFilter(this);
}

bool CloudRequests::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::MetaCall)
        return false;
    ++asked_;
    return true;
}

int CloudRequests::count()
{
    QCoreApplication::sendPostedEvents(Dev::instance(), QEvent::MetaCall);
    return asked_;
}

int CloudRequests::take()
{
    count();
    return std::exchange(asked_, 0);
}

void CloudRequests::fail(const QString& type)
{
    emit Dev::instance()->responseErrorMsg(
        type, QStringLiteral("Network Error"), 0, QStringLiteral("It does not answer."));
}

BlockParts::BlockParts(const MenuListDev& block)
    : title(block.findChild<MenuDevTitle*>())
    , fold(block.findChild<LabelFoldBtn*>())
    , icon(block.findChild<QLabel*>(QStringLiteral("label_icon")))
    , dot(title->findChild<QLabel*>(QStringLiteral("label_dot")))
    , name(block.findChild<QLabel*>(QStringLiteral("label_name")))
    , cardArea(block.findChild<QWidget*>(QStringLiteral("widget_cards")))
{
}

QColor BlockParts::nameColour() const
{
    name->ensurePolished();
    return name->palette().color(QPalette::WindowText);
}

// At its right end, where the name is over.
QColor BlockParts::ground() const
{
    if (title->styleSheet().isEmpty())
        return {};
    const QImage painted = title->grab().toImage();
    return {painted.pixel(painted.width() - 3, painted.height() / 2)};
}

QList<ChannelWindow*> BlockParts::cards() const
{
    return cardArea->findChildren<ChannelWindow*>();
}

PanelTest::PanelTest()
{
    qRegisterMetaType<QMouseEvent*>("QMouseEvent*");
    keepPicturesApart();
    Dev::instance()->setFilter(QString());
    panel.setWindowFlags(Qt::FramelessWindowHint);
}

bool PanelTest::show(QSize size)
{
    panel.resize(size);
    panel.show();
    panel.activateWindow();
    return QTest::qWaitForWindowActive(&panel);
}

void PanelTest::addDevices(int count, int channels)
{
    for (int i = 0; i < count; ++i)
        wall.addDevice(channels, false);
}

QList<MenuListDev*> PanelTest::blocks() const
{
    QList<MenuListDev*> blocks;
    const QLayout* layout = list()->layout();
    for (int i = 0; i < layout->count(); ++i)
        blocks.append(qobject_cast<MenuListDev*>(layout->itemAt(i)->widget()));
    return blocks;
}

QStringList PanelTest::titles() const
{
    QStringList titles;
    for (const MenuListDev* block : blocks())
        titles.append(BlockParts(*block).name->text());
    return titles;
}

bool PanelTest::isWaiting() const
{
    const auto* circle = panel.findChild<WaitingCircle*>();
    return circle != nullptr && circle->isVisibleTo(&panel);
}

QString PanelTest::textOf(const char* label) const
{
    const auto* found = panel.findChild<QLabel*>(QLatin1String(label));
    return found->isVisibleTo(&panel) ? found->text() : QString();
}

QPushButton* PanelTest::key(const char* name) const
{
    return panel.findChild<QPushButton*>(QLatin1String(name));
}

QScrollBar* PanelTest::bar() const
{
    return panel.findChild<QScrollArea*>()->verticalScrollBar();
}

BlockTest::BlockTest(int channels, bool isConnected)
    : device(wall.addDevice(channels, isConnected))
    , other(wall.addDevice(1, false))
{
    qRegisterMetaType<QMouseEvent*>("QMouseEvent*");
    keepPicturesApart();
    block.setWindowFlags(Qt::FramelessWindowHint);
    block.resize(240, 24);
    block.setDevice(device);
    block.ensurePolished(); // or a second style sheet waits for the first look at it
}

bool BlockTest::show()
{
    block.show();
    block.activateWindow();
    return QTest::qWaitForWindowActive(&block);
}

MenuTest::MenuTest(const WallTest& wall, Device* device, Channel* channel)
    : menu(new DevMenu(device, channel, &window))
    , closed(&wall.viewControl, &ViewControl::closeMenuMsg)
{
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.resize(300, 480);
}

bool MenuTest::show()
{
    window.show();
    window.activateWindow();
    const bool isActive = QTest::qWaitForWindowActive(&window);
    window.setFocus(); // no row
    return isActive;
}

QStringList MenuTest::rows() const
{
    QStringList rows;
    const QLayout* layout = menu->layout();
    for (int i = 0; i < layout->count(); ++i) {
        const auto* row = qobject_cast<DevMenuItem*>(layout->itemAt(i)->widget());
        if (row != nullptr && row->isVisibleTo(menu))
            rows.append(row->text());
    }
    return rows;
}

QStringList MenuTest::marked() const
{
    QStringList marked;
    for (const QString& text : rows()) {
        if (row(qPrintable(text))->isMarked())
            marked.append(text);
    }
    return marked;
}

DevMenuItem* MenuTest::row(const char* text) const
{
    const QList<DevMenuItem*> rows = menu->findChildren<DevMenuItem*>();
    const auto row = std::find_if(rows.begin(), rows.end(),
        [text](const DevMenuItem* item) { return item->text() == QLatin1String(text); });
    return row == rows.end() ? nullptr : *row;
}
