// SPDX-License-Identifier: GPL-3.0-or-later
#include "newuid.h"

#include "wire/limits.h"

#include <random>

std::string newUid()
{
    static const char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::random_device source("/dev/urandom");
    std::uniform_int_distribution<std::size_t> letter(0, sizeof letters - 2);
    std::string uid;
    while (uid.size() < uidBytes)
        uid += letters[letter(source)];
    return uid;
}
