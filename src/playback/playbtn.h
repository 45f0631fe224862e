// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

class Channel;

// Starts and stops the selected channel in the current mode. Main thread.
class PlayBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit PlayBtn(QWidget* parent = nullptr);

public slots:
    void loadPlayStatus(bool isLive); // the mode has changed
    void loadPlayStatus(Channel* channel); // it has been selected, or started, or stopped

protected:
    QString hint() const override;
    void press() override;
    void hotChanged() override;

private:
    void showPlaying(bool isPlaying);

    bool isPlaying_ = false;
};
