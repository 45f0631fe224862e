// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soakdevice.h"
#include "soakrecord.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <memory>
#include <random>
#include <vector>

// A window of 16 streams of four devices, and somebody who stops and starts them, changes their
// quality, and pulls the plugs of their devices, by chance. At the end it lets all come to rest and
// judges. Main thread.
class Soak final : public QWidget
{
    Q_OBJECT

public:
    Soak(std::chrono::minutes length, unsigned seed);
    ~Soak() override;

    // False when a device does not start, which is told.
    bool start();

signals:
    void finished(bool good);

private:
    static constexpr int deviceCount = 4;

    void buildTiles();
    void act();
    void actOn(SoakDevice& device, int channel);
    void strike(SoakDevice& device);
    int draw(int from, int to); // both included
    void look();
    void comeToRest();
    void judge();
    bool tellStillChannels() const;
    void closeAll();

    const std::chrono::minutes length_;
    std::mt19937 random_;
    std::vector<std::unique_ptr<SoakDevice>> devices_;
    QTimer actTimer_;
    QTimer lookTimer_;
    QElapsedTimer clock_;
    std::vector<SoakSample> samples_;
    qint64 picturesTold_ = 0;
    qint64 pictures_ = 0;
    QMap<const Channel*, qint64> picturesOf_;
    QMap<const Channel*, qint64> picturesAtRest_;
    QMap<QByteArray, int> deeds_;
    bool good_ = true;
};
