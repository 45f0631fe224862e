// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The offsets of a time zone, as the system's zone files list them (TZif). Behind a file's last
// change its last offset counts.
class Zone
{
public:
    // Reads the zone `name` of the system's zone folder, or a fixed one in the form "UTC+02:00".
    // Clients write "UTC" for the "GMT" in a name; such a name is found as well. Nothing for a
    // name out of form, which no file is opened for, and for a zone that does not exist.
    static std::optional<Zone> load(std::string_view name);

    // Pure. Nothing for bytes that are no whole zone file.
    static std::optional<Zone> parse(std::string_view file);

    // Seconds east of UTC at `time`, seconds since 1970.
    int offsetAt(std::int64_t time) const;

private:
    struct Change
    {
        std::int64_t time;
        int offset;
    };

    int first_ = 0; // before all changes
    std::vector<Change> changes_; // by time
};
