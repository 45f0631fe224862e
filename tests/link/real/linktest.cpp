// SPDX-License-Identifier: GPL-3.0-or-later
#include "linktest.h"

#include "AVAPIs.h"
#include "cloud/dev.h"
#include "model/frameinfo.h"

#include <QThreadPool>

#include <algorithm>

namespace {

bool holdsChannel(const QSignalSpy& spy, Channel* channel)
{
    return std::any_of(spy.begin(), spy.end(), [channel](const QList<QVariant>& sent) {
        return sent.first().value<Channel*>() == channel;
    });
}

} // namespace

void LinkTest::initTestCase()
{
    qRegisterMetaType<Channel*>("Channel*");
    QVERIFY2(bridge_.start(), bridge_.log().constData());
    io_.reset(IoConnect::instance());
    decode_ = std::make_unique<Decode>();
    QObject::disconnect(io(), nullptr, decode_.get(), nullptr); // the tests fetch the frames
    QSignalSpy up(io(), &IoConnect::tutkInitSuccessMsg);
    QTRY_COMPARE_WITH_TIMEOUT(up.size(), 1, patienceMs);
}

void LinkTest::cleanup()
{
    while (!devices_.empty())
        deleteDevice(devices_.back().get());
}

void LinkTest::cleanupTestCase()
{
    cleanup(); // Qt leaves it out where init() has failed
    // The destructor takes the layer down by a task of its own.
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    QThreadPool::globalInstance()->waitForDone();
    decode_.reset();
    io_.reset();
    QThreadPool::globalInstance()->waitForDone();
}

Device* LinkTest::addDevice(const QString& uid, int channels, const QString& password)
{
    devices_.emplace_back(new Device);
    Device* device = devices_.back().get();
    device->setUid(uid);
    device->setViewPassword(password);
    device->setChannelCount(channels);
    return device;
}

void LinkTest::deleteDevice(Device* device)
{
    io()->disConnectDevice(device);
    emit Dev::instance()->deleteDevMsg(device);
    devices_.erase(std::find_if(devices_.begin(), devices_.end(),
        [device](const DeviceOwner& owner) { return owner.get() == device; }));
}

bool LinkTest::bringUp(Channel* channel)
{
    QSignalSpy connected(io(), &IoConnect::connectChannelSuccessMsg);
    QSignalSpy told(io(), &IoConnect::getPtzMsg); // the last answer
    io()->connect(channel);
    return QTest::qWaitFor(
        [&] { return holdsChannel(connected, channel) && holdsChannel(told, channel); },
        patienceMs);
}

Channel* LinkTest::connectedChannel(const QString& uid)
{
    Channel* channel = addDevice(uid)->channel(0);
    return bringUp(channel) ? channel : nullptr;
}

LinkTest::Picture LinkTest::takePicture(int avIndex)
{
    constexpr int capacity = 65536; // many times one of these small pictures
    std::vector<char> buffer(capacity);
    MyFrameInfo_t info{};
    Picture picture;
    picture.result = avRecvFrameData2(avIndex, buffer.data(), capacity, nullptr, nullptr,
        reinterpret_cast<char*>(&info), AV_FRAME_INFO_BYTES, nullptr, &info.frameNumber);
    picture.codec = info.codecId;
    return picture;
}

LinkTest::Picture LinkTest::awaitPicture(int avIndex)
{
    Picture picture;
    const bool came = QTest::qWaitFor(
        [&picture, avIndex] {
            picture = takePicture(avIndex);
            return picture.result != AV_NOTHING_READY;
        },
        patienceMs);
    return came ? picture : Picture{AV_NO_ANSWER, 0};
}

QList<QVariant> LinkTest::failure(Channel* channel, int result, const char* text)
{
    return {QVariant::fromValue(channel), result, QString::fromLatin1(text)};
}

QString LinkTest::latin1(const char* field)
{
    return QString::fromLatin1(field);
}
