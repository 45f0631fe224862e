// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/sessionmessage.h"
#include "wire/streamid.h"

#include <string>
#include <string_view>

// Passphrases for SRT, which derives its AES keys from them: 64 characters each, or empty when the
// cryptographic library fails. Both are PBKDF2 with HMAC-SHA-256 (RFC 8018, section 5.2).

// Of the connection of a session: derived from the UID, which is no secret. It keeps what travels
// there from being read in passing; nothing on that connection is confidential.
std::string sessionPassphrase(std::string_view uid);

// Of the AV channels of an account. Slow on purpose: tens of milliseconds.
std::string accountPassphrase(std::string_view uid, std::string_view account,
    std::string_view password, const Salt& salt, std::uint32_t rounds);

// From the system's source for keys. False when it gives none.
bool fillRandom(void* bytes, std::size_t count);

// Overwrites a secret before its memory is given back.
void wipe(std::string& secret);
