// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/inicheck.h"
#include "testmain.h"

#include <QTemporaryDir>

class TestIniCheck final : public QObject
{
    Q_OBJECT

private slots:
    void tellsIntactFromDamaged_data();
    void tellsIntactFromDamaged();
    void whatQSettingsWritesIsIntact_data();
    void whatQSettingsWritesIsIntact();
    void prefixIsIntactOnlyAtTheEndOfAValue();
    void everyBinaryByteIsDamage();
    void bytesAbove127AreText();
    void changedByteNeverPassesWhatQSettingsRefuses();
    void longFilesAreTaken();

private:
    bool isReadByQSettings(const QByteArray& bytes);

    QTemporaryDir folder_;
    int files_ = 0;
};

namespace {

const char* const valid = "[General]\n"
                          "newpath=default\n"
                          "\n"
                          "; a comment\n"
                          "[login]\n"
                          "1\\username=ZFl6SlpWRVpwV1ZkU2RHRlhOV2hOVjBrOVl6ST1k\n"
                          "1\\isremember=true\n"
                          "size=1\n"
                          "[config]\n"
                          "devicechannel=\"[{\\\"dev\\\":\\\"A\\\",\\\"channel\\\":[0,1]}]\"\n"
                          "timeLength=30\n";

} // namespace

// A file of its own for each look, since QSettings keeps what it has read of a path.
bool TestIniCheck::isReadByQSettings(const QByteArray& bytes)
{
    const QString path = folder_.filePath(QString("%1.ini").arg(files_++));
    writeBytes(path, bytes);
    bool read = false;
    {
        const QSettings settings(path, QSettings::IniFormat);
        read = settings.status() == QSettings::NoError;
    }
    QFile::remove(path);
    return read;
}

void TestIniCheck::tellsIntactFromDamaged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("intact");
    const auto row = [](const char* name, const QByteArray& bytes, bool intact) {
        QTest::newRow(name) << bytes << intact;
    };

    row("empty", "", true);
    row("line breaks only", "\n\r\n\r", true);
    row("blanks only", " \t \n", true);
    row("serialised value", "newpath=@Variant(\\0\\0\\0\\x7f)\n", false);
    row("full file", valid, true);
    row("other line breaks", QByteArray(valid).replace("\n", "\r\n"), true);
    row("old line breaks", QByteArray(valid).replace("\n", "\r"), true);
    row("no last line break", QByteArray(valid).chopped(1), true);
    row("section only", "[login]", true);
    row("empty value", "a=", true);
    row("several equal signs", "a=b=c", true);
    row("indented lines", "  [a]\n\t b=1\n", true);
    row("comment", "; note\n", true);
    row("comment with one quote", "; it is \"open\na=1\n", true);
    row("quoted text over a line break", "a=\"one\ntwo\"\nb=1\n", true);
    row("quoted comment mark", "a=\"; no comment\"\n", true);
    row("quoted bracket", "a=\"[\"\n", true);
    row("escaped quote", "a=\\\"\n", true);
    row("escaped quote in quotes", "a=\"\\\"\"\nb=2\n", true);
    row("escaped line break", "a=1\\\n2\nb=3\n", true);
    row("escape at the end", "a=1\\", true);
    row("byte-order mark", "\xEF\xBB\xBF[a]\nb=1\n", true);
    row("byte-order mark alone", "\xEF\xBB\xBF", true);

    row("indented comment with one quote", "  ; it is \"open\na=1\n", true);
    row("number sign in a key", "# a=1\n", true);

    row("line that is a comment elsewhere", "# note\n", false);
    row("text behind a semicolon", "a=1;2\n", false);
    row("key cut by a semicolon", "si;ze=1\n", false);
    row("section cut by a semicolon", "[log;in]\n", false);
    row("text behind a section", "[login]size=1\n", false);
    row("word only", "hello", false);
    row("word between keys", "a=1\nhello\nb=2\n", false);
    row("half a section", "[login", false);
    row("half a section, then keys", "[login\na=1\n", false);
    row("half a key", "[login]\n1\\usern", false);
    row("open quotes", "a=\"one\ntwo\n", false);
    row("open quotes at the end", "a=\"", false);
    row("escaped quote does not close", "a=\"\\\"\n", false);
    row("zero byte", QByteArray("a=1\0b=2\n", 8), false);
    row("zero bytes only", QByteArray(4096, '\0'), false);
    row("escape byte", "a=\x1B[0m\n", false);
    row("text of another format", "{\"a\": 1}\n", false);
}

void TestIniCheck::tellsIntactFromDamaged()
{
    QFETCH(QByteArray, bytes);
    QTEST(isIntactIni(bytes), "intact");
}

void TestIniCheck::whatQSettingsWritesIsIntact_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "text";
    QTest::newRow("empty") << "";
    QTest::newRow("quotes") << "a \"b\" 'c'";
    QTest::newRow("line breaks") << "a\nb\r\nc\r";
    QTest::newRow("comment marks") << "; a # b";
    QTest::newRow("brackets and equal signs") << "[a]=b";
    QTest::newRow("backslashes") << "C:\\a\\";
    QTest::newRow("control characters") << QString("\x01\x1B\x7F") + QChar(0);
    QTest::newRow("commas") << "a, b,c";
    QTest::newRow("at sign") << "@Invalid()";
    QTest::newRow("emoji") << QString::fromUtf8("\xF0\x9F\x98\x80");
    QTest::newRow("long") << QString(100000, 'x');
}

void TestIniCheck::whatQSettingsWritesIsIntact()
{
    QFETCH(QString, text);
    const QString path = folder_.filePath("written.ini");
    QFile::remove(path);
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue("plain", text);
        settings.setValue("group/" + text + "x", text);
        settings.setValue("list", QStringList({text, text}));
        settings.setValue("bytes", text.toUtf8());
    }
    QVERIFY(isIntactIni(bytesOf(path)));
}

// What is cut inside a section or a key shows; what is cut inside a value outside quotes cannot.
void TestIniCheck::prefixIsIntactOnlyAtTheEndOfAValue()
{
    const QByteArray whole(valid);
    for (int length = 0; length <= whole.size(); ++length) {
        const QByteArray prefix = whole.left(length);
        const QByteArray last = prefix.mid(prefix.lastIndexOf('\n') + 1);
        const bool quoted = last.contains("=\"") && !last.endsWith("]\"");
        const bool comment = last.startsWith(';');
        const bool section = last.startsWith('[') && last.endsWith(']');
        const bool intact = last.isEmpty() || comment || section || (last.contains('=') && !quoted);
        QVERIFY2(isIntactIni(prefix) == intact, prefix.constData());
    }
}

void TestIniCheck::everyBinaryByteIsDamage()
{
    for (int code = 0; code < ' '; ++code) {
        const char c = static_cast<char>(code);
        const bool text = c == '\t' || c == '\n' || c == '\r';
        QCOMPARE(isIntactIni(QByteArray("a=") + c), text);
        QCOMPARE(isIntactIni(QByteArray(";") + c), text);
    }
}

void TestIniCheck::bytesAbove127AreText()
{
    for (int code = 128; code < 256; ++code)
        QVERIFY(isIntactIni(QByteArray("a=") + static_cast<char>(code)));
}

// A file that QSettings reads only in part would lose the rest when it is written. Every single
// byte of the file is taken out, and replaced by each character that has a meaning.
void TestIniCheck::changedByteNeverPassesWhatQSettingsRefuses()
{
    const QByteArray whole(valid);
    QList<QByteArray> changed;
    for (int at = 0; at < whole.size(); ++at) {
        changed.append(QByteArray(whole).remove(at, 1));
        for (const char c : {'"', '\\', ';', '#', '[', ']', '=', '\n', '\r', '\0', ' ', 'x'})
            changed.append(QByteArray(whole).replace(at, 1, &c, 1));
    }
    for (const QByteArray& bytes : qAsConst(changed)) {
        if (isIntactIni(bytes))
            QVERIFY2(isReadByQSettings(bytes), bytes.constData());
    }
}

void TestIniCheck::longFilesAreTaken()
{
    QVERIFY(isIntactIni(QByteArray("a=1\n").repeated(500000)));
    QVERIFY(isIntactIni(QByteArray("a=") + QByteArray(4000000, 'x')));
    QVERIFY(!isIntactIni(QByteArray("a=\"") + QByteArray(4000000, '\\')));
    QVERIFY(!isIntactIni(QByteArray(4000000, '"') + QByteArray("\"")));
}

ORVA_TEST(TestIniCheck)

#include "tst_inicheck.moc"
