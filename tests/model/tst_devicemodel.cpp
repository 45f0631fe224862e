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

ORVA_TEST(TestDeviceModel)

#include "tst_devicemodel.moc"
