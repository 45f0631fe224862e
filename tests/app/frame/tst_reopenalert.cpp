// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/reopenalert.h"
#include "frametest.h"
#include "hands.h"
#include "store/location.h"
#include "testmain.h"

#include <QPushButton>

// The offer to open the channels of the last time again.
class TestReopenAlert final : public QObject
{
    Q_OBJECT

private slots:
    void nothingSavedMakesNoOffer_data();
    void nothingSavedMakesNoOffer();
    void savedChannelsMakeTheOffer();
    void noDevicesMakeNoOffer();
    void offerIsMadeOnce();
    void confirmOpensWhatWasOpen();
    void confirmPassesOverWhatIsNotKnown();
    void confirmOfStrangeEntriesOpensNothing_data();
    void confirmOfStrangeEntriesOpensNothing();
    void cancelForgetsTheChannels_data();
    void cancelForgetsTheChannels();
    void cancelKeepsWhatWasOpenedBesideTheOffer();
    void returnConfirms();
    void offerStaysInTheMiddleOfANewSize();
    void confirmAfterADeviceHasLeftOpensTheOthers();
};

namespace {

// Two devices in the local list, and a text in the setting.
class OfferTest
{
public:
    explicit OfferTest(const QString& openChannels)
    {
        FrameTest::saveDevice("REOPEN00000000000001", 4);
        FrameTest::saveDevice("REOPEN00000000000002", 2);
        Location::instance()->setDeviceChannel(openChannels);
    }
    [[nodiscard]] bool open() { return t.open() && Dev::instance()->devices().size() == 2; }
    const ReopenAlert* offer() const { return t.popup<ReopenAlert>(); }
    // Answers it, and lets what it starts come to its end.
    [[nodiscard]] bool answer(const char* button)
    {
        click(offer()->findChild<QPushButton*>(QLatin1String(button)));
        return t.wall.settle();
    }
    static Device* device(int number) { return Dev::instance()->devices().at(number); }
    // Waits until so many of the wall's four tiles have a channel.
    [[nodiscard]] bool waitShown(int count) const
    {
        return QTest::qWaitFor([this, count] {
            return t.wall.settle() && t.wall.shown().count(nullptr) == 4 - count;
        });
    }
    // "device:channel" of each channel that is open for live view.
    static QStringList openChannels()
    {
        QStringList open;
        const auto channels = Dev::instance()->channels();
        for (const Channel* channel : channels) {
            if (channel->mode(true).open)
                open << QString("%1:%2")
                            .arg(Dev::instance()->devices().indexOf(channel->device()))
                            .arg(channel->number());
        }
        return open;
    }

    FrameTest t;
};

const QString savedChannels = R"([{"dev": "REOPEN00000000000001", "channel": [0, 2]},
    {"dev": "REOPEN00000000000002", "channel": [1]}])";

} // namespace

void TestReopenAlert::nothingSavedMakesNoOffer_data()
{
    QTest::addColumn<QString>("saved");
    QTest::newRow("empty") << "";
    QTest::newRow("empty array") << "[]";
    QTest::newRow("blanks") << "  ";
    QTest::newRow("cut off") << R"([{"dev": "REOPEN00000000000001", "channel": [0)";
    QTest::newRow("object") << R"({"dev": "REOPEN00000000000001", "channel": [0]})";
    QTest::newRow("null") << "null";
    QTest::newRow("number") << "1";
    QTest::newRow("text") << R"("[1]")";
    QTest::newRow("more after it") << "[1] [2]";
    QTest::newRow("no JSON") << "REOPEN00000000000001";
}

void TestReopenAlert::nothingSavedMakesNoOffer()
{
    QFETCH(QString, saved);
    OfferTest o(saved);
    QVERIFY(o.open());
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    QCOMPARE(Location::instance()->getDeviceChannel(), saved);
}

void TestReopenAlert::savedChannelsMakeTheOffer()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.offer() != nullptr);
    QVERIFY(o.t.isCentred(o.offer()));
    const auto* text = o.offer()->findChild<QLabel*>("label_text");
    QCOMPARE(text->text(),
        QString("Do you want to reload the channel that was opened when it was last closed"));
    QVERIFY(hasRoom(text));
    QCOMPARE(OfferTest::openChannels(), QStringList()); // not before the answer
}

void TestReopenAlert::noDevicesMakeNoOffer()
{
    FrameTest t;
    Location::instance()->setDeviceChannel(savedChannels);
    QVERIFY(t.open());
    QVERIFY(t.popups<ReopenAlert>().isEmpty());
}

void TestReopenAlert::offerIsMadeOnce()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.answer("pushButton_confirm"));
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    emit Dev::instance()->reloadDevMsg(nullptr);
    QVERIFY(o.t.wall.settle());
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
}

void TestReopenAlert::confirmOpensWhatWasOpen()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.answer("pushButton_confirm"));
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    const QStringList wanted{"0:0", "0:2", "1:1"};
    QVERIFY(o.waitShown(3));
    QCOMPARE(OfferTest::openChannels(), wanted);
    for (int i : {0, 2})
        QVERIFY(o.t.wall.shown().contains(OfferTest::device(0)->channel(i)));
    QVERIFY(o.t.wall.shown().contains(OfferTest::device(1)->channel(1)));
}

void TestReopenAlert::confirmPassesOverWhatIsNotKnown()
{
    OfferTest o(R"([{"dev": "NOBODY00000000000001", "channel": [0, 1]}, 7,
        {"dev": "REOPEN00000000000001",
            "channel": [-1, 9999, "1", null, true, 2, 0.5, [3], 4, 1e30, 0]},
        {"dev": "REOPEN00000000000002", "channel": [2, 1, 1]}])");
    QVERIFY(o.open());
    QVERIFY(o.answer("pushButton_confirm"));
    QCOMPARE(OfferTest::openChannels(), QStringList({"0:0", "0:2", "1:1"}));
    QVERIFY(o.waitShown(3));
}

void TestReopenAlert::confirmOfStrangeEntriesOpensNothing_data()
{
    QTest::addColumn<QString>("saved");
    QTest::newRow("numbers") << "[1, 2]";
    QTest::newRow("empty object") << "[{}]";
    QTest::newRow("no channels") << R"([{"dev": "REOPEN00000000000001"}])";
    QTest::newRow("one number") << R"([{"dev": "REOPEN00000000000001", "channel": 0}])";
    QTest::newRow("device is a number") << R"([{"dev": 1, "channel": [0]}])";
    QTest::newRow("no device") << R"([{"channel": [0]}])";
    QTest::newRow("case of the UID") << R"([{"dev": "reopen00000000000001", "channel": [0]}])";
    QTest::newRow("array in an array") << R"([[{"dev": "REOPEN00000000000001", "channel": [0]}]])";
}

void TestReopenAlert::confirmOfStrangeEntriesOpensNothing()
{
    QFETCH(QString, saved);
    OfferTest o(saved);
    QVERIFY(o.open());
    QVERIFY(o.offer() != nullptr);
    QVERIFY(o.answer("pushButton_confirm"));
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    QCOMPARE(OfferTest::openChannels(), QStringList());
}

void TestReopenAlert::cancelForgetsTheChannels_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("escape") << true;
}

void TestReopenAlert::cancelForgetsTheChannels()
{
    QFETCH(bool, byKey);
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.offer() != nullptr);
    if (byKey)
        type(o.t.frame(), Qt::Key_Escape);
    else
        QVERIFY(o.answer("pushButton_cancel"));
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    QCOMPARE(OfferTest::openChannels(), QStringList());
    QCOMPARE(Location::instance()->getDeviceChannel(), QString("[]"));
    QVERIFY(o.t.wall.settle());
    QCOMPARE(o.t.center()->findChildren<ReopenAlert*>().size(), 0);
}

void TestReopenAlert::cancelKeepsWhatWasOpenedBesideTheOffer()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.offer() != nullptr);
    Device* device = o.t.wall.addDevice(2);
    QVERIFY(o.t.wall.open(device, 1));
    QVERIFY(o.answer("pushButton_cancel"));
    QCOMPARE(OfferTest::openChannels(), QStringList("2:0"));
    const QString saved = Location::instance()->getDeviceChannel();
    QVERIFY(saved.contains(device->uid()));
    QVERIFY(!saved.contains("REOPEN"));
}

void TestReopenAlert::returnConfirms()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    QVERIFY(o.offer() != nullptr);
    type(o.t.frame(), Qt::Key_Return);
    QVERIFY(o.t.popups<ReopenAlert>().isEmpty());
    QCOMPARE(OfferTest::openChannels().size(), 3);
}

void TestReopenAlert::offerStaysInTheMiddleOfANewSize()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    o.t.gate.window.resize(1400, 800);
    QTRY_COMPARE(o.t.viewBox()->width(), 1160);
    QTRY_VERIFY(o.t.isCentred(o.offer()));
}

void TestReopenAlert::confirmAfterADeviceHasLeftOpensTheOthers()
{
    OfferTest o(savedChannels);
    QVERIFY(o.open());
    Dev::instance()->deleteLocalDev(OfferTest::device(0));
    QVERIFY(o.offer() != nullptr);
    QVERIFY(o.answer("pushButton_confirm"));
    QCOMPARE(OfferTest::openChannels(), QStringList{"0:1"});
}

ORVA_TEST(TestReopenAlert)
#include "tst_reopenalert.moc"
