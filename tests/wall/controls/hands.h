// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QTranslator>

class QLabel;
class QWidget;

// What a user does with a window that is on the screen. The events go into the window and find their
// way to `target` by themselves; points are the target's.
void click(QWidget* target, QPoint at, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget* target, Qt::MouseButton button = Qt::LeftButton); // in its middle
void press(QWidget* target, Qt::MouseButton button = Qt::LeftButton);
void release(QWidget* target, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* target, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* target, QPoint at, Qt::MouseButton button = Qt::LeftButton);
void moveTo(QWidget* target); // the mouse
void moveTo(QWidget* target, QPoint at);
void type(QWidget* target, Qt::Key key); // wherever the focus of its window is

// What stands on the screen now, of the whole window.
QImage screenOf(const QWidget* window);

// Whether the label shows this picture of the resources, without its folder and ".png".
bool shows(const QLabel* label, const QString& picture);

// Of the events that reach an object; those that it does not take are told too.
class EventCount final : public QObject
{
public:
    EventCount(QObject* watched, QEvent::Type type);
    bool eventFilter(QObject* watched, QEvent* event) override;

    int count = 0;

private:
    const QEvent::Type type_;
};

// A language in which each text stands in brackets. Lives within one test function.
class Brackets final : public QTranslator
{
public:
    Brackets();
    ~Brackets() override;
    Q_DISABLE_COPY_MOVE(Brackets)

    bool isEmpty() const override { return false; }
    QString translate(
        const char* context, const char* text, const char* = nullptr, int = -1) const override;
};
