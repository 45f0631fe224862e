// SPDX-License-Identifier: GPL-3.0-or-later
#include "AVAPIs.h"
#include "IOTCAPIs.h"

#include <chrono>
#include <thread>

// Ends in the midst of a connect and of a search, without taking the layer down.
int main()
{
    if (IOTC_Initialize2(0) != 0 || avInitialize(16) != 16)
        return 1;
    const int id = IOTC_Get_SessionID();
    const auto ignore = [](int, int, void*) {};
    if (IOTC_Connect_ByUID_ParallelNB("NOBODYHASTHISUID0001", id, ignore, nullptr) != 0
        || IOTC_Search_Device_Start(1000, 20) != 0)
        return 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return 0;
}
