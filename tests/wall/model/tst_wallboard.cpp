// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/device.h"
#include "testmain.h"
#include "wall/wallboard.h"

#include <QStringList>
#include <QTest>

// Which channel stands on which tile.
class TestWallBoard final : public QObject
{
    Q_OBJECT

private slots:
    void newBoardHasNoTiles();
    void tilesThatGoLetTheirChannelsGo();
    void tilesThatComeAreEmpty();
    void boardWithoutTilesHasNoMirror();

    void channelTakesTheFirstFreeTile();
    void channelWithATileKeepsIt();
    void channelFindsNoFreeTile();
    void emptyMirrorTileIsTakenBeside();
    void takenMirrorTileIsPassedOver();
    void freeMirrorTileIsTakenThoughNoOtherIsFree();

    void mirrorTileIsNoTileOfItsChannel();
    void firstTileIsTakenFromWhoeverHasIt();
    void firstTileOfNoneIsNobodys();
    void removedChannelLeavesEveryTile();
    void clearedBoardKeepsItsTilesAndItsMirror();
    void filledBoardShowsWhatItIsGiven();
};

namespace {

// A board and six channels; what stands on it in words: "0 - 3".
struct Board
{
    Board() { device.setChannelCount(6); }
    Channel* channel(int number) const { return device.channel(number); }
    QString text() const
    {
        QStringList words;
        for (int tile = 0; tile < board.count(); ++tile)
            words.append(board.at(tile) == nullptr ? QStringLiteral("-")
                                                   : QString::number(board.at(tile)->number()));
        return words.join(QLatin1Char(' '));
    }

    Device device;
    WallBoard board;
};

} // namespace

void TestWallBoard::newBoardHasNoTiles()
{
    Board b;
    QCOMPARE(b.board.count(), 0);
    QVERIFY(!b.board.hasMirror());
    QCOMPARE(b.board.tileOf(b.channel(0)), -1);
    b.board.show(b.channel(0));
    b.board.remove(b.channel(0));
    b.board.clear();
    QCOMPARE(b.board.count(), 0);
}

void TestWallBoard::tilesThatGoLetTheirChannelsGo()
{
    Board b;
    b.board.setTiles(4, false);
    b.board.fill({b.channel(0), b.channel(1), b.channel(2), b.channel(3)});
    b.board.setTiles(2, false);
    QCOMPARE(b.text(), QStringLiteral("0 1"));
    QCOMPARE(b.board.tileOf(b.channel(2)), -1);
    b.board.setTiles(3, false);
    QCOMPARE(b.text(), QStringLiteral("0 1 -"));
}

void TestWallBoard::tilesThatComeAreEmpty()
{
    Board b;
    b.board.setTiles(1, false);
    b.board.show(b.channel(5));
    b.board.setTiles(4, true);
    QCOMPARE(b.text(), QStringLiteral("5 - - -"));
    QVERIFY(b.board.hasMirror());
    b.board.setTiles(4, false);
    QVERIFY(!b.board.hasMirror());
}

void TestWallBoard::boardWithoutTilesHasNoMirror()
{
    Board b;
    b.board.setTiles(0, true);
    QVERIFY(!b.board.hasMirror());
    QCOMPARE(b.board.tileOf(b.channel(0)), -1);
    QCOMPARE(b.board.count(), 0);
}

void TestWallBoard::channelTakesTheFirstFreeTile()
{
    Board b;
    b.board.setTiles(4, false);
    b.board.fill({b.channel(0), nullptr, b.channel(2), nullptr});
    b.board.show(b.channel(4));
    QCOMPARE(b.text(), QStringLiteral("0 4 2 -"));
    QCOMPARE(b.board.tileOf(b.channel(4)), 1);
    b.board.show(b.channel(1));
    QCOMPARE(b.text(), QStringLiteral("0 4 2 1"));
}

void TestWallBoard::channelWithATileKeepsIt()
{
    Board b;
    b.board.setTiles(3, false);
    b.board.fill({nullptr, b.channel(0), nullptr});
    b.board.show(b.channel(0));
    QCOMPARE(b.text(), QStringLiteral("- 0 -"));
}

void TestWallBoard::channelFindsNoFreeTile()
{
    Board b;
    b.board.setTiles(2, false);
    b.board.fill({b.channel(0), b.channel(1)});
    b.board.show(b.channel(2));
    QCOMPARE(b.text(), QStringLiteral("0 1"));
    QCOMPARE(b.board.tileOf(b.channel(2)), -1);
}

void TestWallBoard::emptyMirrorTileIsTakenBeside()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.show(b.channel(2));
    QCOMPARE(b.text(), QStringLiteral("2 2 -"));
    QCOMPARE(b.board.tileOf(b.channel(2)), 1);
}

void TestWallBoard::takenMirrorTileIsPassedOver()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.show(b.channel(2));
    b.board.show(b.channel(0));
    QCOMPARE(b.text(), QStringLiteral("2 2 0"));
}

void TestWallBoard::freeMirrorTileIsTakenThoughNoOtherIsFree()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.fill({nullptr, b.channel(0), b.channel(1)});
    b.board.show(b.channel(2));
    QCOMPARE(b.text(), QStringLiteral("2 0 1"));
    QCOMPARE(b.board.tileOf(b.channel(2)), -1);
}

void TestWallBoard::mirrorTileIsNoTileOfItsChannel()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.showFirst(b.channel(0));
    QCOMPARE(b.board.tileOf(b.channel(0)), -1);
    b.board.show(b.channel(0));
    QCOMPARE(b.text(), QStringLiteral("0 0 -"));
    b.board.setTiles(3, false);
    QCOMPARE(b.board.tileOf(b.channel(0)), 0);
}

void TestWallBoard::firstTileIsTakenFromWhoeverHasIt()
{
    Board b;
    b.board.setTiles(2, false);
    b.board.fill({b.channel(0), b.channel(1)});
    b.board.showFirst(b.channel(3));
    QCOMPARE(b.text(), QStringLiteral("3 1"));
    QCOMPARE(b.board.tileOf(b.channel(0)), -1);
}

void TestWallBoard::firstTileOfNoneIsNobodys()
{
    Board b;
    b.board.showFirst(b.channel(0));
    QCOMPARE(b.board.count(), 0);
}

void TestWallBoard::removedChannelLeavesEveryTile()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.fill({b.channel(1), b.channel(0), b.channel(1)});
    b.board.remove(b.channel(1));
    QCOMPARE(b.text(), QStringLiteral("- 0 -"));
    b.board.remove(b.channel(4));
    QCOMPARE(b.text(), QStringLiteral("- 0 -"));
}

void TestWallBoard::clearedBoardKeepsItsTilesAndItsMirror()
{
    Board b;
    b.board.setTiles(3, true);
    b.board.fill({b.channel(1), b.channel(0), b.channel(1)});
    b.board.clear();
    QCOMPARE(b.text(), QStringLiteral("- - -"));
    QVERIFY(b.board.hasMirror());
}

void TestWallBoard::filledBoardShowsWhatItIsGiven()
{
    Board b;
    b.board.setTiles(3, false);
    b.board.show(b.channel(5));
    b.board.fill({nullptr, b.channel(1), nullptr});
    QCOMPARE(b.text(), QStringLiteral("- 1 -"));
}

ORVA_TEST(TestWallBoard)
#include "tst_wallboard.moc"
