// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

struct IOTC_SearchRecord;

// A device that answered the search on the local network.
struct LanSearchResult
{
    QString version; // the device's version text, such as "IPC1" or "NVR04W-8"
    QString uid;
    QString ip;
    QString port; // decimal
};

Q_DECLARE_METATYPE(LanSearchResult)

// Texts without a terminating zero end with their field. Pure, any thread.
LanSearchResult lanSearchResult(const IOTC_SearchRecord& record);
