// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame.h"

#include <algorithm>
#include <array>

namespace {

constexpr QSize screenSize(1920, 1080);
constexpr int headerHeight = 48;
constexpr QRect wallInFrame(240, 80, 840, 590);
constexpr int firstRowY = 136; // below header, panel's header and search
constexpr int titleHeight = 24;
constexpr int cardHeight = 120;

QPoint inMiddle(const QSize& window, int x, int y)
{
    return {(screenSize.width() - window.width()) / 2 + x,
        (screenSize.height() - window.height()) / 2 + y};
}

// As the wall divides itself: a tile is a pixel larger than its share, and may run past the edge.
QRect cell(const QRect& wall, int columns, int rows, int index)
{
    const QSize size(wall.width() / columns + 1, wall.height() / rows + 1);
    const QPoint corner(index % columns * size.width(), index / columns * size.height());
    return {wall.topLeft() + corner, size};
}

int titleY(int row)
{
    return firstRowY + row * titleHeight;
}

struct MenuEntry
{
    MenuRow row;
    bool ofDevice;
    bool ofChannel;
    bool afterRule;
};

constexpr std::array<MenuEntry, 14> menuEntries{{
    {MenuRow::PlayAll, true, false, false},
    {MenuRow::StopAll, true, false, false},
    {MenuRow::Play, false, true, false},
    {MenuRow::Stop, false, true, false},
    {MenuRow::Hd, false, true, true},
    {MenuRow::Sd, false, true, false},
    {MenuRow::AudioGet, false, true, true},
    {MenuRow::Mute, false, true, false},
    {MenuRow::SendVoice, false, true, false},
    {MenuRow::EditDevice, true, true, true},
    {MenuRow::ResetConnect, true, true, false},
    {MenuRow::RecordFolder, true, true, false},
    {MenuRow::ScreenshotFolder, true, true, false},
    {MenuRow::DeleteDevice, true, false, true},
}};

constexpr int menuRowHeight = 28;
constexpr int menuRuleHeight = 9;
constexpr int menuMargin = 4;

QPoint menuRow(MenuRow wanted, bool isDevice, int height, const QPoint& mouse)
{
    const int floor = onFrame(0, frameSize.height()).y();
    int y = std::min(mouse.y() + 3, floor - height) + menuMargin;
    for (const MenuEntry& entry : menuEntries) {
        if (!(isDevice ? entry.ofDevice : entry.ofChannel))
            continue;
        y += entry.afterRule ? menuRuleHeight : 0;
        if (entry.row == wanted)
            break;
        y += menuRowHeight;
    }
    constexpr int textX = 40;
    return {mouse.x() + textX, y + menuRowHeight / 2};
}

} // namespace

QPoint onGate(int x, int y)
{
    return inMiddle(gateSize, x, y);
}

QPoint onFrame(int x, int y)
{
    return inMiddle(frameSize, x, y);
}

QPoint localLoginKey()
{
    return onGate(610, 352);
}

QPoint closeKey()
{
    return onFrame(1058, headerHeight / 2);
}

QPoint layoutKey()
{
    return onFrame(1010, 695);
}

QPoint fullScreenKey()
{
    return onFrame(1050, 695);
}

QPoint nextPageKey()
{
    return {wallArea().right() - 15, wallArea().center().y()};
}

QPoint previousPageKey()
{
    return {wallArea().left() + 15, wallArea().center().y()};
}

QVector<QRect> hiddenAreas()
{
    constexpr QSize size(30, 94);
    QVector<QRect> areas{{{screenSize.width(), 0}, screenSize}};
    for (const QRect& wall : {wallArea(), QRect({}, screenSize)}) {
        const int y = wall.top() + (wall.height() - size.height()) / 2;
        areas.append({{wall.left(), y}, size});
        areas.append({{wall.right() + 1 - size.width(), y}, size});
    }
    return areas;
}

QRect wallArea()
{
    return {onFrame(wallInFrame.x(), wallInFrame.y()), wallInFrame.size()};
}

QRect tileArea(int columns, int rows, int index)
{
    return cell(wallArea(), columns, rows, index);
}

QRect fullTileArea(int columns, int rows, int index)
{
    return cell(QRect({}, screenSize), columns, rows, index);
}

QPoint foldKey(int row)
{
    return onFrame(15, titleY(row) + titleHeight / 2);
}

QPoint titlePlace(int row)
{
    return onFrame(80, titleY(row) + titleHeight / 2);
}

QRect nameArea(int row)
{
    return {onFrame(46, titleY(row)), QSize(150, titleHeight)};
}

QPoint cardPlace(int channel)
{
    return onFrame(130, titleY(1) + channel * cardHeight + cardHeight / 3);
}

QPoint layoutMenuKey(Layout layout)
{
    constexpr int inFirstRow = 7;
    constexpr int pitch = 27;
    const int number = static_cast<int>(layout);
    const int column = number % inFirstRow;
    const int row = number / inFirstRow;
    return onFrame(868 + 7 + 12 + column * pitch, 604 + 10 + 9 + row * 21);
}

QPoint deviceMenuRow(MenuRow row, const QPoint& mouse)
{
    constexpr int height = 2 * menuMargin + 7 * menuRowHeight + 2 * menuRuleHeight;
    return menuRow(row, true, height, mouse);
}

QPoint channelMenuRow(MenuRow row, const QPoint& mouse)
{
    constexpr int height = 2 * menuMargin + 11 * menuRowHeight + 3 * menuRuleHeight;
    return menuRow(row, false, height, mouse);
}
