// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/accountnotice.h"

#include "app/activation.h"
#include "app/systeminfo.h"
#include "ui_accountnotice.h"

AccountNotice::AccountNotice(Purpose purpose, QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::AccountNotice>())
    , purpose_(purpose)
{
    ui_->setupUi(this);
    ui_->label_back->installEventFilter(this);
    setFocusProxy(ui_->label_back);
    connect(
        SystemInfo::instance(), &SystemInfo::languageChangedMsg, this, &AccountNotice::retranslate);
    retranslate();
}

AccountNotice::~AccountNotice() = default;

bool AccountNotice::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->label_back && isActivation(event))
        emit SystemInfo::instance()->backToLoginMsg();
    return QWidget::eventFilter(watched, event);
}

void AccountNotice::retranslate()
{
    ui_->retranslateUi(this);
    const bool registers = purpose_ == Register;
    ui_->label_title->setText(registers ? tr("Register") : tr("Reset Password"));
    ui_->label_question->setText(registers ? tr("Registered account?") : tr("Remember password?"));
}
