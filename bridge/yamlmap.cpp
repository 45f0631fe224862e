// SPDX-License-Identifier: GPL-3.0-or-later
#include "yamlmap.h"

#include <algorithm>
#include <charconv>

namespace {

bool holdsControlCharacter(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](char letter) {
        const auto code = static_cast<unsigned char>(letter);
        return code < 0x20 || code == 0x7f;
    });
}

} // namespace

int lineOf(const YAML::Node& node)
{
    return std::max(node.Mark().line, 0) + 1;
}

YamlMap::YamlMap(const YAML::Node& node, const std::string& what, ConfigErrors& errors)
    : node_(node)
    , errors_(errors)
{
    if (!node_.IsMap()) {
        errors_.push_back({lineOf(node_), what + ": expected keys and values"});
        return;
    }
    std::set<std::string> seen;
    for (const auto& entry : node_) {
        const std::string key = entry.first.IsScalar() ? entry.first.Scalar() : std::string();
        if (!seen.insert(key).second)
            errors_.push_back({lineOf(entry.first), "the key \"" + key + "\" stands here twice"});
    }
}

bool YamlMap::has(const char* key) const
{
    return node_.IsMap() && node_[key].IsDefined();
}

void YamlMap::finish()
{
    if (!node_.IsMap())
        return;
    for (const auto& entry : node_) {
        const std::string key = entry.first.IsScalar() ? entry.first.Scalar() : std::string("?");
        if (taken_.count(key) == 0)
            errors_.push_back({lineOf(entry.first), "unknown key \"" + key + '"'});
    }
}

YAML::Node YamlMap::take(const char* key)
{
    taken_.insert(key);
    return has(key) ? node_[key] : YAML::Node(YAML::NodeType::Undefined);
}

YAML::Node YamlMap::require(const char* key)
{
    if (!has(key) && node_.IsMap())
        errors_.push_back({line(), "the key \"" + std::string(key) + "\" is missing"});
    return take(key);
}

// Not the line of the value, which for an empty one is that of whatever comes next.
int YamlMap::lineOfKey(const std::string& key) const
{
    for (const auto& entry : node_)
        if (entry.first.IsScalar() && entry.first.Scalar() == key)
            return lineOf(entry.first);
    return line();
}

void YamlMap::error(const char* key, const std::string& text)
{
    errors_.push_back({lineOfKey(key), std::string(key) + ": " + text});
}

void YamlMap::text(const char* key, std::string& value, std::size_t largest)
{
    const auto node = take(key);
    if (node.IsDefined())
        plainText(node, value, largest, {lineOfKey(key), key}, errors_);
}

void YamlMap::flag(const char* key, bool& value)
{
    const auto node = take(key);
    if (!node.IsDefined())
        return;
    if (!node.IsScalar() || !YAML::convert<bool>::decode(node, value))
        error(key, "expected true or false");
}

void YamlMap::number(const char* key, int& value, int low, int high)
{
    const auto node = take(key);
    if (!node.IsDefined())
        return;
    const std::string text = node.IsScalar() ? node.Scalar() : std::string();
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = failure == std::errc{} && end == text.data() + text.size();
    if (whole && number >= low && number <= high)
        value = number;
    else
        error(key, "expected a number from " + std::to_string(low) + " to " + std::to_string(high));
}

bool plainText(const YAML::Node& node, std::string& value, std::size_t largest,
    const ConfigPlace& place, ConfigErrors& errors)
{
    const std::string text = node.IsScalar() ? node.Scalar() : std::string();
    if (text.empty() || text.size() > largest || holdsControlCharacter(text)) {
        errors.push_back({place.line,
            place.what + ": expected a text of 1 to " + std::to_string(largest)
                + " bytes on one line"});
        return false;
    }
    value = text;
    return true;
}
