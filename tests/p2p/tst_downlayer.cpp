// SPDX-License-Identifier: GPL-3.0-or-later
// Calls before the layer is up, after it is down, and with indexes that mean nothing.
#include "linkclient.h"
#include "testmain.h"
#include "transport/udpsocket.h"

#include <QObject>

#include <climits>

namespace {

struct AllCalls
{
    int index;

    // Each function that takes an index, with arguments that are sound otherwise.
    void eachAnswers(int expected) const
    {
        std::string buffer(1024, '\0');
        unsigned int number = 0;
        const std::string info(16, '\0');
        QCOMPARE(avClientCleanBuf(index), expected);
        QCOMPARE(avClientCleanAudioBuf(index), expected);
        QCOMPARE(sendMessage(index, 1, "x"), expected);
        QCOMPARE(avSendIOCtrlExit(index), expected);
        QCOMPARE(receiveMessage(index, 0).result, expected);
        QCOMPARE(receiveVideo(index, 100).result, expected);
        QCOMPARE(avCheckAudioBuf(index), expected);
        QCOMPARE(receiveSound(index).result, expected);
        QCOMPARE(avSendAudioData(index, "x", 1, info.data(), 16), expected);
        QCOMPARE(avServGetResendSize(index, &number), expected);
        avClientStop(index);
        avServStop(index);
    }
};

int accept(const char* /*account*/, const char* /*password*/)
{
    return 1;
}

void everythingIsDown()
{
    IOTC_SearchRecord record{};
    Reports reports;
    QCOMPARE(IOTC_DeInitialize(), int(IOTC_NOT_INITIALIZED));
    QCOMPARE(IOTC_Get_SessionID(), int(IOTC_NOT_INITIALIZED));
    QCOMPARE(IOTC_Connect_ByUID_ParallelNB("NOBODYHASTHISUID0001", 0, Reports::callback, &reports),
        int(IOTC_NOT_INITIALIZED));
    QCOMPARE(IOTC_Connect_Stop_BySID(0), int(IOTC_NOT_INITIALIZED));
    IOTC_Session_Close(0);
    QCOMPARE(IOTC_Search_Device_Start(100, 100), int(IOTC_NOT_INITIALIZED));
    QCOMPARE(IOTC_Search_Device_Result(&record, 1, 1), int(IOTC_NOT_INITIALIZED));
    QCOMPARE(IOTC_Search_Device_Stop(), int(IOTC_NOT_INITIALIZED));
    QCOMPARE(avInitialize(64), int(AV_NOT_INITIALIZED));
    QCOMPARE(openChannel(0, 0), int(AV_NOT_INITIALIZED));
    QCOMPARE(avServStart3(0, accept, 0, 0, 31, nullptr), int(AV_NOT_INITIALIZED));
    AllCalls{0}.eachAnswers(AV_NOT_INITIALIZED);
    QCOMPARE(avSendIOCtrl(0, 1, nullptr, 0), int(AV_NOT_INITIALIZED));
    QTest::qWait(20);
    QCOMPARE(reports.all().size(), std::size_t{0});
}

} // namespace

class TestDownLayer : public QObject
{
    Q_OBJECT

private slots:
    void callsBeforeInitialisationTouchNothing() { everythingIsDown(); }

    void theChannelHalfComesUpAfterTheSessionHalf()
    {
        QCOMPARE(avInitialize(64), int(AV_NOT_INITIALIZED));
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(IOTC_Initialize2(0), int(IOTC_ALREADY_INITIALIZED));
        AllCalls{0}.eachAnswers(AV_NOT_INITIALIZED);
        QCOMPARE(avInitialize(0), int(AV_BAD_ARGUMENT));
        QCOMPARE(avInitialize(-5), int(AV_BAD_ARGUMENT));
        QCOMPARE(avInitialize(64), 64);
        QCOMPARE(avInitialize(64), int(AV_ALREADY_INITIALIZED));
        QCOMPARE(IOTC_DeInitialize(), 0);
    }

    void indexesThatMeanNothingAreRefused()
    {
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(avInitialize(64), 64);
        for (const int index : {-1, 0, 5, 64, 4096, INT_MAX, INT_MIN}) {
            AllCalls{index}.eachAnswers(AV_BAD_INDEX);
            QCOMPARE(openChannel(index, 0), int(AV_BAD_INDEX));
            IOTC_Session_Close(index);
            QCOMPARE(IOTC_Connect_Stop_BySID(index), int(IOTC_BAD_SESSION));
        }
        const int reserved = IOTC_Get_SessionID();
        QCOMPARE(openChannel(reserved, 0), int(AV_BAD_INDEX));
        QCOMPARE(
            avClientStart2(reserved, nullptr, "", 1, nullptr, 0, nullptr), int(AV_BAD_ARGUMENT));
        QCOMPARE(
            avClientStart2(reserved, "", nullptr, 1, nullptr, 0, nullptr), int(AV_BAD_ARGUMENT));
        QCOMPARE(IOTC_DeInitialize(), 0);
    }

    void aPortOfAnotherProgramIsTold()
    {
        const UdpSocket other = UdpSocket::bound(Address::any(24995), false);
        QVERIFY(other);
        QCOMPARE(IOTC_Initialize2(24995), int(IOTC_PORT_NOT_FREE));
        QCOMPARE(IOTC_Initialize2(24994), 0);
        QCOMPARE(IOTC_DeInitialize(), 0);
    }

    void callsAfterDeInitialisationTouchNothing() { everythingIsDown(); }
};

ORVA_TEST(TestDownLayer)
#include "tst_downlayer.moc"
