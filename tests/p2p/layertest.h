// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkclient.h"

#include <QObject>

// Brings the layer up before the tests of a class and down after them.
class LayerTest : public QObject
{
    Q_OBJECT

protected:
    // Leaves the layer without sessions.
    static void closeSessions()
    {
        for (int id = 0; id < 1024; ++id)
            IOTC_Session_Close(id);
    }

private slots:
    void initTestCase()
    {
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(avInitialize(4096), 4096);
    }
    void cleanup() { closeSessions(); }
    void cleanupTestCase() { QCOMPARE(IOTC_DeInitialize(), 0); }
};
