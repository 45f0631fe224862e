// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Channel;
class Device;

// Where recordings, snapshots and the channels' placeholder pictures lie, below the folders of the
// settings, which are read when the first one asks. Singleton; lives to the end of the process. Main
// thread.
class VideoRecord final
{
public:
    static VideoRecord* instance();

    VideoRecord();
    Q_DISABLE_COPY_MOVE(VideoRecord)

    // The folder of a brand below the base folders: of 0, 149, 150 or 151; others change nothing.
    void setRootName(int brand);

    // Of the device's recordings, or of its snapshots. Not made.
    QString channelFolder(const Device* device, bool isVideo) const;
    // The picture that stands for the channel while it does not run: its last snapshot, else its
    // placeholder. Empty where there is neither.
    QString placeholderPath(const Channel* channel) const;

private:
    QString videoPath_;
    QString picPath_;
    QString rootName_;
};
