// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mediaevents.h"
#include "model/progressevents.h"
#include "model/task.h"

// A line of the log on its way to the debug panel: to SystemInfo, from any thread.
class DebugEvent_getDebug final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1029);

    DebugEvent_getDebug(QtMsgType type, const QString& text)
        : QEvent(number)
        , type(type)
        , text(text)
    {
    }

    QtMsgType type;
    QString text;
};
