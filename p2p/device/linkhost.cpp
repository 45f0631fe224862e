// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/linkhost.h"

#include "device/host.h"

#include <utility>

namespace {

class RunningHost final : public LinkHost
{
public:
    explicit RunningHost(std::shared_ptr<Host> host)
        : host_(std::move(host))
    {
    }
    ~RunningHost() override { host_->stop(); }

    std::uint16_t port() const override { return host_->port(); }
    bool publish(const LinkDevice& device, LinkDeviceHandler& handler) override
    {
        return host_->directory().publish(device, handler);
    }
    void withdraw(const std::string& uid) override { host_->withdraw(uid); }
    void setPassword(const std::string& uid, const std::string& password) override
    {
        host_->directory().setPassword(uid, password);
    }
    void setSilent(const std::string& uid, bool silent) override { host_->setSilent(uid, silent); }

private:
    const std::shared_ptr<Host> host_;
};

} // namespace

std::unique_ptr<LinkHost> LinkHost::start(const LinkHostSettings& settings, std::string& error)
{
    auto host = std::make_shared<Host>();
    if (!host->start(settings, error)) {
        host->stop();
        return nullptr;
    }
    return std::make_unique<RunningHost>(std::move(host));
}
