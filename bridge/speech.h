// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkframe.h"
#include "jobqueue.h"
#include "wav.h"

#include <memory>
#include <string>

// Keeps the speech that a device hears in a WAV file, which each new speech empties. The file is
// written on the job queue. One thread at a time; the jobs must have been done when the object
// goes.
class SpeechFile
{
public:
    // `path` empty: nothing is kept. `device`: its UID, for the log.
    SpeechFile(std::string path, std::string device, JobQueue& jobs);

    void begin();
    void append(const LinkFrame& frame);
    void end();

private:
    const std::string path_;
    const std::string device_;
    JobQueue& jobs_;
    std::unique_ptr<WavWriter> writer_; // the queue's thread only
};
