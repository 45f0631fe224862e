// SPDX-License-Identifier: GPL-3.0-or-later
#include "wallwalk.h"

#include <QDebug>

#include <numeric>

namespace {

constexpr int stepsPerWall = 2000;
constexpr std::size_t operationsKept = 20;

std::string layoutName(bool isLive, int mod)
{
    return std::string(isLive ? "live view" : "playback") + " in layout " + std::to_string(mod);
}

// What a walk must have met, beside every operation and every layout.
const std::vector<std::string>& wantedStates()
{
    static const std::vector<std::string> wanted{
        "live view beyond the first page",
        "playback beyond the first page",
        "a page beyond the last one",
        "mirror tile with its channel on another tile",
        "mirror tile kept by a layout without one",
        "mirror layout without its mirror tile",
        "mirrored channel that is not selected",
        "open channel without a tile",
        "closed channel on a tile",
        "channel open in both modes",
        "paused channel outside playback",
        "devices opened one channel after another",
        "no channel open",
    };
    return wanted;
}

const std::vector<std::string>& wantedFailures()
{
    static const std::vector<std::string> wanted{
        "no session",
        "no AV channel",
        "no AV channel of a replay",
        "empty day",
        "refused replay",
        "replay without an answer",
        "unsent 255 -1",
        "unsent 511 -1",
        "unsent 767 -1",
        "unsent 794 0",
        "unsent 794 1",
        "unsent 794 16",
    };
    return wanted;
}

QStringList linesOf(const std::map<std::string, int>& counts)
{
    QStringList lines;
    for (const auto& [name, count] : counts)
        lines.append(QStringLiteral("%1 %2").arg(count, 7).arg(QString::fromStdString(name)));
    return lines;
}

} // namespace

WalkPlan WalkPlan::fromEnvironment(quint32 seed, int steps, bool withTiles)
{
    WalkPlan plan{seed, steps, withTiles};
    bool given = false;
    const uint ownSeed = qEnvironmentVariable("ORVA_WALK_SEED").toUInt(&given);
    if (given)
        plan.seed = ownSeed;
    plan.isUsual = !given;
    const int ownSteps = qEnvironmentVariableIntValue("ORVA_WALK_STEPS", &given);
    if (given)
        plan.steps = ownSteps;
    plan.isUsual = plan.isUsual && !given;
    return plan;
}

WallWalk::WallWalk(const WalkPlan& plan)
    : plan_(plan)
    , random_(plan.seed)
{
}

WallWalk::~WallWalk() = default;

bool WallWalk::run()
{
    for (step_ = 0; step_ < plan_.steps; ++step_) {
        if (step_ % stepsPerWall == 0)
            newWall();
        if (!step())
            return false;
    }
    noteFailures();
    return true;
}

void WallWalk::newWall()
{
    noteFailures();
    target_.reset();
    target_ = std::make_unique<WalkTarget>(plan_.withTiles);
    link_ = std::make_unique<LinkModel>();
    model_ = std::make_unique<WallModel>(*link_);
    link_->tells(model_.get());
    constexpr int devicesAtFirst = 4;
    beginBoth();
    say(QStringLiteral("new wall"));
    for (int i = 0; i < devicesAtFirst; ++i)
        addDevice();
}

void WallWalk::noteFailures()
{
    if (link_ == nullptr)
        return;
    for (const auto& [name, count] : link_->failures)
        failures_[name] += count;
    link_->failures.clear();
}

void WallWalk::say(const QString& what)
{
    last_.push_back(QStringLiteral("%1: %2").arg(step_).arg(what));
    if (last_.size() > operationsKept)
        last_.pop_front();
}

// What is planned to fail may be told to both until the operation begins.
void WallWalk::beginBoth()
{
    target_->begin(faults_);
    link_->faults = faults_;
    link_->sent.clear();
    model_->pagesTold.clear();
    model_->modesTold.clear();
    model_->tileCountsTold = 0;
    for (ModelChannel* channel : model_->channels())
        channel->live.waiting = channel->replay.waiting = false;
}

bool WallWalk::step()
{
    faults_ = {};
    beginBoth();
    ++performed_[performOne()];
    constexpr int stepsPerPaint = 16;
    if (step_ % stepsPerPaint == 0)
        target_->paint();
    if (!target_->settle()) {
        report_ = QStringLiteral("seed %1, step %2: the wall does not settle\n%3")
                      .arg(plan_.seed)
                      .arg(step_)
                      .arg(QStringList(last_.begin(), last_.end()).join(QLatin1Char('\n')));
        return false;
    }
    link_->settle();
    if (link_->isAmbiguous())
        qFatal("step %d: two devices wait for a session", step_);
    noteState();
    return compare();
}

const char* WallWalk::performOne()
{
    static const int total = std::accumulate(operations().begin(), operations().end(), 0,
        [](int sum, const Operation& operation) { return sum + operation.weight; });
    for (;;) {
        int at = pick(total);
        for (const Operation& operation : operations()) {
            at -= operation.weight;
            if (at >= 0)
                continue;
            if ((this->*operation.perform)())
                return operation.name;
            break;
        }
    }
}

bool WallWalk::compare()
{
    const WalkState wall = target_->state();
    const WalkState model = stateOf(*model_, *link_, target_->size());
    QString difference = brokenRule(wall, model_->tiles[0].isMirror);
    if (difference.isEmpty() && !(wall == model))
        difference = firstDifferences(wall, model);
    if (difference.isEmpty())
        return true;
    report_ = QStringLiteral("seed %1, step %2\n%3\n%4")
                  .arg(plan_.seed)
                  .arg(step_)
                  .arg(QStringList(last_.begin(), last_.end()).join(QLatin1Char('\n')), difference);
    return false;
}

void WallWalk::noteState()
{
    const bool live = model_->isLive;
    const int mod = model_->mod[live];
    const ModelTile& first = model_->tiles[0];
    const auto note = [this](const char* name, bool is) {
        if (is)
            ++states_[name];
    };
    ++states_[layoutName(live, mod)];
    note("live view beyond the first page", live && model_->page[1] > 0);
    note("playback beyond the first page", !live && model_->page[0] > 0);
    note("a page beyond the last one",
        model_->pageCount() > 0 && model_->page[live] >= model_->pageCount());
    note("mirror tile with its channel on another tile",
        first.isMirror && first.channel != nullptr && first.channel->tile > 0);
    note("mirror tile kept by a layout without one", first.isMirror && mod == 3);
    note("mirror layout without its mirror tile", !first.isMirror && mod == 2);
    note("mirrored channel that is not selected",
        first.isMirror && first.channel != nullptr && first.channel != model_->selectedChannel);
    note("devices opened one channel after another", model_->playAllDevice != nullptr);
    note("no channel open", model_->pageCount() == 0);
    for (ModelChannel* channel : model_->channels()) {
        const bool open = channel->half(live).open;
        note("open channel without a tile", open && channel->tile < 0);
        note("closed channel on a tile", !open && channel->tile >= 0);
        note("channel open in both modes", open && channel->half(!live).open);
        note("paused channel outside playback", live && channel->userPaused);
    }
}

QStringList WallWalk::counts() const
{
    return linesOf(performed_) + linesOf(failures_) + linesOf(states_);
}

QStringList WallWalk::notSeen() const
{
    QStringList missing;
    const auto want = [&missing](
                          const std::map<std::string, int>& counts, const std::string& name) {
        if (counts.count(name) == 0)
            missing.append(QString::fromStdString(name));
    };
    for (const Operation& operation : operations()) {
        if (operation.goesWithTiles || !plan_.withTiles)
            want(performed_, operation.name);
    }
    for (const bool isLive : {true, false}) {
        for (int mod = 0; mod < windowModCount; ++mod)
            want(states_, layoutName(isLive, mod));
    }
    for (const std::string& name : wantedStates())
        want(states_, name);
    for (const std::string& name : wantedFailures())
        want(failures_, name);
    return missing;
}
