// SPDX-License-Identifier: GPL-3.0-or-later
#include "bridge.h"

#include "log.h"

#include <chrono>
#include <nlohmann/json.hpp>

namespace {

using namespace std::chrono_literals;

// Heads move 25 times a second while one does. Without one the clocks are looked at: a zone may
// have changed its offset.
constexpr auto moveInterval = 40ms;
constexpr auto restInterval = 30s;

} // namespace

Bridge::Bridge(std::function<void()> quit)
    : quit_(std::move(quit))
    , ticker_([this] { tickHeads(); })
{
}

std::unique_ptr<Bridge> Bridge::start(
    const Config& config, std::function<void()> quit, ExitCode& failure)
{
    std::unique_ptr<Bridge> bridge(new Bridge(std::move(quit)));
    failure = bridge->open(config);
    return failure == ExitCode::Ok ? std::move(bridge) : nullptr;
}

ExitCode Bridge::open(const Config& config)
{
    for (const auto step :
        {&Bridge::openState, &Bridge::openHost, &Bridge::publish, &Bridge::openControl}) {
        const ExitCode code = (this->*step)(config);
        if (code != ExitCode::Ok)
            return code;
    }
    ticker_.wake();
    return ExitCode::Ok;
}

ExitCode Bridge::openState(const Config& config)
{
    std::string error;
    state_ = StateFile::open(config.stateFile, error);
    if (state_) {
        jobs_ = std::make_unique<JobQueue>();
        return ExitCode::Ok;
    }
    logEvent(LogLevel::Error, "", -1,
        "the state file " + config.stateFile + " cannot be used and is left as it is: " + error);
    return ExitCode::StateUnusable;
}

ExitCode Bridge::openHost(const Config& config)
{
    std::string error;
    host_ = LinkHost::start(config.host, error);
    if (!host_) {
        logEvent(LogLevel::Error, "", -1,
            "cannot serve on " + config.host.address + ':' + std::to_string(config.host.port) + ": "
                + error);
        return ExitCode::CannotBind;
    }
    logEvent(LogLevel::Info, "", -1,
        "serving on " + config.host.address + ':' + std::to_string(host_->port()));
    return ExitCode::Ok;
}

ExitCode Bridge::publish(const Config& config)
{
    const DeviceServices services{*host_, *jobs_, *state_,
        [this] {
            headMoves_ = true;
            ticker_.wake();
        },
        Feed::create};
    // The state is read before the first client can have a job written to it.
    for (const auto& device : config.devices)
        devices_.push_back(std::make_unique<BridgeDevice>(device, services));
    for (const auto& device : devices_) {
        if (device->publish())
            continue;
        logEvent(LogLevel::Error, device->uid(), -1, "the link does not take this device");
        return ExitCode::BadConfiguration;
    }
    return ExitCode::Ok;
}

ExitCode Bridge::openControl(const Config& config)
{
    if (config.controlSocket.empty())
        return ExitCode::Ok;
    std::string error;
    control_ = ControlSocket::start(
        config.controlSocket, [this](const std::string& line) { return obey(line); }, error);
    if (control_)
        return ExitCode::Ok;
    logEvent(LogLevel::Error, "", -1,
        "cannot serve the control socket " + config.controlSocket + ": " + error);
    return ExitCode::CannotBind;
}

Bridge::~Bridge()
{
    control_.reset();
    ticker_.stop();
    for (const auto& device : devices_)
        device->withdraw();
    jobs_.reset(); // after this all is saved
    host_.reset();
    devices_.clear();
    logEvent(LogLevel::Info, "", -1, "ended");
}

void Bridge::tickHeads()
{
    bool moving = false;
    do {
        headMoves_ = false;
        moving = tickAll();
        const auto next = Worker::Clock::now() + (moving ? moveInterval : restInterval);
        ticker_.waitFor([this, moving] { return !moving && headMoves_; }, next);
    } while (!ticker_.stopping());
}

bool Bridge::tickAll()
{
    bool moving = false;
    for (const auto& device : devices_)
        moving = device->tick() || moving;
    return moving;
}

std::string Bridge::obey(const std::string& line)
{
    if (line == "status")
        return status();
    if (line == "quit") {
        quit_();
        return "ok";
    }
    const std::string start = "fault ";
    const auto uidEnd = line.find(' ', start.size());
    if (line.rfind(start, 0) != 0 || uidEnd == std::string::npos)
        return "error: expected status, quit, or fault UID FAULT";
    return obeyFault(line.substr(start.size(), uidEnd - start.size()), line.substr(uidEnd + 1));
}

std::string Bridge::obeyFault(const std::string& uid, const std::string& text)
{
    const auto fault = parseFault(text);
    if (const auto* problem = std::get_if<std::string>(&fault))
        return "error: " + *problem;
    for (const auto& device : devices_) {
        if (device->uid() != uid)
            continue;
        logEvent(LogLevel::Warning, uid, -1, "fault: " + text);
        device->fault(std::get<Fault>(fault));
        return "ok";
    }
    return "error: no device " + uid;
}

std::string Bridge::status() const
{
    auto devices = nlohmann::json::array();
    for (const auto& device : devices_)
        devices.push_back(device->status());
    const nlohmann::json all{{"port", host_->port()}, {"devices", devices}};
    return all.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}
