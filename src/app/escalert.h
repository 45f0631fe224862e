// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class EscAlert;
}

// The hint how to leave the full screen. Main thread.
class EscAlert final : public QWidget
{
    Q_OBJECT

public:
    explicit EscAlert(QWidget* parent);
    ~EscAlert() override;

private:
    const std::unique_ptr<Ui::EscAlert> ui_;
};
