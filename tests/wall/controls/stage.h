// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "wall/labelfullscreen.h"
#include "wall/labelrecordbtn.h"
#include "wall/labelshotbtn.h"
#include "wall/labelwinbtn.h"
#include "wall/labelwindownumbtn.h"
#include "wall/pagebtn.h"
#include "wall/widgetbtn.h"
#include "wall/widgetbtnlive.h"
#include "wall/windownummenu.h"
#include "walltest.h"

#include <QImage>
#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QRegion>

class QVBoxLayout;

// A window with a wall like the program's: mode switch in the header, a column for cards at the left,
// name bar, wall and control bar, the place of the timeline in playback. It does with the signals of
// the keys what a main window does. Lives within one test function, shorter than `wall`.
//
//     WallTest wall;
//     Stage stage(wall);
//     QVERIFY(stage.open());
//     click(stage.layoutKey);
//     click(stage.menuKey("label_sc5"));
//     QTRY_COMPARE(stage.look(), QString());
class Stage final : public QWidget
{
    Q_OBJECT

public:
    explicit Stage(WallTest& wall, QSize size = QSize(1080, 720));

    // Puts it on the screen, with its tiles.
    [[nodiscard]] bool open();
    void addCards(Device* device, int most = 5);
    void setTexts(); // of the current language

    // What a decode task does with a picture of one colour, and then tells. Only channels that play
    // show it.
    void decode(Channel* channel, Yuv colour);
    // All pictures once more: the streams run on.
    void decodeAll();
    void forgetAll() { pictures_.clear(); }

    GlWidgetViewWindow* tile(int number) const;
    LabelWinBtn* menuKey(const char* name) const; // the menu is open
    QImage screen() const;

    // What is wrong on the wall, in words, as it stands on the screen: places, frames, pictures,
    // backgrounds. Empty where all is right. What stands over the tiles is left out.
    QString look() const;
    // Saves what is on the screen where the environment names a folder for it, ORVA_SCREENSHOTS.
    void save(const QString& name) const { saveShot(screen(), name); }
    static void saveShot(const QImage& image, const QString& name);

    WidgetBtnLive* liveKey;
    WidgetBtnLive* playbackKey;
    QVBoxLayout* cards;
    WidgetBtn* videoView; // name bar and wall
    QWidget* viewBox; // the wall
    LabelShotBtn* shotKey;
    LabelRecordBtn* recordKey;
    LabelWindowNumBtn* layoutKey;
    LabelFullScreen* fullKey;
    PageBtn* leftPage = nullptr;
    PageBtn* rightPage = nullptr;
    QPointer<WindowNumMenu> menu;
    QLabel* pageLabel;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildHeader(QVBoxLayout* layout);
    void buildColumn(QLayout* layout);
    void buildVideoView(QVBoxLayout* layout);
    void buildControlBar(QVBoxLayout* layout);
    void connectKeys();
    void toggleMenu();
    void selectWindowMod(WINDOW_MOD mod);
    void showMode(bool isLive);
    void showFull(bool isFull);
    void raiseKeys();

    QRegion covered() const; // of the wall, in this window
    bool showsPicture(int number) const;
    QString lookAtTile(const QImage& screen, int number) const;
    QString lookAtInner(const QImage& screen, int number, const QRegion& seen) const;

    WallTest& wall_;
    QWidget* header_ = nullptr;
    QWidget* column_ = nullptr;
    QWidget* nameBar_ = nullptr;
    QWidget* controlBar_ = nullptr;
    QWidget* timeline_ = nullptr;
    QMap<Channel*, Yuv> pictures_;
};
