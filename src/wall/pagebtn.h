// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// Turns the page of the wall, which is its parent: stands at the middle of the left or the right edge,
// and is faint where there is no page that way. Main thread.
class PageBtn final : public QWidget
{
    Q_OBJECT

public:
    // 0: the left one, to the previous page; 1: the right one, to the next.
    PageBtn(int direction, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();
    void turn();
    void showHint();
    bool hasPage() const;

    const int direction_;
};
