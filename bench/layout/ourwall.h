// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subject.h"
#include "walltest.h"

// The client's wall over the scripted layer, with 64 channels of 8 devices that play. Their pictures,
// 1280x720, stand in their buffers as decode tasks leave them.
class OurWall final : public Subject
{
public:
    explicit OurWall(QSize size);
    ~OurWall() override;

    void prepare(WINDOW_MOD mod) override;
    void setLayout(WINDOW_MOD mod) override;
    void doubleClick() override;
    void turnPage(bool forward) override;
    void changeMode(bool isLive) override;
    void openMore() override;
    void settle() const override;
    void bringPictures() override;

protected:
    void makeTilesOn(QWidget* area) override;
    void layOut(QSize size) override;

private:
    WallTest wall_;
    std::uint32_t timestamp_ = 0;
};
