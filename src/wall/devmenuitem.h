// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

// A row of the menu on a device or channel: a text, and before it a point where it is the state that
// holds. Main thread.
class DevMenuItem final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit DevMenuItem(QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);
    bool isMarked() const;
    void setMarked(bool marked);

signals:
    void clicked(DevMenuItem* item);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void highlight(bool isOn);

    QLabel* mark_ = nullptr;
    QLabel* text_ = nullptr;
};
