// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// The one place from an error code to the text a user sees. Three lookups for three code spaces;
// each is stateless, may be called from any thread, and translates with the language of the
// moment. None of them knows 0: callers test for success before they ask.
class ErrorMsg final : public QObject
{
    Q_OBJECT

public:
    // Result of an IOTCAPIs or AVAPIs call. A code without a row reads "No process:" and the code.
    static QString p2pError(int code);

    // `result_code` of a cloud answer. A code without a row gives an empty text.
    static QString serverError(int code);

    // QNetworkReply::NetworkError, or -1 for the HTTP client's own time-out. A code without a row
    // reads "unknown error".
    static QString networkError(int code);
};
