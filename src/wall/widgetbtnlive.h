// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

// One segment of the mode switch: "Live" or "Playback", with its icon. Its text and picture are set
// by the form, as properties. Main thread.
class WidgetBtnLive final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString picture READ picture WRITE setPicture)

public:
    explicit WidgetBtnLive(QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);
    QString picture() const { return picture_; }
    void setPicture(const QString& name); // in the resources, without ".png"

    bool isSelected() const { return isSelected_; }
    void setSelected(bool selected);

signals:
    void clicked(WidgetBtnLive* button);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* text_ = nullptr; // the first child
    QLabel* icon_ = nullptr;
    QString picture_;
    bool isSelected_ = false;
};
