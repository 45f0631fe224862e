// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

// What this process takes, and what it has done.
struct SoakSample
{
    int seconds = 0; // since the start
    double residentMiB = 0;
    int threads = 0;
    int otherThreads = 0; // without those of decoders
    int descriptors = 0;
    int streams = 0; // objects, with those that end
    qint64 pictures = 0; // since the start
    int failures = 0;
};

// Looks at this process. Linux.
SoakSample sampleProcess();

void printSampleHead();
void printSample(const SoakSample& sample, qint64 picturesBefore);

// Compares the last third of the samples with the first after a warm-up. Prints what it found; false
// for growth.
class SoakVerdict
{
public:
    // The first `warmUpSeconds` do not count.
    SoakVerdict(const std::vector<SoakSample>& samples, int warmUpSeconds);

    bool print() const;

private:
    using Part = std::vector<SoakSample>;

    Part first_;
    Part last_;
};
