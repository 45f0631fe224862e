// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/mainwindow.h"
#include "gate.h"
#include "store/localstore.h"
#include "walltest.h"

#include <QList>
#include <QRect>

class GlWidgetViewWindow;

// The program's window after a local login, on the screen, over the scripted layer and with settings
// of a new user. Lives within one test function.
//
//     FrameTest t;
//     Device* device = t.wall.addDevice(4);
//     QVERIFY(t.open());
//     click(t.part("label_icon_fullGl"));
class FrameTest final
{
public:
    FrameTest();

    // A record of the local list, whose devices the frame loads when it opens.
    static LocalDeviceRecord saveDevice(const QString& uid, int channelCount);

    [[nodiscard]] bool open(); // the login
    MainWindow* frame() const { return gate.window.mainWindow(); }
    template <typename Part = QWidget>
    Part* part(const char* name) const
    {
        return gate.part<Part>(name);
    }
    QLabel* label(const char* name) const { return part<QLabel>(name); }
    QWidget* center() const { return part("widget_center"); }
    QWidget* viewBox() const { return part("widget_viewBox"); }

    // Those that are shown, and the one that is: null for none or several.
    template <typename Popup>
    QList<Popup*> popups() const
    {
        QList<Popup*> shown;
        const auto all = center()->findChildren<Popup*>();
        for (Popup* popup : all) {
            if (popup->isVisible())
                shown.append(popup);
        }
        return shown;
    }
    template <typename Popup>
    Popup* popup() const
    {
        const auto shown = popups<Popup>();
        return shown.size() == 1 ? shown.first() : nullptr;
    }

    // In the order of their making.
    QList<GlWidgetViewWindow*> tiles() const;
    // Where the other one stands, in the coordinates of `room`.
    static QRect placeIn(const QWidget* room, const QWidget* part);
    // Whether `part` is centred on the wall, but for half a pixel.
    bool isCentred(const QWidget* part) const;

    WallTest wall;
    Gate gate;
};

// Whether a label has the room for its whole text.
bool hasRoom(const QLabel* label);
