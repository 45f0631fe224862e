/* SPDX-License-Identifier: GPL-3.0-or-later */
/* Both faces of the link layer, seen by a C compiler. */
#include "face_from_c.h"

#include "AVAPIs.h"
#include "IOTCAPIs.h"

_Static_assert(sizeof(IOTC_SearchRecord) == 208, "size of a search record");
_Static_assert(offsetof(IOTC_SearchRecord, ip) == 21, "offset of the address");
_Static_assert(offsetof(IOTC_SearchRecord, port) == 68, "offset of the port");
_Static_assert(offsetof(IOTC_SearchRecord, name) == 70, "offset of the version text");
_Static_assert(sizeof(((IOTC_SearchRecord*)0)->port) == 2, "size of the port");

int sendFromC(void)
{
    const char message[4] = {1, 2, 3, 4};
    const int sessionId = IOTC_Get_SessionID();
    return sessionId < 0 ? sessionId : avSendIOCtrl(0, 255, message, (int)sizeof message);
}
