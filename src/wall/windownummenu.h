// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/viewcontrol.h"

#include <QWidget>

#include <memory>

namespace Ui {
class WindowNumMenu;
}

// The popup of layouts: twelve in live view, three in playback. It stands at the bottom right of its
// parent, over the key that opens it. Main thread.
class WindowNumMenu final : public QWidget
{
    Q_OBJECT

public:
    explicit WindowNumMenu(QWidget* parent);
    ~WindowNumMenu() override;

    using QWidget::resize;

signals:
    void clickWindowMod(ViewControl::WINDOW_MOD windowMod);

public slots:
    void resize();
    void changeMod(bool isLive);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const std::unique_ptr<Ui::WindowNumMenu> ui_;
};
