// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class ReopenAlert;
}

// Offers to open the channels again that were open when the program ended. Main thread.
class ReopenAlert final : public QWidget
{
    Q_OBJECT

public:
    // `openChannels`: the text of the setting.
    ReopenAlert(const QString& openChannels, QWidget* parent);
    ~ReopenAlert() override;

    // Whether the text of the setting names anything.
    static bool isOffer(const QString& openChannels);

signals:
    void closeMsg();

private:
    void confirm();
    void cancel();

    const std::unique_ptr<Ui::ReopenAlert> ui_;
    const QString openChannels_;
};
