// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frame.h"

// What takes a user several movements, with a look in between. False where the screen does not follow.

bool unfoldFirstDevice();
// The first `count` cards of the first device, unfolded by it.
bool playCards(int count);
bool chooseOnDevice(int row, MenuRow entry);
// On a card of the first device, unfolded.
bool chooseOnCard(int channel, MenuRow entry);
bool chooseLayout(Layout layout);
void turnToNextPage();
void turnToPreviousPage();
