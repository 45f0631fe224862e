// SPDX-License-Identifier: GPL-3.0-or-later
#include "subject.h"

#include <QtWidgets/qtestsupport_widgets.h>

Subject::Subject(QSize size)
{
    window_.setWindowFlags(Qt::FramelessWindowHint);
    window_.setGeometry(QRect(QPoint(0, 0), size));
}

bool Subject::show()
{
    window_.show();
    return QTest::qWaitForWindowExposed(&window_);
}

QList<QOpenGLWidget*> Subject::tiles() const
{
    QList<QOpenGLWidget*> shown;
    const auto all = window_.findChildren<QOpenGLWidget*>();
    for (QOpenGLWidget* tile : all) {
        if (tile->isVisible())
            shown.append(tile);
    }
    return shown;
}

void Subject::makeTiles()
{
    area_ = std::make_unique<QWidget>(&window_);
    area_->resize(window_.size());
    area_->show();
    makeTilesOn(area_.get());
}

void Subject::resizeTo(QSize size)
{
    area_->resize(size);
    layOut(size);
}
