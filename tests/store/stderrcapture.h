// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

// Catches what the process writes to standard error while the object exists.
class StderrCapture final
{
public:
    StderrCapture()
    {
        file_.open();
        std::fflush(stderr);
        saved_ = ::dup(STDERR_FILENO);
        ::dup2(file_.handle(), STDERR_FILENO);
    }
    ~StderrCapture() { restore(); }
    Q_DISABLE_COPY_MOVE(StderrCapture)

    // Ends the catch.
    QByteArray text()
    {
        restore();
        file_.seek(0);
        return file_.readAll();
    }

private:
    void restore()
    {
        if (saved_ < 0)
            return;
        std::fflush(stderr);
        ::dup2(saved_, STDERR_FILENO);
        ::close(saved_);
        saved_ = -1;
    }

    QTemporaryFile file_;
    int saved_ = -1;
};
