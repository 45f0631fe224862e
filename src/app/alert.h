// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Channel;

namespace Ui {
class Alert;
}

// Tells of a failure: its number, the device, the text. It only informs. Main thread.
class Alert final : public QWidget
{
    Q_OBJECT

public:
    explicit Alert(QWidget* parent);
    ~Alert() override;

    // Null: of no device.
    void setFailure(const Channel* channel, int error, const QString& text);

signals:
    void closeMsg();

private:
    const std::unique_ptr<Ui::Alert> ui_;
};
