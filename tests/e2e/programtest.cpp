// SPDX-License-Identifier: GPL-3.0-or-later
#include "programtest.h"

#include "frame.h"
#include "hands.h"
#include "screen.h"

#include <QDir>
#include <QTest>

#include <algorithm>

namespace {

constexpr int patienceMs = 30000;
constexpr QColor tileBorder(0xCC, 0xCC, 0xCC);

bool write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    return QFileInfo(file).dir().mkpath(".") && file.open(QIODevice::WriteOnly)
        && file.write(text) == text.size();
}

void savePicture(const QString& name)
{
    const QString folder = qEnvironmentVariable("ORVA_SCREENSHOTS");
    if (!folder.isEmpty() && QDir().mkpath(folder))
        seen(QRect(0, 0, 1920, 1080)).save(folder + '/' + name + ".png");
}

} // namespace

void ProgramTest::init()
{
    home_ = std::make_unique<QTemporaryDir>();
    QVERIFY(home_->isValid());
    QVERIFY(write(home_->filePath("system/Quvane/ORVA/deployment.json"),
        "{\"link\": {\"searchScope\": \"loopback\"}}\n"));
}

void ProgramTest::cleanup()
{
    if (QTest::currentTestFailed())
        savePicture(
            QString::fromLatin1(metaObject()->className()) + '-' + QTest::currentTestFunction());
    if (program_.state() == QProcess::NotRunning)
        return;
    program_.kill();
    program_.waitForFinished();
}

QProcessEnvironment ProgramTest::environment() const
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home_->path());
    environment.insert("XDG_CONFIG_HOME", home_->filePath("config"));
    environment.insert("XDG_CONFIG_DIRS", home_->filePath("system"));
    return environment;
}

bool ProgramTest::add(const Listed& device) const
{
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral(ORVA_DEVICES_PROGRAM),
        {"add", QString::fromLatin1(device.uid), "--name", QString::fromLatin1(device.name),
            "--type", device.channels > 1 ? "2" : "7", "--channels",
            QString::number(device.channels), "--password", QString::fromLatin1(device.password)});
    return tool.waitForFinished() && tool.exitStatus() == QProcess::NormalExit
        && tool.exitCode() == 0;
}

bool ProgramTest::start()
{
    program_.setProcessEnvironment(environment());
    program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program_.start(QStringLiteral(ORVA_PROGRAM), QStringList());
    return program_.waitForStarted()
        && QTest::qWaitFor(
            [this] { return hasWindow(program_.processId(), gateSize); }, patienceMs);
}

bool ProgramTest::open(const QVector<Listed>& devices)
{
    return std::all_of(devices.begin(), devices.end(), [this](const Listed& device) {
        return add(device);
    }) && openAgain();
}

bool ProgramTest::openAgain()
{
    if (!start())
        return false;
    click(localLoginKey());
    return QTest::qWaitFor(
               [this] { return hasWindow(program_.processId(), frameSize); }, patienceMs)
        && QTest::qWaitFor([] { return colourAt(wallArea().topLeft()) == tileBorder; }, patienceMs);
}

bool ProgramTest::close()
{
    click(closeKey());
    return program_.waitForFinished(patienceMs) && program_.exitStatus() == QProcess::NormalExit
        && program_.exitCode() == 0;
}

bool ProgramTest::isRunning()
{
    return program_.state() == QProcess::Running && !program_.waitForFinished(1);
}

QString ProgramTest::savedChannels() const
{
    return QSettings(settingsFile(), QSettings::IniFormat).value("config/devicechannel").toString();
}

void ProgramTest::setSetting(const QString& key, const QVariant& value) const
{
    QSettings(settingsFile(), QSettings::IniFormat).setValue(key, value);
}
