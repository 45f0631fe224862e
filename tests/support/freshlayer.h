// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scriptedlink.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

// What fixtures over the scripted layer share. Main thread.

// The layer as a new process has it.
inline ScriptedLink& freshLink()
{
    ScriptedLink::instance().reset();
    return ScriptedLink::instance();
}

// Counts what tasks, and queued calls, have handed to the main thread.
class Deliveries final : public QObject
{
public:
    Deliveries() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() >= QEvent::User || event->type() == QEvent::MetaCall)
            ++count;
        return false;
    }

    int count = 0;
};
