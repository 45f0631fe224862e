// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/scramble.h"
#include "testmain.h"

#include <QTest>

#include <cstdlib>
#include <ctime>

// The scrambled literals were made by hand from the rule, outside the program, with Python:
//     w = lambda s, t: base64.b64encode((s + t + s).encode("utf-8")).decode("ascii")
//     w(s1, w(s2, w(s3, text)))
// where s3, s2, s1 are the salts of 3, 2 and 1 characters that each row names.
class TestScramble final : public QObject
{
    Q_OBJECT

private slots:
    void handMadeTextsAreUnscrambled_data();
    void handMadeTextsAreUnscrambled();
    void scrambledTextComesBack_data();
    void scrambledTextComesBack();
    void resultIsTheRuleWithTheSaltsOfTheSecond();
    void saltsAreLowercaseLettersAndDigits();
    void twiceInOneSecondGivesTheSame();
    void anotherSecondGivesAnotherText();
    void charactersOutsideAsciiComeBackAsSingleBytes();
    void zeroByteEndsTheText();
    void garbageNeverFails_data();
    void garbageNeverFails();
    void everyPrefixIsTakenWithoutFailing();
    void bytesOutsideBase64AreSkipped();
    void tellsScrambledFromOtherTexts_data();
    void tellsScrambledFromOtherTexts();
    void noTruncatedTextPassesAsScrambled_data();
    void noTruncatedTextPassesAsScrambled();
};

namespace {

const char* const admin = "ZFl6SlpWRVpwV1ZkU2RHRlhOV2hOVjBrOVl6ST1k"; // a1b, c2, d

// The rule for a salt, from the C library's generator seeded with a second.
QByteArray saltOf(int length, std::time_t second)
{
    std::srand(static_cast<unsigned>(second));
    QByteArray salt;
    while (salt.size() < length) {
        if (std::rand() % 2 == 1)
            salt.append(static_cast<char>('a' + std::rand() % 26));
        else
            salt.append(static_cast<char>('0' + std::rand() % 10));
    }
    return salt;
}

QByteArray wrapped(const QByteArray& text, const QByteArray& salt)
{
    return (salt + text + salt).toBase64();
}

// Calls `make` until it has run within one second of the clock, and tells which.
template <typename Make>
std::time_t withinOneSecond(Make make)
{
    for (;;) {
        const std::time_t second = std::time(nullptr);
        make();
        if (std::time(nullptr) == second)
            return second;
    }
}

} // namespace

void TestScramble::handMadeTextsAreUnscrambled_data()
{
    QTest::addColumn<QString>("scrambled");
    QTest::addColumn<QString>("text");

    QTest::newRow("a1b c2 d") << admin << "admin";
    QTest::newRow("9zz 00 7") << "N01EQlBXSEEyV1ZkU2RHRlhORFZsYm04OU1EQT03"
                              << "admin";
    QTest::newRow("empty, abc de f") << "ZlpHVlpWMHBxV1ZkS2FtUmxm"
                                     << "";
    QTest::newRow("blank, q0w e1 r") << "clpURmpWRUl6U1VoRmQyUjNQVDFsTVE9PXI="
                                     << " ";
    QTest::newRow("x1y 2z 3")
        << "M01ucGxSRVkxVmtkb2JFbElSakZoVjA1eVNVZEtlV0l6WkhWSlIxcDJaVU5DY1dSWE1YZGplVUoyWkcxV2VVbE"
           "lVbTlhVTBKeldWaHdOVWxIVW5aYWVVRjNUVlJKZWs1RVZUSk9lbWMxWlVSR05USjYz"
        << "The quick brown fox jumps over the lazy dog 0123456789";
    QTest::newRow("punctuation, 000 00 0")
        << "ME1EQk5SRUYzWTBWQ2VtTjVPVE5MTTBwclVGTktZMDk1VFhkTlJFRTlNREE9MA=="
        << "p@ss/w+rd=\"\\;#";
    QTest::newRow("UID, k7m p4 z")
        << "emNEUmhlbVIwVVZWS1JGSkZWa2RTTUdoS1UycEJlRTFxVFRCT1ZGa3pUMFJzY2s0eU1EMXdOQT09eg=="
        << "ABCDEFGHIJ0123456789";
}

void TestScramble::handMadeTextsAreUnscrambled()
{
    QFETCH(QString, scrambled);
    QTEST(unscramble(scrambled), "text");
}

void TestScramble::scrambledTextComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " ";
    QTest::newRow("letters") << "Admin";
    QTest::newRow("Base64 marks") << "a+b/c==";
    QTest::newRow("quotes and line breaks") << "\"a\\\r\n\tb'";
    QTest::newRow("looks scrambled") << admin;
    QTest::newRow("10,000 characters") << QString(10000, 'x');
}

void TestScramble::scrambledTextComesBack()
{
    QFETCH(QString, text);
    const QString scrambled = scramble(text);
    QVERIFY(scrambled != text);
    QVERIFY(isScrambled(scrambled));
    QCOMPARE(unscramble(scrambled), text);
}

void TestScramble::resultIsTheRuleWithTheSaltsOfTheSecond()
{
    QString scrambled;
    const std::time_t second = withinOneSecond([&] { scrambled = scramble("secret"); });
    const QByteArray inner = wrapped("secret", saltOf(3, second));
    const QByteArray middle = wrapped(inner, saltOf(2, second));
    QCOMPARE(scrambled, QString::fromLatin1(wrapped(middle, saltOf(1, second))));
}

void TestScramble::saltsAreLowercaseLettersAndDigits()
{
    const auto isSalt = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); };
    const QByteArray outer = QByteArray::fromBase64(scramble("text").toLatin1());
    QVERIFY(isSalt(outer.front()));
    QCOMPARE(outer.front(), outer.back());
}

void TestScramble::twiceInOneSecondGivesTheSame()
{
    QString first;
    QString second;
    withinOneSecond([&] {
        first = scramble("secret");
        second = scramble("secret");
    });
    QCOMPARE(first, second);
    QCOMPARE(unscramble(first), QString("secret"));
}

void TestScramble::anotherSecondGivesAnotherText()
{
    const QString first = scramble("secret");
    QString other;
    QTRY_VERIFY_WITH_TIMEOUT((other = scramble("secret")) != first, 5000);
    QCOMPARE(unscramble(first), QString("secret"));
    QCOMPARE(unscramble(other), QString("secret"));
}

// UTF-8 goes in, single bytes come out: each byte of the UTF-8 form is a character of its own.
void TestScramble::charactersOutsideAsciiComeBackAsSingleBytes()
{
    for (const char* utf8 : {"p\xC3\xA4ss", "\xE2\x82\xAC",
             "a\xF0\x9F\x98\x80"
             "b",
             "\xE5\xAF\x86\xE7\xA0\x81"})
        QCOMPARE(unscramble(scramble(QString::fromUtf8(utf8))), QString::fromLatin1(utf8));
    // salts abc, 12, z
    QCOMPARE(
        unscramble("ek1USlpWMHBxWTAxUGEyTXpUbWhaYlUwOU1UST16"), QString::fromLatin1("p\xC3\xA4ss"));
    QCOMPARE(unscramble("ek1USlpWMHBxV1daRFptMUpRbWxaVjBwcU1UST16"),
        QString::fromLatin1("a\xF0\x9F\x98\x80"
                            "b"));
}

void TestScramble::zeroByteEndsTheText()
{
    // "ab", a zero byte, "cd", and a zero byte in front of "cd"; salts abc, 12, z
    QCOMPARE(unscramble("ek1USlpWMHBxV1ZkSlFWa3lVbWhaYlUwOU1UST16"), QString("ab"));
    QCOMPARE(unscramble("ek1USlpWMHBxUVVkT2ExbFhTbW94TWc9PXo="), QString());
    const QString text = QString("ab") + QChar(0) + QString("cd");
    QCOMPARE(unscramble(scramble(text)), QString("ab"));
}

void TestScramble::garbageNeverFails_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("one character") << "a";
    QTest::newRow("no Base64") << "!!!! ????";
    QTest::newRow("padding only") << "====";
    QTest::newRow("one byte, too short for its salts") << "YQ==";
    QTest::newRow("two bytes, salts only") << "YWE=";
    QTest::newRow("zero bytes only") << "AAAAAAAAAAAA";
    QTest::newRow("non-ASCII") << QString::fromUtf8("\xE5\xAF\x86\xE7\xA0\x81");
    QTest::newRow("zero character") << QString(QChar(0));
    QTest::newRow("half a pair") << QString(QChar(0xD83D));
}

void TestScramble::garbageNeverFails()
{
    QFETCH(QString, text);
    QCOMPARE(unscramble(text), QString());
    QCOMPARE(isScrambled(text), false);
}

void TestScramble::everyPrefixIsTakenWithoutFailing()
{
    const QString whole(admin);
    for (int length = 0; length < whole.size(); ++length) {
        const QString prefix = whole.left(length);
        isScrambled(prefix);
        QVERIFY(unscramble(prefix).size() <= 5);
    }
}

void TestScramble::bytesOutsideBase64AreSkipped()
{
    QString broken(admin);
    broken.insert(7, "\r\n !");
    QCOMPARE(unscramble(broken), QString("admin"));
    QCOMPARE(isScrambled(broken), false);
}

void TestScramble::tellsScrambledFromOtherTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("scrambled");

    QTest::newRow("hand made") << admin << true;
    QTest::newRow("hand made, empty") << "ZlpHVlpWMHBxV1ZkS2FtUmxm" << true;
    QTest::newRow("hand made, umlaut") << "ek1USlpWMHBxWTAxUGEyTXpUbWhaYlUwOU1UST16" << true;
    QTest::newRow("twice scrambled") << scramble(admin) << true;
    QTest::newRow("one layer, abc") << "YWJjYWRtaW5hYmM=" << false;
    QTest::newRow("two layers, abc 12") << "MTJZV0pqWVdSdGFXNWhZbU09MTI=" << false;
    QTest::newRow("clear text") << "admin" << false;
    QTest::newRow("clear text of a Base64 length") << "password" << false;
    QTest::newRow("UID") << "ABCDEFGHIJ0123456789" << false;
    QTest::newRow("without its padding") << "clpURmpWRUl6U1VoRmQyUjNQVDFsTVE9PXI" << false;
    QTest::newRow("blank behind") << QString(admin) + " " << false;
    QTest::newRow("last character lost") << QString(admin).chopped(1) << false;
    QTest::newRow("first character lost") << QString(admin).mid(1) << false;
}

void TestScramble::tellsScrambledFromOtherTexts()
{
    QFETCH(QString, text);
    QTEST(isScrambled(text), "scrambled");
}

void TestScramble::noTruncatedTextPassesAsScrambled_data()
{
    handMadeTextsAreUnscrambled_data();
}

// Such a text would otherwise be read as a shorter one, and written back as that.
void TestScramble::noTruncatedTextPassesAsScrambled()
{
    QFETCH(QString, scrambled);
    for (int length = 0; length < scrambled.size(); ++length)
        QVERIFY2(!isScrambled(scrambled.left(length)), qPrintable(scrambled.left(length)));
}

ORVA_TEST(TestScramble)

#include "tst_scramble.moc"
