// SPDX-License-Identifier: GPL-3.0-or-later
#include "churn.h"
#include "clientlink.h"
#include "options.h"
#include "watch.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <thread>

namespace {

constexpr int searchIntervalMs = 500;
constexpr int maxRecords = 1024;

int search(const ProbeOptions& options)
{
    const ClientLink link;
    const int waitMs = static_cast<int>(options.seconds.count()) * 1000;
    const int started =
        link.error() != 0 ? link.error() : IOTC_Search_Device_Start(waitMs, searchIntervalMs);
    if (started < 0) {
        std::cerr << "orva-probe: the link layer answers " << started << std::endl;
        return ExitLayerFailed;
    }
    std::this_thread::sleep_for(options.seconds);
    std::vector<IOTC_SearchRecord> records(maxRecords);
    const int count = IOTC_Search_Device_Result(records.data(), maxRecords, 1);
    nlohmann::json devices = nlohmann::json::array();
    for (int i = 0; i < count; ++i) {
        const IOTC_SearchRecord& record = records[static_cast<std::size_t>(i)];
        const unsigned int port = record.port;
        devices.push_back({{"uid", std::string(record.uid)}, {"ip", std::string(record.ip)},
            {"port", port}, {"name", std::string(record.name)}});
    }
    IOTC_Search_Device_Stop();
    const nlohmann::json json = {{"devices", devices}};
    std::cout << json.dump(1, ' ', false, nlohmann::json::error_handler_t::replace) << std::endl;
    return ExitOk;
}

} // namespace

int main(int argc, char* argv[])
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::cout << probeUsage;
        return ExitOk;
    }
    const auto options = parseOptions(arguments);
    if (!options) {
        std::cerr << probeUsage;
        return ExitUsage;
    }
    switch (options->command) {
    case Command::Search:
        return search(*options);
    case Command::Watch:
        return watch(*options);
    case Command::Send:
        return sendMessage(*options);
    case Command::Churn:
        return churn(*options);
    }
    return ExitUsage;
}
