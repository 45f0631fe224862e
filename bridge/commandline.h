// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

struct CommandLine
{
    enum class Action { Help, Version, NewUid, CheckConfig, Serve, Wrong };

    Action action = Action::Wrong;
    std::string configPath; // for CheckConfig and Serve
    std::string problem; // for Wrong
};

// Pure. `arguments` without the program's name.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

extern const char* const helpText;
