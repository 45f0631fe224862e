// SPDX-License-Identifier: GPL-3.0-or-later
#include "ptzhead.h"
#include "testmain.h"

#include <QTest>

class TestPtzHead final : public QObject
{
    Q_OBJECT

private slots:
    void moveTurnsSmoothlyUntilItIsStopped();
    void speedCounts();
    void moveEndsByItselfWithoutRepetition();
    void repetitionKeepsItMoving();
    void limitsAreAbsolute();
    void lensMovesToo();
    void presetIsGoneTo();
    void presetThatWasNeverSetIsToldAndDoesNothing();
    void autoCruiseGoesToAndFro();
    void cruiseVisitsThePresetsInTurn();
    void cruiseWithoutPresetsMoves();
    void moveEndsACruise();
    void storedPositionIsKeptWithinLimits();
};

namespace {

using namespace std::chrono_literals;

const PtzHead::Clock::time_point start{1h};

PtzMove right(int speed = 5)
{
    PtzMove move{};
    move.pan = 1;
    move.speed = speed;
    return move;
}

HeadPosition at(float pan, float tilt)
{
    return {pan, tilt, 0, 0.5F, 0.5F};
}

// Floats are summed up from small steps.
bool isNear(float value, float expected)
{
    return std::abs(value - expected) < 0.01F;
}

} // namespace

void TestPtzHead::moveTurnsSmoothlyUntilItIsStopped()
{
    PtzHead head;
    head.move(right(), start);
    float last = 0;
    for (auto time = start + 40ms; time <= start + 400ms; time += 40ms) {
        QVERIFY(head.advance(time));
        QVERIFY(head.position().pan > last && head.position().pan < last + 0.03F);
        last = head.position().pan;
    }
    head.stop(start + 400ms);
    QVERIFY(!head.advance(start + 500ms));
    QCOMPARE(head.position().pan, last);
    QVERIFY(isNear(last, 0.2F));
}

void TestPtzHead::speedCounts()
{
    PtzHead slow;
    PtzHead fast;
    slow.move(right(1), start);
    fast.move(right(8), start);
    slow.advance(start + 500ms);
    fast.advance(start + 500ms);
    QVERIFY(isNear(slow.position().pan, 0.05F));
    QVERIFY(isNear(fast.position().pan, 0.4F));
}

void TestPtzHead::moveEndsByItselfWithoutRepetition()
{
    PtzHead head;
    head.move(right(), start);
    QVERIFY(!head.advance(start + 10s));
    QVERIFY(isNear(head.position().pan, 0.5F));
}

void TestPtzHead::repetitionKeepsItMoving()
{
    PtzHead head;
    for (auto time = start; time < start + 1500ms; time += 500ms)
        head.move(right(), time);
    QVERIFY(head.advance(start + 1900ms));
    QVERIFY(isNear(head.position().pan, 0.95F));
}

void TestPtzHead::limitsAreAbsolute()
{
    PtzHead head;
    PtzMove move{0, 1, -1, 1, 1, -1, 8};
    for (auto time = start; time < start + 1min; time += 500ms)
        head.move(move, time);
    QCOMPARE(head.position().pan, 1.0F);
    QCOMPARE(head.position().tilt, -1.0F);
    QCOMPARE(head.position().zoom, 1.0F);
    QCOMPARE(head.position().focus, 1.0F);
    QCOMPARE(head.position().iris, 0.0F);
}

void TestPtzHead::lensMovesToo()
{
    PtzHead head;
    head.move({0, 0, 0, 1, -1, 1, 4}, start);
    head.advance(start + 500ms);
    QVERIFY(isNear(head.position().zoom, 0.1F));
    QVERIFY(isNear(head.position().focus, 0.4F));
    QVERIFY(isNear(head.position().iris, 0.6F));
    QCOMPARE(head.position().pan, 0.0F);
}

void TestPtzHead::presetIsGoneTo()
{
    PtzHead head(at(0.8F, -0.3F), {});
    head.setPreset(3, start);
    head.move(right(), start);
    head.advance(start + 5s);
    QVERIFY(head.goPreset(3, start + 5s));
    QVERIFY(head.advance(start + 5s + 40ms));
    QVERIFY(!head.advance(start + 10s));
    QCOMPARE(head.position().pan, 0.8F);
    QCOMPARE(head.position().tilt, -0.3F);
}

void TestPtzHead::presetThatWasNeverSetIsToldAndDoesNothing()
{
    PtzHead head;
    QVERIFY(!head.goPreset(3, start));
    QVERIFY(!head.advance(start + 1s));
    QCOMPARE(head.position().pan, 0.0F);
}

void TestPtzHead::autoCruiseGoesToAndFro()
{
    PtzHead head;
    head.cruise(PtzHead::Cruise::Auto, 5, start);
    float lowest = 0;
    float highest = 0;
    for (auto time = start; time < start + 20s; time += 40ms) {
        QVERIFY(head.advance(time));
        lowest = std::min(lowest, head.position().pan);
        highest = std::max(highest, head.position().pan);
    }
    QVERIFY(isNear(lowest, -1));
    QVERIFY(isNear(highest, 1));
    QVERIFY(head.cruising() == PtzHead::Cruise::Auto);
}

void TestPtzHead::cruiseVisitsThePresetsInTurn()
{
    PtzHead head({}, {{1, at(0.5F, 0)}, {2, at(-0.5F, 0.5F)}});
    head.cruise(PtzHead::Cruise::Presets, 5, start);
    head.advance(start + 2s); // a second on the way, two of rest
    QVERIFY(isNear(head.position().pan, 0.5F));
    head.advance(start + 6s);
    QVERIFY(isNear(head.position().pan, -0.5F));
    QVERIFY(isNear(head.position().tilt, 0.5F));
    head.advance(start + 10s);
    QVERIFY(isNear(head.position().pan, 0.5F));
    QVERIFY(head.cruising() == PtzHead::Cruise::Presets);
}

void TestPtzHead::cruiseWithoutPresetsMoves()
{
    PtzHead head;
    head.cruise(PtzHead::Cruise::Presets, 5, start);
    head.advance(start + 2s);
    QVERIFY(isNear(head.position().pan, -0.5F));
    head.advance(start + 6s);
    QVERIFY(isNear(head.position().pan, 0.5F));
}

void TestPtzHead::moveEndsACruise()
{
    PtzHead head;
    head.cruise(PtzHead::Cruise::Auto, 5, start);
    head.move(right(), start + 1s);
    QVERIFY(head.cruising() == PtzHead::Cruise::None);
    QVERIFY(!head.advance(start + 3s));
}

void TestPtzHead::storedPositionIsKeptWithinLimits()
{
    const PtzHead head({7, -7, -1, 2, 9}, {});
    QCOMPARE(head.position().pan, 1.0F);
    QCOMPARE(head.position().tilt, -1.0F);
    QCOMPARE(head.position().zoom, 0.0F);
    QCOMPARE(head.position().focus, 1.0F);
    QCOMPARE(head.position().iris, 1.0F);
}

ORVA_TEST(TestPtzHead)
#include "tst_ptzhead.moc"
