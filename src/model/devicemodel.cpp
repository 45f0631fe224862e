// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/devicemodel.h"

#include <QStringList>

namespace {

const QLatin1String ipc("IPC");
const QLatin1Char dash('-');

struct Kind
{
    const char* digits;
    const char* name;
    int code;
};

constexpr Kind kinds[] = {
    {"01", "DVR", 1},
    {"X1", "DVR", 1},
    {"02", "NVR", 2},
    {"X2", "NVR", 2},
    {"03", "NVR", 2},
    {"X3", "NVR", 2},
    {"04", "NVR", 2},
    {"X4", "NVR", 2},
    {"06", "NVR", 2},
    {"X6", "NVR", 2},
    {"05", "WVR", 0},
    {"X5", "WVR", 0},
    {"11", "XVR", 11},
};

const Kind* findKind(const QString& digits)
{
    for (const Kind& kind : kinds) {
        if (digits == QLatin1String(kind.digits))
            return &kind;
    }
    return nullptr;
}

// The two characters before the last one of the first piece; empty where it has no three.
QString kindDigits(const QString& model)
{
    if (!model.contains(dash))
        return {};
    const QString piece = model.section(dash, 0, 0);
    return piece.size() < 3 ? QString() : piece.mid(piece.size() - 3, 2);
}

} // namespace

QString deviceTypeName(const QString& model)
{
    if (model.contains(ipc))
        return ipc;
    const QString digits = kindDigits(model);
    const Kind* kind = findKind(digits);
    return kind != nullptr ? QString::fromLatin1(kind->name) : digits;
}

int deviceTypeCode(const QString& model)
{
    constexpr int ipcCode = 7;
    if (model.contains(ipc))
        return ipcCode;
    const Kind* kind = findKind(kindDigits(model));
    return kind != nullptr ? kind->code : 0;
}

QString deviceChannelText(const QString& model)
{
    if (model.contains(ipc))
        return model.right(1);
    return model.section(dash, 1, 1);
}

QString lanTypeText(const QString& model)
{
    if (model.contains(ipc, Qt::CaseInsensitive))
        return ipc;
    const Kind* kind = findKind(kindDigits(model));
    return kind != nullptr ? QString::fromLatin1(kind->name) : QString();
}

QString lanChannelText(const QString& model)
{
    if (model.contains(ipc, Qt::CaseInsensitive))
        return model.right(1);
    return model.section(dash, 1, 1);
}
