// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/scramble.h"

#include <QByteArray>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <optional>

namespace {

constexpr int innerSalt = 3;
constexpr int middleSalt = 2;
constexpr int outerSalt = 1;

QString randomSalt(int length)
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    QString salt;
    salt.reserve(length);
    for (int i = 0; i < length; ++i) {
        const bool letter = std::rand() % 2 == 1;
        const int code = letter ? 'a' + std::rand() % 26 : '0' + std::rand() % 10;
        salt.append(QLatin1Char(static_cast<char>(code)));
    }
    return salt;
}

QString wrap(const QString& text, int saltLength)
{
    const QString salt = randomSalt(saltLength);
    return QString::fromLatin1((salt + text + salt).toUtf8().toBase64());
}

QString withoutSalts(const QByteArray& bytes, int saltLength)
{
    const QByteArray text = bytes.mid(saltLength, std::max(0, bytes.size() - 2 * saltLength));
    return QString::fromLatin1(text.constData()); // up to the first zero byte
}

QString unwrap(const QString& text, int saltLength)
{
    return withoutSalts(QByteArray::fromBase64(text.toUtf8()), saltLength);
}

std::optional<QString> unwrapStrictly(const QString& text, int saltLength)
{
    const QByteArray encoded = text.toUtf8();
    const QByteArray decoded = QByteArray::fromBase64(encoded);
    // Clean Base64, and the same salt at both ends: a text that was cut off anywhere fails.
    if (decoded.toBase64() != encoded || decoded.size() < 2 * saltLength
        || decoded.left(saltLength) != decoded.right(saltLength))
        return std::nullopt;
    return withoutSalts(decoded, saltLength);
}

} // namespace

QString scramble(const QString& text)
{
    return wrap(wrap(wrap(text, innerSalt), middleSalt), outerSalt);
}

QString unscramble(const QString& scrambled)
{
    return unwrap(unwrap(unwrap(scrambled, outerSalt), middleSalt), innerSalt);
}

bool isScrambled(const QString& text)
{
    const auto middle = unwrapStrictly(text, outerSalt);
    const auto inner = middle ? unwrapStrictly(*middle, middleSalt) : std::nullopt;
    return inner && unwrapStrictly(*inner, innerSalt);
}
