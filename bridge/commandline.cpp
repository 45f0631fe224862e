// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

const char* const helpText = R"(orva-bridge publishes cameras, files and test pictures as devices.

Usage:
  orva-bridge --config FILE                  serve the devices of a configuration
  orva-bridge --config FILE --check-config   tell what is wrong with it, and end
  orva-bridge --new-uid                      print a random UID for a new device
  orva-bridge --version
  orva-bridge --help

SIGTERM and SIGINT end it within two seconds with everything saved.

Exit codes:
  0  ended as asked
  2  wrong usage
  3  wrong configuration
  4  cannot bind the port or the control socket
  5  the state file cannot be used
 70  the fault "die" has been asked for
)";

namespace {

using Action = CommandLine::Action;

CommandLine wrong(const std::string& problem)
{
    return {Action::Wrong, {}, problem};
}

// The options that stand alone.
Action loneAction(const std::string& argument)
{
    if (argument == "--help")
        return Action::Help;
    if (argument == "--version")
        return Action::Version;
    return argument == "--new-uid" ? Action::NewUid : Action::Wrong;
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments)
{
    if (arguments.size() == 1 && loneAction(arguments[0]) != Action::Wrong)
        return {loneAction(arguments[0]), {}, {}};
    CommandLine line;
    bool check = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--check-config" && !check)
            check = true;
        else if (argument == "--config" && line.configPath.empty() && i + 1 < arguments.size())
            line.configPath = arguments[++i];
        else
            return wrong("unexpected argument \"" + argument + '"');
    }
    if (line.configPath.empty())
        return wrong("--config FILE is missing");
    line.action = check ? Action::CheckConfig : Action::Serve;
    return line;
}
