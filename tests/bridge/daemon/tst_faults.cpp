// SPDX-License-Identifier: GPL-3.0-or-later
#include "bytes.h"
#include "fakelink.h"
#include "faults.h"
#include "testmain.h"
#include "viewer.h"
#include "wire/framing.h"

#include <QTest>

class TestFaults final : public QObject
{
    Q_OBJECT

private slots:
    void linesOutOfFormAreTold_data();
    void linesOutOfFormAreTold();
    void refusesThatManySessions();
    void holdIsSwitched();
    void aMuteDeviceTakesMessagesAndAnswersNone();
    void everyNthPictureIsLeftOut();
    void answersCarryTheStatus();
    void nextAnswersAreCut();
    void oversizedDatagramIsNoPacket();
    void brokenDatagramIsNoPacket();
};

namespace {

Fault fault(const char* line)
{
    const auto parsed = parseFault(line);
    if (const auto* problem = std::get_if<std::string>(&parsed))
        qFatal("%s: %s", line, problem->c_str());
    return std::get<Fault>(parsed);
}

} // namespace

void TestFaults::linesOutOfFormAreTold_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char* line : {"", " ", "explode", "refuse", "refuse x", "refuse -1", "refuse 1 2",
             "refuse 99999999999", "silent", "silent maybe", "answer 801", "answer x 1",
             "answer 801 x", "answer -1 1", "die now", "drop 3x"})
        QTest::newRow(line) << QByteArray(line);
}

void TestFaults::linesOutOfFormAreTold()
{
    QFETCH(QByteArray, line);
    QVERIFY(std::holds_alternative<std::string>(parseFault(line.toStdString())));
}

void TestFaults::refusesThatManySessions()
{
    Faults faults;
    faults.apply(fault("refuse 2"));
    QVERIFY(faults.refuseSession());
    QVERIFY(faults.refuseSession());
    QVERIFY(!faults.refuseSession());
}

void TestFaults::holdIsSwitched()
{
    Faults faults;
    QVERIFY(!faults.holdsControl());
    faults.apply(fault("hold on"));
    QVERIFY(faults.holdsControl());
    faults.apply(fault("hold off"));
    QVERIFY(!faults.holdsControl());
}

void TestFaults::aMuteDeviceTakesMessagesAndAnswersNone()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("mute on"));
    QVERIFY(!faults.holdsControl());
    viewer.answer(801, std::string(4, '\0'));
    QCOMPARE(link->sent().size(), 0);
    faults.apply(fault("mute off"));
    viewer.answer(801, std::string(4, '\0'));
    QCOMPARE(link->sent().size(), 1);
}

void TestFaults::everyNthPictureIsLeftOut()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("drop 3"));
    for (int i = 0; i < 9; ++i)
        viewer.videoFrame(std::make_shared<LinkFrame>());
    QCOMPARE(link->pictures(), 6);
    QCOMPARE(link->lost(), 3);
    faults.apply(fault("drop 0"));
    viewer.videoFrame(std::make_shared<LinkFrame>());
    QCOMPARE(link->pictures(), 7);
}

void TestFaults::answersCarryTheStatus()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("answer 801 -5"));
    faults.apply(fault("answer 829 7"));
    viewer.answer(801, words({0}));
    viewer.answer(829, std::string(1, '\0'));
    viewer.answer(803, words({0, 1}));
    faults.apply(fault("answer 801 off"));
    viewer.answer(801, words({0}));
    const auto sent = link->sent();
    QCOMPARE(sent[0].second, wordBytes({static_cast<quint32>(-5)}));
    QCOMPARE(sent[1].second, QByteArray("\7"));
    QCOMPARE(sent[2].second, wordBytes({0, 1}));
    QCOMPARE(sent[3].second, wordBytes({0}));
}

void TestFaults::nextAnswersAreCut()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("truncated 2"));
    viewer.answer(803, words({0, 1}));
    viewer.answer(41255, std::string(1, '\1'));
    viewer.answer(803, words({0, 1}));
    const auto sent = link->sent();
    QCOMPARE(sent[0].second.size(), 4);
    QCOMPARE(sent[1].second.size(), 1);
    QCOMPARE(sent[2].second.size(), 8);
}

void TestFaults::oversizedDatagramIsNoPacket()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("oversized 1"));
    viewer.answer(803, words({0, 1}));
    QVERIFY(link->sent().isEmpty());
    QVERIFY(link->raw().value(0).size() > 1400);
    QVERIFY(!decodePacket(link->raw()[0].toStdString()).has_value());
}

void TestFaults::brokenDatagramIsNoPacket()
{
    const auto link = std::make_shared<FakeChannel>(0);
    Faults faults;
    Viewer viewer(link, faults);
    faults.apply(fault("broken 1"));
    viewer.answer(803, words({0, 1}));
    QVERIFY(link->sent().isEmpty());
    QVERIFY(!decodePacket(link->raw().value(0).toStdString()).has_value());
}

ORVA_TEST(TestFaults)
#include "tst_faults.moc"
