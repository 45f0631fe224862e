// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui {
class MainWindow;
}

class DebugRecord;
class LabelSystemBtn;
class WindowLogin;

// The working frame after the login, inside the one top-level window of the program: header with
// logo, user and window keys, and the stage below it. Moving, minimising and maximising are asked
// of the top-level window. Main thread.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent);
    ~MainWindow() override;

    void setWindowLogin(WindowLogin* window) { windowLogin_ = window; }
    // A number of the brand table; the constructor takes 0.
    void setBrand(int number);
    // Shows the frame and lays it out.
    void showWindow();

signals:
    void moveMsg(QPoint movePoint);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void minimize(LabelSystemBtn* systemBtn);
    void fullscreen(LabelSystemBtn* systemBtn, bool clickFlag);
    int close(LabelSystemBtn* systemBtn);
    void toggleDebugRecord();

private:
    void retranslate();
    void nameFullscreenKey();
    void placeDebugPanel();

    const std::unique_ptr<Ui::MainWindow> ui_;
    WindowLogin* windowLogin_ = nullptr;
    DebugRecord* debugRecord_ = nullptr; // built when it is first opened, then kept
    int brand_ = 0;
};
