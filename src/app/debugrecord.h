// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/logdelegate.h"

#include <QStringListModel>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class DebugRecord;
}

// The log as a list that a user can read: every line since the window was built, the newest at the
// end. Closing it leaves it collecting. Main thread; lines from other threads come through
// SystemInfo.
class DebugRecord final : public QWidget
{
    Q_OBJECT

public:
    // A wall of cameras runs for months: past so many lines the oldest go.
    static constexpr int maxLines = 10000;

    explicit DebugRecord(QWidget* parent = nullptr);
    ~DebugRecord() override;

    QStringList lines() const { return model_.stringList(); }

public slots:
    void showDebug(QtMsgType type, const QString& data);

private:
    void append(const QString& line);

    const std::unique_ptr<Ui::DebugRecord> ui_;
    QStringListModel model_;
    LogDelegate delegate_;
    QTimer follow_; // scrolls once for all lines of one turn of the event loop
};
