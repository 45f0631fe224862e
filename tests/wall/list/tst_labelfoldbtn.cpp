// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pictures.h"
#include "hands.h"
#include "keywindow.h"
#include "testmain.h"
#include "wall/labelfoldbtn.h"

#include <QSignalSpy>
#include <QTest>

// The key that folds and unfolds something.
class TestLabelFoldBtn final : public QObject
{
    Q_OBJECT

private slots:
    void startsFolded();
    void clickTogglesAndTells();
    void pressAloneDoesNothing();
    void releaseOutsideDoesNothing();
    void anotherMouseButtonDoesNothing();
    void keyboardToggles();
    void stateSetFromOutsideIsNotTold();
    void picturesAreOfTheStateAndTheMouse();
    void hintNamesWhatAClickDoes();
    void hintFollowsTheLanguage();
};

namespace {

struct FoldTest
{
    FoldTest()
    {
        qRegisterMetaType<LabelFoldBtn*>("LabelFoldBtn*");
        window.key->setPictures(keyPicture("fold"), keyPicture("unfold"));
    }
    LabelFoldBtn* operator->() const { return window.key; }
    bool shows(const char* picture) const { return ::shows(window.key, QLatin1String(picture)); }

    KeyWindow<LabelFoldBtn> window;
};

} // namespace

void TestLabelFoldBtn::startsFolded()
{
    const FoldTest t;
    QVERIFY(!t->isUnfolded());
    QVERIFY(t.shows("fold"));
}

void TestLabelFoldBtn::clickTogglesAndTells()
{
    FoldTest t;
    QVERIFY(t.window.show());
    QSignalSpy clicked(t.window.key, &LabelFoldBtn::clicked);
    for (const bool isUnfolded : {true, false, true}) {
        click(t.window.key);
        QCOMPARE(t->isUnfolded(), isUnfolded);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().at(0).value<LabelFoldBtn*>(), t.window.key);
        QCOMPARE(clicked.takeFirst().at(1).toBool(), isUnfolded);
    }
}

void TestLabelFoldBtn::pressAloneDoesNothing()
{
    FoldTest t;
    QVERIFY(t.window.show());
    press(t.window.key);
    QVERIFY(!t->isUnfolded());
    release(t.window.key);
    QVERIFY(t->isUnfolded());
}

void TestLabelFoldBtn::releaseOutsideDoesNothing()
{
    FoldTest t;
    QVERIFY(t.window.show());
    press(t.window.key);
    QTest::mouseRelease(t.window.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!t->isUnfolded());
}

void TestLabelFoldBtn::anotherMouseButtonDoesNothing()
{
    FoldTest t;
    QVERIFY(t.window.show());
    click(t.window.key, Qt::RightButton);
    click(t.window.key, Qt::MiddleButton);
    QVERIFY(!t->isUnfolded());
}

void TestLabelFoldBtn::keyboardToggles()
{
    FoldTest t;
    QVERIFY(t.window.show());
    t->setFocus(Qt::TabFocusReason);
    type(t.window.key, Qt::Key_Space);
    QVERIFY(t->isUnfolded());
    type(t.window.key, Qt::Key_Return);
    QVERIFY(!t->isUnfolded());
    type(t.window.key, Qt::Key_Down);
    QVERIFY(!t->isUnfolded());
}

void TestLabelFoldBtn::stateSetFromOutsideIsNotTold()
{
    FoldTest t;
    QSignalSpy clicked(t.window.key, &LabelFoldBtn::clicked);
    t->setUnfolded(true);
    QVERIFY(t->isUnfolded());
    QVERIFY(t.shows("unfold"));
    t->setUnfolded(false);
    QVERIFY(t.shows("fold"));
    QCOMPARE(clicked.count(), 0);
    t->toggle();
    QCOMPARE(clicked.count(), 1);
}

void TestLabelFoldBtn::picturesAreOfTheStateAndTheMouse()
{
    FoldTest t;
    QVERIFY(t.window.show());
    moveTo(&t.window.window, QPoint(5, 5));
    QTRY_VERIFY(t.shows("fold"));
    moveTo(t.window.key);
    QTRY_VERIFY(t.shows("fold-hover"));
    click(t.window.key);
    QVERIFY(t.shows("unfold-hover"));
    moveTo(&t.window.window, QPoint(5, 5));
    QTRY_VERIFY(t.shows("unfold"));
}

void TestLabelFoldBtn::hintNamesWhatAClickDoes()
{
    FoldTest t;
    QCOMPARE(t->toolTip(), QString("Unfold"));
    QCOMPARE(t->accessibleName(), QString("Unfold"));
    t->toggle();
    QCOMPARE(t->toolTip(), QString("Fold"));
    QCOMPARE(t->accessibleName(), QString("Fold"));
}

void TestLabelFoldBtn::hintFollowsTheLanguage()
{
    FoldTest t;
    {
        const Brackets brackets;
        QTRY_COMPARE(t->toolTip(), QString("[Unfold]"));
    }
    QTRY_COMPARE(t->toolTip(), QString("Unfold"));
}

ORVA_TEST(TestLabelFoldBtn)
#include "tst_labelfoldbtn.moc"
