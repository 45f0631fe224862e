// SPDX-License-Identifier: GPL-3.0-or-later
#include "barewall.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

class BareTile final : public QOpenGLWidget
{
public:
    explicit BareTile(QWidget* parent)
        : QOpenGLWidget(parent)
    {
        setUpdateBehavior(PartialUpdate); // as the client's tiles
    }

protected:
    void paintGL() override
    {
        QOpenGLFunctions* gl = context()->functions();
        gl->glClearColor(0.2F, 0.4F, 0.6F, 1);
        gl->glClear(GL_COLOR_BUFFER_BIT);
    }
};

} // namespace

void BareWall::makeTilesOn(QWidget*)
{
    tiles_.clear(); // the widget they stood on has taken them along
    fitTiles();
    layOut(area()->size());
}

void BareWall::setLayout(WINDOW_MOD mod)
{
    mod_ = mod;
    fitTiles();
    layOut(area()->size());
}

void BareWall::fitTiles()
{
    const auto wanted = static_cast<std::size_t>(windowTiles(mod_));
    while (tiles_.size() < wanted) {
        tiles_.push_back(new BareTile(area()));
        tiles_.back()->show();
    }
    while (tiles_.size() > wanted) {
        tiles_.back()->hide();
        tiles_.back()->deleteLater();
        tiles_.pop_back();
    }
}

void BareWall::layOut(QSize size)
{
    const std::vector<QRect> rects = windowRects(mod_, size);
    for (std::size_t i = 0; i < tiles_.size(); ++i)
        tiles_[i]->setGeometry(rects[i]);
    bringPictures(); // a tile that has only moved is painted anew too
}

void BareWall::doubleClick()
{
    std::swap(mod_, before_);
    if (before_ != WINDOW_MOD_1)
        mod_ = WINDOW_MOD_1;
    setLayout(mod_);
}

void BareWall::turnPage(bool)
{
    bringPictures();
}

void BareWall::changeMode(bool)
{
    bringPictures();
}

void BareWall::bringPictures()
{
    for (QOpenGLWidget* tile : tiles_)
        tile->update();
}
