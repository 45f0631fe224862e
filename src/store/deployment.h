// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <variant>

// What an installation sets for all its users, in `deployment.json`: beside the program, else in
// the system's configuration folder (on Debian /etc/xdg/Quvane/ORVA). It is no user setting: the
// program only reads it, once, at the start.
struct Deployment
{
    enum class SearchScope { Lan, Loopback };
    // LowDelay gives up the decoder's threads, which keep some pictures back, looks for new frames
    // more often and repaints sooner: a shorter way to the screen for more work.
    enum class Decoder { Throughput, LowDelay };

    struct Endpoint
    {
        QString host; // name or address
        quint16 port = 0;
    };

    QString cloudBaseUrl; // https address without a slash at its end; empty: no cloud service
    int brand = 0; // 0, 149, 150 or 151
    SearchScope searchScope = SearchScope::Lan;
    Decoder decoder = Decoder::Throughput;
    QMap<QString, Endpoint> addressBook; // by UID, 20 characters A-Z 0-9

    // The deployment of this process: read at the first call, from the main thread, before any
    // task. A missing file gives the defaults. So does a file that is malformed anywhere, after
    // one line on standard error.
    static const Deployment& instance();

    // What is wrong with a file: the key, dotted where it is nested, and what was expected.
    struct Error
    {
        QString key;
        QString expected;
    };

    // Reads the text of a file. Every key may be absent, none may be unknown. Pure.
    static std::variant<Deployment, Error> parse(const QByteArray& json);

    // Reads the first `deployment.json` of `folders`, as instance() does.
    static Deployment load(const QStringList& folders);
};
