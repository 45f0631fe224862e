// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/lansearchresult.h"

#include "IOTCAPIs.h"

#include <algorithm>

namespace {

template <std::size_t Size>
QString textOf(const char (&field)[Size])
{
    const char* end = std::find(field, field + Size, '\0');
    return QString::fromLatin1(field, static_cast<int>(end - field));
}

} // namespace

LanSearchResult lanSearchResult(const IOTC_SearchRecord& record)
{
    return {
        textOf(record.name), textOf(record.uid), textOf(record.ip), QString::number(record.port)};
}
