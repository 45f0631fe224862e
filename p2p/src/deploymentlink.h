// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// What an installation sets about the link, in the `link` part of `deployment.json`.
struct DeploymentLink
{
    struct Endpoint
    {
        std::string host; // name or address
        std::uint16_t port = 0; // UDP, of the device's sessions
    };

    bool loopbackOnly = false;
    std::map<std::string, Endpoint> addressBook; // by UID

    // Pure. A text that is malformed in this part gives the defaults, all of them.
    static DeploymentLink parse(std::string_view json);
    // Of the first `deployment.json` beside the program or in the system's configuration folders;
    // the defaults without one.
    static DeploymentLink load();
};
