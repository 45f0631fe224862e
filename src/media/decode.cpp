// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/decode.h"

namespace {

Decode* theDecode = nullptr;

} // namespace

Decode* Decode::instance()
{
    if (theDecode == nullptr)
        new Decode; // stores itself
    return theDecode;
}

Decode::Decode()
{
    if (theDecode == nullptr)
        theDecode = this;
}

Decode::~Decode()
{
    if (theDecode == this)
        theDecode = nullptr;
}

void Decode::removeStream(Channel*, bool)
{
    // No stream is ever made, so none is left running.
}
