// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/audio.h"

Audio::Audio(QObject* parent)
    : QObject(parent)
{
}

void Audio::pushPacket(PacketPtr)
{
    // Without a decoder and an output the frame ends here.
}
