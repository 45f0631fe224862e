// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/devicemodel.h"
#include "testmain.h"

#include <QTest>

class TestDeviceModel final : public QObject
{
    Q_OBJECT

private slots:
    void modelTextTellsKindAndChannels_data();
    void modelTextTellsKindAndChannels();
    void searchTableShowsKindAndChannels_data();
    void searchTableShowsKindAndChannels();
};

namespace {

void addRow(const char* model, const char* name, int code, const char* channels)
{
    QTest::newRow(*model == '\0' ? "(empty)" : model) << model << name << code << channels;
}

void addKnownKinds()
{
    addRow("NVR01W-4", "DVR", 1, "4");
    addRow("NVRX1W-4", "DVR", 1, "4");
    addRow("NVR02W-4", "NVR", 2, "4");
    addRow("NVRX2W-4", "NVR", 2, "4");
    addRow("NVR03W-8", "NVR", 2, "8");
    addRow("NVRX3W-8", "NVR", 2, "8");
    addRow("NVR04W-16", "NVR", 2, "16");
    addRow("NVRX4W-16", "NVR", 2, "16");
    addRow("NVR06W-32", "NVR", 2, "32");
    addRow("NVRX6W-32", "NVR", 2, "32");
    addRow("NVR05W-9", "WVR", 0, "9");
    addRow("NVRX5W-9", "WVR", 0, "9");
    addRow("NVR11W-64", "XVR", 11, "64");
}

// A pair that names no kind is its own name, and its code is 0.
void addUnknownKinds()
{
    addRow("NVR99W-8", "99", 0, "8");
    addRow("NVR07W-8", "07", 0, "8");
    addRow("NVRX7W-8", "X7", 0, "8");
    addRow("NVRx1W-8", "x1", 0, "8");
    addRow("abcd-8", "bc", 0, "8");
    addRow("ipc-2", "ip", 0, "2");
    addRow("NVR0411-8", "41", 0, "8");
}

// The splitting step is never reached.
void addIpc()
{
    addRow("IPC", "IPC", 7, "C");
    addRow("IPC2", "IPC", 7, "2");
    addRow("IPC-4", "IPC", 7, "4");
    addRow("NVR01W-8-IPC", "IPC", 7, "C");
    addRow("NVR01IPC-16", "IPC", 7, "6");
    addRow("aIPCb-c-", "IPC", 7, "-");
}

// Empty pieces count as pieces; what has no two characters before its last one names nothing.
void addOddPieces()
{
    addRow("", "", 0, "");
    addRow("NVR04W", "", 0, "");
    addRow("01W", "", 0, "");
    addRow("-", "", 0, "");
    addRow("--", "", 0, "");
    addRow("-8", "", 0, "8");
    addRow("--8", "", 0, "");
    addRow("W-8", "", 0, "8");
    addRow("1W-8", "", 0, "8");
    addRow("01W-8", "DVR", 1, "8");
    addRow("01W-", "DVR", 1, "");
    addRow("01W-8-16", "DVR", 1, "8");
    addRow("01W--16", "DVR", 1, "");
    addRow("01W-many", "DVR", 1, "many");
}

void addShown(const char* model, const char* type, const char* channels)
{
    QTest::newRow(*model == '\0' ? "(empty)" : model) << model << type << channels;
}

void addShownKinds()
{
    addShown("NVR01W-4", "DVR", "4");
    addShown("NVRX1W-4", "DVR", "4");
    addShown("NVR02W-4", "NVR", "4");
    addShown("NVRX2W-4", "NVR", "4");
    addShown("NVR03W-8", "NVR", "8");
    addShown("NVRX3W-8", "NVR", "8");
    addShown("NVR04W-16", "NVR", "16");
    addShown("NVRX4W-16", "NVR", "16");
    addShown("NVR06W-32", "NVR", "32");
    addShown("NVRX6W-32", "NVR", "32");
    addShown("NVR05W-9", "WVR", "9");
    addShown("NVRX5W-9", "WVR", "9");
    addShown("NVR11W-64", "XVR", "64");
}

// The number of channels shows all the same.
void addKindsThatDoNotShow()
{
    addShown("NVR99W-8", "", "8");
    addShown("NVR07W-8", "", "8");
    addShown("NVRX7W-8", "", "8");
    addShown("NVRx1W-8", "", "8");
    addShown("NVR12W-8", "", "8");
    addShown("abcd-8", "", "8");
    addShown("NVR0411-8", "", "8");
}

void addShownIpc()
{
    addShown("IPC", "IPC", "C");
    addShown("IPC2", "IPC", "2");
    addShown("IPC-4", "IPC", "4");
    addShown("NVR01W-8-IPC", "IPC", "C");
    addShown("ipc", "IPC", "c");
    addShown("ipc2", "IPC", "2");
    addShown("ipc-16", "IPC", "6");
    addShown("NVR01Ipc-16", "IPC", "6");
    addShown("iPC01W-8", "IPC", "8");
}

void addShownOddPieces()
{
    addShown("", "", "");
    addShown("NVR04W", "", "");
    addShown("IP", "", "");
    addShown("-", "", "");
    addShown("--", "", "");
    addShown("-8", "", "8");
    addShown("W-8", "", "8");
    addShown("1W-8", "", "8");
    addShown("01-8", "", "8");
    addShown("01W-8", "DVR", "8");
    addShown("01W-", "DVR", "");
    addShown("01W-8-16", "DVR", "8");
    addShown("01W--16", "DVR", "");
    addShown("01W-many", "DVR", "many");
}

} // namespace

void TestDeviceModel::modelTextTellsKindAndChannels_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("channels");
    addKnownKinds();
    addUnknownKinds();
    addIpc();
    addOddPieces();
}

void TestDeviceModel::modelTextTellsKindAndChannels()
{
    QFETCH(QString, model);
    QTEST(deviceTypeName(model), "name");
    QTEST(deviceTypeCode(model), "code");
    QTEST(deviceChannelText(model), "channels");
}

void TestDeviceModel::searchTableShowsKindAndChannels_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("channels");
    addShownKinds();
    addKindsThatDoNotShow();
    addShownIpc();
    addShownOddPieces();
}

void TestDeviceModel::searchTableShowsKindAndChannels()
{
    QFETCH(QString, model);
    QTEST(lanTypeText(model), "type");
    QTEST(lanChannelText(model), "channels");
}

ORVA_TEST(TestDeviceModel)

#include "tst_devicemodel.moc"
