// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "journal.h"
#include "link/connect.h"
#include "link/ioconnect.h"
#include "model/device.h"
#include "scriptedlink.h"

#include <memory>
#include <vector>

// Runs the tasks that were started and handles what they have posted, until none is under way. To
// be called once no call is held at a gate. Reports of pending connects may still come after it.
void finishTasks();

// A device as the registry makes it, with 20 times this letter as its UID.
DeviceOwner makeDevice(char letter, int channels = 1);

QByteArray uidOf(char letter);

// For one test function: a Connect or an IoConnect of its own, devices, and a journal of what it
// tells, on a layer in its first state. Its end leaves nothing under way.
template <class Link>
class LinkBench final
{
public:
    LinkBench() { layer.reset(); }
    ~LinkBench()
    {
        end();
        devices_.clear();
        finishTasks(); // a device goes from the event loop
        layer.reset();
    }

    // Makes the link, whose start-up is a task under way then.
    void begin()
    {
        link_ = std::make_unique<Link>();
        journal_ = std::make_unique<Journal>(*link_);
    }
    // ... and has the libraries up and the journal empty.
    void start()
    {
        begin();
        finishTasks();
        journal().clear();
    }
    // Destroys the link. Reports that are pending are made while its libraries are taken down.
    void end()
    {
        finishTasks();
        journal_.reset();
        link_.reset();
        finishTasks();
    }

    Link& link() { return *link_; }
    Journal& journal() { return *journal_; }

    // Lives as long as the bench.
    Device* addDevice(char letter, int channels = 1)
    {
        devices_.push_back(makeDevice(letter, channels));
        return devices_.back().get();
    }
    Channel* addChannel(char letter) { return addDevice(letter)->channel(0); }

    ScriptedLink& layer = ScriptedLink::instance();

private:
    Q_DISABLE_COPY_MOVE(LinkBench)

    std::vector<DeviceOwner> devices_;
    std::unique_ptr<Link> link_;
    std::unique_ptr<Journal> journal_;
};

using ConnectBench = LinkBench<Connect>;
using IoConnectBench = LinkBench<IoConnect>;

// The UIDs for which sessions were asked, as letters, in their order: "AB".
QString attempts();
int attemptsFor(char letter);
// The channel ids that were started, in the order of the calls.
QList<int> startedChannels();

Q_DECLARE_METATYPE(LinkFn)

constexpr LinkFn connectFn = LinkFn::IOTC_Connect_ByUID_ParallelNB;
constexpr LinkFn startFn = LinkFn::avClientStart2;
