// SPDX-License-Identifier: GPL-3.0-or-later
#include "walktarget.h"

#include "freshlayer.h"
#include "store/location.h"
#include "wall/glwidgetviewwindow.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRunnable>
#include <QSemaphore>
#include <QSettings>
#include <QTest>
#include <QtEndian>

namespace {

constexpr int failed = -20016;
constexpr int playControl = 794;
constexpr int start = 16;
constexpr int firstReplayChannel = 128; // the AV channels that devices name for a replay

int commandOf(const LinkCall& call)
{
    constexpr int commandAt = 4;
    return call.type() == playControl
        ? static_cast<int>(qFromLittleEndian<quint32>(call.payload().constData() + commandAt))
        : -1;
}

// Until every task that has been started so far has ended: there is one thread for all.
bool waitForTasks()
{
    constexpr int patienceMs = 10000;
    if (QThreadPool::globalInstance()->activeThreadCount() == 0)
        return true;
    const auto ended = std::make_shared<QSemaphore>();
    QThreadPool::globalInstance()->start(QRunnable::create([ended] { ended->release(); }));
    return ended->tryAcquire(1, patienceMs);
}

} // namespace

WalkTarget::WalkTarget(bool withTiles)
    : withTiles_(withTiles)
    , settingsPath_(Location::instance()->getConfigPath())
{
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    test_ = std::make_unique<WallTest>();
    context_ = std::make_unique<QObject>();
    scriptLayer();
    listen();
    if (!withTiles_)
        return;
    window_.setWindowFlags(Qt::FramelessWindowHint);
    window_.setGeometry(0, 0, 640, 480);
    test_->screen.setParent(&window_);
    window_.show();
    if (!QTest::qWaitForWindowExposed(&window_))
        qFatal("the window does not come up");
    test_->makeTiles(QSize(320, 240));
    test_->screen.show();
}

WalkTarget::~WalkTarget()
{
    // An attempt that does not end keeps its device.
    const Device* slow = device(std::exchange(slow_, -1));
    if (slow != nullptr && slow->connecting
        && (!endAttempt(idOfUid_.value(slow->uid()), false) || !settle()))
        qFatal("an attempt does not end");
    context_.reset();
    test_.reset();
    QThreadPool::globalInstance()->setMaxThreadCount(QThread::idealThreadCount());
}

void WalkTarget::scriptLayer()
{
    // Of two rules the newer one goes first.
    const auto record = [this](const LinkCall& call) { note(call); };
    test_->link.always(LinkFn::avSendIOCtrl).then(record);
    test_->link.always(LinkFn::avSendIOCtrl, [this](const LinkCall& c) { return failsToSend(c); })
        .answers(failed)
        .then(record);
    test_->link
        .always(LinkFn::avClientStart2, [this](const LinkCall& c) { return failsToStart(c); })
        .answers(failed);
    test_->link
        .always(LinkFn::IOTC_Connect_ByUID_ParallelNB,
            [this](const LinkCall& c) { return failsToConnect(c); })
        .reports({ConnectStep::failed(failed)});
    test_->link
        .always(LinkFn::IOTC_Connect_ByUID_ParallelNB,
            [this](const LinkCall& c) { return idOfUid_.value(c.text("uid"), -1) == slow_; })
        .reports({});
}

bool WalkTarget::endAttempt(int id, bool isReached)
{
    const LinkCall attempt = test_->link.last(
        LinkFn::IOTC_Connect_ByUID_ParallelNB, forUid(device(id)->uid().toLatin1()));
    return test_->link.report(
        attempt.sessionId(), isReached ? ConnectStep::connected() : ConnectStep::failed(failed));
}

void WalkTarget::listen()
{
    QObject* context = context_.get();
    ViewControl* wall = &test_->viewControl;
    QObject::connect(wall, &ViewControl::createPageMsg, context,
        [this](int page, int total) { pagesTold_.emplace_back(page, total); });
    QObject::connect(wall, &ViewControl::changeModMsg, context,
        [this](bool isLive) { modesTold_.push_back(isLive); });
    QObject::connect(
        wall, &ViewControl::windowNumberChangeMsg, context, [this] { ++tileCountsTold_; });
    QObject::connect(&io(), &IoConnect::connectChannelSuccessMsg, context,
        [this](Channel* channel) { showDay(channel); });
}

void WalkTarget::addDevice(int id, int channelCount, bool isConnected)
{
    devices_.push_back({id, test_->addDevice(channelCount, isConnected)});
    idOfUid_.insert(device(id)->uid(), id);
    nameChannels(id);
}

void WalkTarget::nameChannels(int id)
{
    const Device* of = device(id);
    for (int i = 0; i < of->channelListSize(); ++i)
        names_.insert(of->channel(i), {id, i});
}

void WalkTarget::growDevice(int id, int channelCount)
{
    DeviceOwner changed(new Device);
    changed->setUid(device(id)->uid());
    changed->setChannelCount(channelCount);
    Dev::instance()->addDevice(std::move(changed));
    nameChannels(id);
}

void WalkTarget::removeDevice(int id)
{
    Device* leaving = device(id);
    for (int i = 0; i < leaving->channelListSize(); ++i)
        names_.remove(leaving->channel(i));
    Dev::instance()->removeDevice(leaving);
    for (std::size_t i = 0; i < devices_.size(); ++i) {
        if (devices_[i].id == id) {
            devices_.erase(devices_.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
    }
}

Device* WalkTarget::device(int id) const
{
    for (const Known& known : devices_) {
        if (known.id == id)
            return known.device;
    }
    return nullptr;
}

Channel* WalkTarget::channel(const ChannelName& name) const
{
    const Device* of = device(name.device);
    return of == nullptr ? nullptr : of->channel(name.channel);
}

ChannelName WalkTarget::nameOf(const Channel* channel) const
{
    if (channel == nullptr)
        return {};
    constexpr ChannelName hasLeft{-2, -2};
    return names_.value(channel, hasLeft);
}

ChannelName WalkTarget::nameAt(int avIndex) const
{
    for (const Known& known : devices_) {
        for (int i = 0; avIndex >= 0 && i < known.device->channelListSize(); ++i) {
            if (known.device->channel(i)->mode(true).avIndex == avIndex)
                return {known.id, i};
        }
    }
    return {};
}

bool WalkTarget::failsToSend(const LinkCall& call) const
{
    return !faults_.unsent.empty()
        && faults_.unsent.count({nameAt(call.avIndex()), call.type(), commandOf(call)}) != 0;
}

bool WalkTarget::failsToStart(const LinkCall& call) const
{
    const int channel = call.number("channelId");
    const bool isLive = channel < firstReplayChannel;
    for (const Known& known : devices_) {
        const ChannelName name{known.id, isLive ? channel : channel - firstReplayChannel};
        if (known.device->sid == call.sessionId() && faults_.withoutAv.count({name, isLive}) != 0)
            return true;
    }
    return false;
}

bool WalkTarget::failsToConnect(const LinkCall& call) const
{
    for (const Known& known : devices_) {
        if (known.device->uid() == call.text("uid") && faults_.withoutSession.count(known.id) != 0)
            return true;
    }
    return false;
}

// In a task.
void WalkTarget::note(const LinkCall& call)
{
    const WalkMessage message{nameAt(call.avIndex()), call.type(), commandOf(call)};
    {
        const std::lock_guard lock(mutex_);
        sent_.push_back(message);
    }
    if (message.command == start && call.result.value_or(failed) >= 0)
        QMetaObject::invokeMethod(
            context_.get(), [this, name = message.channel] { answerStart(name); },
            Qt::QueuedConnection);
}

void WalkTarget::answerStart(const ChannelName& name)
{
    if (faults_.refusedReplays.count(name) != 0)
        emit io().startReplayFailMsg(channel(name), 0, QString());
    else if (faults_.silentReplays.count(name) == 0)
        io().connectChannel(
            channel(name), static_cast<unsigned char>(firstReplayChannel + name.channel), false);
}

// What the timeline does in playback, with the list of the day at once.
void WalkTarget::showDay(Channel* channel)
{
    if (wall().getIsLive())
        return;
    if (faults_.emptyDays.count(nameOf(channel)) != 0)
        emit io().receiveVideoTimeEmptyMsg(channel, 0, QString());
    else
        emit io().finishVideoTimeMsg(channel);
}

void WalkTarget::begin(const WalkFaults& faults)
{
    faults_ = faults;
    sent_.clear();
    pagesTold_.clear();
    modesTold_.clear();
    tileCountsTold_ = 0;
    const QList<Channel*> channels = Dev::instance()->channels();
    for (Channel* channel : channels)
        channel->mode(true).waiting = channel->mode(false).waiting = false;
}

bool WalkTarget::isConnecting() const
{
    for (const Known& known : devices_) {
        if (known.device->connecting && known.id != slow_)
            return true;
    }
    return false;
}

bool WalkTarget::settle()
{
    constexpr qint64 patienceMs = 10000;
    QElapsedTimer elapsed;
    elapsed.start();
    Deliveries deliveries;
    do {
        deliveries.count = 0;
        if (!waitForTasks() || elapsed.elapsed() > patienceMs)
            return false;
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (deliveries.count > 0 || isConnecting());
    return true;
}

void WalkTarget::paint()
{
    if (withTiles_)
        QCoreApplication::processEvents();
}

WalkState WalkTarget::state() const
{
    const ViewControl& wall = test_->viewControl;
    WalkState state;
    state.isLive = wall.getIsLive();
    state.mod = {wall.getWindowMod(false), wall.getWindowMod(true)};
    state.page = wall.getPage();
    state.pageCount = wall.getPageCount();
    for (int i = 0; i < wall.getTileCount(); ++i)
        state.tiles.push_back(nameOf(wall.getTileChannel(i)));
    for (const Known& known : devices_) {
        if (known.device == Dev::instance()->selectedDevice())
            state.selectedDevice = known.id;
    }
    state.selectedChannel = nameOf(Dev::instance()->selectedChannel());
    readSettings(state);
    const QList<GlWidgetViewWindow*> tiles =
        withTiles_ ? test_->tiles() : QList<GlWidgetViewWindow*>();
    const QList<Channel*> channels = Dev::instance()->channels();
    for (const Channel* channel : channels)
        state.channels.push_back(stateOf(channel, tiles));
    state.pagesTold = pagesTold_;
    state.modesTold = modesTold_;
    state.tileCountsTold = tileCountsTold_;
    state.sent = sent_;
    if (withTiles_)
        addWidgets(state, tiles);
    return state;
}

ChannelState WalkTarget::stateOf(
    const Channel* channel, const QList<GlWidgetViewWindow*>& tiles) const
{
    ChannelState state;
    state.name = nameOf(channel);
    for (const bool live : {false, true}) {
        const ChannelMode& mode = channel->mode(live);
        state.open[live] = mode.open;
        state.playing[live] = mode.playing;
        state.waiting[live] = mode.waiting;
        state.connected[live] = mode.avIndex >= 0;
    }
    state.userPaused = channel->replayPaused;
    if (channel->tile != nullptr)
        state.tile = tiles.contains(channel->tile) ? tiles.indexOf(channel->tile) : -2;
    return state;
}

void WalkTarget::addWidgets(WalkState& state, const QList<GlWidgetViewWindow*>& tiles) const
{
    state.widgetsAlive = test_->screen.findChildren<GlWidgetViewWindow*>().size();
    for (const GlWidgetViewWindow* tile : tiles) {
        const QRect at = tile->geometry();
        state.widgets.push_back({nameOf(tile->getChannel()), tile->isMirror(),
            {at.x(), at.y(), at.width(), at.height()}});
    }
}

void WalkTarget::readSettings(WalkState& state) const
{
    // One object for all: each reads the file.
    const QSettings file(settingsPath_, QSettings::IniFormat);
    state.saved = {file.value(QStringLiteral("config/replaywindownum")).toInt(),
        file.value(QStringLiteral("config/windownum")).toInt()};
    const QByteArray text = file.value(QStringLiteral("config/devicechannel")).toByteArray();
    const QJsonArray devices = QJsonDocument::fromJson(text).array();
    for (const QJsonValue& device : devices) {
        const int id = idOfUid_.value(device[QStringLiteral("dev")].toString(), -1);
        const QJsonArray numbers = device[QStringLiteral("channel")].toArray();
        for (const QJsonValue& number : numbers)
            state.savedOpen.emplace_back(id, number.toInt());
    }
}
