// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

// Every text of the program has a translation in every language, with the placeholders and the
// outer blanks of its source.
class TestTranslations final : public QObject
{
    Q_OBJECT

private slots:
    void everyTextOfTheSourcesIsInEveryFile_data() { languages(); }
    void everyTextOfTheSourcesIsInEveryFile();
    void everyTextIsTranslated_data() { languages(); }
    void everyTextIsTranslated();
    void placeholdersAreKept_data() { languages(); }
    void placeholdersAreKept();
    void outerBlanksAreKept_data() { languages(); }
    void outerBlanksAreKept();
    void compiledTextsAreThoseOfTheFile_data() { languages(); }
    void compiledTextsAreThoseOfTheFile();
    void englishTextsAreTheSources();

private:
    static void languages();
};

namespace {

struct Text
{
    QString context;
    QString source;
    QString translation;
    bool finished = false;
};

QString pathOf(const QString& language)
{
    return QStringLiteral(ORVA_SOURCE_DIR "/resources/translations/app_%1.ts").arg(language);
}

Text readMessage(QXmlStreamReader& xml, const QString& context)
{
    Text text;
    text.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.finished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            text.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

void readContext(QXmlStreamReader& xml, QList<Text>& texts)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts.append(readMessage(xml, context));
        else
            xml.skipCurrentElement();
    }
}

QList<Text> textsOf(const QString& path)
{
    QFile file(path);
    QList<Text> texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    if (xml.readNextStartElement()) {
        while (xml.readNextStartElement())
            readContext(xml, texts);
    }
    return xml.hasError() ? QList<Text>() : texts;
}

QStringList keysOf(const QList<Text>& texts)
{
    QStringList keys;
    for (const Text& text : texts)
        keys.append(text.context + QLatin1Char('|') + text.source);
    keys.sort();
    return keys;
}

// What the translation tools find in the sources and forms now.
QStringList keysOfTheSources()
{
    static const QStringList keys = [] {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("now.ts"));
        const QString source = QStringLiteral(ORVA_SOURCE_DIR);
        QProcess lupdate;
        lupdate.start(QStringLiteral(ORVA_LUPDATE),
            {"-silent", "-locations", "none", source + "/src", source + "/forms", "-ts", path});
        lupdate.waitForFinished(120000);
        return keysOf(textsOf(path));
    }();
    return keys;
}

// "%1", "%n", "%s" and the like, sorted.
QStringList placeholdersOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("%(L?\\d+|n|[a-z])"));
    QStringList found;
    auto matches = form.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

QString leadingBlanks(const QString& text)
{
    int count = 0;
    while (count < text.size() && text.at(count).isSpace())
        ++count;
    return text.left(count);
}

QString trailingBlanks(const QString& text)
{
    int count = 0;
    while (count < text.size() && text.at(text.size() - 1 - count).isSpace())
        ++count;
    return text.right(count);
}

} // namespace

void TestTranslations::languages()
{
    QTest::addColumn<QString>("language");
    for (const char* name : {"en_US", "zh_CN", "zh_HK", "fr", "it", "nl", "es", "ru", "de", "ja"})
        QTest::newRow(name) << QString(name);
}

void TestTranslations::everyTextOfTheSourcesIsInEveryFile()
{
    QFETCH(QString, language);
    QVERIFY(keysOfTheSources().size() > 200);
    const QStringList keys = keysOf(textsOf(pathOf(language)));
    for (const QString& key : keysOfTheSources())
        QVERIFY2(keys.contains(key), qUtf8Printable("missing, run update-translations: " + key));
    for (const QString& key : keys)
        QVERIFY2(keysOfTheSources().contains(key), qUtf8Printable("of no source any more: " + key));
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, language);
    for (const Text& text : textsOf(pathOf(language)))
        QVERIFY2(
            text.finished && !text.translation.trimmed().isEmpty(), qUtf8Printable(text.source));
}

void TestTranslations::placeholdersAreKept()
{
    QFETCH(QString, language);
    for (const Text& text : textsOf(pathOf(language)))
        QVERIFY2(placeholdersOf(text.translation) == placeholdersOf(text.source),
            qUtf8Printable(text.source));
}

void TestTranslations::outerBlanksAreKept()
{
    QFETCH(QString, language);
    for (const Text& text : textsOf(pathOf(language))) {
        QVERIFY2(leadingBlanks(text.translation) == leadingBlanks(text.source),
            qUtf8Printable(text.source));
        QVERIFY2(trailingBlanks(text.translation) == trailingBlanks(text.source),
            qUtf8Printable(text.source));
    }
}

void TestTranslations::compiledTextsAreThoseOfTheFile()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/language/language/app_%1.qm").arg(language)));
    for (const Text& text : textsOf(pathOf(language)))
        QCOMPARE(translator.translate(qUtf8Printable(text.context), qUtf8Printable(text.source)),
            text.translation);
}

void TestTranslations::englishTextsAreTheSources()
{
    for (const Text& text : textsOf(pathOf(QStringLiteral("en_US"))))
        QCOMPARE(text.translation, text.source);
}

ORVA_TEST(TestTranslations)
#include "tst_translations.moc"
