/* SPDX-License-Identifier: GPL-3.0-or-later */
#ifndef IOTCAPIS_H
#define IOTCAPIS_H

/*
 * The device link layer, first half: sessions with devices, and the search on the local network.
 * The second half, AVAPIs.h, opens the channels on a session.
 *
 * Threads: every function may be called from any thread at any time. Before IOTC_Initialize2 and
 * after IOTC_DeInitialize each of the others answers IOTC_NOT_INITIALIZED and touches nothing.
 * Memory: arguments are read, and outputs written, during the call only; nothing is handed over.
 * Failure: a negative number of enum IOTC_Result, whose texts are in the client's error catalogue.
 */

#ifdef __cplusplus
#include <cstddef>
#include <cstdint>
#else
#include <assert.h>
#include <stddef.h>
#include <stdint.h>
#endif

#if defined(_WIN32)
#if defined(IOTC_BUILDING)
#define IOTC_API __declspec(dllexport)
#else
#define IOTC_API
#endif
#elif defined(__GNUC__)
#define IOTC_API __attribute__((visibility("default")))
#else
#define IOTC_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

enum IOTC_Result {
    IOTC_ALREADY_INITIALIZED = -3,
    IOTC_NO_THREAD = -5, /* the system gives no thread */
    IOTC_NO_SOCKET = -6, /* the system gives no socket */
    IOTC_PORT_NOT_FREE = -8,
    IOTC_NOT_INITIALIZED = -12,
    IOTC_BAD_SESSION = -14, /* not reserved, or not in the state the call needs */
    IOTC_NO_INTERFACE = -16, /* no network interface to search on */
    IOTC_SEARCH_RUNNING = -17,
    IOTC_NO_FREE_SESSION = -18,
    IOTC_CONNECT_STOPPED = -27, /* the client itself gave the attempt up */
    IOTC_NOT_CONNECTED = -42, /* found, but no session came about */
    IOTC_BAD_ARGUMENT = -46,
    IOTC_NO_SEARCH = -56, /* no search was started */
    IOTC_CONNECT_PENDING = -57, /* an attempt with this session id is under way */
    IOTC_NO_MEMORY = -58,
    IOTC_LOCKED_OUT = -59, /* too many wrong passwords from this address */
    IOTC_DEVICE_OFFLINE = -90 /* nobody answers for the UID */
};

enum IOTC_ConnectState {
    IOTC_STATE_FAILED = -1, /* final; the result is negative */
    IOTC_STATE_SEARCHING = 0, /* looking for the device */
    IOTC_STATE_FOUND = 1, /* the device is found */
    IOTC_STATE_CONNECTED = 2 /* final; the result is the session id */
};

/*
 * Reports the progress of one connect, on a thread of the library, one report at a time. States
 * other than IOTC_STATE_FAILED and IOTC_STATE_CONNECTED may come before the one final report.
 * It may call any function of the layer; while it runs no other report is made.
 */
typedef void (*IOTC_ConnectCallback)(int state, int result, void* userData);

/* A device that answered a search. All texts are zero terminated. */
#pragma pack(push, 1)
typedef struct IOTC_SearchRecord
{
    char uid[21]; /* 20 characters A-Z 0-9 */
    char ip[47]; /* numeric IPv4 or IPv6 address */
    uint16_t port; /* UDP, in the byte order of this machine */
    char name[138]; /* the device's version text */
} IOTC_SearchRecord;
#pragma pack(pop)

static_assert(sizeof(IOTC_SearchRecord) == 208, "callers read the record by fixed offsets");
static_assert(offsetof(IOTC_SearchRecord, uid) == 0, "callers read the record by fixed offsets");
static_assert(offsetof(IOTC_SearchRecord, ip) == 21, "callers read the record by fixed offsets");
static_assert(offsetof(IOTC_SearchRecord, port) == 68, "callers read the record by fixed offsets");
static_assert(offsetof(IOTC_SearchRecord, name) == 70, "callers read the record by fixed offsets");

/*
 * Brings the session half up. udpPort: the local UDP port, 0 for any. Does not wait on the network.
 * Returns 0; -3 when it is up already, -5, -6, -8, -58 when the system gives no memory.
 */
IOTC_API int IOTC_Initialize2(unsigned short udpPort);

/*
 * Takes both halves of the layer down: ends every session, channel and search. Calls in flight
 * return, pending connects get their final report (-1, -27), and no report comes after the
 * return; called from within a report, none comes after that report. Blocks until the reports
 * are made. Returns 0; -12.
 */
IOTC_API int IOTC_DeInitialize(void);

/*
 * Reserves and returns the smallest free session id, 0 to 1023. It is given back by
 * IOTC_Session_Close and by the final report of a connect that failed. Does not wait.
 * Returns -12; -18 when all are taken.
 */
IOTC_API int IOTC_Get_SessionID(void);

/*
 * Starts to connect a reserved session id to the device with this UID and returns at once.
 * Leads to exactly one final report, also when the call itself fails, except for a null callback
 * and for -12, where there is no library to report. userData is handed to every report and
 * otherwise not touched. A failed connect gives the session id back just before its final report.
 * Returns 0 once the attempt is under way; -12, -14 for an id that is not reserved or is
 * connected, -46 for a UID that is not 20 characters A-Z 0-9 or a null callback, -57, -58.
 * The final report brings one of these, or -27 (stopped, closed or taken down), -42 (no session
 * within 5 s), -59, -90 (nobody answers within 3 s).
 */
IOTC_API int IOTC_Connect_ByUID_ParallelNB(
    const char* uid, int sessionId, IOTC_ConnectCallback callback, void* userData);

/*
 * Makes the pending connect of this id give up: its final report (-1, -27) comes within 100 ms.
 * Does not wait for it. Without a pending connect nothing happens.
 * Returns 0; -12, -14 for an id that is not reserved.
 */
IOTC_API int IOTC_Connect_Stop_BySID(int sessionId);

/*
 * Ends the session with all its AV channels and gives the id back. Calls of other threads on
 * those channels return -20015 within 100 ms; a pending connect is stopped as above. Does not
 * wait for the device. An id that is not reserved is ignored.
 */
IOTC_API void IOTC_Session_Close(int sessionId);

/*
 * Starts a search on the local network that asks every intervalMs for waitMs milliseconds, and
 * returns at once. Returns 0; -12, -16, -17 until the search before has been stopped, -46 for a
 * time below 1, -58.
 */
IOTC_API int IOTC_Search_Device_Start(int waitMs, int intervalMs);

/*
 * Writes the records found so far, one per UID, to records[0 .. capacity - 1], and returns their
 * number. Also of use after waitMs has passed, until IOTC_Search_Device_Stop. flag: reserved,
 * pass 1. Does not wait. Returns -12, -46 for null records or a capacity below 1, -56.
 */
IOTC_API int IOTC_Search_Device_Result(IOTC_SearchRecord* records, int capacity, int flag);

/* Ends the search and drops its records; without a search nothing happens. Returns 0; -12. */
IOTC_API int IOTC_Search_Device_Stop(void);

#ifdef __cplusplus
}
#endif

#endif
