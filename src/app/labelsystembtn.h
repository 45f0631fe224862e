// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

// A window key of the header: minimise, maximise, close. Shows one picture, and another one while
// the mouse is over it or it has the keyboard focus. A checkable key keeps a state and shows a
// second pair of pictures while it is on. Main thread.
class LabelSystemBtn final : public QLabel
{
    Q_OBJECT

public:
    explicit LabelSystemBtn(QWidget* parent = nullptr);

    // Resource names; `name` without ".png", its hover picture is `name`-hover.
    void setPicture(const QString& name);
    void setCheckedPicture(const QString& name); // makes the key checkable
    bool isChecked() const { return checked_; }
    void setChecked(bool checked);

signals:
    void clickMsg(LabelSystemBtn* systemBtn);
    void toggleMsg(LabelSystemBtn* systemBtn, bool clickFlag);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void activate();
    void showPicture();

    QString picture_;
    QString checkedPicture_;
    bool checked_ = false;
    bool pressed_ = false;
};
