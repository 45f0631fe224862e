// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wire/keys.h"

#include <QTest>

#include <set>

namespace {

const std::string uid = "ABCDEFGHIJ0123456789";
constexpr std::uint32_t rounds = minKeyRounds;
constexpr Salt salt{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

} // namespace

class TestKeys final : public QObject
{
    Q_OBJECT

private slots:
    // The keys are those of Python's hashlib.pbkdf2_hmac("sha256", ...).
    void sessionKeyIsTheStandardsOne()
    {
        QVERIFY(sessionPassphrase(uid)
            == "14c3a50a4842f800a63a84536f1abc8efa16ee9046d3a12e18083e346b9dd00c");
    }

    void accountKeyIsTheStandardsOne()
    {
        QVERIFY(accountPassphrase(uid, "admin", "pass word", salt, rounds)
            == "5b400baeda76584d4ee34cae1f462c6e05345a58fd2bacd4cf5dfaa63941caf9");
    }

    void emptyAccountHasAKeyToo()
    {
        QVERIFY(accountPassphrase(uid, {}, {}, Salt{}, rounds)
            == "bdd5c2d1608363d938965c43c79cc748d190dce114d41642f857aedbc214cf56");
    }

    void sameInputIsTheSameKey()
    {
        QVERIFY(accountPassphrase(uid, "admin", "secret", salt, rounds)
            == accountPassphrase(uid, "admin", "secret", salt, rounds));
    }

    void anyOtherInputIsAnotherKey()
    {
        Salt otherSalt = salt;
        otherSalt.back() ^= 1;
        const std::set<std::string> keys{
            sessionPassphrase(uid),
            sessionPassphrase("ABCDEFGHIJ0123456780"),
            accountPassphrase(uid, "admin", "secret", salt, rounds),
            accountPassphrase("ABCDEFGHIJ0123456780", "admin", "secret", salt, rounds),
            accountPassphrase(uid, "Admin", "secret", salt, rounds),
            accountPassphrase(uid, "admin", "secret ", salt, rounds),
            accountPassphrase(uid, "admin", "", salt, rounds),
            accountPassphrase(uid, "admin", "secret", otherSalt, rounds),
            accountPassphrase(uid, "admin", "secret", salt, rounds + 1),
        };
        QCOMPARE(keys.size(), std::size_t{9});
    }

    void whereTheAccountEndsMatters()
    {
        using namespace std::string_view_literals;
        const std::set<std::string> keys{
            accountPassphrase(uid, "ab", "c", salt, rounds),
            accountPassphrase(uid, "a", "bc", salt, rounds),
            accountPassphrase(uid, "", "abc", salt, rounds),
            accountPassphrase(uid, "abc", "", salt, rounds),
            accountPassphrase(uid, "a1:", "b", salt, rounds),
            accountPassphrase(uid, "a", "1:b", salt, rounds),
            accountPassphrase(uid, "a\0"sv, "b", salt, rounds),
            accountPassphrase(uid, "a", "\0b"sv, salt, rounds),
        };
        QCOMPARE(keys.size(), std::size_t{8});
    }

    void randomBytesAreNotTheSameTwice()
    {
        Salt first{};
        Salt second{};
        QVERIFY(fillRandom(first.data(), first.size()));
        QVERIFY(fillRandom(second.data(), second.size()));
        QVERIFY(first != second && first != Salt{});
    }

    void wipedSecretIsGone()
    {
        std::string secret = "a secret";
        wipe(secret);
        QVERIFY(secret.empty());
        // It fits within the text object, so the bytes may be looked at behind its end.
        const auto* bytes = reinterpret_cast<const char*>(&secret);
        QVERIFY(
            std::string_view(bytes, sizeof(std::string)).find("secret") == std::string_view::npos);
    }
};

ORVA_TEST(TestKeys)
#include "tst_keys.moc"
