// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "tiletest.h"
#include "wall/repaintpacer.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

// When the pictures of a window's tiles are painted.
class TestRepaintPacer final : public QObject
{
    Q_OBJECT

private slots:
    void eachWindowHasOnePacer();
    void onlyTileWaitsForNobody();
    void tilesThatPlayArePaintedTogether();
    void nobodyWaitsLongerThanAFrameTime();
    void tileThatStoppedIsNotWaitedFor();
    void hiddenTileIsNotWaitedFor();
    void tileOfAnotherWindowIsNotWaitedFor();
    void pictureIsPaintedBeforeItGoes();
    void nothingGoesThatDoesNotWait();
    void tileMayDieWhileItWaits();

    void picturesOfAWallMakeOneComposition();
    void pictureIsPaintedBeforeTheNextOne();
    void nothingIsPaintedWithoutANewPicture();
};

namespace {

// Plain widgets for tiles.
class Wall final
{
public:
    explicit Wall(int tiles)
    {
        window_.resize(100 * tiles, 100);
        for (int i = 0; i < tiles; ++i) {
            widgets_.push_back(std::make_unique<QWidget>(&window_));
            widgets_.back()->setGeometry(100 * i, 0, 100, 100);
            counts_.push_back(std::make_unique<PaintCount>(widgets_.back().get()));
        }
    }

    bool show()
    {
        window_.show();
        const bool shown = QTest::qWaitForWindowExposed(&window_);
        QTest::qWait(50);
        return shown;
    }

    QWidget* tile(int number) const { return widgets_.at(std::size_t(number)).get(); }
    RepaintPacer* pacer() { return RepaintPacer::of(&window_); }
    void come(int number) { pacer()->pictureCame(tile(number)); }
    void remove(int number) { widgets_.at(std::size_t(number)).reset(); }

    // Each tile has had a picture just now, and none waits.
    void play()
    {
        for (const auto& widget : widgets_)
            pacer()->pictureCame(widget.get());
        for (const auto& widget : widgets_)
            pacer()->pictureGoes(widget.get());
        clear();
        sincePlay_.start();
    }
    // All happened within less than a frame time. False on a machine that stood still: nothing can
    // be said then.
    bool isInTime() const { return sincePlay_.elapsed() < 30; }

    // What the event loop has to paint, without the time that passes in it.
    std::vector<int> paints()
    {
        QCoreApplication::sendPostedEvents();
        std::vector<int> numbers;
        for (const auto& count : counts_)
            numbers.push_back(count->count);
        return numbers;
    }
    void clear()
    {
        QCoreApplication::sendPostedEvents();
        for (const auto& count : counts_)
            count->count = 0;
    }

private:
    QWidget window_;
    std::vector<std::unique_ptr<QWidget>> widgets_;
    std::vector<std::unique_ptr<PaintCount>> counts_;
    QElapsedTimer sincePlay_;
};

using Paints = std::vector<int>;

// The first tile is painted in less than a frame time after its picture came: at least once, since a
// busy machine may take any time.
bool isPaintedSoon(Wall& wall, const std::function<void()>& prepare)
{
    constexpr int attempts = 10;
    for (int i = 0; i < attempts; ++i) {
        prepare();
        const int before = wall.paints().front();
        QElapsedTimer clock;
        clock.start();
        wall.come(0);
        if (QTest::qWaitFor([&] { return wall.paints().front() > before; }, 1000)
            && clock.elapsed() < 30)
            return true;
    }
    return false;
}

} // namespace

void TestRepaintPacer::eachWindowHasOnePacer()
{
    Wall one(2);
    Wall two(1);
    QCOMPARE(RepaintPacer::of(one.tile(0)->window()), RepaintPacer::of(one.tile(1)->window()));
    QVERIFY(one.pacer() != two.pacer());
}

void TestRepaintPacer::onlyTileWaitsForNobody()
{
    Wall wall(1);
    QVERIFY(wall.show());
    QVERIFY(isPaintedSoon(wall, [&wall] { wall.clear(); }));
}

void TestRepaintPacer::tilesThatPlayArePaintedTogether()
{
    Wall wall(3);
    QVERIFY(wall.show());
    std::vector<Paints> steps;
    do {
        steps.clear();
        wall.play();
        for (const int tile : {1, 0, 1}) {
            wall.come(tile);
            QCoreApplication::processEvents();
            steps.push_back(wall.paints());
        }
    } while (!wall.isInTime());
    QVERIFY(steps == std::vector<Paints>(3, {0, 0, 0}));
    wall.come(2);
    QTRY_COMPARE(wall.paints(), Paints({1, 1, 1}));
    QTest::qWait(100);
    QCOMPARE(wall.paints(), Paints({1, 1, 1}));
}

void TestRepaintPacer::nobodyWaitsLongerThanAFrameTime()
{
    Wall wall(2);
    QVERIFY(wall.show());
    wall.play();
    wall.come(0);
    QTRY_COMPARE(wall.paints(), Paints({1, 0}));
    QTest::qWait(100);
    QCOMPARE(wall.paints(), Paints({1, 0}));
}

void TestRepaintPacer::tileThatStoppedIsNotWaitedFor()
{
    Wall wall(2);
    QVERIFY(wall.show());
    QVERIFY(isPaintedSoon(wall, [&wall] {
        wall.play();
        QTest::qWait(200);
    }));
    QCOMPARE(wall.paints().at(1), 0);
}

void TestRepaintPacer::hiddenTileIsNotWaitedFor()
{
    Wall wall(2);
    QVERIFY(wall.show());
    QVERIFY(isPaintedSoon(wall, [&wall] {
        wall.tile(1)->show();
        wall.play();
        wall.tile(1)->hide();
        wall.clear();
    }));
}

void TestRepaintPacer::tileOfAnotherWindowIsNotWaitedFor()
{
    Wall wall(1);
    Wall other(1);
    QVERIFY(wall.show());
    QVERIFY(other.show());
    QVERIFY(isPaintedSoon(wall, [&] {
        other.play();
        wall.play();
    }));
    QCOMPARE(other.paints(), Paints({0}));
}

void TestRepaintPacer::pictureIsPaintedBeforeItGoes()
{
    Wall wall(2);
    QVERIFY(wall.show());
    PaintCount paints(wall.tile(0));
    do {
        wall.play();
        paints.count = 0;
        wall.come(0);
        wall.pacer()->pictureGoes(wall.tile(0));
    } while (!wall.isInTime());
    QCOMPARE(paints.count, 1); // without the event loop
    QCOMPARE(wall.paints(), Paints({1, 0}));
}

void TestRepaintPacer::nothingGoesThatDoesNotWait()
{
    Wall wall(2);
    QVERIFY(wall.show());
    wall.pacer()->pictureGoes(wall.tile(0)); // that never had one
    wall.play();
    wall.come(0);
    wall.pacer()->pictureGoes(wall.tile(1));
    wall.pacer()->pictureGoes(wall.tile(0));
    wall.pacer()->pictureGoes(wall.tile(0));
    QCOMPARE(wall.paints(), Paints({1, 0}));
}

void TestRepaintPacer::tileMayDieWhileItWaits()
{
    Wall wall(3);
    QVERIFY(wall.show());
    wall.play();
    wall.come(0);
    wall.remove(0);
    wall.come(1);
    wall.remove(2);
    wall.come(1); // and there is nobody left to wait for
    QTRY_COMPARE(wall.paints().at(1), 1);
    QTest::qWait(100);
    QCOMPARE(wall.paints(), Paints({0, 1, 0}));
}

void TestRepaintPacer::picturesOfAWallMakeOneComposition()
{
    constexpr int tiles = 4;
    constexpr int rounds = 25;
    TileTest t(tiles, QSize(64, 64));
    QVERIFY(t.show());
    const Picture picture(QSize(64, 48), {128, 128, 128});
    for (int i = 0; i < tiles; ++i)
        t.decode(picture, i);
    QTest::qWait(100);
    QSignalSpy compositions(t.tile(), &QOpenGLWidget::frameSwapped);
    QElapsedTimer clock;
    clock.start();
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < tiles; ++i) {
            t.decode(picture, i);
            QCoreApplication::processEvents();
        }
    }
    // One for each round, and one for each frame time that a round may have taken longer.
    QVERIFY(!compositions.isEmpty());
    QVERIFY2(compositions.size() <= rounds + clock.elapsed() / 40 + 1,
        qPrintable(QString::number(compositions.size())));
}

void TestRepaintPacer::pictureIsPaintedBeforeTheNextOne()
{
    TileTest t(2);
    QVERIFY(t.show());
    const Picture picture(QSize(64, 48), {128, 128, 128});
    t.decode(picture, 0);
    t.decode(picture, 1);
    QTest::qWait(200);
    PaintCount paints(t.tile());
    t.decode(picture, 1);
    for (int i = 1; i < 5; ++i) { // though the other one has none
        QTest::qWait(50); // painting has had its share of time
        t.decode(picture, 0);
        emit t.decoder.frameReceivedMsg(t.channel(0));
        QVERIFY(paints.count >= i);
    }
    QTest::qWait(100);
    const int before = paints.count;
    emit t.decoder.frameReceivedMsg(t.channel(1));
    emit t.decoder.frameReceivedMsg(nullptr);
    QCOMPARE(paints.count, before);
}

void TestRepaintPacer::nothingIsPaintedWithoutANewPicture()
{
    TileTest t(4);
    QVERIFY(t.show());
    for (int i = 0; i < 4; ++i)
        t.decode(Picture(QSize(64, 48), {128, 128, 128}), i);
    PaintCount paints(t.tile());
    QSignalSpy compositions(t.tile(), &QOpenGLWidget::frameSwapped);
    const auto isQuiet = [&] { // once the window is settled on the screen
        paints.count = 0;
        compositions.clear();
        QTest::qWait(300);
        return paints.count == 0 && compositions.isEmpty();
    };
    QTRY_VERIFY(isQuiet());
}

ORVA_TEST(TestRepaintPacer)
#include "tst_repaintpacer.moc"
