// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bridgeprocess.h"

#include <QObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

#include <memory>

// The program as a process of its own, started with settings, documents and deployment in a folder
// that is new for each test function. A test that fails leaves a picture of the screen in the folder
// that the environment variable ORVA_SCREENSHOTS names.
class ProgramTest : public QObject
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    // A device of the local list.
    struct Listed
    {
        QByteArray uid;
        QByteArray name;
        int channels;
        QByteArray password = BridgeProcess::password;
    };

    // Puts these into the local list and goes through the gate. True once list and wall are shown.
    bool open(const QVector<Listed>& devices);
    bool openAgain(); // with the list as it is
    // By its close key: true when it ends as it should.
    bool close();
    bool isRunning();

    // The text config/devicechannel of the settings.
    QString savedChannels() const;
    void setSetting(const QString& key, const QVariant& value) const;

private:
    bool start();
    bool add(const Listed& device) const;
    QProcessEnvironment environment() const;
    QString settingsFile() const { return home_->filePath("config/Quvane/ORVA.ini"); }

    std::unique_ptr<QTemporaryDir> home_;
    BoundProcess program_;
};
