// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <memory>

class QMovie;

// The turning disc over something that is being waited for. Main thread.
class WaitingCircle final : public QLabel
{
    Q_OBJECT

public:
    explicit WaitingCircle(QWidget* parent);
    ~WaitingCircle() override;

    // Puts it into the middle of its parent.
    void centre();

private:
    const std::shared_ptr<QMovie> movie_; // of all that turn: they turn as one
};
