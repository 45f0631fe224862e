// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "walktest.h"

class TestWallWalk final : public QObject
{
    Q_OBJECT

private slots:
    void wallIsWhereItsModelIsAfterEveryStep();
};

void TestWallWalk::wallIsWhereItsModelIsAfterEveryStep()
{
    walk(WalkPlan::fromEnvironment(20240517, 100000, false));
}

ORVA_TEST(TestWallWalk)
#include "tst_wallwalk.moc"
