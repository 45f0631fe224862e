// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech.h"

#include "log.h"

SpeechFile::SpeechFile(std::string path, std::string device, JobQueue& jobs)
    : path_(std::move(path))
    , device_(std::move(device))
    , jobs_(jobs)
{
}

void SpeechFile::begin()
{
    if (path_.empty())
        return;
    jobs_.post([this] {
        writer_.reset(); // brings the header up to date, should it be the same file
        writer_ = WavWriter::create(path_);
        if (!writer_)
            logEvent(LogLevel::Error, device_, -1, "cannot write the speech file " + path_);
    });
}

void SpeechFile::append(const LinkFrame& frame)
{
    const unsigned codec = frame.info[0] | static_cast<unsigned>(frame.info[1]) << 8;
    if (path_.empty() || codec != LinkCodecALaw)
        return;
    jobs_.post([this, sound = std::string(frame.bytes.begin(), frame.bytes.end())] {
        if (!writer_ || writer_->append(sound))
            return;
        logEvent(LogLevel::Error, device_, -1, "the speech file " + path_ + " takes no more");
        writer_.reset();
    });
}

void SpeechFile::end()
{
    if (!path_.empty())
        jobs_.post([this] { writer_.reset(); });
}
