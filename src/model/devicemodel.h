// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// What the model text of a device tells: the name that a device gives in the LAN search, such as
// "IPC2", or "NVR04W-8", whose first piece carries the kind in the two characters before its last
// one and whose second piece is the number of channels. Pure functions, any thread.

// "IPC", "DVR", "NVR", "WVR" or "XVR"; the two characters themselves where they name no known
// kind; empty where the text has neither "IPC" nor "-".
QString deviceTypeName(const QString& model);

// The device type code of the cloud list: 7 IPC, 1 DVR, 2 NVR, 11 XVR, 0 for everything else, WVR
// included.
int deviceTypeCode(const QString& model);

// The number of channels as the text has it; empty where it tells none.
QString deviceChannelText(const QString& model);

// What the table of the search on the local network shows. They differ from the two above in that
// "IPC" counts in small letters too, and that no unknown kind shows.
QString lanTypeText(const QString& model);
QString lanChannelText(const QString& model);
