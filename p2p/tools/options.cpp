// SPDX-License-Identifier: GPL-3.0-or-later
#include "options.h"

#include <algorithm>
#include <cstdlib>
#include <map>

const char* const probeUsage =
    "orva-probe COMMAND [OPTION VALUE]...\n"
    "Talks to devices through the link layer alone. Prints one JSON object.\n"
    "  search                      the devices that answer on the local network\n"
    "  watch UID                   live pictures: frames, losses, delays\n"
    "  send UID TYPE HEXBYTES      one IO-control message to the first channel, and the answers\n"
    "  churn UID                   connects, starts, stops and disconnects at random\n"
    "Options:\n"
    "  --seconds N                 how long (5)\n"
    "  --account TEXT --password TEXT\n"
    "  --channels N or LIST        the first N, or numbers as in 0,3,5-7 (1)\n"
    "  --quality high|low          set before the start\n"
    "  --sound on|off              count sound frames too\n"
    "  --stamp time|frame          decode and check the stamp in the picture; `time` gives delays\n"
    "  --clients N --seed N        for churn (16, 1)\n"
    "The layer reads deployment.json beside this program.\n"
    "Exit codes: 0 ok, 2 usage, 3 connect failed, 4 wrong account or password, 5 no frames or\n"
    "no answer, 6 layer not up or channel not open.\n";

namespace {

constexpr std::uint64_t noNumber = ~std::uint64_t{0};

// noNumber when `text` is not a decimal number up to `limit`.
std::uint64_t number(const std::string& text, std::uint64_t limit)
{
    if (text.empty() || text.size() > 19
        || text.find_first_not_of("0123456789") != std::string::npos)
        return noNumber;
    const std::uint64_t value = std::strtoull(text.c_str(), nullptr, 10);
    return value <= limit ? value : noNumber;
}

bool addRange(const std::string& text, std::vector<int>& channels)
{
    const auto dash = text.find('-');
    const auto first = number(text.substr(0, dash), 255);
    const auto last = dash == std::string::npos ? first : number(text.substr(dash + 1), 255);
    if (first == noNumber || last == noNumber || last < first)
        return false;
    for (auto channel = first; channel <= last; ++channel)
        channels.push_back(static_cast<int>(channel));
    return true;
}

bool setChannels(const std::string& text, std::vector<int>& channels)
{
    channels.clear();
    if (text.find_first_of(",-") == std::string::npos) {
        const auto count = number(text, 64);
        return count != noNumber && count > 0
            && addRange("0-" + std::to_string(count - 1), channels);
    }
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const auto end = std::min(text.find(',', begin), text.size());
        if (!addRange(text.substr(begin, end - begin), channels))
            return false;
        begin = end + 1;
    }
    return true;
}

bool setBytes(const std::string& hex, std::string& bytes)
{
    if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return false;
    bytes.clear();
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes.push_back(static_cast<char>(std::strtoul(hex.substr(i, 2).c_str(), nullptr, 16)));
    return true;
}

template <typename Value>
bool choose(const std::string& text, const std::map<std::string, Value>& choices, Value& value)
{
    const auto found = choices.find(text);
    if (found == choices.end())
        return false;
    value = found->second;
    return true;
}

template <typename Value>
bool setNumber(const std::string& text, std::uint64_t limit, Value& value)
{
    const auto parsed = number(text, limit);
    if (parsed == noNumber)
        return false;
    value = Value(parsed);
    return true;
}

bool setOption(ProbeOptions& options, const std::string& name, const std::string& value)
{
    if (name == "--account") {
        options.account = value;
        return true;
    }
    if (name == "--password") {
        options.password = value;
        return true;
    }
    if (name == "--seconds")
        return setNumber(value, 86400, options.seconds);
    if (name == "--clients")
        return setNumber(value, 1024, options.clients) && options.clients > 0;
    if (name == "--seed")
        return setNumber(value, noNumber - 1, options.seed);
    if (name == "--channels")
        return setChannels(value, options.channels);
    if (name == "--sound")
        return choose(value, {{"on", true}, {"off", false}}, options.sound);
    if (name == "--quality") {
        return choose<std::optional<bool>>(
            value, {{"high", true}, {"low", false}}, options.highQuality);
    }
    if (name == "--stamp")
        return choose(
            value, {{"time", StampCheck::Time}, {"frame", StampCheck::Frame}}, options.stamp);
    return false;
}

} // namespace

std::optional<ProbeOptions> parseOptions(const std::vector<std::string>& arguments)
{
    struct Form
    {
        Command command;
        std::size_t operands;
    };
    static const std::map<std::string, Form> forms{{"search", {Command::Search, 0}},
        {"watch", {Command::Watch, 1}}, {"send", {Command::Send, 3}},
        {"churn", {Command::Churn, 1}}};

    const auto form = forms.find(arguments.empty() ? std::string() : arguments[0]);
    if (form == forms.end() || arguments.size() < 1 + form->second.operands)
        return std::nullopt;
    ProbeOptions options;
    options.command = form->second.command;
    if (form->second.operands >= 1)
        options.uid = arguments[1];
    if (options.command == Command::Send
        && (!setNumber(arguments[2], 0xffffffff, options.messageType)
            || !setBytes(arguments[3], options.messageBytes)))
        return std::nullopt;
    for (std::size_t i = 1 + form->second.operands; i < arguments.size(); i += 2) {
        if (i + 1 == arguments.size() || !setOption(options, arguments[i], arguments[i + 1]))
            return std::nullopt;
    }
    return options;
}
