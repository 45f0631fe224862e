// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/widgetbtnlive.h"

#include "app/activation.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr char selectedStyle[] = "WidgetBtnLive{background:#6495ED;border-radius:4px}"
                                 "WidgetBtnLive:focus{border:2px solid #EEF2F7}";
constexpr char selectedTextStyle[] = "color:#0F1A2E;font-weight:600";
constexpr char normalStyle[] = "WidgetBtnLive{background:transparent;border-radius:4px}"
                               "WidgetBtnLive:hover{background:rgba(255,255,255,0.10)}"
                               "WidgetBtnLive:focus{border:2px solid #6495ED}";
constexpr char normalTextStyle[] = "color:#EEF2F7;font-weight:600";
constexpr char disabledTextStyle[] = "color:#8592A4;font-weight:600";

} // namespace

WidgetBtnLive::WidgetBtnLive(QWidget* parent)
    : QWidget(parent)
    , text_(new QLabel(this))
    , icon_(new QLabel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    text_->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 14, 0);
    layout->setSpacing(8);
    layout->addWidget(icon_);
    layout->addWidget(text_);
    setSelected(false);
}

QString WidgetBtnLive::text() const
{
    return text_->text();
}

void WidgetBtnLive::setText(const QString& text)
{
    text_->setText(text);
    setAccessibleName(text);
}

void WidgetBtnLive::setPicture(const QString& name)
{
    picture_ = name;
    setSelected(isSelected_);
}

void WidgetBtnLive::setSelected(bool selected)
{
    isSelected_ = selected;
    setStyleSheet(QLatin1String(selected ? selectedStyle : normalStyle));
    const char* unselected = isEnabled() ? normalTextStyle : disabledTextStyle;
    text_->setStyleSheet(QLatin1String(selected ? selectedTextStyle : unselected));
    icon_->setPixmap(QPixmap(picture_ + QLatin1String(selected ? "-on.png" : ".png")));
}

void WidgetBtnLive::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange)
        setSelected(isSelected_);
    QWidget::changeEvent(event);
}

void WidgetBtnLive::mousePressEvent(QMouseEvent* event)
{
    if (isActivation(event))
        emit clicked(this);
}

void WidgetBtnLive::keyPressEvent(QKeyEvent* event)
{
    if (isActivation(event))
        emit clicked(this);
    else
        QWidget::keyPressEvent(event);
}
