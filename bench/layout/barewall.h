// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subject.h"

#include <vector>

// The reference: as many OpenGL widgets in the same places, which do nothing but clear.
class BareWall final : public Subject
{
public:
    using Subject::Subject;

    void prepare(WINDOW_MOD mod) override { mod_ = mod; }
    void setLayout(WINDOW_MOD mod) override;
    void doubleClick() override;
    void turnPage(bool forward) override;
    void changeMode(bool isLive) override;
    void bringPictures() override;

protected:
    void makeTilesOn(QWidget* area) override;
    void layOut(QSize size) override;

private:
    void fitTiles();

    WINDOW_MOD mod_ = WINDOW_MOD_4;
    WINDOW_MOD before_ = WINDOW_MOD_4;
    std::vector<QOpenGLWidget*> tiles_; // of the area
};
