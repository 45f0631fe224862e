// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/waitingcircle.h"

#include "app/systeminfo.h"

#include <QMovie>

namespace {

constexpr int side = 64; // pixels, of the animation at scale 1

// One for all: each frame of each animation has the whole window put together anew.
std::shared_ptr<QMovie> sharedMovie(int scaled)
{
    static std::weak_ptr<QMovie> shared;
    std::shared_ptr<QMovie> movie = shared.lock();
    if (movie)
        return movie;
    movie = std::make_shared<QMovie>(QStringLiteral(":/main/images/btnImg/Loading_icon.gif"));
    movie->setScaledSize(QSize(scaled, scaled));
    movie->setCacheMode(QMovie::CacheAll);
    movie->start();
    shared = movie;
    return movie;
}

int scaledSide()
{
    return qRound(side * SystemInfo::instance()->getRatio());
}

} // namespace

WaitingCircle::WaitingCircle(QWidget* parent)
    : QLabel(parent)
    , movie_(sharedMovie(scaledSide()))
{
    setFixedSize(scaledSide(), scaledSide());
    setStyleSheet(QStringLiteral("background:transparent")); // whatever its surroundings are given
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMovie(movie_.get());
}

WaitingCircle::~WaitingCircle() = default;

void WaitingCircle::centre()
{
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}
