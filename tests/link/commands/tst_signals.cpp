// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/getmsg.h"
#include "link/ioconnect.h"
#include "testmain.h"

#include <QMetaMethod>
#include <QTest>

// What views connect to by name. The signatures are those of the meta-objects.
class TestSignals final : public QObject
{
    Q_OBJECT

private slots:
    void linkHasExactlyTheseSignals();
    void receiverHasExactlyTheseSignals();
    void linkHasASignalForEachOfTheReceiver();
};

namespace {

QStringList signalsOf(const QMetaObject& meta)
{
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    signatures.sort();
    return signatures;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList withParameters(const char* parameters, const QStringList& names)
{
    QStringList signatures;
    for (const QString& name : names)
        signatures.append(name + QLatin1String(parameters));
    return signatures;
}

QStringList carryingMessages()
{
    return {
        "getWifiListSuccessMsg(Channel*,SMsgAVIoctrlListWifiApResp*)",
        "getWifiConfigSuccessMsg(Channel*,SMsgAVIoctrlGetWifiResp*)",
        "getSmartSensitivitySuccessMsg(Channel*,SMsgAVIoctrlGetMotionDetectResp*)",
        "getSmartModeSuccessMsg(Channel*,DMS_NET_MOTION_CFG*)",
        "getRotateModeSuccessMsg(Channel*,int*)",
        "getRecordModeSuccessMsg(Channel*,SMsgAVIoctrlGetRecordResq*)",
        "receiveVideoTimeMsg(Channel*,QList<int>)",
    };
}

QStringList ofALink()
{
    const QStringList plain{"connectDevSuccessMsg", "connectChannelSuccessMsg",
        "videoRequestSuccessMsg", "videoRequestStopSuccessMsg", "requestReplayVideoTimeSuccessMsg",
        "startReplaySuccessMsg", "stopReplaySuccessMsg", "pauseReplaySuccessMsg",
        "changeQualitySuccessMsg", "audioControlSuccessMsg", "audioSendControlSuccessMsg",
        "waitingStreamMsg", "setTimeSuccessMsg", "setTimeZoneSuccessMsg",
        "changeReplayTimeSuccessMsg", "setWifiSuccessMsg", "setPasswordSuccessMsg",
        "setSmartSensitivitySuccessMsg", "setSmartModeSuccessMsg", "setRecordModeSuccessMsg",
        "getPtzMsg", "finishVideoTimeMsg", "getChannelInfoMsg"};
    const QStringList failures{"receiveVideoTimeEmptyMsg", "connectDevFailMsg",
        "connectChannelFailMsg", "videoRequestFailMsg", "videoRequestStopFailMsg",
        "requestReplayVideoTimeFailMsg", "startReplayControlFailMsg", "startReplayFailMsg",
        "stopReplayFailMsg", "pauseReplayFailMsg", "setQualityFailMsg", "getQualityFailMsg",
        "audioControlFailMsg", "audioSendControlFailMsg", "setTimeFailMsg", "setTimeZoneFailMsg",
        "changeReplayTimeFailMsg", "ptzFailMsg", "setWifiFailMsg", "setPasswordFailMsg",
        "setSmartSensitivityFailMsg", "setSmartModeFailMsg", "setRotateModeFailMsg",
        "sendRecordModeFailMsg", "getWifiListFailMsg", "getWifiConfigFailMsg",
        "getSmartSensitivityFailMsg", "getSmartModeFailMsg", "getRotateModeFailMsg",
        "getRecordModeFailMsg"};
    const QStringList others{"startLANSearchSuccessMsg()", "tutkInitSuccessMsg()",
        "startLANSearchFailMsg(int,QString)", "tutkInitFailMsg(int,QString)",
        "ptzSuccessMsg(Channel*,int)"};
    return sorted(withParameters("(Channel*)", plain)
        + withParameters("(Channel*,int,QString)", failures) + others + carryingMessages());
}

QStringList ofAReceiver()
{
    const QStringList plain{"finishVideoTimeMsg", "changeQualitySuccessMsg", "getChannelInfoMsg",
        "setTimeZoneSuccessMsg", "changeReplayTimeSuccessMsg", "setWifiSuccessMsg",
        "setPasswordSuccessMsg", "setSmartSensitivitySuccessMsg", "setSmartModeSuccessMsg",
        "setRecordModeSuccessMsg", "getPtzMsg"};
    const QStringList failures{"receiveVideoTimeEmptyMsg", "setTimeZoneFailMsg",
        "changeReplayTimeFailMsg", "startReplayFailMsg", "setWifiFailMsg", "setPasswordFailMsg",
        "setSmartSensitivityFailMsg", "setSmartModeFailMsg"};
    return sorted(withParameters("(Channel*)", plain)
        + withParameters("(Channel*,int,QString)", failures) + carryingMessages());
}

} // namespace

void TestSignals::linkHasExactlyTheseSignals()
{
    const QStringList found = signalsOf(IoConnect::staticMetaObject);
    QCOMPARE(found, ofALink());
    QCOMPARE(found.size(), 65);
}

void TestSignals::receiverHasExactlyTheseSignals()
{
    const QStringList found = signalsOf(GetMsg::staticMetaObject);
    QCOMPARE(found, ofAReceiver());
    QCOMPARE(found.size(), 26);
}

void TestSignals::linkHasASignalForEachOfTheReceiver()
{
    const QStringList ofTheLink = signalsOf(IoConnect::staticMetaObject);
    for (const QString& signature : signalsOf(GetMsg::staticMetaObject))
        QVERIFY2(ofTheLink.contains(signature), qPrintable(signature));
}

ORVA_TEST(TestSignals)
#include "tst_signals.moc"
