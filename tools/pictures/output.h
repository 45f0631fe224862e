// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "manifest.h"

#include <QByteArray>
#include <QImage>

#include <map>

// The folder that the made files go to, and the list of them in the form rcc reads.
class Output
{
public:
    explicit Output(QString folder);

    void addPng(const Place& place, const QImage& image);
    void add(const Place& place, const QByteArray& bytes);

    // Writes pictures.qrc. It is written last, and anew each time: the build takes its age for
    // the age of all that it lists.
    void finish() const;

private:
    void write(const QString& file, const QByteArray& bytes) const;

    QString folder_;
    std::map<QString, QStringList> files_; // by prefix
};
