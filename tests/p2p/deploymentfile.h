// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QFile>

// The deployment file beside the program, changed for a scope. Tests stay on loopback with it.
class DeploymentFile
{
public:
    explicit DeploymentFile(const QByteArray& link) { write("{\"link\": " + link + "}\n"); }
    ~DeploymentFile() { write("{\"link\": {\"searchScope\": \"loopback\"}}\n"); }
    DeploymentFile(const DeploymentFile&) = delete;
    DeploymentFile& operator=(const DeploymentFile&) = delete;

private:
    static void write(const QByteArray& text)
    {
        QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/deployment.json"));
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }
};
