// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "walktest.h"

class TestWallWalkTiles final : public QObject
{
    Q_OBJECT

private slots:
    void tilesAreWhereTheModelIsAfterEveryStep();
};

void TestWallWalkTiles::tilesAreWhereTheModelIsAfterEveryStep()
{
    walk(WalkPlan::fromEnvironment(20240518, 2000, true));
}

ORVA_TEST(TestWallWalkTiles)
#include "tst_wallwalktiles.moc"
