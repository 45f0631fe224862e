// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"

namespace {

Dev* theDev = nullptr;

} // namespace

Dev* Dev::instance()
{
    if (theDev == nullptr)
        new Dev; // stores itself
    return theDev;
}

Dev::Dev()
{
    if (theDev == nullptr)
        theDev = this;
}

Dev::~Dev()
{
    if (theDev == this)
        theDev = nullptr;
}
