// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "walltest.h"

#include "wall/glwidgetviewwindow.h"

#include <QTest>

class TestWallSmoke final : public QObject
{
    Q_OBJECT

private slots:
    void opensFour();
    void withTiles();
};

void TestWallSmoke::opensFour()
{
    WallTest t;
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    QCOMPARE(t.viewControl.getPageCount(), 2);
    QCOMPARE(t.shown().mid(0, 2), (QList<Channel*>{device->channel(0), device->channel(1)}));
    QVERIFY(device->channel(4)->mode(true).playing);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(t.shown(), (QList<Channel*>{device->channel(4), nullptr, nullptr, nullptr}));
}

void TestWallSmoke::withTiles()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    QCOMPARE(device->channel(1)->tile, t.tile(1));
    QCOMPARE(t.tile(1)->getChannel(), device->channel(1));
    t.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QCOMPARE(t.tile(1)->getChannel(), nullptr);
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    QCOMPARE(t.tile(1)->getChannel(), device->channel(1));
}

ORVA_TEST(TestWallSmoke)
#include "tst_wallsmoke.moc"
