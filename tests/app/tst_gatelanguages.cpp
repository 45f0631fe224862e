// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/mainwindow.h"
#include "gate.h"
#include "testmain.h"

#include <QAbstractButton>

class TestGateLanguages final : public QObject
{
    Q_OBJECT

private slots:
    void init() { clearSettings(); }

    void everyLanguageNamesItselfWithoutBrackets_data();
    void everyLanguageNamesItselfWithoutBrackets();
    void spanishAndRussianLeaveTheLocale();
    void choosingALanguageRetranslatesTheGate();
    void noTextIsCut_data();
    void noTextIsCut();
    void mainFrameFollowsTheLanguage();
};

namespace {

void allLanguages()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("nativeName");
    const char* const names[] = {"English", "中文简体", "中文繁體", "Français", "Italiano",
        "Nederlands", "Español", "русский", "Deutsch", "日本語"};
    for (int i = 0; i < SystemInfo::languageCount; ++i)
        QTest::newRow(names[i]) << i << QString::fromUtf8(names[i]);
}

// Every visible label and button has the room that its text wants.
void checkRoom(const QWidget& window)
{
    QCoreApplication::processEvents(); // the layouts' own requests
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty() || label->wordWrap())
            continue;
        QVERIFY2(label->sizeHint().width() <= label->width(), qUtf8Printable(label->text()));
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible())
            QVERIFY2(button->fontMetrics().horizontalAdvance(button->text()) <= button->width(),
                qUtf8Printable(button->text()));
    }
}

// A wrapped text has the height that it wants.
void checkHeight(const QLabel* label)
{
    QVERIFY2(
        label->heightForWidth(label->width()) <= label->height(), qUtf8Printable(label->text()));
}

} // namespace

void TestGateLanguages::everyLanguageNamesItselfWithoutBrackets_data()
{
    allLanguages();
}

void TestGateLanguages::everyLanguageNamesItselfWithoutBrackets()
{
    QFETCH(int, language);
    QFETCH(QString, nativeName);
    const Gate gate;
    gate.language()->setCurrentIndex(language);
    for (int i = 0; i < gate.language()->count(); ++i)
        QCOMPARE(gate.language()->itemText(i).endsWith(QLatin1Char(')')), i != language);
    const int other = language == 0 ? 1 : 0;
    gate.language()->setCurrentIndex(other);
    const QString text = gate.language()->itemText(language);
    QVERIFY(text.endsWith(QLatin1Char('(') + nativeName + QLatin1Char(')')));
    QVERIFY(!text.contains(QLatin1String(" (")));
}

void TestGateLanguages::spanishAndRussianLeaveTheLocale()
{
    const Gate gate;
    gate.language()->setCurrentIndex(SystemInfo::German);
    QCOMPARE(gate.window.locale().language(), QLocale::German);
    for (const int language : {SystemInfo::Spanish, SystemInfo::Russian}) {
        gate.language()->setCurrentIndex(language);
        QCOMPARE(int(SystemInfo::instance()->getLanguage()), language);
        QVERIFY(gate.part<QLabel>("label_localLogin")->text() != QLatin1String("Local Login"));
        QCOMPARE(gate.window.locale().language(), QLocale::German);
    }
    gate.language()->setCurrentIndex(SystemInfo::ChineseTraditional);
    QCOMPARE(gate.window.locale().language(), QLocale::Chinese);
}

void TestGateLanguages::choosingALanguageRetranslatesTheGate()
{
    const Gate gate;
    QCOMPARE(gate.language()->itemText(1), QString::fromUtf8("Chinese Simply(中文简体)"));
    gate.language()->setCurrentIndex(SystemInfo::German);
    QCOMPARE(gate.part<QLabel>("label_localLogin")->text(), QString("Lokale Anmeldung"));
    QCOMPARE(gate.part<QAbstractButton>("pushButton_login")->text(), QString("Anmelden"));
    QVERIFY(gate.user()->lineEdit()->placeholderText() != QLatin1String("Enter your username"));
    QCOMPARE(gate.language()->itemText(SystemInfo::German), QString("Deutsch"));
    gate.language()->setCurrentIndex(SystemInfo::English);
    QCOMPARE(gate.part<QLabel>("label_localLogin")->text(), QString("Local Login"));
    QCOMPARE(gate.user()->lineEdit()->placeholderText(), QString("Enter your username"));
}

void TestGateLanguages::noTextIsCut_data()
{
    allLanguages();
}

void TestGateLanguages::noTextIsCut()
{
    QFETCH(int, language);
    const Gate gate;
    gate.language()->setCurrentIndex(language);
    checkRoom(gate.window);
    gate.user()->setEditText("anna");
    gate.password()->setText("secret");
    gate.press("pushButton_login");
    checkRoom(gate.window); // the busy text
    QTRY_VERIFY(!gate.message().isEmpty());
    checkHeight(gate.part<QLabel>("label_message"));
    gate.press("label_register");
    checkRoom(gate.window);
    for (const auto* text : gate.window.findChildren<QLabel*>("label_text"))
        checkHeight(text);
    emit SystemInfo::instance()->backToLoginMsg();
    gate.press("widget_localLogin");
    QTRY_VERIFY(gate.window.mainWindow()->isVisible());
    checkRoom(gate.window);
}

void TestGateLanguages::mainFrameFollowsTheLanguage()
{
    const Gate gate;
    gate.press("widget_localLogin");
    QTRY_VERIFY(gate.window.mainWindow()->isVisible());
    const auto* record = gate.part<QLabel>("label_debugRecord_btn");
    QCOMPARE(record->text(), QString("Debug Record"));
    SystemInfo::instance()->setLanguage(SystemInfo::Japanese);
    QTRY_VERIFY(record->text() != QLatin1String("Debug Record"));
    QCOMPARE(gate.part<QLabel>("label_userName")->text(), QString("Admin"));
    SystemInfo::instance()->setLanguage(SystemInfo::English);
}

ORVA_TEST(TestGateLanguages)
#include "tst_gatelanguages.moc"
