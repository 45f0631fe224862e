// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

class TestSystemInfo final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { SystemInfo::instance()->setLanguage(SystemInfo::English); }

    void ratioStaysAtOne();
    void fontSizesAreTheBaseSizes();
    void systemLineNamesProductAndWidth();
    void unknownWidthEndsInUnknown();
    void languageTwelveLoadsNothingAndIsKept();
    void everyLanguageHasItsTexts_data();
    void everyLanguageHasItsTexts();
    void fontSizeOfASheetIsReplacedToItsLastPixels();
    void borderRadiusKeepsItsNumber();
    void otherEventsGoToTheBaseClass();
};

void TestSystemInfo::ratioStaysAtOne()
{
    SystemInfo::instance()->setRatio(2.0);
    QCOMPARE(SystemInfo::instance()->getRatio(), 1.0);
}

void TestSystemInfo::fontSizesAreTheBaseSizes()
{
    const SystemInfo* system = SystemInfo::instance();
    QCOMPARE(system->getFontSize(SystemInfo::SmallFont), 10);
    QCOMPARE(system->getFontSize(SystemInfo::NormalFont), 11);
    QCOMPARE(system->getFontSize(SystemInfo::LargeFont), 18);
    QCOMPARE(system->version(), QString("1.7.2.320"));
}

void TestSystemInfo::systemLineNamesProductAndWidth()
{
    const QString line = SystemInfo::getSystemInfo();
    QVERIFY(line.startsWith(QSysInfo::prettyProductName() + ' '));
    QCOMPARE(SystemInfo::getSystemInfo(true), QSysInfo::prettyProductName() + " 64bit");
    QCOMPARE(SystemInfo::getSystemInfo(false), QSysInfo::prettyProductName() + " 32bit");
    if (QSysInfo::currentCpuArchitecture() == QLatin1String("x86_64"))
        QCOMPARE(line, SystemInfo::getSystemInfo(true));
}

void TestSystemInfo::unknownWidthEndsInUnknown()
{
    QVERIFY(SystemInfo::getSystemInfo(std::nullopt).endsWith(" unknown"));
    SystemInfo::instance()->setLanguage(SystemInfo::German);
    QVERIFY(SystemInfo::getSystemInfo(std::nullopt).endsWith(" unknown"));
}

void TestSystemInfo::languageTwelveLoadsNothingAndIsKept()
{
    SystemInfo* system = SystemInfo::instance();
    system->setLanguage(SystemInfo::German);
    QCOMPARE(QCoreApplication::translate("WindowLogin", "Login"), QString("Anmelden"));
    QSignalSpy changes(system, &SystemInfo::languageChangedMsg);
    system->setLanguage(static_cast<SystemInfo::SYSTEM_TYPE_LAGNUAGE>(12));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(int(system->getLanguage()), 12);
    QCOMPARE(QCoreApplication::translate("WindowLogin", "Login"), QString("Login"));
}

void TestSystemInfo::everyLanguageHasItsTexts_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("login");
    QTest::newRow("en") << 0 << "Login";
    QTest::newRow("zh_CN") << 1 << QString::fromUtf8("登录");
    QTest::newRow("zh_HK") << 2 << QString::fromUtf8("登入");
    QTest::newRow("fr") << 3 << "Se connecter";
    QTest::newRow("it") << 4 << "Accedi";
    QTest::newRow("nl") << 5 << "Inloggen";
    QTest::newRow("es") << 6 << QString::fromUtf8("Iniciar sesión");
    QTest::newRow("ru") << 7 << QString::fromUtf8("Войти");
    QTest::newRow("de") << 8 << "Anmelden";
    QTest::newRow("ja") << 9 << QString::fromUtf8("ログイン");
}

void TestSystemInfo::everyLanguageHasItsTexts()
{
    QFETCH(int, language);
    QFETCH(QString, login);
    SystemInfo::instance()->setLanguage(static_cast<SystemInfo::SYSTEM_TYPE_LAGNUAGE>(language));
    QCOMPARE(QCoreApplication::translate("WindowLogin", "Login"), login);
}

void TestSystemInfo::fontSizeOfASheetIsReplacedToItsLastPixels()
{
    QWidget widget;
    widget.setStyleSheet("color:#111;font-size:13px");
    SystemInfo::instance()->setFontSize(&widget, SystemInfo::LargeFont);
    QCOMPARE(widget.styleSheet(), QString("color:#111;font-size:18px"));
    // The pattern is greedy.
    widget.setStyleSheet("font-size:13px;padding:4px;color:#111");
    SystemInfo::instance()->setFontSize(&widget, SystemInfo::SmallFont);
    QCOMPARE(widget.styleSheet(), QString("font-size:10px;color:#111"));
}

void TestSystemInfo::borderRadiusKeepsItsNumber()
{
    QWidget widget;
    for (const QString sheet : {"border-radius:6px;color:#111", "color:#111"}) {
        widget.setStyleSheet(sheet);
        SystemInfo::instance()->setBorderRadius(&widget);
        QCOMPARE(widget.styleSheet(), sheet);
    }
}

void TestSystemInfo::otherEventsGoToTheBaseClass()
{
    QEvent unlisted(static_cast<QEvent::Type>(1044));
    QObject plain;
    QSignalSpy lines(SystemInfo::instance(), &SystemInfo::debugMsg);
    QCOMPARE(SystemInfo::instance()->event(&unlisted), plain.event(&unlisted));
    QVERIFY(lines.isEmpty());
}

ORVA_TEST(TestSystemInfo)
#include "tst_systeminfo.moc"
