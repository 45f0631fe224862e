// SPDX-License-Identifier: GPL-3.0-or-later
// The search on the local network.
#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "cloud/errormsg.h"
#include "link/connect.h"
#include "link/ioconnect.h"
#include "model/progressevents.h"

#include <algorithm>

namespace {

constexpr int searchMs = 5000;
constexpr int askEveryMs = 1000;
constexpr int maxRecords = 256;

} // namespace

void IoConnect::startLANSearch()
{
    commands_.run(nullptr, [this] {
        const int result = IOTC_Search_Device_Start(searchMs, askEveryMs);
        postResult(this, new ProgressEvent_LanSearchStart(result));
    });
}

void IoConnect::takeSearchStart(int result)
{
    if (result == IOTC_NOT_INITIALIZED && !searchInitialized_) {
        // Once for a search: a library that stays down must not be asked for ever.
        searchInitialized_ = true;
        result = IOTC_Initialize2(0);
        if (result >= 0) {
            avInitialize(Connect::maxAvChannels);
            startLANSearch();
            return;
        }
    }
    searchInitialized_ = false;
    if (result < 0)
        emit startLANSearchFailMsg(result, ErrorMsg::p2pError(result));
    else
        lanTimer_.start(searchMs);
}

void IoConnect::getLanSearchResult()
{
    // Shared with the event, which is handled after this function has returned.
    const std::shared_ptr<IOTC_SearchRecord> records(
        new IOTC_SearchRecord[maxRecords]{}, std::default_delete<IOTC_SearchRecord[]>());
    const int count = IOTC_Search_Device_Result(records.get(), maxRecords, 1);
    IOTC_Search_Device_Stop();
    postResult(this, new ProgressEvent_LanSearch(count, records));
}

void IoConnect::takeSearchResult(int count, const IOTC_SearchRecord* records)
{
    if (count < 0) {
        emit startLANSearchFailMsg(count, ErrorMsg::p2pError(count));
        return;
    }
    lanResults_.clear();
    for (int i = 0; i < std::min(count, maxRecords); ++i)
        lanResults_.append(lanSearchResult(records[i]));
    emit startLANSearchSuccessMsg();
}
