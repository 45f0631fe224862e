// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class AccountNotice;
}

// The page behind "Register immediately." and "Forget Password?" while the program reaches no cloud
// service: says why nothing can be done here, and leads back to the login. Main thread.
class AccountNotice final : public QWidget
{
    Q_OBJECT

public:
    enum Purpose { Register, ResetPassword };

    AccountNotice(Purpose purpose, QWidget* parent);
    ~AccountNotice() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void retranslate();

    const std::unique_ptr<Ui::AccountNotice> ui_;
    const Purpose purpose_;
};
