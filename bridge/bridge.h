// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "config.h"
#include "controlsocket.h"
#include "device.h"
#include "device/linkhost.h"
#include "exitcode.h"
#include "jobqueue.h"
#include "media/worker.h"
#include "state.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// All devices of a configuration, from the binding of the port to the last save.
//
// Commands of the control socket: "status" answers one line of JSON, "quit" ends the program,
// "fault UID FAULT" asks for a fault (faults.h). Other answers are "ok" or "error: ...".
class Bridge
{
public:
    // Null when something cannot be had, which the log tells; `failure` is the program's exit code
    // then. `quit`: what the command "quit" calls, on the socket's thread.
    static std::unique_ptr<Bridge> start(
        const Config& config, std::function<void()> quit, ExitCode& failure);

    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;
    // Saves everything, then ends sessions and sources.
    ~Bridge();

private:
    explicit Bridge(std::function<void()> quit);

    ExitCode open(const Config& config);
    ExitCode openState(const Config& config);
    ExitCode openHost(const Config& config);
    ExitCode openControl(const Config& config);
    ExitCode publish(const Config& config);
    void tickHeads();
    bool tickAll();
    std::string obey(const std::string& line);
    std::string obeyFault(const std::string& uid, const std::string& fault);
    std::string status() const;

    const std::function<void()> quit_;
    std::unique_ptr<StateFile> state_;
    std::unique_ptr<JobQueue> jobs_;
    std::unique_ptr<LinkHost> host_;
    std::vector<std::unique_ptr<BridgeDevice>> devices_;
    std::atomic<bool> headMoves_{false};
    Worker ticker_;
    std::unique_ptr<ControlSocket> control_;
};
