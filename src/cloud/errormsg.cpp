// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/errormsg.h"

#include <algorithm>
#include <iterator>

namespace {

struct CodeText
{
    int code;
    const char* text;
};

// The texts are the keys of the translations: doubled and trailing blanks, spelling and
// full-width marks included. Two codes with one text are two rows, so that each stays exact.

// clang-format off
// Results of IOTCAPIs (-1 to -91) and AVAPIs (-20000 to -20032).
const CodeText p2pTexts[] = {
    {-1, QT_TRANSLATE_NOOP("ErrorMsg", "No response")},
    {-2, QT_TRANSLATE_NOOP("ErrorMsg", "Cannot resolve domain name")},
    {-3, QT_TRANSLATE_NOOP("ErrorMsg", "Module already initialized")},
    {-4, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to create Mutexes")},
    {-5, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to create threads")},
    {-6, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to create sockets")},
    {-7, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to set up socket options")},
    {-8, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to bind sockets")},
    {-11, QT_TRANSLATE_NOOP("ErrorMsg", "Already login")},
    {-12, QT_TRANSLATE_NOOP("ErrorMsg", "Module is not initialized")},
    {-13, QT_TRANSLATE_NOOP("ErrorMsg", "Time out")},
    {-14, QT_TRANSLATE_NOOP("ErrorMsg", "SID invalid")},
    {-15, QT_TRANSLATE_NOOP("ErrorMsg", "Unknown device")},
    {-16, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to get the local IP")},
    {-17, QT_TRANSLATE_NOOP("ErrorMsg", "Already start")},
    {-18, QT_TRANSLATE_NOOP("ErrorMsg", "Sessions has reached maximum")},
    {-19, QT_TRANSLATE_NOOP("ErrorMsg", "Cannot locate the specified device")},
    {-22, QT_TRANSLATE_NOOP("ErrorMsg", "Session already closes")},
    {-23, QT_TRANSLATE_NOOP("ErrorMsg", "Session timeout")},
    {-24, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to connect to a device")},
    {-26, QT_TRANSLATE_NOOP("ErrorMsg", "Channel is not turned on")},
    {-27, QT_TRANSLATE_NOOP("ErrorMsg", "Client stops connecting")},
    {-28, QT_TRANSLATE_NOOP("ErrorMsg", "Too few masters are specified")},
    {-29, QT_TRANSLATE_NOOP("ErrorMsg", "A client fails to pass certification")},
    {-31, QT_TRANSLATE_NOOP("ErrorMsg", "The channels for a session has reached maximum")},
    {-32, QT_TRANSLATE_NOOP("ErrorMsg", "Cannot connect")},
    {-33, QT_TRANSLATE_NOOP("ErrorMsg", "Cannot connect")},
    {-34, QT_TRANSLATE_NOOP("ErrorMsg", "Client does not support mode")},
    {-35, QT_TRANSLATE_NOOP("ErrorMsg", "Client does not support mode")},
    {-36, QT_TRANSLATE_NOOP("ErrorMsg", "A device does not support this mode")},
    {-37, QT_TRANSLATE_NOOP("ErrorMsg", "A device does not support this mode")},
    {-39, QT_TRANSLATE_NOOP("ErrorMsg", "A device stops for this connections")},
    {-40, QT_TRANSLATE_NOOP("ErrorMsg", "No permission")},
    {-41, QT_TRANSLATE_NOOP("ErrorMsg", "Network unreachable")},
    {-42, QT_TRANSLATE_NOOP("ErrorMsg", "Client fails to connect device")},
    {-43, QT_TRANSLATE_NOOP("ErrorMsg", "Client fails to connect device")},
    {-44, QT_TRANSLATE_NOOP("ErrorMsg", "Device login or client connect failed")},
    {-45, QT_TRANSLATE_NOOP("ErrorMsg", "Duplicated loggin and may unconnectable")},
    {-46, QT_TRANSLATE_NOOP("ErrorMsg", "The arguments is invalid")},
    {-47, QT_TRANSLATE_NOOP("ErrorMsg", "The device not support partial encoding")},
    {-48, QT_TRANSLATE_NOOP("ErrorMsg", "Connect session exceed")},
    {-49, QT_TRANSLATE_NOOP("ErrorMsg", "Function is blocking,waiting")},
    {-50, QT_TRANSLATE_NOOP("ErrorMsg", "Session close")},
    {-53, QT_TRANSLATE_NOOP("ErrorMsg", "Buffer size exceed")},
    {-54, QT_TRANSLATE_NOOP("ErrorMsg", "Does not support this feature")},
    {-55, QT_TRANSLATE_NOOP("ErrorMsg", "Cannot find a path to write data")},
    {-56, QT_TRANSLATE_NOOP("ErrorMsg", "Start function is not called")},
    {-57, QT_TRANSLATE_NOOP("ErrorMsg", "Already in processing")},
    {-58, QT_TRANSLATE_NOOP("ErrorMsg", "Out of memory")},
    {-59, QT_TRANSLATE_NOOP("ErrorMsg", "The device is banned and locked")},
    {-60, QT_TRANSLATE_NOOP("ErrorMsg", "Master have no response")},
    {-61, QT_TRANSLATE_NOOP("ErrorMsg", "Moudule has some resource problem")},
    {-62, QT_TRANSLATE_NOOP("ErrorMsg", "Send queue is full")},
    {-63, QT_TRANSLATE_NOOP("ErrorMsg", "The feature is not supported")},
    {-64, QT_TRANSLATE_NOOP("ErrorMsg", "Device is in sleep mode")},
    {-65, QT_TRANSLATE_NOOP("ErrorMsg", "Doesn't support this feature")},
    {-66, QT_TRANSLATE_NOOP("ErrorMsg", "WakeUp Init funtion isn't called")},
    {-90, QT_TRANSLATE_NOOP("ErrorMsg", "Device offline")},
    {-91, QT_TRANSLATE_NOOP("ErrorMsg", "Master invalid")},
    {-20000, QT_TRANSLATE_NOOP("ErrorMsg", "Arguments incorrect")},
    {-20001, QT_TRANSLATE_NOOP("ErrorMsg", "Buffer is too small")},
    {-20002, QT_TRANSLATE_NOOP("ErrorMsg", "The channels has reached maximum")},
    {-20003, QT_TRANSLATE_NOOP("ErrorMsg", "Insufficient memory")},
    {-20004, QT_TRANSLATE_NOOP("ErrorMsg", "Fails to create threads")},
    {-20005, QT_TRANSLATE_NOOP("ErrorMsg", "A warning error")},
    {-20006, QT_TRANSLATE_NOOP("ErrorMsg", "The buffer to be sent exceeds")},
    {-20007, QT_TRANSLATE_NOOP("ErrorMsg", "Has no response")},
    {-20008, QT_TRANSLATE_NOOP("ErrorMsg", "Client does not start")},
    {-20009, QT_TRANSLATE_NOOP("ErrorMsg", "Incorrect view account or password")},
    {-20010, QT_TRANSLATE_NOOP("ErrorMsg", "Session is not valid")},
    {-20011, QT_TRANSLATE_NOOP("ErrorMsg", "Timeout has expired")},
    {-20012, QT_TRANSLATE_NOOP("ErrorMsg", "Not ready for receiving")},
    {-20013, QT_TRANSLATE_NOOP("ErrorMsg", "Some parts of a frame are lost")},
    {-20014, QT_TRANSLATE_NOOP("ErrorMsg", "The whole frame is lost")},
    {-20015, QT_TRANSLATE_NOOP("ErrorMsg", "The remote session already closes")},
    {-20016, QT_TRANSLATE_NOOP("ErrorMsg", "Session is disconnected")},
    {-20017, QT_TRANSLATE_NOOP("ErrorMsg", "Server exit")},
    {-20018, QT_TRANSLATE_NOOP("ErrorMsg", "Client exit")},
    {-20019, QT_TRANSLATE_NOOP("ErrorMsg", "Module has not been initialized")},
    {-20020, QT_TRANSLATE_NOOP("ErrorMsg", "Client cannot send data")},
    {-20021, QT_TRANSLATE_NOOP("ErrorMsg", "Already in sending")},
    {-20022, QT_TRANSLATE_NOOP("ErrorMsg", "Sending  is terminated ")},
    {-20023, QT_TRANSLATE_NOOP("ErrorMsg", "No permission")},
    {-20024, QT_TRANSLATE_NOOP("ErrorMsg", "Password length is wrong")},
    {-20025, QT_TRANSLATE_NOOP("ErrorMsg", "Session has been closed")},
    {-20026, QT_TRANSLATE_NOOP("ErrorMsg", "Moudule deinitialized")},
    {-20027, QT_TRANSLATE_NOOP("ErrorMsg", "Channel is used")},
    {-20028, QT_TRANSLATE_NOOP("ErrorMsg", "Waiting key frame")},
    {-20029, QT_TRANSLATE_NOOP("ErrorMsg", "Reset buffer")},
    {-20030, QT_TRANSLATE_NOOP("ErrorMsg", "Queue is full")},
    {-20031, QT_TRANSLATE_NOOP("ErrorMsg", "Module is already initialized")},
    {-20032, QT_TRANSLATE_NOOP("ErrorMsg", "Clean buffer ")},
};

// The `result_code` of a cloud answer.
const CodeText serverTexts[] = {
    {5, QT_TRANSLATE_NOOP("ErrorMsg", "Please try again one minute later！")},
    {10, QT_TRANSLATE_NOOP("ErrorMsg", "unknown")},
    {12, QT_TRANSLATE_NOOP("ErrorMsg", "You are not the primary user of the device!")},
    {14, QT_TRANSLATE_NOOP("ErrorMsg", "Device is not belong to you")},
    {15, QT_TRANSLATE_NOOP("ErrorMsg", "Device has been bound")},
    {16, QT_TRANSLATE_NOOP("ErrorMsg", "WeChat has been bound, please log in and unbind using WeChat")},
    {17, QT_TRANSLATE_NOOP("ErrorMsg", "No email or mobile phone login")},
    {44, QT_TRANSLATE_NOOP("ErrorMsg", "System error! Can not send email")},
    {48, QT_TRANSLATE_NOOP("ErrorMsg", "System object error!")},
    {89, QT_TRANSLATE_NOOP("ErrorMsg", "Already send the code, please check it or get it again after 10m")},
    {90, QT_TRANSLATE_NOOP("ErrorMsg", "please check code or get it again after 1m")},
    {99, QT_TRANSLATE_NOOP("ErrorMsg", "Mail doesn't exist!")},
    {100, QT_TRANSLATE_NOOP("ErrorMsg", "Phone format error")},
    {101, QT_TRANSLATE_NOOP("ErrorMsg", "Phone already existed!")},
    {102, QT_TRANSLATE_NOOP("ErrorMsg", "Phone doesn't exist!")},
    {103, QT_TRANSLATE_NOOP("ErrorMsg", "Mail already existed!")},
    {104, QT_TRANSLATE_NOOP("ErrorMsg", "Account doesn't exist!")},
    {105, QT_TRANSLATE_NOOP("ErrorMsg", "Email format error！")},
    {107, QT_TRANSLATE_NOOP("ErrorMsg", "The username not conform to the rules!")},
    {109, QT_TRANSLATE_NOOP("ErrorMsg", "The password not conform to the rules!")},
    {110, QT_TRANSLATE_NOOP("ErrorMsg", "user doesn't activated")},
    {111, QT_TRANSLATE_NOOP("ErrorMsg", "Error password")},
    {112, QT_TRANSLATE_NOOP("ErrorMsg", "Fingerprint login is not turned on")},
    {119, QT_TRANSLATE_NOOP("ErrorMsg", "The qr code has expired")},
    {120, QT_TRANSLATE_NOOP("ErrorMsg", "The code has expired")},
    {121, QT_TRANSLATE_NOOP("ErrorMsg", "The verification code is wrong")},
    {173, QT_TRANSLATE_NOOP("ErrorMsg", "Data does not exists!")},
    {174, QT_TRANSLATE_NOOP("ErrorMsg", "Data already exists!")},
    {176, QT_TRANSLATE_NOOP("ErrorMsg", "Delete error")},
    {177, QT_TRANSLATE_NOOP("ErrorMsg", "Update error")},
    {178, QT_TRANSLATE_NOOP("ErrorMsg", "ADD error")},
    {179, QT_TRANSLATE_NOOP("ErrorMsg", "Nickname repeated")},
    {306, QT_TRANSLATE_NOOP("ErrorMsg", "The link has expired!")},
    {309, QT_TRANSLATE_NOOP("ErrorMsg", "Please ReLogin! errmsg token")},
    {404, QT_TRANSLATE_NOOP("ErrorMsg", "You don not have permission to access this!")},
    {414, QT_TRANSLATE_NOOP("ErrorMsg", "Please confirm the request url!")},
    {424, QT_TRANSLATE_NOOP("ErrorMsg", "Database Error!")},
    {444, QT_TRANSLATE_NOOP("ErrorMsg", "Wrong parameters!")},
    {474, QT_TRANSLATE_NOOP("ErrorMsg", "System Maintaining!")},
    {475, QT_TRANSLATE_NOOP("ErrorMsg", "App Version too low, please upgrade!")},
    {500, QT_TRANSLATE_NOOP("ErrorMsg", "Query Database Error")},
    {700, QT_TRANSLATE_NOOP("ErrorMsg", "Upload file error")},
    {701, QT_TRANSLATE_NOOP("ErrorMsg", "The file does not exist!")},
    {711, QT_TRANSLATE_NOOP("ErrorMsg", "Do not downgrade")},
    {712, QT_TRANSLATE_NOOP("ErrorMsg", "Area needs to be consistent")},
    {713, QT_TRANSLATE_NOOP("ErrorMsg", "Storage rules cannot be changed during the validity period")},
    {717, QT_TRANSLATE_NOOP("ErrorMsg", "Authorization expires")},
    {900, QT_TRANSLATE_NOOP("ErrorMsg", "There is no information about this version!")},
    {901, QT_TRANSLATE_NOOP("ErrorMsg", "Getting URL failure!")},
    {902, QT_TRANSLATE_NOOP("ErrorMsg", "No update!")},
    {903, QT_TRANSLATE_NOOP("ErrorMsg", "Error filename")},
    {904, QT_TRANSLATE_NOOP("ErrorMsg", "Version does not support this feature!")},
    {906, QT_TRANSLATE_NOOP("ErrorMsg", "Cause of file operation error")},
    {907, QT_TRANSLATE_NOOP("ErrorMsg", "The download file does not exist!")},
    {10001, QT_TRANSLATE_NOOP("ErrorMsg", "Customer number, customer confidentiality error")},
    {10002, QT_TRANSLATE_NOOP("ErrorMsg", "Check your configuration: no customer number, customer confidentiality")},
    {10003, QT_TRANSLATE_NOOP("ErrorMsg", "The authorization code does not exist. Please reauthorize")},
    {10004, QT_TRANSLATE_NOOP("ErrorMsg", "The request method is incorrect. Please contact the developer")},
    {10005, QT_TRANSLATE_NOOP("ErrorMsg", "Wrong configuration, wrong customer number")},
    {10006, QT_TRANSLATE_NOOP("ErrorMsg", "Configuration error. The path value is incorrect'")},
};

// QNetworkReply::NetworkError; -1 is the HTTP client's own time-out.
const CodeText networkTexts[] = {
    {-1, QT_TRANSLATE_NOOP("ErrorMsg", "timed out")},
    {1, QT_TRANSLATE_NOOP("ErrorMsg", "server refused the connection")},
    {2, QT_TRANSLATE_NOOP("ErrorMsg", "server closed the connection prematurely")},
    {3, QT_TRANSLATE_NOOP("ErrorMsg", "host name was not found")},
    {4, QT_TRANSLATE_NOOP("ErrorMsg", "timed out")},
    {5, QT_TRANSLATE_NOOP("ErrorMsg", "via closed before finished")},
    {6, QT_TRANSLATE_NOOP("ErrorMsg", "SSL/TLS handshake failed")},
    {7, QT_TRANSLATE_NOOP("ErrorMsg", "disconnection from the network")},
    {8, QT_TRANSLATE_NOOP("ErrorMsg", "initiated roaming to another access point")},
    {9, QT_TRANSLATE_NOOP("ErrorMsg", "platform policy")},
    {10, QT_TRANSLATE_NOOP("ErrorMsg", "the maximum limit was reached")},
    {11, QT_TRANSLATE_NOOP("ErrorMsg", "API detected a redirect")},
    {99, QT_TRANSLATE_NOOP("ErrorMsg", "unknown network error")},
    {101, QT_TRANSLATE_NOOP("ErrorMsg", "proxy server was refused")},
    {102, QT_TRANSLATE_NOOP("ErrorMsg", "proxy server closed the connection")},
    {103, QT_TRANSLATE_NOOP("ErrorMsg", "proxy host name was not found")},
    {104, QT_TRANSLATE_NOOP("ErrorMsg", "proxy timed out")},
    {105, QT_TRANSLATE_NOOP("ErrorMsg", "proxy requires did not accept credentials offered")},
    {199, QT_TRANSLATE_NOOP("ErrorMsg", "unknown proxy-related error")},
    {201, QT_TRANSLATE_NOOP("ErrorMsg", "access was denied")},
    {202, QT_TRANSLATE_NOOP("ErrorMsg", "operation is not permitted")},
    {203, QT_TRANSLATE_NOOP("ErrorMsg", "remote was not found at the server")},
    {205, QT_TRANSLATE_NOOP("ErrorMsg", "request can not resend")},
    {206, QT_TRANSLATE_NOOP("ErrorMsg", "conflict with the current state")},
    {207, QT_TRANSLATE_NOOP("ErrorMsg", "resource is no longer available")},
    {299, QT_TRANSLATE_NOOP("ErrorMsg", "unknown content error")},
    {301, QT_TRANSLATE_NOOP("ErrorMsg", "the protocol is not known")},
    {302, QT_TRANSLATE_NOOP("ErrorMsg", "the requested operation is invalid")},
    {399, QT_TRANSLATE_NOOP("ErrorMsg", "a breakdown in protocol was detected")},
    {401, QT_TRANSLATE_NOOP("ErrorMsg", "the server encountered an unexpected condition")},
    {402, QT_TRANSLATE_NOOP("ErrorMsg", "server does not support the functionality")},
    {403, QT_TRANSLATE_NOOP("ErrorMsg", "server is unable to handle the request")},
    {499, QT_TRANSLATE_NOOP("ErrorMsg", "unknown server error")},
};
// clang-format on

template <std::size_t Size>
const char* find(const CodeText (&table)[Size], int code)
{
    const auto* row = std::find_if(
        std::begin(table), std::end(table), [code](const CodeText& r) { return r.code == code; });
    return row == std::end(table) ? nullptr : row->text;
}

} // namespace

QString ErrorMsg::p2pError(int code)
{
    const char* text = find(p2pTexts, code);
    return text != nullptr ? tr(text) : tr("No process:") + QString::number(code);
}

QString ErrorMsg::serverError(int code)
{
    const char* text = find(serverTexts, code);
    return text != nullptr ? tr(text) : QString();
}

QString ErrorMsg::networkError(int code)
{
    const char* text = find(networkTexts, code);
    return text != nullptr ? tr(text) : tr("unknown error");
}
