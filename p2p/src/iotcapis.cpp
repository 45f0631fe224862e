// SPDX-License-Identifier: GPL-3.0-or-later
// The C functions of the session half: check the arguments and find the layer.
#define IOTC_BUILDING
#include "IOTCAPIs.h"

#include "src/layer.h"

int IOTC_Initialize2(unsigned short udpPort)
{
    return Layer::bringUp(udpPort);
}

int IOTC_DeInitialize(void)
{
    return Layer::takeDown();
}

int IOTC_Get_SessionID(void)
{
    const auto layer = Layer::current();
    return layer ? layer->reserveSession() : static_cast<int>(IOTC_NOT_INITIALIZED);
}

int IOTC_Connect_ByUID_ParallelNB(
    const char* uid, int sessionId, IOTC_ConnectCallback callback, void* userData)
{
    const auto layer = Layer::current();
    return layer ? layer->connect(uid, sessionId, callback, userData)
                 : static_cast<int>(IOTC_NOT_INITIALIZED);
}

int IOTC_Connect_Stop_BySID(int sessionId)
{
    const auto layer = Layer::current();
    return layer ? layer->stopConnect(sessionId) : static_cast<int>(IOTC_NOT_INITIALIZED);
}

void IOTC_Session_Close(int sessionId)
{
    if (const auto layer = Layer::current())
        layer->closeSession(sessionId);
}

int IOTC_Search_Device_Start(int waitMs, int intervalMs)
{
    const auto layer = Layer::current();
    if (!layer)
        return IOTC_NOT_INITIALIZED;
    if (waitMs < 1 || intervalMs < 1)
        return IOTC_BAD_ARGUMENT;
    return layer->startSearch(
        std::chrono::milliseconds(waitMs), std::chrono::milliseconds(intervalMs));
}

int IOTC_Search_Device_Result(IOTC_SearchRecord* records, int capacity, int /*flag*/)
{
    const auto layer = Layer::current();
    if (!layer)
        return IOTC_NOT_INITIALIZED;
    if (records == nullptr || capacity < 1)
        return IOTC_BAD_ARGUMENT;
    return layer->searchResult(records, capacity);
}

int IOTC_Search_Device_Stop(void)
{
    const auto layer = Layer::current();
    if (!layer)
        return IOTC_NOT_INITIALIZED;
    layer->stopSearch();
    return 0;
}
