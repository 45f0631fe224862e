// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/keys.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <array>

namespace {

// The session key protects no secret, so its rounds only have to be the same on both ends.
constexpr int sessionRounds = 1000;

std::string passphrase(const std::string& secret, const std::string& salt, int rounds)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::array<unsigned char, 32> key{};
    if (PKCS5_PBKDF2_HMAC(secret.data(), static_cast<int>(secret.size()),
            reinterpret_cast<const unsigned char*>(salt.data()), static_cast<int>(salt.size()),
            rounds, EVP_sha256(), static_cast<int>(key.size()), key.data())
        != 1)
        return {};
    std::string text;
    text.reserve(2 * key.size());
    for (const unsigned char byte : key) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 15]);
    }
    OPENSSL_cleanse(key.data(), key.size());
    return text;
}

// With their lengths before them, so that no two pairs make one text.
void append(std::string& out, std::string_view part)
{
    out += std::to_string(part.size());
    out.push_back(':');
    out += part;
}

} // namespace

std::string sessionPassphrase(std::string_view uid)
{
    return passphrase(std::string(uid), "ORVA session 1", sessionRounds);
}

std::string accountPassphrase(std::string_view uid, std::string_view account,
    std::string_view password, const Salt& salt, std::uint32_t rounds)
{
    std::string secret;
    append(secret, account);
    append(secret, password);
    std::string salting = "ORVA account 1";
    append(salting, uid);
    salting.append(salt.begin(), salt.end());
    std::string key = passphrase(secret, salting, static_cast<int>(rounds));
    wipe(secret);
    return key;
}

bool fillRandom(void* bytes, std::size_t count)
{
    return RAND_bytes(static_cast<unsigned char*>(bytes), static_cast<int>(count)) == 1;
}

void wipe(std::string& secret)
{
    OPENSSL_cleanse(secret.data(), secret.size());
    secret.clear();
}
