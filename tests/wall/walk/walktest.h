// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wallwalk.h"

#include <QLoggingCategory>
#include <QTest>

// The body of the test of a walk.
inline void walk(const WalkPlan& plan)
{
    // A line for each stream that starts or ends would bury what is said here.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    qInfo(
        "seed %u, %d steps; ORVA_WALK_SEED and ORVA_WALK_STEPS change them", plan.seed, plan.steps);
    WallWalk walk(plan);
    const bool agrees = walk.run();
    for (const QString& line : walk.counts())
        qInfo("%s", qUtf8Printable(line));
    QVERIFY2(agrees, qUtf8Printable(QLatin1Char('\n') + walk.report()));
    const QString notSeen = walk.notSeen().join(QLatin1String(", "));
    if (plan.isUsual)
        QVERIFY2(notSeen.isEmpty(), qUtf8Printable(notSeen));
}
