// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bridgeprocess.h"
#include "link/ioconnect.h"
#include "media/audiosend.h"
#include "media/decode.h"
#include "model/device.h"

#include <QObject>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <vector>

class CountingMicrophone final : public AudioSend
{
public:
    void start() override { ++starts; }
    void stop() override { ++stops; }

    int starts = 0;
    int stops = 0;
};

// Base of the tests: an orva-bridge, and a client's link over the real layer, up before the first
// test of a class and down after its last. The devices of a test leave at its end.
class LinkTest : public QObject
{
    Q_OBJECT

protected:
    // Longer than whatever the layer waits for.
    static constexpr int patienceMs = 15000;

    explicit LinkTest(const QByteArray& bridgeDevices)
        : bridge_(bridgeDevices)
    {
    }

    BridgeProcess& bridge() { return bridge_; }
    IoConnect* io() const { return io_.get(); }
    const CountingMicrophone& microphone() const { return microphone_; }

    // A device as the registry would have it, to the end of the test or until deleteDevice().
    Device* addDevice(
        const QString& uid, int channels = 1, const QString& password = BridgeProcess::password);
    // As the registry deletes a device.
    void deleteDevice(Device* device);
    // Connects the channel, and waits for what the link then asks by itself. False when that takes
    // longer than our patience.
    [[nodiscard]] bool bringUp(Channel* channel);
    // A device with one channel, connected; null where that fails.
    Channel* connectedChannel(const QString& uid);

    // A picture of an AV channel.
    struct Picture
    {
        int result = 0; // its size, or a negative result of the layer
        int codec = 0; // 78 is H.264, 80 H.265
    };
    static Picture takePicture(int avIndex); // does not wait for one
    static Picture awaitPicture(int avIndex);

    // What a fail signal carries.
    static QList<QVariant> failure(Channel* channel, int result, const char* text);
    static QString latin1(const char* field);

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

private:
    BridgeProcess bridge_;
    CountingMicrophone microphone_; // the first one there is, so the one that the link takes
    std::unique_ptr<IoConnect> io_;
    std::unique_ptr<Decode> decode_;
    std::vector<DeviceOwner> devices_;
};
