// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wall/wallplan.h"

#include <QString>
#include <QStringList>
#include <QTest>

#include <limits>

// What the wall decides by: ordinals, pages, and which channel goes on which tile.
class TestWallPlan final : public QObject
{
    Q_OBJECT

private slots:
    void onlyOpenChannelsCount_data();
    void onlyOpenChannelsCount();
    void ordinalIsTheNumberOfOpenChannelsBefore_data();
    void ordinalIsTheNumberOfOpenChannelsBefore();
    void channelIsFoundByItsOrdinal_data();
    void channelIsFoundByItsOrdinal();

    void pageCountIsRoundedUp_data();
    void pageCountIsRoundedUp();
    void pageKeepsItsFirstChannelInSight_data();
    void pageKeepsItsFirstChannelInSight();

    void pageGoesOntoTheTiles_data();
    void pageGoesOntoTheTiles();
    void mirrorTileShowsOneChannelOnceMore_data();
    void mirrorTileShowsOneChannelOnceMore();
    void noPageIsTooFarAway_data();
    void noPageIsTooFarAway();
};

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

// A letter for each channel, the same for all of a device; a capital one for an open channel.
std::vector<WallChannel> channelsOf(const QString& letters)
{
    std::vector<WallChannel> channels;
    for (const QChar letter : letters)
        channels.push_back({letter.toLower().unicode(), letter.isUpper()});
    return channels;
}

QString tilesText(const std::vector<int>& tiles)
{
    QStringList words;
    for (const int channel : tiles)
        words.append(channel == noChannel ? QStringLiteral("-") : QString::number(channel));
    return words.join(QLatin1Char(' '));
}

} // namespace

void TestWallPlan::onlyOpenChannelsCount_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<int>("count");
    QTest::newRow("no device") << QString() << 0;
    QTest::newRow("none open") << QStringLiteral("aab") << 0;
    QTest::newRow("one open") << QStringLiteral("aBb") << 1;
    QTest::newRow("of several devices") << QStringLiteral("AaAbbCC") << 4;
}

void TestWallPlan::onlyOpenChannelsCount()
{
    QFETCH(QString, channels);
    QTEST(openCount(channelsOf(channels)), "count");
}

void TestWallPlan::ordinalIsTheNumberOfOpenChannelsBefore_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("ordinal");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("closed one counts those before") << 1 << 1;
    QTest::newRow("behind a closed one") << 2 << 1;
    QTest::newRow("of the next device") << 4 << 2;
    QTest::newRow("last") << 5 << 3;
}

void TestWallPlan::ordinalIsTheNumberOfOpenChannelsBefore()
{
    QFETCH(int, channel);
    QTEST(ordinalOf(channelsOf(QStringLiteral("AaAbBB")), channel), "ordinal");
}

void TestWallPlan::channelIsFoundByItsOrdinal_data()
{
    QTest::addColumn<int>("ordinal");
    QTest::addColumn<int>("channel");
    QTest::newRow("first open one") << 0 << 1;
    QTest::newRow("of the next device") << 1 << 4;
    QTest::newRow("last") << 2 << 5;
    QTest::newRow("one more than there are") << 3 << noChannel;
    QTest::newRow("negative") << -1 << noChannel;
    QTest::newRow("largest") << largest << noChannel;
}

void TestWallPlan::channelIsFoundByItsOrdinal()
{
    QFETCH(int, ordinal);
    QTEST(channelAt(channelsOf(QStringLiteral("aAabBBc")), ordinal), "channel");
    QCOMPARE(channelAt({}, ordinal), noChannel);
}

void TestWallPlan::pageCountIsRoundedUp_data()
{
    QTest::addColumn<int>("openChannels");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<int>("pages");
    QTest::newRow("none open") << 0 << 4 << 0;
    QTest::newRow("one open") << 1 << 64 << 1;
    QTest::newRow("a full page") << 4 << 4 << 1;
    QTest::newRow("one more than a page") << 5 << 4 << 2;
    QTest::newRow("of one tile") << 7 << 1 << 7;
    QTest::newRow("capacity of the mirror layout") << 6 << 5 << 2;
    QTest::newRow("many") << 10000 << 64 << 157;
}

void TestWallPlan::pageCountIsRoundedUp()
{
    QFETCH(int, openChannels);
    QFETCH(int, capacity);
    QTEST(pageCountFor(openChannels, capacity), "pages");
}

void TestWallPlan::pageKeepsItsFirstChannelInSight_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("oldCapacity");
    QTest::addColumn<int>("newCapacity");
    QTest::addColumn<int>("newPage");
    QTest::newRow("16 on page 2 to 4") << 2 << 16 << 4 << 8;
    QTest::newRow("4 on page 3 to 16") << 3 << 4 << 16 << 0;
    QTest::newRow("4 on page 4 to 16") << 4 << 4 << 16 << 1;
    QTest::newRow("first page") << 0 << 64 << 1 << 0;
    QTest::newRow("the same capacity") << 7 << 9 << 9 << 7;
    QTest::newRow("rounded down") << 1 << 9 << 5 << 1;
    QTest::newRow("a product beyond 32 bits") << 100000000 << 64 << 36 << 177777777;
    QTest::newRow("largest page that stays") << largest << 64 << 64 << largest;
    QTest::newRow("unknown layout before") << 3 << 0 << 4 << 0;
}

void TestWallPlan::pageKeepsItsFirstChannelInSight()
{
    QFETCH(int, page);
    QFETCH(int, oldCapacity);
    QFETCH(int, newCapacity);
    QTEST(pageAfterLayoutChange(page, oldCapacity, newCapacity), "newPage");
}

void TestWallPlan::pageGoesOntoTheTiles_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QString>("tiles");
    const QString six = QStringLiteral("aAAbBBCcC");
    QTest::newRow("no channel") << QString() << 2 << 0 << 2 << QStringLiteral("- -");
    QTest::newRow("none open") << QStringLiteral("aab") << 2 << 0 << 2 << QStringLiteral("- -");
    QTest::newRow("no tile") << six << 0 << 0 << 4 << QString();
    QTest::newRow("fewer than tiles")
        << QStringLiteral("AaB") << 4 << 0 << 4 << QStringLiteral("0 2 - -");
    QTest::newRow("first page") << six << 4 << 0 << 4 << QStringLiteral("1 2 4 5");
    QTest::newRow("second page") << six << 4 << 1 << 4 << QStringLiteral("6 8 - -");
    QTest::newRow("page behind the last") << six << 4 << 2 << 4 << QStringLiteral("- - - -");
    QTest::newRow("page of one") << six << 1 << 3 << 1 << QStringLiteral("5");
    QTest::newRow("more tiles than capacity")
        << six << 6 << 0 << 5 << QStringLiteral("1 2 4 5 6 -");
    QTest::newRow("its second page") << six << 6 << 1 << 5 << QStringLiteral("8 - - - - -");
}

void TestWallPlan::pageGoesOntoTheTiles()
{
    QFETCH(QString, channels);
    QFETCH(int, count);
    QFETCH(int, page);
    QFETCH(int, capacity);
    QTEST(tilesText(fillTiles(channelsOf(channels), noChannel, {count, false}, page, capacity)),
        "tiles");
}

void TestWallPlan::mirrorTileShowsOneChannelOnceMore_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("tiles"); // one mirror tile, and three of capacity 3
    QTest::newRow("selected and open")
        << QStringLiteral("AABB") << 1 << 0 << QStringLiteral("1 0 1 2");
    QTest::newRow("selected, of another page")
        << QStringLiteral("AABB") << 0 << 1 << QStringLiteral("0 3 - -");
    QTest::newRow("selected and closed")
        << QStringLiteral("AaBBc") << 1 << 0 << QStringLiteral("2 0 2 3");
    QTest::newRow("first open one of the last device that has one")
        << QStringLiteral("AAbBBc") << noChannel << 0 << QStringLiteral("3 0 1 3");
    QTest::newRow("the only one that has one")
        << QStringLiteral("aAbc") << noChannel << 0 << QStringLiteral("1 1 - -");
    QTest::newRow("nothing open") << QStringLiteral("aab") << 0 << 0 << QStringLiteral("- - - -");
    QTest::newRow("no channel") << QString() << noChannel << 0 << QStringLiteral("- - - -");
    QTest::newRow("page behind the last")
        << QStringLiteral("AB") << noChannel << 5 << QStringLiteral("1 - - -");
}

void TestWallPlan::mirrorTileShowsOneChannelOnceMore()
{
    QFETCH(QString, channels);
    QFETCH(int, selected);
    QFETCH(int, page);
    QTEST(tilesText(fillTiles(channelsOf(channels), selected, {4, true}, page, 3)), "tiles");
    QVERIFY(fillTiles(channelsOf(channels), selected, {0, true}, page, 3).empty());
}

void TestWallPlan::noPageIsTooFarAway_data()
{
    QTest::addColumn<int>("page");
    for (const int page : {-1, -2, smallest, largest})
        QTest::addRow("%d", page) << page;
}

void TestWallPlan::noPageIsTooFarAway()
{
    QFETCH(int, page);
    const std::vector<WallChannel> channels = channelsOf(QStringLiteral("AABB"));
    QCOMPARE(
        tilesText(fillTiles(channels, noChannel, {4, false}, page, 4)), QStringLiteral("- - - -"));
    QCOMPARE(tilesText(fillTiles(channels, noChannel, {2, true}, page, 64)), QStringLiteral("2 -"));
}

ORVA_TEST(TestWallPlan)
#include "tst_wallplan.moc"
