// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QWindow>

namespace {

QWindow* windowOf(const QWidget* target)
{
    return target->window()->windowHandle();
}

QPoint inWindow(const QWidget* target, QPoint at)
{
    return target->mapTo(target->window(), at);
}

QPoint middleOf(const QWidget* target)
{
    return target->rect().center();
}

} // namespace

void click(QWidget* target, QPoint at, Qt::MouseButton button)
{
    QTest::mouseClick(windowOf(target), button, {}, inWindow(target, at));
}

void click(QWidget* target, Qt::MouseButton button)
{
    click(target, middleOf(target), button);
}

void press(QWidget* target, Qt::MouseButton button)
{
    QTest::mousePress(windowOf(target), button, {}, inWindow(target, middleOf(target)));
}

void release(QWidget* target, Qt::MouseButton button)
{
    QTest::mouseRelease(windowOf(target), button, {}, inWindow(target, middleOf(target)));
}

void doubleClick(QWidget* target, QPoint at, Qt::MouseButton button)
{
    QTest::mouseDClick(windowOf(target), button, {}, inWindow(target, at));
}

void doubleClick(QWidget* target, Qt::MouseButton button)
{
    doubleClick(target, middleOf(target), button);
}

void moveTo(QWidget* target, QPoint at)
{
    QTest::mouseMove(windowOf(target), inWindow(target, at));
}

void moveTo(QWidget* target)
{
    moveTo(target, middleOf(target));
}

void type(QWidget* target, Qt::Key key)
{
    QTest::keyClick(windowOf(target), key);
}

QImage screenOf(const QWidget* window)
{
    const QRect area(window->mapToGlobal(QPoint(0, 0)), window->size());
    return window->screen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage();
}

bool shows(const QLabel* label, const QString& picture)
{
    const QPixmap wanted(QStringLiteral(":/main/images/btnImg/%1.png").arg(picture));
    const QPixmap shown = label->pixmap(Qt::ReturnByValue);
    return !wanted.isNull() && shown.toImage() == wanted.toImage();
}

EventCount::EventCount(QObject* watched, QEvent::Type type)
    : type_(type)
{
    watched->installEventFilter(this);
}

bool EventCount::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == type_)
        ++count;
    return false;
}

Brackets::Brackets()
{
    QCoreApplication::installTranslator(this);
}

Brackets::~Brackets()
{
    QCoreApplication::removeTranslator(this);
}

QString Brackets::translate(const char*, const char* text, const char*, int) const
{
    return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
}
