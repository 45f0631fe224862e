// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/channelwindow.h"
#include "walltest.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

class QLabel;

// What the form of a card names.
struct CardParts
{
    explicit CardParts(const ChannelWindow& card);

    QWidget* frame = nullptr;
    QLabel* image = nullptr;
    QWidget* strip = nullptr;
    QLabel* name = nullptr;
    QLabel* dot = nullptr;
};

// Lets pictures of channels lie in a folder of this process. To be called before the first card.
void keepPicturesApart();
// A file of one colour.
void savePicture(const QString& path, const QColor& colour, QSize size = QSize(96, 54));

// A connected device of two channels, one that is not connected, and a card that is the first
// channel's, which is a window where it is shown. Lives within one test function.
class CardTest final
{
public:
    CardTest();

    [[nodiscard]] bool show();
    CardParts parts() const { return CardParts(card); }
    Channel* channel(int number = 0) const { return device->channel(number); }
    QImage painted() { return card.grab().toImage(); }
    // What the name is painted with.
    QColor nameColour() const;
    QColor nameGround() const;

    WallTest wall;
    Device* device;
    Device* other;
    ChannelWindow card;
};
