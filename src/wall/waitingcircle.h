// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QMovie>

// The turning disc over something that is being waited for. Main thread.
class WaitingCircle final : public QLabel
{
    Q_OBJECT

public:
    explicit WaitingCircle(QWidget* parent);

    // Puts it into the middle of its parent.
    void centre();

private:
    QMovie movie_;
};
