// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkmodel.h"
#include "walktarget.h"
#include "wallmodel.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <map>
#include <memory>
#include <random>
#include <string>

struct WalkPlan
{
    quint32 seed = 1;
    int steps = 0;
    bool withTiles = false;
    bool isUsual = true; // neither seed nor steps are somebody's own: the walk is known to see all

    // ORVA_WALK_SEED and ORVA_WALK_STEPS go before these.
    static WalkPlan fromEnvironment(quint32 seed, int steps, bool withTiles);
};

// Random operations on the program's wall and on the model of it, which are compared after each one.
// The same seed walks the same way. After some thousand steps the walk goes on with a new wall, since
// the layer keeps a record of all calls.
//
//     WallWalk walk(WalkPlan::fromEnvironment(seed, steps, false));
//     QVERIFY2(walk.run(), qPrintable(walk.report()));
//     QCOMPARE(walk.notSeen(), QStringList());
class WallWalk final
{
public:
    explicit WallWalk(const WalkPlan& plan);
    ~WallWalk();
    Q_DISABLE_COPY_MOVE(WallWalk)

    [[nodiscard]] bool run(); // false: a difference
    // Seed, step, the last operations and the first difference.
    QString report() const { return report_; }

    // How often each operation, layout, failure and noteworthy state came.
    QStringList counts() const;
    // What a walk of some length must have come by, and has not.
    QStringList notSeen() const;

private:
    struct Operation
    {
        const char* name;
        int weight;
        bool (WallWalk::*perform)(); // false: there is nothing to do it with
        bool goesWithTiles = true;
    };
    static const std::vector<Operation>& operations();

    void newWall();
    bool step();
    bool compare();
    const char* performOne();
    void noteState();
    void noteFailures();
    void say(const QString& what);

    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool chance(int percent) { return pick(100) < percent; }
    int pickMod();
    ModelDevice* pickDevice();
    ModelChannel* pickChannel();
    ModelChannel* pickChannel(bool isOpen); // such a one, if there is one
    ModelChannel* pickShown(); // or null
    bool mayConnect(const ModelDevice* device) const;
    bool mayOpenSeveral(const ModelDevice* device) const;
    void planFault(ModelChannel* channel);
    void planReplayFault(const ChannelName& name);
    void planUnsent(const ModelChannel* channel, int type, int command);
    void openBoth(ModelChannel* channel);
    Channel* realOf(const ModelChannel* channel) const { return target_->channel(nameOf(channel)); }
    Device* realOf(const ModelDevice* device) const { return target_->device(device->id); }
    void beginBoth();

    bool openOne();
    bool openMany();
    bool openOtherMode();
    bool closeOne();
    bool pageUp();
    bool pageDown();
    bool changeLayout();
    bool changeOtherLayout();
    bool unknownLayout();
    bool switchMode();
    bool keepMode();
    bool selectOne();
    bool selectDeviceOnly();
    bool selectNone();
    bool doubleClick();
    bool failDevice();
    bool failChannel();
    bool failLive();
    bool failReplay();
    bool emptyDay();
    bool closeDevice();
    bool deleteDevice();
    bool closeAll();
    bool reconnect();
    bool connectSlowly();
    bool endSlowness();
    bool writeSettings();
    bool addDevice();
    bool growDevice();
    bool removeDevice();
    bool playAll();
    bool playAllOfNone();
    bool pause();
    bool resume();
    bool play();
    bool show();
    bool unbind();
    bool resize();

    const WalkPlan plan_;
    std::mt19937 random_;
    std::unique_ptr<WalkTarget> target_;
    std::unique_ptr<LinkModel> link_;
    std::unique_ptr<WallModel> model_;
    WalkFaults faults_; // of the step
    int step_ = 0;
    int nextDevice_ = 1;
    std::deque<QString> last_;
    QString report_;
    std::map<std::string, int> performed_;
    std::map<std::string, int> failures_;
    std::map<std::string, int> states_;
};
