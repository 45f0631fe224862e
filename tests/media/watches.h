// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/mediaevents.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

// What a test of the media road looks at, or holds, while it runs.

// What tasks have posted to streams and decoders since the watch began, as it was delivered.
class ResultWatch final : public QObject
{
public:
    struct Fetch
    {
        const QObject* receiver;
        int result;
        bool hasBuffer;
        MyFrameInfo_t info;
    };
    struct Picture
    {
        int result;
        int width;
        int height;
        unsigned timestamp;
    };

    ResultWatch();
    bool eventFilter(QObject* receiver, QEvent* event) override;
    std::vector<int> pictureResults() const;

    std::vector<Fetch> video;
    std::vector<Fetch> sound;
    std::vector<Picture> pictures;
};

// The pauses that came to their end, of timers that run once, in milliseconds.
class PauseWatch final : public QObject
{
public:
    PauseWatch();
    bool eventFilter(QObject* receiver, QEvent* event) override;

    std::vector<int> pauses;
};

// Keeps every thread of the global pool busy while it exists: tasks wait until release().
class PoolBlock final
{
public:
    PoolBlock();
    ~PoolBlock() { release(); }
    Q_DISABLE_COPY_MOVE(PoolBlock)

    void release();

private:
    struct State;
    std::shared_ptr<State> state_;
};

// The global pool with so many threads while it exists.
class PoolSize final
{
public:
    explicit PoolSize(int threads);
    ~PoolSize();
    Q_DISABLE_COPY_MOVE(PoolSize)

private:
    int before_;
};

// The lines of the log, of any thread, while it exists; they are not printed. One at a time.
class LogWatch final
{
public:
    LogWatch();
    ~LogWatch();
    Q_DISABLE_COPY_MOVE(LogWatch)

    static QStringList lines();

private:
    QtMessageHandler before_;
};
