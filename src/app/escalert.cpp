// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/escalert.h"

#include "ui_escalert.h"

EscAlert::EscAlert(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::EscAlert>())
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    adjustSize();
}

EscAlert::~EscAlert() = default;
