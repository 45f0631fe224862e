// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "config.h"

#include <set>
#include <string>
#include <utility>
#include <vector>
#include <yaml-cpp/yaml.h>

using ConfigErrors = std::vector<ConfigError>;

// Where an error is, and of what.
struct ConfigPlace
{
    int line;
    std::string what;
};

// Of a node, from 1 on.
int lineOf(const YAML::Node& node);

// One map of the configuration. Each value is asked for by its key; what is missing leaves the
// variable as it is, and what is wrong is added to the errors with its line. Keys that nobody has
// asked for are errors at finish().
class YamlMap
{
public:
    // Without a map there, `what` is an error and all keys are missing.
    YamlMap(const YAML::Node& node, const std::string& what, ConfigErrors& errors);

    bool has(const char* key) const;
    int line() const { return lineOf(node_); }
    void finish();

    // A node that is not defined when the key is missing.
    YAML::Node take(const char* key);
    YAML::Node require(const char* key);

    void text(const char* key, std::string& value, std::size_t largest);
    void flag(const char* key, bool& value);
    void number(const char* key, int& value, int low, int high);
    // One of some words.
    template <typename Value>
    void choice(
        const char* key, Value& value, std::initializer_list<std::pair<const char*, Value>> choices)
    {
        std::string word;
        text(key, word, 32);
        if (word.empty())
            return;
        std::string expected;
        for (const auto& [name, meaning] : choices) {
            if (word == name) {
                value = meaning;
                return;
            }
            expected += (expected.empty() ? "" : ", ") + std::string(name);
        }
        error(key, "expected one of " + expected);
    }

    // At the line of the key, or of the map when that is missing.
    void error(const char* key, const std::string& text);

private:
    int lineOfKey(const std::string& key) const;

    const YAML::Node node_;
    std::set<std::string> taken_;
    ConfigErrors& errors_;
};

// Reads a text of 1 to `largest` bytes without control characters. False, and an error, for
// anything else.
bool plainText(const YAML::Node& node, std::string& value, std::size_t largest,
    const ConfigPlace& place, ConfigErrors& errors);
