// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/viewcontrol.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <vector>

namespace Ui {
class MainWindow;
}

class Alert;
class DebugRecord;
class DelAlert;
class DevMenu;
class EscAlert;
class LabelFoldBtn;
class LabelSystemBtn;
class MenuDevList;
class PageBtn;
class ReopenAlert;
class ScreenShotAlert;
class WidgetBtnLive;
class WindowLogin;
class WindowNumMenu;

// The working frame after the login, inside the one top-level window of the program: header, left
// column of folding panels, the wall with its name bar and control bar. It builds the panels, opens and
// closes every popup and alert, and carries out full screen and mode changes; what stands on the wall
// is ViewControl's. Moving, minimising and maximising are asked of the top-level window. Main thread.
//
// A popup's pointer is null while it is closed; each open one first takes away the one before.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent);
    ~MainWindow() override;

    void setWindowLogin(WindowLogin* window); // the top-level window; closing it ends the program
    // A number of the brand table; the constructor takes 0.
    void setBrand(int number);
    // Shows the frame, lays it out, and has the devices loaded.
    void showWindow();

signals:
    void moveMsg(QPoint movePoint);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void minimize(LabelSystemBtn* systemBtn);
    void fullscreen(LabelSystemBtn* systemBtn, bool clickFlag);
    int close(LabelSystemBtn* systemBtn);
    void clickFold(LabelFoldBtn* foldBtn, bool foldFlag);
    void changeMod(WidgetBtnLive* modBtn);
    void changeMod(bool isLive);
    void selectedDev(Device* dev);
    void speedChange(PLAY_SPEED speed);
    void speedBackChange(PLAY_SPEED speed);
    void loadPage(int page, int total);
    void showWindowNumMenu();
    void selectWindowMod(ViewControl::WINDOW_MOD windowMod);
    void openedSubWindowMenu(Device* dev, Channel* channel, QMouseEvent* event);
    void closedSubWindowMenu(QMouseEvent* event);
    void closeMenu();
    void openAlert(Channel* channel, int error, const QString& errorMsg);
    void openAlert(int error, const QString& errorMsg);
    void closeAlert();
    void openDelAlert(Device* dev);
    void closeDelAlert();
    void openReopenAlert();
    void closeReopenAlert();
    void screenshotAlert(Channel* channel, bool isPlaceholder, const QString& path);
    void closeScreenShotAlert();
    void getDevFinish(int count);
    void fullGL(bool isFull);
    void pressEsc();
    void hideEscAlert();
    void riseWidget();
    void valueChanged(int value);
    void toggleDebugRecord();

private:
    // A folding panel of the left column.
    struct Panel
    {
        QWidget* header;
        LabelFoldBtn* fold;
        QWidget* body;
    };

    void buildPanels();
    void connectHeader();
    void connectWall();
    void connectFailures();
    void layOut();
    void sizePanels();
    void placePopups();
    template <class Popup>
    void closePopup(QPointer<Popup>& popup);
    void centreOnWall(QWidget* popup) const;
    void moveClear(QWidget* hint) const;
    void showPopup(QWidget* popup);
    void openEscAlert();
    void retranslate();
    void nameFullscreenKey();
    void placeDebugPanel();

    const std::unique_ptr<Ui::MainWindow> ui_;
    WindowLogin* windowLogin_ = nullptr;
    DebugRecord* debugRecord_ = nullptr; // built when it is first opened, then kept
    MenuDevList* menuDevList_ = nullptr;
    std::vector<Panel> panels_;
    std::vector<PageBtn*> pageBtns_;

    QPointer<WindowNumMenu> windowNumMenu_;
    QPointer<DevMenu> devMenu_;
    QPointer<Alert> alert_;
    QPointer<DelAlert> delAlert_;
    QPointer<EscAlert> escAlert_;
    QPointer<ReopenAlert> reopenAlert_;
    QPointer<ScreenShotAlert> screenShotAlert_;

    QTimer escTimer_{this}; // ends the hint how to leave the full screen
    int brand_ = 0;
    bool isFull_ = false; // the wall has the whole screen
    bool isOfferMade_ = false; // to open the channels of the last time
};
