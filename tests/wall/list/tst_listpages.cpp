// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "testmain.h"
#include "wall/waitingcircle.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <vector>

// The device list after a cloud login: page by page, and again where one fails.
class TestListPages final : public QObject
{
    Q_OBJECT

private slots:
    void firstPageIsAskedForAndAwaited();
    void waitingCircleStandsInTheMiddle();
    void shortPageIsTheEnd();
    void fullPageAndAnEmptyOneHideTheHintOnlyThen();
    void emptyFirstPageSaysSo();

    void scrollingToTheEndAsksForMore();
    void scrollingInsideTheListAsksNobody();
    void scrollingToTheEndOfAWholeListAsksNobody();
    void awaitedPageIsNotAskedForTwice();
    void shortListAsksWhenItsViewGrows();
    void longOrWholeListAsksNobodyWhenItsViewGrows_data();
    void longOrWholeListAsksNobodyWhenItsViewGrows();

    void failedPageIsAskedForAgainASecondLater();
    void failureOfAnotherKindAsksNobody();
    void failedPageIsNotAskedForBesideAnother();
    void eleventhFailureEndsItAndLeavesTheCounterReady();
    void successBeginsANewRowOfFailures();

    void refreshEndsTheStreamsAndAsksOnce();
    void changeOfTheWholeListAsksOnce();
    void changeOfADeviceAsksNobody();
};

namespace {

// The pauses that came to their end, of timers that run once, in milliseconds.
class Pauses final : public QObject
{
public:
    Pauses() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        const auto* timer = qobject_cast<QTimer*>(receiver);
        if (event->type() == QEvent::Timer && timer != nullptr && timer->isSingleShot())
            ended.push_back(timer->interval());
        return false;
    }

    std::vector<int> ended;
};

// The list with a first page of 20 in a view that shows a part of it.
bool showFirstPage(PanelTest& t)
{
    t.addDevices(20);
    t.panel.loadDevList();
    CloudRequests::answer(20);
    return t.show(QSize(240, 300)) && QTest::qWaitFor([&t] { return t.bar()->maximum() > 50; });
}

} // namespace

void TestListPages::firstPageIsAskedForAndAwaited()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(t.key("pushButton_refresh")->isEnabled());
    t.panel.loadDevList();
    QCOMPARE(requests.take(), 1);
    QVERIFY(t.isWaiting());
    QCOMPARE(t.emptyText(), QString()); // nobody knows yet
    QCOMPARE(t.moreText(), QString());
    t.addDevices(2);
    QVERIFY(t.blocks().isEmpty());
    CloudRequests::answer(2);
    QVERIFY(!t.isWaiting());
    QCOMPARE(t.blocks().size(), 2);
    QCOMPARE(requests.take(), 0);
}

void TestListPages::waitingCircleStandsInTheMiddle()
{
    PanelTest t;
    QVERIFY(t.show());
    CloudRequests requests;
    t.panel.loadDevList();
    const auto isInTheMiddle = [&t] {
        const auto* circle = t.panel.findChild<WaitingCircle*>();
        const QPoint off = circle->geometry().center() - circle->parentWidget()->rect().center();
        return off.manhattanLength() <= 2;
    };
    QVERIFY(isInTheMiddle());
    t.panel.resize(240, 600);
    QTRY_VERIFY(t.panel.height() == 600 && isInTheMiddle());
    QCOMPARE(requests.take(), 1);
}

void TestListPages::shortPageIsTheEnd()
{
    PanelTest t;
    const CloudRequests requests;
    t.panel.loadDevList();
    t.addDevices(19);
    CloudRequests::answer(19);
    QCOMPARE(t.blocks().size(), 19);
    QCOMPARE(t.moreText(), QString());
}

void TestListPages::fullPageAndAnEmptyOneHideTheHintOnlyThen()
{
    PanelTest t;
    CloudRequests requests;
    t.panel.loadDevList();
    t.addDevices(20);
    CloudRequests::answer(20);
    QCOMPARE(t.blocks().size(), 20);
    QCOMPARE(t.moreText(), QString("Drop down to load more"));
    t.panel.loadDevList();
    QCOMPARE(requests.take(), 2);
    QCOMPARE(t.moreText(), QString("Drop down to load more")); // nobody knows yet
    CloudRequests::answer(0);
    QCOMPARE(t.moreText(), QString());
    QCOMPARE(t.blocks().size(), 20);
    QCOMPARE(t.emptyText(), QString());
}

void TestListPages::emptyFirstPageSaysSo()
{
    PanelTest t;
    const CloudRequests requests;
    t.panel.loadDevList();
    CloudRequests::answer(0);
    QVERIFY(t.emptyText().startsWith(QStringLiteral("No devices yet")));
    QCOMPARE(t.moreText(), QString());
}

void TestListPages::scrollingToTheEndAsksForMore()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    QCOMPARE(requests.take(), 1);
    t.bar()->setValue(t.bar()->maximum());
    QCOMPARE(requests.take(), 1);
    QVERIFY(t.isWaiting());
    t.addDevices(20);
    CloudRequests::answer(20);
    QTRY_VERIFY(t.bar()->maximum() > t.bar()->value());
    QCOMPARE(t.blocks().size(), 40);
    QCOMPARE(requests.take(), 0); // the end is out of sight again
    t.bar()->triggerAction(QScrollBar::SliderToMaximum);
    QCOMPARE(requests.take(), 1);
}

void TestListPages::scrollingInsideTheListAsksNobody()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    requests.take();
    t.bar()->setValue(t.bar()->maximum() - 1);
    t.bar()->setValue(10);
    t.bar()->setValue(0);
    QCOMPARE(requests.take(), 0);
}

void TestListPages::scrollingToTheEndOfAWholeListAsksNobody()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    CloudRequests::answer(3);
    requests.take();
    t.bar()->setValue(t.bar()->maximum());
    QCOMPARE(requests.take(), 0);
    QVERIFY(!t.isWaiting());
}

// The next request would end the one that is under way, and its page would be passed over.
void TestListPages::awaitedPageIsNotAskedForTwice()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    requests.take();
    for (int i = 0; i < 3; ++i) {
        t.bar()->setValue(t.bar()->maximum());
        t.bar()->setValue(t.bar()->maximum() - 20);
    }
    QCOMPARE(requests.take(), 1);
    for (const int height : {700, 750, 800}) {
        t.panel.resize(240, height);
        QTRY_COMPARE(t.panel.height(), height);
    }
    QCOMPARE(requests.take(), 0);
    CloudRequests::fail();
    t.panel.reloadDevList(); // as the timer does
    QCOMPARE(requests.take(), 1);
    CloudRequests::answer(20);
    t.panel.resize(240, 850);
    QTRY_COMPARE(requests.count(), 1);
}

void TestListPages::shortListAsksWhenItsViewGrows()
{
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    requests.take();
    t.panel.resize(240, 700);
    QTRY_COMPARE(requests.count(), 1);
    QVERIFY(t.isWaiting());
}

void TestListPages::longOrWholeListAsksNobodyWhenItsViewGrows_data()
{
    QTest::addColumn<int>("lastPage");
    QTest::addColumn<int>("height");
    QTest::newRow("long") << 20 << 400;
    QTest::newRow("whole") << 19 << 700;
}

void TestListPages::longOrWholeListAsksNobodyWhenItsViewGrows()
{
    QFETCH(int, lastPage);
    QFETCH(int, height);
    PanelTest t;
    CloudRequests requests;
    QVERIFY(showFirstPage(t));
    CloudRequests::answer(lastPage);
    requests.take();
    t.panel.resize(240, height);
    QTRY_COMPARE(t.panel.height(), height);
    QCoreApplication::processEvents();
    QCOMPARE(requests.take(), 0);
}

void TestListPages::failedPageIsAskedForAgainASecondLater()
{
    PanelTest t;
    CloudRequests requests;
    t.panel.loadDevList();
    QCOMPARE(requests.take(), 1);
    const Pauses pauses;
    CloudRequests::fail();
    QVERIFY(t.isWaiting());
    QTRY_COMPARE(requests.count(), 1);
    QCOMPARE(std::count(pauses.ended.begin(), pauses.ended.end(), 1000), 1);
    QVERIFY(t.isWaiting());
}

void TestListPages::failureOfAnotherKindAsksNobody()
{
    PanelTest t;
    CloudRequests requests;
    CloudRequests::fail(QStringLiteral("addDev"));
    QTest::qWait(1200); // longer than the pause before the next try
    QCOMPARE(requests.take(), 0);
}

void TestListPages::failedPageIsNotAskedForBesideAnother()
{
    PanelTest t;
    QVERIFY(t.show());
    CloudRequests requests;
    CloudRequests::fail();
    click(t.key("pushButton_refresh"));
    CloudRequests::fail();
    emit Dev::instance()->reloadDevMsg(nullptr);
    QCOMPARE(requests.take(), 2);
    CloudRequests::fail();
    CloudRequests::answer(3);
    QTest::qWait(1200); // longer than the pause before the next try
    QCOMPARE(requests.take(), 0);
    QVERIFY(!t.isWaiting());
}

void TestListPages::eleventhFailureEndsItAndLeavesTheCounterReady()
{
    PanelTest t;
    CloudRequests requests;
    t.addDevices(3);
    CloudRequests::answer(20);
    t.panel.loadDevList();
    QCOMPARE(requests.take(), 1);
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < 10; ++i) {
            CloudRequests::fail();
            t.panel.reloadDevList(); // as the timer does
            QCOMPARE(requests.take(), 1);
            QVERIFY(t.isWaiting());
        }
        CloudRequests::fail();
        t.panel.reloadDevList();
        QCOMPARE(requests.take(), 0);
        QVERIFY(!t.isWaiting());
        QCOMPARE(t.blocks().size(), 3); // the list stays as it is
        QCOMPARE(t.moreText(), QString("Drop down to load more"));
    }
}

void TestListPages::successBeginsANewRowOfFailures()
{
    PanelTest t;
    CloudRequests requests;
    t.panel.loadDevList();
    for (int i = 0; i < 7; ++i) {
        CloudRequests::fail();
        t.panel.reloadDevList();
    }
    CloudRequests::answer(20);
    t.panel.loadDevList();
    requests.take();
    for (int i = 0; i < 10; ++i) {
        CloudRequests::fail();
        t.panel.reloadDevList();
        QCOMPARE(requests.take(), 1);
    }
}

void TestListPages::refreshEndsTheStreamsAndAsksOnce()
{
    PanelTest t;
    CloudRequests requests;
    Device* device = t.wall.addDevice(2);
    QVERIFY(t.wall.open(device, 2));
    CloudRequests::answer(1);
    QVERIFY(t.show());
    const int closedBefore = t.wall.link.count(LinkFn::IOTC_Session_Close);
    click(t.key("pushButton_refresh"));
    QCOMPARE(t.wall.link.count(LinkFn::IOTC_Session_Close), closedBefore + 1);
    QCOMPARE(t.wall.shown(2), QList<Channel*>({nullptr, nullptr}));
    QVERIFY(Dev::instance()->devices().isEmpty());
    QCOMPARE(requests.take(), 1);
    QVERIFY(t.isWaiting());
    QVERIFY(t.wall.settle());
    for (MenuListDev* block : t.blocks()) // until the page is here
        click(BlockParts(*block).title, QPoint(100, 12));
    t.addDevices(2);
    CloudRequests::answer(2);
    QCOMPARE(t.blocks().size(), 2);
}

void TestListPages::changeOfTheWholeListAsksOnce()
{
    PanelTest t;
    CloudRequests requests;
    emit Dev::instance()->reloadDevMsg(nullptr);
    QCOMPARE(requests.take(), 1);
    QVERIFY(t.isWaiting());
}

void TestListPages::changeOfADeviceAsksNobody()
{
    PanelTest t;
    CloudRequests requests;
    t.addDevices(2);
    CloudRequests::answer(2);
    Device* device = t.block(1)->device();
    device->setNickName(QStringLiteral("Gate"));
    emit Dev::instance()->reloadDevMsg(device);
    QCOMPARE(t.titles().last(), QString("Gate"));
    Dev::instance()->removeDevice(device);
    emit Dev::instance()->reloadDevMsg(device); // a token by now
    QCOMPARE(t.blocks().size(), 1);
    QCOMPARE(requests.take(), 0);
    QVERIFY(!t.isWaiting());
}

ORVA_TEST(TestListPages)
#include "tst_listpages.moc"
