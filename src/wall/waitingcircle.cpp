// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/waitingcircle.h"

#include "app/systeminfo.h"

namespace {

constexpr int side = 64; // pixels, of the animation at scale 1

} // namespace

WaitingCircle::WaitingCircle(QWidget* parent)
    : QLabel(parent)
    , movie_(QStringLiteral(":/main/images/btnImg/Loading_icon.gif"))
{
    const int scaled = qRound(side * SystemInfo::instance()->getRatio());
    movie_.setScaledSize(QSize(scaled, scaled));
    setFixedSize(scaled, scaled);
    setStyleSheet(QStringLiteral("background:transparent")); // whatever its surroundings are given
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMovie(&movie_);
    movie_.start();
}

void WaitingCircle::centre()
{
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}
