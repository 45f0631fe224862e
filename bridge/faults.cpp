// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults.h"

#include <charconv>
#include <vector>

namespace {

using Kind = Fault::Kind;

enum class Arguments { None, Number, Switch, TypeAndStatus };

struct Word
{
    const char* name;
    Kind kind;
    Arguments arguments;
};

const Word words[] = {
    {"refuse", Kind::Refuse, Arguments::Number},
    {"silent", Kind::Silent, Arguments::Switch},
    {"drop", Kind::Drop, Arguments::Number},
    {"hold", Kind::Hold, Arguments::Switch},
    {"mute", Kind::Mute, Arguments::Switch},
    {"answer", Kind::Answer, Arguments::TypeAndStatus},
    {"truncated", Kind::Truncated, Arguments::Number},
    {"oversized", Kind::Oversized, Arguments::Number},
    {"broken", Kind::Broken, Arguments::Number},
    {"die", Kind::Die, Arguments::None},
};

std::vector<std::string_view> split(std::string_view line)
{
    std::vector<std::string_view> parts;
    while (!line.empty()) {
        const auto end = std::min(line.find(' '), line.size());
        if (end > 0)
            parts.push_back(line.substr(0, end));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return parts;
}

template <typename Number>
bool readNumber(std::string_view text, Number& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size();
}

bool readSwitch(std::string_view text, int& on)
{
    on = text == "on" ? 1 : 0;
    return text == "on" || text == "off";
}

bool readStatus(std::string_view text, std::optional<int>& status)
{
    if (text == "off")
        return true;
    return readNumber(text, status.emplace());
}

std::size_t countOf(Arguments arguments)
{
    return arguments == Arguments::None ? 0 : arguments == Arguments::TypeAndStatus ? 2 : 1;
}

bool readArguments(Arguments arguments, const std::vector<std::string_view>& parts, Fault& fault)
{
    switch (arguments) {
    case Arguments::None:
        return true;
    case Arguments::Number:
        return readNumber(parts[1], fault.count) && fault.count >= 0;
    case Arguments::Switch:
        return readSwitch(parts[1], fault.count);
    case Arguments::TypeAndStatus:
        return readNumber(parts[1], fault.type) && readStatus(parts[2], fault.status);
    }
    return false;
}

} // namespace

std::variant<Fault, std::string> parseFault(std::string_view line)
{
    const auto parts = split(line);
    if (parts.empty())
        return std::string("no fault is named");
    for (const Word& word : words) {
        if (parts[0] != word.name)
            continue;
        Fault fault;
        fault.kind = word.kind;
        const bool complete = parts.size() == 1 + countOf(word.arguments);
        if (complete && readArguments(word.arguments, parts, fault))
            return fault;
        return "wrong arguments for the fault \"" + std::string(parts[0]) + '"';
    }
    return "unknown fault \"" + std::string(parts[0]) + '"';
}

void Faults::apply(const Fault& fault)
{
    switch (fault.kind) {
    case Kind::Refuse:
        refuse_ = fault.count;
        break;
    case Kind::Drop:
        dropEvery_ = fault.count;
        break;
    case Kind::Hold:
        hold_ = fault.count == 1;
        break;
    case Kind::Mute:
        mute_ = fault.count == 1;
        break;
    case Kind::Truncated:
        truncated_ = fault.count;
        break;
    case Kind::Oversized:
        oversized_ = fault.count;
        break;
    case Kind::Broken:
        broken_ = fault.count;
        break;
    case Kind::Answer: {
        const std::lock_guard lock(mutex_);
        if (fault.status)
            statuses_[fault.type] = *fault.status;
        else
            statuses_.erase(fault.type);
        break;
    }
    case Kind::Silent:
    case Kind::Die:
        break;
    }
}

bool Faults::takeOne(std::atomic<int>& count)
{
    int left = count;
    while (left > 0 && !count.compare_exchange_weak(left, left - 1)) { }
    return left > 0;
}

bool Faults::dropsPicture(unsigned number) const
{
    const int every = dropEvery_;
    return every > 0 && number % static_cast<unsigned>(every) == 0;
}

std::optional<int> Faults::statusFor(unsigned type) const
{
    const std::lock_guard lock(mutex_);
    const auto found = statuses_.find(type);
    return found == statuses_.end() ? std::nullopt : std::optional<int>(found->second);
}

Faults::Damage Faults::damageNext()
{
    if (takeOne(truncated_))
        return Damage::Truncated;
    if (takeOne(oversized_))
        return Damage::Oversized;
    return takeOne(broken_) ? Damage::Broken : Damage::None;
}
