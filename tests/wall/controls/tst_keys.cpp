// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "hands.h"
#include "testmain.h"
#include "wall/labelfullscreen.h"
#include "wall/labelrecordbtn.h"
#include "wall/labelshotbtn.h"
#include "wall/labelwinbtn.h"
#include "wall/labelwindownumbtn.h"
#include "wall/pagebtn.h"
#include "wall/widgetbtnlive.h"
#include "walltest.h"

#include <QTest>

// What all keys of the wall have in common: how the keyboard reaches them and what it does, their
// hints, and the cursor.
class TestKeys final : public QObject
{
    Q_OBJECT

private slots:
    void tabReachesThemAndAClickDoesNot_data() { kinds(); }
    void tabReachesThemAndAClickDoesNot();
    void keysThatTheyDoNotTakeGoOnToTheParent_data() { kinds(); }
    void keysThatTheyDoNotTakeGoOnToTheParent();
    void spaceAndReturnStayWithThem_data() { kinds(); }
    void spaceAndReturnStayWithThem();
    void focusShows_data() { kinds(); }
    void focusShows();
    void mouseIsAHandOverThem_data() { kinds(); }
    void mouseIsAHandOverThem();
    void hintsFollowTheLanguage_data() { hints(); }
    void hintsFollowTheLanguage();
    void hintsAreThoseOfTheTranslations_data() { hints(); }
    void hintsAreThoseOfTheTranslations();

private:
    static void kinds();
    static void hints();
};

namespace {

using Make = QWidget* (*)(QWidget* parent);

template <class Key>
QWidget* make(QWidget* parent)
{
    return new Key(parent);
}

QWidget* makeLayout(QWidget* parent)
{
    auto* key = new LabelWinBtn(parent);
    key->setObjectName(QStringLiteral("label_sc5"));
    key->setCurrentMod(WINDOW_MOD_1);
    return key;
}

QWidget* makeMode(QWidget* parent)
{
    auto* key = new WidgetBtnLive(parent);
    key->setText(QStringLiteral("Live"));
    key->setPicture(QStringLiteral(":/main/images/btnImg/mode_live"));
    return key;
}

QWidget* makeFull(QWidget* parent)
{
    auto* key = new LabelFullScreen(parent);
    key->setFull(true);
    return key;
}

template <int direction>
QWidget* makePage(QWidget* parent)
{
    return new PageBtn(direction, parent);
}

// A key in the middle of a window, after another widget that takes the focus.
struct KeysTest
{
    explicit KeysTest(Make make)
        : before(new QWidget(&window))
        , key(make(&window))
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.resize(200, 200);
        before->setFocusPolicy(Qt::StrongFocus);
        before->setGeometry(0, 0, 30, 30);
        key->move(60, 50);
        key->resize(key->sizeHint().expandedTo(QSize(36, 36)));
    }
    bool show()
    {
        window.show();
        window.activateWindow();
        before->setFocus();
        return QTest::qWaitForWindowActive(&window);
    }

    WallTest wall;
    QWidget window;
    QWidget* before;
    QWidget* key;
};

} // namespace

Q_DECLARE_METATYPE(Make)

void TestKeys::kinds()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("record") << Make(make<LabelRecordBtn>);
    QTest::newRow("screenshot") << Make(make<LabelShotBtn>);
    QTest::newRow("layout") << Make(make<LabelWindowNumBtn>);
    QTest::newRow("full screen") << Make(make<LabelFullScreen>);
    QTest::newRow("of the menu of layouts") << Make(makeLayout);
    QTest::newRow("left page") << Make(makePage<0>);
    QTest::newRow("right page") << Make(makePage<1>);
    QTest::newRow("mode") << Make(makeMode);
}

void TestKeys::tabReachesThemAndAClickDoesNot()
{
    QFETCH(Make, make);
    KeysTest t(make);
    QVERIFY(t.show());
    QVERIFY(!t.key->hasFocus());
    click(t.key);
    QVERIFY(!t.key->hasFocus());
    type(&t.window, Qt::Key_Tab);
    QVERIFY(t.key->hasFocus());
    type(&t.window, Qt::Key_Backtab);
    QVERIFY(!t.key->hasFocus());
}

void TestKeys::keysThatTheyDoNotTakeGoOnToTheParent()
{
    QFETCH(Make, make);
    KeysTest t(make);
    QVERIFY(t.show());
    t.key->setFocus(Qt::TabFocusReason);
    const EventCount keys(&t.window, QEvent::KeyPress);
    int typed = 0;
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_A, Qt::Key_F5, Qt::Key_Delete}) {
        type(&t.window, key);
        QCOMPARE(keys.count, ++typed);
    }
}

void TestKeys::spaceAndReturnStayWithThem()
{
    QFETCH(Make, make);
    KeysTest t(make);
    QVERIFY(t.show());
    t.key->setFocus(Qt::TabFocusReason);
    const EventCount keys(&t.window, QEvent::KeyPress);
    type(&t.window, Qt::Key_Space);
    type(&t.window, Qt::Key_Return);
    QCOMPARE(keys.count, 0);
}

// Whoever works with the keyboard sees where he is.
void TestKeys::focusShows()
{
    QFETCH(Make, make);
    KeysTest t(make);
    QVERIFY(t.show());
    moveTo(&t.window, QPoint(190, 190));
    const auto painted = [&t] { return t.window.grab(t.key->geometry()).toImage(); };
    QTRY_VERIFY(!t.key->underMouse());
    const QImage without = painted();
    t.key->setFocus(Qt::TabFocusReason);
    QVERIFY(painted() != without);
    t.before->setFocus(Qt::TabFocusReason);
    QVERIFY(painted() == without);
}

void TestKeys::mouseIsAHandOverThem()
{
    QFETCH(Make, make);
    const KeysTest t(make);
    QCOMPARE(t.key->cursor().shape(), Qt::PointingHandCursor);
}

void TestKeys::hints()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](Make make, const char* context, const char* text) {
        QTest::newRow(text) << make << QByteArray(context) << QByteArray(text);
    };
    row(make<LabelRecordBtn>, "LabelRecordBtn", "Record");
    row(make<LabelShotBtn>, "LabelShotBtn", "Screenshot");
    row(make<LabelWindowNumBtn>, "LabelWindowNumBtn", "Layout");
    row(make<LabelFullScreen>, "LabelFullScreen", "Full Screen");
    row(makeFull, "LabelFullScreen", "Exit Full Screen");
    row(makeLayout, "LabelWinBtn", "Windows: %1");
    row(makePage<0>, "PageBtn", "Previous Page");
    row(makePage<1>, "PageBtn", "Next Page");
}

void TestKeys::hintsFollowTheLanguage()
{
    QFETCH(Make, make);
    QFETCH(QByteArray, text);
    KeysTest t(make);
    QVERIFY(t.show());
    const QString english = QString::fromUtf8(text).replace("%1", "9");
    QCOMPARE(t.key->toolTip(), english);
    QCOMPARE(t.key->accessibleName(), english);
    {
        const Brackets brackets;
        QTRY_COMPARE(t.key->toolTip(), '[' + english + ']');
        QCOMPARE(t.key->accessibleName(), t.key->toolTip());
    }
    QTRY_COMPARE(t.key->toolTip(), english);
}

void TestKeys::hintsAreThoseOfTheTranslations()
{
    QFETCH(Make, make);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, text);
    KeysTest t(make);
    QVERIFY(t.show());
    SystemInfo* system = SystemInfo::instance();
    for (const auto language : {SystemInfo::German, SystemInfo::Japanese}) {
        system->setLanguage(language);
        const QString translated =
            QCoreApplication::translate(context.constData(), text.constData()).replace("%1", "9");
        QTRY_COMPARE(t.key->toolTip(), translated);
        QCOMPARE(t.key->accessibleName(), translated);
    }
    QVERIFY(t.key->toolTip() != QString::fromUtf8(text).replace("%1", "9")); // in Japanese
    system->setLanguage(SystemInfo::English);
    QTRY_COMPARE(t.key->toolTip(), QString::fromUtf8(text).replace("%1", "9"));
}

ORVA_TEST(TestKeys)
#include "tst_keys.moc"
