// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/audiosend.h"

#include <QDebug>

namespace {

AudioSend* theAudioSend = nullptr;

} // namespace

AudioSend* AudioSend::instance()
{
    if (theAudioSend == nullptr)
        new AudioSend; // stores itself
    return theAudioSend;
}

AudioSend::AudioSend()
{
    if (theAudioSend == nullptr)
        theAudioSend = this;
}

AudioSend::~AudioSend()
{
    if (theAudioSend == this)
        theAudioSend = nullptr;
}

void AudioSend::start()
{
    qWarning("this version has no microphone: the device hears nothing");
}

void AudioSend::stop()
{
    // Nothing was started.
}
