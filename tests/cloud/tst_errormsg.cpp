// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/errormsg.h"
#include "errorrows.h"
#include "testmain.h"

#include <QSet>
#include <QTest>
#include <QTranslator>

#include <iterator>
#include <limits>

class TestErrorMsg final : public QObject
{
    Q_OBJECT

private slots:
    void tablesHaveAllRows();
    void everyP2pCodeHasItsText();
    void everyServerCodeHasItsText();
    void everyNetworkCodeHasItsText();
    void otherP2pCodesReadNoProcess();
    void gapsOfTheP2pTableReadNoProcess();
    void otherServerCodesGiveNoText();
    void otherNetworkCodesReadUnknownError();
    void zeroHasNoRow();
    void wrongPasswordOfADeviceHasItsText();
    void offlineDeviceHasItsText();
    void neighbouringCodesShareTheirText();
    void loginAgainIsOnlyAText();
    void unknownCloudCodeGivesAnEmptyText();
    void ownTimeoutSharesTheTextOfTimeoutError();
    void authenticationRequiredHasNoRow();
    void oddEndsStandAsTheyAre();
    void everyTextGoesThroughTheTranslation();
    void translationEndsWithItsTranslator();
    void numberStaysBehindATranslatedText();
    void emptyTextIsNotTranslated();
};

namespace {

using Lookup = QString (*)(int);

// Every code of a wide range that has no row must give `other(code)`.
template <std::size_t Size, typename Other>
void checkOthers(const ErrorRow (&rows)[Size], Lookup lookup, int from, int to, Other other)
{
    QSet<int> known;
    for (const ErrorRow& row : rows)
        known.insert(row.code);
    for (int code = from; code <= to; ++code) {
        if (!known.contains(code))
            QCOMPARE(lookup(code), other(code));
    }
    for (const int code : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QCOMPARE(lookup(code), other(code));
}

template <std::size_t Size>
void checkRows(const ErrorRow (&rows)[Size], Lookup lookup)
{
    for (const ErrorRow& row : rows)
        QCOMPARE(lookup(row.code), QString::fromUtf8(row.text));
}

QString noProcess(int code)
{
    return QString("No process:%1").arg(code);
}

// Translates everything of the context ErrorMsg, and nothing else, by putting marks around it.
class Marker final : public QTranslator
{
public:
    Marker() { QCoreApplication::installTranslator(this); }
    ~Marker() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "ErrorMsg") == 0 ? marked(text) : QString();
    }

    static QString marked(const char* text) { return QString("<%1>").arg(QString::fromUtf8(text)); }
};

template <std::size_t Size>
void checkMarked(const ErrorRow (&rows)[Size], Lookup lookup)
{
    for (const ErrorRow& row : rows)
        QCOMPARE(lookup(row.code), Marker::marked(row.text));
}

} // namespace

void TestErrorMsg::tablesHaveAllRows()
{
    QCOMPARE(std::size(p2pRows), std::size_t(59 + 33));
    QCOMPARE(std::size(serverRows), std::size_t(60));
    QCOMPARE(std::size(networkRows), std::size_t(33));
}

void TestErrorMsg::everyP2pCodeHasItsText()
{
    checkRows(p2pRows, ErrorMsg::p2pError);
}

void TestErrorMsg::everyServerCodeHasItsText()
{
    checkRows(serverRows, ErrorMsg::serverError);
}

void TestErrorMsg::everyNetworkCodeHasItsText()
{
    checkRows(networkRows, ErrorMsg::networkError);
}

void TestErrorMsg::otherP2pCodesReadNoProcess()
{
    checkOthers(p2pRows, ErrorMsg::p2pError, -20100, 200, noProcess);
}

void TestErrorMsg::gapsOfTheP2pTableReadNoProcess()
{
    for (const int code :
        {-9, -10, -20, -21, -25, -30, -38, -51, -52, -67, -89, -92, -19999, -20033})
        QCOMPARE(ErrorMsg::p2pError(code), noProcess(code));
}

void TestErrorMsg::otherServerCodesGiveNoText()
{
    checkOthers(serverRows, ErrorMsg::serverError, -100, 11000, [](int) { return QString(); });
}

void TestErrorMsg::otherNetworkCodesReadUnknownError()
{
    checkOthers(networkRows, ErrorMsg::networkError, -1000, 1000,
        [](int) { return QString("unknown error"); });
}

void TestErrorMsg::zeroHasNoRow()
{
    QCOMPARE(ErrorMsg::p2pError(0), QString("No process:0"));
    QCOMPARE(ErrorMsg::serverError(0), QString());
    QCOMPARE(ErrorMsg::networkError(0), QString("unknown error"));
}

void TestErrorMsg::wrongPasswordOfADeviceHasItsText()
{
    QCOMPARE(ErrorMsg::p2pError(-20009), QString("Incorrect view account or password"));
}

void TestErrorMsg::offlineDeviceHasItsText()
{
    QCOMPARE(ErrorMsg::p2pError(-90), QString("Device offline"));
}

void TestErrorMsg::neighbouringCodesShareTheirText()
{
    QCOMPARE(ErrorMsg::p2pError(-32), ErrorMsg::p2pError(-33));
    QCOMPARE(ErrorMsg::p2pError(-34), ErrorMsg::p2pError(-35));
    QCOMPARE(ErrorMsg::p2pError(-36), ErrorMsg::p2pError(-37));
    QCOMPARE(ErrorMsg::p2pError(-42), ErrorMsg::p2pError(-43));
    QVERIFY(ErrorMsg::p2pError(-33) != ErrorMsg::p2pError(-34));
}

void TestErrorMsg::loginAgainIsOnlyAText()
{
    QCOMPARE(ErrorMsg::serverError(309), QString("Please ReLogin! errmsg token"));
}

void TestErrorMsg::unknownCloudCodeGivesAnEmptyText()
{
    QCOMPARE(ErrorMsg::serverError(9999), QString());
}

void TestErrorMsg::ownTimeoutSharesTheTextOfTimeoutError()
{
    QCOMPARE(ErrorMsg::networkError(-1), QString("timed out"));
    QCOMPARE(ErrorMsg::networkError(4), QString("timed out"));
}

void TestErrorMsg::authenticationRequiredHasNoRow()
{
    QCOMPARE(ErrorMsg::networkError(204), QString("unknown error"));
}

void TestErrorMsg::oddEndsStandAsTheyAre()
{
    QVERIFY(ErrorMsg::serverError(5).endsWith(QChar(0xFF01)));
    QVERIFY(ErrorMsg::serverError(105).endsWith(QChar(0xFF01)));
    QVERIFY(ErrorMsg::serverError(10006).endsWith(QChar('\'')));
    QCOMPARE(ErrorMsg::p2pError(-20022), QString("Sending  is terminated "));
    QCOMPARE(ErrorMsg::p2pError(-20032), QString("Clean buffer "));
}

void TestErrorMsg::everyTextGoesThroughTheTranslation()
{
    const Marker marker;
    checkMarked(p2pRows, ErrorMsg::p2pError);
    checkMarked(serverRows, ErrorMsg::serverError);
    checkMarked(networkRows, ErrorMsg::networkError);
    QCOMPARE(ErrorMsg::networkError(12345), QString("<unknown error>"));
}

void TestErrorMsg::translationEndsWithItsTranslator()
{
    {
        const Marker marker;
        QCOMPARE(ErrorMsg::p2pError(-90), QString("<Device offline>"));
    }
    QCOMPARE(ErrorMsg::p2pError(-90), QString("Device offline"));
}

void TestErrorMsg::numberStaysBehindATranslatedText()
{
    const Marker marker;
    QCOMPARE(ErrorMsg::p2pError(-9), QString("<No process:>-9"));
}

void TestErrorMsg::emptyTextIsNotTranslated()
{
    const Marker marker;
    QCOMPARE(ErrorMsg::serverError(9999), QString());
}

ORVA_TEST(TestErrorMsg)

#include "tst_errormsg.moc"
