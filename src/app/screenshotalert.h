// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Channel;

namespace Ui {
class ScreenShotAlert;
}

// Shows a snapshot that has been saved, and where. Main thread.
class ScreenShotAlert final : public QWidget
{
    Q_OBJECT

public:
    ScreenShotAlert(const Channel* channel, const QString& path, QWidget* parent);
    ~ScreenShotAlert() override;

signals:
    void closeMsg();

private:
    const std::unique_ptr<Ui::ScreenShotAlert> ui_;
};
