// SPDX-License-Identifier: GPL-3.0-or-later
#include "bridge.h"
#include "commandline.h"
#include "config.h"
#include "log.h"
#include "newuid.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace {

int finish(ExitCode code)
{
    return static_cast<int>(code);
}

void printErrors(const std::string& path, const std::vector<ConfigError>& errors)
{
    for (const auto& error : errors)
        std::fprintf(stderr, "%s:%d: %s\n", path.c_str(), error.line, error.text.c_str());
}

// False after telling what is wrong.
bool readConfig(const std::string& path, Config& config)
{
    std::ifstream file(path);
    std::ostringstream text;
    if (!file || !(text << file.rdbuf())) {
        std::fprintf(stderr, "%s: cannot be read\n", path.c_str());
        return false;
    }
    auto parsed = parseConfig(text.str(), ConfigFiles::real(path));
    if (const auto* errors = std::get_if<std::vector<ConfigError>>(&parsed)) {
        printErrors(path, *errors);
        return false;
    }
    config = std::get<Config>(std::move(parsed));
    return true;
}

// Blocked in every thread, so that only the wait below takes them.
sigset_t blockEndSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return signals;
}

ExitCode serve(const std::string& path)
{
    const sigset_t signals = blockEndSignals();
    Config config;
    if (!readConfig(path, config))
        return ExitCode::BadConfiguration;
    setLogLevel(config.logLevel);
    ExitCode failure = ExitCode::Ok;
    const auto bridge = Bridge::start(
        config, [] { ::kill(::getpid(), SIGTERM); }, failure);
    if (!bridge)
        return failure;
    int signal = 0;
    sigwait(&signals, &signal);
    logEvent(LogLevel::Info, "", -1, "ending");
    // Settings are saved within milliseconds. A camera that does not let go, or a name that is still
    // looked up, must not hold the end up longer.
    std::thread([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(1700));
        ::_exit(static_cast<int>(ExitCode::Ok));
    }).detach();
    return ExitCode::Ok;
}

ExitCode checkConfig(const std::string& path)
{
    Config config;
    if (!readConfig(path, config))
        return ExitCode::BadConfiguration;
    std::printf("%s: no errors\n", path.c_str());
    return ExitCode::Ok;
}

} // namespace

int main(int argc, char* argv[])
{
    const auto command = parseCommandLine({argv + 1, argv + argc});
    switch (command.action) {
    case CommandLine::Action::Help:
        std::fputs(helpText, stdout);
        return finish(ExitCode::Ok);
    case CommandLine::Action::Version:
        std::puts("orva-bridge " ORVA_BRIDGE_VERSION);
        return finish(ExitCode::Ok);
    case CommandLine::Action::NewUid:
        std::puts(newUid().c_str());
        return finish(ExitCode::Ok);
    case CommandLine::Action::CheckConfig:
        return finish(checkConfig(command.configPath));
    case CommandLine::Action::Serve:
        return finish(serve(command.configPath));
    case CommandLine::Action::Wrong:
        break;
    }
    std::fprintf(stderr, "orva-bridge: %s\nTry --help.\n", command.problem.c_str());
    return finish(ExitCode::Usage);
}
