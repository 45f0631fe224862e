// SPDX-License-Identifier: GPL-3.0-or-later
#include "passages.h"

#include <QFile>

namespace {

template <typename Key>
std::optional<Passage::Time> lookUp(const std::map<Key, Passage::Time>& times, const Key& key)
{
    const auto found = times.find(key);
    return found == times.end() ? std::nullopt : std::optional(found->second);
}

std::map<std::uint32_t, Passage::Time> firstSights(const std::vector<Sight>& sights)
{
    std::map<std::uint32_t, Passage::Time> first;
    for (const Sight& sight : sights)
        first.emplace(sight.stamp, sight.seen);
    return first;
}

} // namespace

std::vector<Passage> passagesOf(const std::vector<SentPicture>& sent, const ChannelNotes& notes)
{
    const auto seen = firstSights(notes.sights);
    std::vector<Passage> passages;
    passages.reserve(sent.size());
    for (const SentPicture& picture : sent) {
        passages.push_back({picture.drawn, picture.published, lookUp(notes.arrived, picture.mark),
            lookUp(notes.fetched, picture.mark), lookUp(notes.decoded, picture.stamp),
            lookUp(seen, picture.stamp)});
    }
    return passages;
}

void addClientTimes(const QString& path, std::vector<ChannelNotes>& channels)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return;
    while (!file.atEnd()) {
        const auto words = file.readLine().simplified().split(' ');
        const auto channel = words.size() == 4 ? words[1].toULong() : channels.size();
        if (channel >= channels.size())
            continue;
        const Passage::Time time{std::chrono::microseconds(words[3].toLongLong())};
        if (words[0] == "fetched")
            channels[channel].fetched.emplace(words[2].toULongLong(), time);
        else
            channels[channel].decoded.emplace(words[2].toUInt(), time);
    }
}
