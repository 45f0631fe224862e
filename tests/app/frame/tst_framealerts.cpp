// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/alert.h"
#include "app/delalert.h"
#include "app/labelsystembtn.h"
#include "app/screenshotalert.h"
#include "frametest.h"
#include "hands.h"
#include "testmain.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextDocument>

// The alerts in the frame: where they stand, how they close, what their answers do.
class TestFrameAlerts final : public QObject
{
    Q_OBJECT

private slots:
    void alertStandsInTheMiddleOfTheWallAndOverIt();
    void alertStaysInTheMiddleOfANewSize();
    void alertClosesByItsKey();
    void alertClosesByEscape();
    void escapeActsAtOnceWithTheLogOpenToo();
    void longTextsWrapAndAreNotCut_data();
    void longTextsWrapAndAreNotCut();
    void textsOfFailuresArePlain();
    void deleteAlertNamesTheDevice();
    void deleteAlertOfALongNameStaysOnTheWall_data();
    void deleteAlertOfALongNameStaysOnTheWall();
    void confirmDeletesTheDevice();
    void cancelKeepsTheDevice_data();
    void cancelKeepsTheDevice();
    void otherDeleteAlertReplacesTheFirst();
    void confirmOfADeviceThatHasLeftDoesNothing();
    void snapshotIsShownWithItsPath();
    void placeholderAndNoChannelShowNothing();
    void snapshotOfNoPictureShowsItsPath();
    void laterSnapshotReplacesTheFirst();
    void snapshotWithAVeryLongPathKeepsItsWidth();
};

namespace {

// A device in the local list, and so in the registry once the frame is open.
class AlertTest
{
public:
    explicit AlertTest(const QString& name = "Gate camera")
    {
        LocalDeviceRecord record = FrameTest::saveDevice("ALERT000000000000001", 2);
        record.nickname = name;
        LocalStore::instance()->saveDevice(record);
    }
    [[nodiscard]] bool open()
    {
        const bool isOpen = t.open();
        device = Dev::instance()->findDevice("ALERT000000000000001");
        return isOpen && device != nullptr;
    }
    Alert* fail(const QString& text = "why")
    {
        emit t.wall.io->ptzFailMsg(device->channel(0), -1, text);
        return t.popup<Alert>();
    }
    DelAlert* ask()
    {
        t.wall.viewControl.openDelAlert(device);
        return t.popup<DelAlert>();
    }
    static bool isStored() { return !LocalStore::instance()->loadDevices().isEmpty(); }

    FrameTest t;
    Device* device = nullptr;
};

// As it is read.
QString hintOn(const QWidget* part)
{
    QTextDocument hint;
    hint.setHtml(part->toolTip());
    return hint.toPlainText();
}

void pushButton(const QWidget* alert, const char* name)
{
    click(alert->findChild<QPushButton*>(QLatin1String(name)));
}

QString textOf(const QWidget* alert, const char* name)
{
    return alert->findChild<QLabel*>(QLatin1String(name))->text();
}

// The picture of a snapshot, in a folder of its own.
class Snapshot
{
public:
    explicit Snapshot(const QString& name = "shot.jpg")
        : path(folder_.filePath(name))
    {
        QImage picture(640, 360, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        picture.save(path, "JPG");
    }

private:
    const QTemporaryDir folder_;

public:
    const QString path;
};

} // namespace

void TestFrameAlerts::alertStandsInTheMiddleOfTheWallAndOverIt()
{
    AlertTest a;
    QVERIFY(a.open());
    QVERIFY(a.fail() != nullptr);
    const Alert* alert = a.fail();
    QVERIFY(a.t.isCentred(alert));
    QCOMPARE(alert->parentWidget(), a.t.center());
    const QWidget* hit = a.t.center()->childAt(alert->geometry().center());
    QVERIFY(hit == alert || alert->isAncestorOf(hit));
}

void TestFrameAlerts::alertStaysInTheMiddleOfANewSize()
{
    AlertTest a;
    QVERIFY(a.open());
    const Alert* alert = a.fail();
    a.ask();
    for (const QSize size : {QSize(1300, 900), QSize(1000, 600)}) {
        a.t.gate.window.resize(size);
        QTRY_COMPARE(a.t.viewBox()->size(), size - QSize(240, 130));
        QTRY_VERIFY(a.t.isCentred(alert));
        QTRY_VERIFY(a.t.isCentred(a.t.popup<DelAlert>()));
    }
}

void TestFrameAlerts::alertClosesByItsKey()
{
    AlertTest a;
    QVERIFY(a.open());
    click(a.fail()->findChild<LabelSystemBtn*>("label_close"));
    QVERIFY(a.t.popups<Alert>().isEmpty());
    QVERIFY(a.t.wall.settle());
    QCOMPARE(a.t.center()->findChildren<Alert*>().size(), 0);
    QVERIFY(a.fail() != nullptr);
}

void TestFrameAlerts::alertClosesByEscape()
{
    AlertTest a;
    QVERIFY(a.open());
    QVERIFY(a.fail() != nullptr);
    type(a.t.frame(), Qt::Key_A);
    QVERIFY(a.t.popup<Alert>() != nullptr);
    type(a.t.frame(), Qt::Key_Escape);
    QVERIFY(a.t.popups<Alert>().isEmpty());
}

void TestFrameAlerts::escapeActsAtOnceWithTheLogOpenToo()
{
    AlertTest a;
    QVERIFY(a.open());
    click(a.t.part("label_debugRecord_btn"));
    QVERIFY(a.t.part("widget_debugPanel")->isVisible());
    QVERIFY(a.fail() != nullptr);
    const auto open = [&a] {
        return a.t.part("widget_debugPanel")->isVisible() + a.t.popups<Alert>().size();
    };
    for (const int left : {1, 0}) {
        type(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(open(), left);
    }
}

void TestFrameAlerts::longTextsWrapAndAreNotCut_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << "why";
    QTest::newRow("sentence") << QString("The device does not answer any more. ").repeated(4);
    QTest::newRow("page") << QString("The device does not answer any more. ").repeated(20);
    QTest::newRow("lines") << QString("a line\n").repeated(8);
}

void TestFrameAlerts::longTextsWrapAndAreNotCut()
{
    QFETCH(QString, text);
    AlertTest a;
    QVERIFY(a.open());
    const Alert* alert = a.fail(text.trimmed());
    QVERIFY(alert != nullptr);
    QCOMPARE(alert->width(), 400);
    QVERIFY(alert->height() >= alert->heightForWidth(400));
    QVERIFY(a.t.center()->rect().contains(alert->geometry()));
    for (const QLabel* label : alert->findChildren<QLabel*>()) {
        QVERIFY2(hasRoom(label), qPrintable(label->objectName()));
        QVERIFY2(alert->rect().contains(FrameTest::placeIn(alert, label)),
            qPrintable(label->objectName()));
    }
}

void TestFrameAlerts::textsOfFailuresArePlain()
{
    AlertTest a;
    QVERIFY(a.open());
    const QString text = "<h1>big</h1><img src='x' height='900'>";
    a.device->setUid("<b>UID</b>");
    const Alert* alert = a.fail(text);
    for (const char* name : {"label_errorCodeText", "label_deviceText", "label_informationText"})
        QCOMPARE(alert->findChild<QLabel*>(name)->textFormat(), Qt::PlainText);
    QVERIFY(alert->height() < 300);
}

void TestFrameAlerts::deleteAlertNamesTheDevice()
{
    AlertTest a;
    QVERIFY(a.open());
    QCOMPARE(textOf(a.ask(), "label_device"), QString("Gate camera (ALERT000000000000001)"));
    QVERIFY(a.t.isCentred(a.t.popup<DelAlert>()));
    a.device->setNickName(QString());
    QCOMPARE(textOf(a.ask(), "label_device"), QString("ALERT000000000000001"));
}

void TestFrameAlerts::deleteAlertOfALongNameStaysOnTheWall_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << "<h1>A</h1><img src='x' height='900'>";
    QTest::newRow("long word") << QString(10000, 'W');
    QTest::newRow("long text") << QString("many words ").repeated(1000);
    QTest::newRow("lines") << QString("line\n").repeated(100);
}

void TestFrameAlerts::deleteAlertOfALongNameStaysOnTheWall()
{
    QFETCH(QString, name);
    AlertTest a;
    QVERIFY(a.open());
    a.device->setNickName(name);
    const DelAlert* alert = a.ask();
    QVERIFY(alert != nullptr);
    QVERIFY(a.t.center()->rect().contains(alert->geometry()));
    QVERIFY(alert->width() <= 400);
    const auto* label = alert->findChild<QLabel*>("label_device");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(hasRoom(label));
    QVERIFY(label->text().contains(a.device->uid())); // whatever becomes of the name
    for (const QPushButton* button : alert->findChildren<QPushButton*>())
        QVERIFY(alert->rect().contains(FrameTest::placeIn(alert, button)));
}

void TestFrameAlerts::confirmDeletesTheDevice()
{
    AlertTest a;
    QVERIFY(a.open());
    QVERIFY(AlertTest::isStored());
    a.t.wall.connectDevice(a.device);
    QVERIFY(a.t.wall.open(a.device, 2));
    pushButton(a.ask(), "pushButton_confirm");
    QVERIFY(a.t.popups<DelAlert>().isEmpty());
    QVERIFY(!AlertTest::isStored());
    QVERIFY(Dev::instance()->devices().isEmpty());
    QCOMPARE(a.t.wall.shown(), QList<Channel*>({nullptr, nullptr, nullptr, nullptr}));
    QVERIFY(a.t.wall.settle());
    QCOMPARE(a.t.center()->findChildren<DelAlert*>().size(), 0);
}

void TestFrameAlerts::cancelKeepsTheDevice_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("escape") << true;
}

void TestFrameAlerts::cancelKeepsTheDevice()
{
    QFETCH(bool, byKey);
    AlertTest a;
    QVERIFY(a.open());
    if (byKey) {
        a.ask();
        type(a.t.frame(), Qt::Key_Escape);
    } else {
        pushButton(a.ask(), "pushButton_cancel");
    }
    QVERIFY(a.t.popups<DelAlert>().isEmpty());
    QVERIFY(AlertTest::isStored());
    QCOMPARE(Dev::instance()->devices(), QList<Device*>{a.device});
}

void TestFrameAlerts::otherDeleteAlertReplacesTheFirst()
{
    AlertTest a;
    QVERIFY(a.open());
    a.ask();
    a.device = a.t.wall.addDevice(1);
    QCOMPARE(textOf(a.ask(), "label_device"), a.device->uid());
    QVERIFY(a.t.wall.settle());
    QCOMPARE(a.t.center()->findChildren<DelAlert*>().size(), 1);
}

void TestFrameAlerts::confirmOfADeviceThatHasLeftDoesNothing()
{
    AlertTest a;
    QVERIFY(a.open());
    const Device* other = a.t.wall.addDevice(1);
    const DelAlert* alert = a.ask();
    Dev::instance()->removeDevice(a.device);
    QVERIFY(a.t.wall.settle());
    pushButton(alert, "pushButton_confirm");
    QVERIFY(a.t.popups<DelAlert>().isEmpty());
    QVERIFY(Dev::instance()->findDevice(other->uid()) == other);
    QVERIFY(AlertTest::isStored());
}

void TestFrameAlerts::snapshotIsShownWithItsPath()
{
    AlertTest a;
    QVERIFY(a.open());
    const Snapshot shot;
    emit a.t.wall.decode.screenshotMsg(a.device->channel(1), false, shot.path);
    const auto* alert = a.t.popup<ScreenShotAlert>();
    QVERIFY(alert != nullptr);
    QVERIFY(a.t.isCentred(alert));
    QCOMPARE(textOf(alert, "label_channel"), QString("Channel2"));
    QCOMPARE(hintOn(alert->findChild<QLabel*>("label_path")), shot.path);
    const auto* picture = alert->findChild<QLabel*>("label_picture");
    const QPixmap shown = picture->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.width(), 286);
    QVERIFY(QColor(shown.toImage().pixel(shown.rect().center())).green() > 100);
    click(alert->findChild<LabelSystemBtn*>("label_close"));
    QVERIFY(a.t.popups<ScreenShotAlert>().isEmpty());
}

void TestFrameAlerts::placeholderAndNoChannelShowNothing()
{
    AlertTest a;
    QVERIFY(a.open());
    const Snapshot shot;
    emit a.t.wall.decode.screenshotMsg(a.device->channel(1), true, shot.path);
    QVERIFY(a.t.popups<ScreenShotAlert>().isEmpty());
    emit a.t.wall.decode.screenshotMsg(nullptr, false, shot.path);
    QVERIFY(a.t.popups<ScreenShotAlert>().isEmpty());
}

void TestFrameAlerts::snapshotOfNoPictureShowsItsPath()
{
    AlertTest a;
    QVERIFY(a.open());
    emit a.t.wall.decode.screenshotMsg(a.device->channel(0), false, "/nowhere/shot.jpg");
    const auto* alert = a.t.popup<ScreenShotAlert>();
    QVERIFY(alert != nullptr);
    QCOMPARE(textOf(alert, "label_path"), QString("/nowhere/shot.jpg"));
}

void TestFrameAlerts::laterSnapshotReplacesTheFirst()
{
    AlertTest a;
    QVERIFY(a.open());
    const Snapshot shot;
    for (int channel : {0, 1})
        emit a.t.wall.decode.screenshotMsg(a.device->channel(channel), false, shot.path);
    QVERIFY(a.t.popup<ScreenShotAlert>() != nullptr);
    QCOMPARE(textOf(a.t.popup<ScreenShotAlert>(), "label_channel"), QString("Channel2"));
    QVERIFY(a.t.wall.settle());
    QCOMPARE(a.t.center()->findChildren<ScreenShotAlert*>().size(), 1);
}

void TestFrameAlerts::snapshotWithAVeryLongPathKeepsItsWidth()
{
    AlertTest a;
    QVERIFY(a.open());
    const QString path = "/" + QString(200, 'W') + "/<b>A & B</b>.jpg";
    emit a.t.wall.decode.screenshotMsg(a.device->channel(0), false, path);
    const auto* alert = a.t.popup<ScreenShotAlert>();
    QVERIFY(alert != nullptr);
    QCOMPARE(alert->width(), 320);
    const auto* label = alert->findChild<QLabel*>("label_path");
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    QCOMPARE(hintOn(label), path);
}

ORVA_TEST(TestFrameAlerts)
#include "tst_framealerts.moc"
