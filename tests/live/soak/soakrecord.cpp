// SPDX-License-Identifier: GPL-3.0-or-later
#include "soakrecord.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

// The allocator gives little back, and how much waits to be decoded differs by chance.
constexpr double memoryAllowance = 1.05;
// By chance some streams wait for their decoder at the moment of a sample, and a session that begins
// or ends has threads of its own.
constexpr int threadAllowance = 8;
constexpr int descriptorAllowance = 4;

qint64 statusNumber(const QByteArray& status, const QByteArray& key)
{
    for (const QByteArray& line : status.split('\n')) {
        if (line.startsWith(key + ':'))
            return line.mid(key.size() + 1).simplified().split(' ').at(0).toLongLong();
    }
    return 0;
}

template <typename Value>
std::vector<Value> sorted(const std::vector<SoakSample>& samples, Value SoakSample::*member)
{
    std::vector<Value> values;
    values.reserve(samples.size());
    for (const SoakSample& sample : samples)
        values.push_back(sample.*member);
    std::sort(values.begin(), values.end());
    return values;
}

bool tell(const char* what, double before, double after, double most)
{
    const bool good = after <= most;
    std::printf("%-34s first third %8.1f   last third %8.1f   at most %8.1f   %s\n", what, before,
        after, most, good ? "good" : "GROWS");
    return good;
}

} // namespace

SoakSample sampleProcess()
{
    SoakSample sample;
    QFile file(QStringLiteral("/proc/self/status"));
    const QByteArray status = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    sample.residentMiB = static_cast<double>(statusNumber(status, "VmRSS")) / 1024;
    sample.threads = static_cast<int>(statusNumber(status, "Threads"));
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    sample.descriptors = static_cast<int>(
        descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
    return sample;
}

void printSampleHead()
{
    std::printf("%8s %9s %8s %12s %8s %14s %9s\n", "minutes", "RSS MiB", "threads", "descriptors",
        "streams", "pictures/min", "failures");
}

void printSample(const SoakSample& sample, qint64 picturesBefore)
{
    std::printf("%8.1f %9.1f %8d %12d %8d %14lld %9d\n", sample.seconds / 60.0, sample.residentMiB,
        sample.threads, sample.descriptors, sample.streams,
        static_cast<long long>(sample.pictures - picturesBefore), sample.failures);
}

SoakVerdict::SoakVerdict(const std::vector<SoakSample>& samples, int warmUpSeconds)
{
    const auto warm = std::find_if(samples.begin(), samples.end(),
        [=](const SoakSample& sample) { return sample.seconds >= warmUpSeconds; });
    const auto third = (samples.end() - warm) / 3;
    first_.assign(warm, warm + third);
    last_.assign(samples.end() - third, samples.end());
}

bool SoakVerdict::print() const
{
    if (first_.empty()) {
        std::puts("too short to compare");
        return false;
    }
    const auto median = [](const Part& part) {
        return sorted(part, &SoakSample::residentMiB)[part.size() / 2];
    };
    const auto most = [](const Part& part, int SoakSample::*member) {
        return sorted(part, member).back();
    };
    const double memory = median(first_);
    const int threads = most(first_, &SoakSample::otherThreads);
    const int descriptors = most(first_, &SoakSample::descriptors);
    bool good =
        tell("resident memory, MiB, median", memory, median(last_), memory * memoryAllowance);
    good &= tell("threads without decoders', most", threads, most(last_, &SoakSample::otherThreads),
        threads + threadAllowance);
    good &= tell("descriptors, most", descriptors, most(last_, &SoakSample::descriptors),
        descriptors + descriptorAllowance);
    return good;
}
