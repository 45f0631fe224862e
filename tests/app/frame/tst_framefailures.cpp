// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/alert.h"
#include "frametest.h"
#include "testmain.h"

#include <QMetaMethod>

#include <limits>

// Every failure that the link or a tile tells of opens an alert.
class TestFrameFailures final : public QObject
{
    Q_OBJECT

private slots:
    void everyFailureOfAChannelOpensAnAlert();
    void failureWithoutADeviceHasNoDeviceLine_data();
    void failureWithoutADeviceHasNoDeviceLine();
    void numbersAreShownAsTheyAre_data();
    void numbersAreShownAsTheyAre();
    void connectThatFailsOpensAnAlert();
    void laterFailureReplacesTheFirst();
    void deviceLineComesAndGoes();
    void burstLeavesTheLast();
};

namespace {

class FailureTest
{
public:
    [[nodiscard]] bool open()
    {
        device = t.wall.addDevice(4);
        return t.open();
    }
    const Alert* alert() const { return t.popup<Alert>(); }
    QString text(const char* name) const
    {
        return alert()->findChild<QLabel*>(QLatin1String(name))->text();
    }
    // The three lines of the alert, its device line only where it shows.
    QStringList lines() const
    {
        if (alert() == nullptr)
            return {"no alert"};
        QStringList lines{text("label_errorCodeText")};
        const bool hasDevice = alert()->findChild<QLabel*>("label_deviceText")->isVisible();
        if (alert()->findChild<QLabel*>("label_device")->isVisible() != hasDevice)
            return {"half a device line"};
        if (hasDevice)
            lines << text("label_deviceText");
        return lines << text("label_informationText");
    }

    FrameTest t;
    Device* device = nullptr;
};

// The signals of the link that carry a channel, a number and a text.
QList<QMetaMethod> channelFailures()
{
    const QMetaObject& io = IoConnect::staticMetaObject;
    QList<QMetaMethod> failures;
    for (int i = io.methodOffset(); i < io.methodCount(); ++i) {
        const QMetaMethod method = io.method(i);
        if (method.methodType() == QMetaMethod::Signal
            && method.parameterTypes() == QList<QByteArray>{"Channel*", "int", "QString"})
            failures.append(method);
    }
    return failures;
}

} // namespace

void TestFrameFailures::everyFailureOfAChannelOpensAnAlert()
{
    FailureTest f;
    QVERIFY(f.open());
    int number = -1;
    for (const QMetaMethod& failure : channelFailures()) {
        const QString text = QString("%1 says why").arg(QString::fromLatin1(failure.name()));
        Channel* channel = f.device->channel(-number % 4);
        const QString place = QString("%1(%2)").arg(f.device->uid()).arg(channel->number() + 1);
        QVERIFY(failure.invoke(
            f.t.wall.io.get(), Q_ARG(Channel*, channel), Q_ARG(int, number), Q_ARG(QString, text)));
        const QStringList wanted{QString::number(number), place, text};
        QVERIFY2(f.lines() == wanted, failure.name().constData());
        --number;
    }
    QCOMPARE(number, -31); // as many as there are
}

void TestFrameFailures::failureWithoutADeviceHasNoDeviceLine_data()
{
    QTest::addColumn<int>("sender");
    QTest::newRow("search") << 0;
    QTest::newRow("library") << 1;
    QTest::newRow("tile") << 2;
}

void TestFrameFailures::failureWithoutADeviceHasNoDeviceLine()
{
    QFETCH(int, sender);
    FailureTest f;
    QVERIFY(f.open());
    if (sender == 0)
        emit f.t.wall.io->startLANSearchFailMsg(-7, "no search");
    else if (sender == 1)
        emit f.t.wall.io->tutkInitFailMsg(-7, "no search");
    else
        emit f.t.wall.viewControl.glErrorMsg(-7, "no search");
    QCOMPARE(f.lines(), QStringList({"-7", "no search"}));
}

void TestFrameFailures::numbersAreShownAsTheyAre_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << "0";
    QTest::newRow("library") << -20016 << "-20016";
    QTest::newRow("least") << std::numeric_limits<int>::min() << "-2147483648";
    QTest::newRow("most") << std::numeric_limits<int>::max() << "2147483647";
}

void TestFrameFailures::numbersAreShownAsTheyAre()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    FailureTest f;
    QVERIFY(f.open());
    emit f.t.wall.viewControl.glErrorMsg(number, "text");
    QCOMPARE(f.text("label_errorCodeText"), text);
}

void TestFrameFailures::connectThatFailsOpensAnAlert()
{
    FailureTest f;
    Device* device = f.t.wall.addDevice(2, false);
    QVERIFY(f.open());
    f.t.wall.link.always(LinkFn::IOTC_Connect_ByUID_ParallelNB).reports({ConnectStep::failed(-90)});
    f.t.wall.viewControl.connectChannel(device->channel(1), false, true);
    QTRY_VERIFY(f.alert() != nullptr);
    QCOMPARE(f.text("label_errorCodeText"), QString("-90"));
    QCOMPARE(f.text("label_deviceText"), device->uid() + "(1)"); // told once, of the first
    QVERIFY(!f.text("label_informationText").isEmpty());
}

void TestFrameFailures::laterFailureReplacesTheFirst()
{
    FailureTest f;
    QVERIFY(f.open());
    emit f.t.wall.io->ptzFailMsg(f.device->channel(0), -1, "first");
    const Alert* first = f.alert();
    QVERIFY(first != nullptr);
    emit f.t.wall.io->setTimeFailMsg(f.device->channel(1), -2, "second");
    QVERIFY(f.alert() != nullptr && f.alert() != first);
    QCOMPARE(f.lines(), QStringList({"-2", f.device->uid() + "(2)", "second"}));
    QVERIFY(f.t.wall.settle());
    QCOMPARE(f.t.center()->findChildren<Alert*>().size(), 1);
}

void TestFrameFailures::deviceLineComesAndGoes()
{
    FailureTest f;
    QVERIFY(f.open());
    const QString place = f.device->uid() + "(4)";
    emit f.t.wall.viewControl.glErrorMsg(1, "tile");
    const int height = f.alert()->height();
    emit f.t.wall.io->ptzFailMsg(f.device->channel(3), 2, "device");
    QCOMPARE(f.lines(), QStringList({"2", place, "device"}));
    QVERIFY(f.alert()->height() > height);
    emit f.t.wall.viewControl.glErrorMsg(3, "tile");
    QCOMPARE(f.lines(), QStringList({"3", "tile"}));
    QCOMPARE(f.alert()->height(), height);
}

void TestFrameFailures::burstLeavesTheLast()
{
    FailureTest f;
    QVERIFY(f.open());
    for (int i = 0; i < 200; ++i)
        emit f.t.wall.io->ptzFailMsg(f.device->channel(0), -i, QString::number(i));
    QCOMPARE(f.text("label_informationText"), QString("199"));
    QCOMPARE(f.t.popups<Alert>().size(), 1);
    QVERIFY(f.t.wall.settle());
    QCOMPARE(f.t.center()->findChildren<Alert*>().size(), 1);
}

ORVA_TEST(TestFrameFailures)
#include "tst_framefailures.moc"
