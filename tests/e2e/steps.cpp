// SPDX-License-Identifier: GPL-3.0-or-later
#include "steps.h"

#include "hands.h"
#include "screen.h"

#include <QTest>

namespace {

// The dark strip below the picture of the first card.
bool hasCards()
{
    constexpr QColor strip(0x0A, 0x0D, 0x12);
    constexpr QPoint toStrip(60, 56);
    return pointsOf(strip, {cardPlace(0) + toStrip, QSize(4, 4)}, 8) > 0;
}

// Left of the entry's text and of its neighbours'.
bool hasMenu(const QPoint& entry)
{
    constexpr QColor plate(0x21, 0x29, 0x36);
    return pointsOf(plate, {entry - QPoint(38, 56), QSize(4, 112)}) > 100;
}

bool chooseEntry(const QPoint& mouse, const QPoint& entry)
{
    rightClick(mouse);
    if (!QTest::qWaitFor([&] { return hasMenu(entry); }))
        return false;
    click(entry);
    return QTest::qWaitFor([&] { return !hasMenu(entry); });
}

bool hasLayoutMenu()
{
    constexpr QColor open(0x64, 0x95, 0xED);
    QRect key(0, 0, 36, 36);
    key.moveCenter(layoutKey());
    return pointsOf(open, key, 10) > 10;
}

// Off the keys, or the hint of one would cover pictures.
void rest()
{
    moveMouse(onFrame(600, 65));
}

} // namespace

bool unfoldFirstDevice()
{
    click(foldKey(0));
    return QTest::qWaitFor([] { return hasCards(); });
}

bool playCards(int count)
{
    if (!unfoldFirstDevice())
        return false;
    for (int i = 0; i < count; ++i)
        doubleClick(cardPlace(i));
    return true;
}

bool chooseOnDevice(int row, MenuRow entry)
{
    return chooseEntry(titlePlace(row), deviceMenuRow(entry, titlePlace(row)));
}

bool chooseOnCard(int channel, MenuRow entry)
{
    return chooseEntry(cardPlace(channel), channelMenuRow(entry, cardPlace(channel)));
}

bool chooseLayout(Layout layout)
{
    click(layoutKey());
    if (!QTest::qWaitFor([] { return hasLayoutMenu(); }))
        return false;
    click(layoutMenuKey(layout));
    rest();
    return QTest::qWaitFor([] { return !hasLayoutMenu(); });
}

void turnToNextPage()
{
    click(nextPageKey());
    rest();
}

void turnToPreviousPage()
{
    click(previousPageKey());
    rest();
}
