/* SPDX-License-Identifier: GPL-3.0-or-later */
#ifndef AVAPIS_H
#define AVAPIS_H

/*
 * The device link layer, second half: AV channels on the sessions of IOTCAPIs.h. A channel carries
 * video and sound frames one way and IO-control messages both ways. An open channel is named by
 * its AV index, the smallest free number from 0 on, one space for all sessions.
 *
 * Threads: every function may be called from any thread at any time. Before avInitialize and after
 * IOTC_DeInitialize each of the others answers AV_NOT_INITIALIZED and touches nothing.
 * Memory: arguments are read, and outputs written, during the call only; nothing is handed over.
 * Failure: a negative number of enum AV_Result, whose texts are in the client's error catalogue.
 *
 * Every function that takes an AV index can return, besides what it lists itself: -20010 for an
 * index that is not open, -20016 once the device is gone or has closed this channel, -20019. A
 * call that is inside the library when its channel ends returns within 100 ms: -20015 after
 * IOTC_Session_Close, -20016 when the device is gone, -20017 after avServStop, -20018 after
 * avClientStop, -20026 after IOTC_DeInitialize.
 */

#if defined(_WIN32)
#if defined(AV_BUILDING)
#define AV_API __declspec(dllexport)
#else
#define AV_API
#endif
#elif defined(__GNUC__)
#define AV_API __attribute__((visibility("default")))
#else
#define AV_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

enum AV_Result {
    AV_BAD_ARGUMENT = -20000,
    AV_TOO_LARGE = -20001, /* what came does not fit the capacity, and is dropped */
    AV_NO_FREE_CHANNEL = -20002,
    AV_NO_MEMORY = -20003,
    AV_NO_THREAD = -20004, /* the system gives no thread */
    AV_BAD_SIZE = -20006, /* nothing to send, or more than one message holds */
    AV_WRONG_PASSWORD = -20009, /* account or password */
    AV_BAD_INDEX = -20010, /* AV index not open, or session not connected */
    AV_NO_ANSWER = -20011, /* nothing came within the time given */
    AV_NOTHING_READY = -20012,
    AV_FRAME_IN_PART = -20013,
    AV_FRAMES_LOST = -20014,
    AV_SESSION_CLOSED = -20015,
    AV_DEVICE_GONE = -20016,
    AV_SERVER_STOPPED = -20017, /* avServStop ended the call */
    AV_CLIENT_STOPPED = -20018, /* avClientStop ended the call */
    AV_NOT_INITIALIZED = -20019,
    AV_NOT_A_SENDER = -20020, /* sound goes out on a server's index only */
    AV_SEND_ENDED = -20022, /* avSendIOCtrlExit ended the send */
    AV_TAKEN_DOWN = -20026, /* IOTC_DeInitialize ended the call */
    AV_CHANNEL_OPEN = -20027, /* this channel of the session is open already */
    AV_QUEUE_FULL = -20030, /* the device takes sound slower than it is sent */
    AV_ALREADY_INITIALIZED = -20031,
    AV_LOCKED_OUT = -59 /* too many wrong passwords from this address */
};

enum {
    AV_FRAME_INFO_BYTES = 16, /* the frame information that travels with each frame */
    AV_IO_CONTROL_MAX_BYTES = 1024, /* the largest IO-control message that can be sent */
    AV_SOUND_MAX_BYTES = 16384 /* the largest sound frame that can be sent */
};

/*
 * Asked by avServStart3 for the account and password that the device presents; 1 accepts. Runs
 * on the thread that called avServStart3 or on one of the library. The texts live for the call.
 */
typedef int (*AV_AuthCallback)(const char* account, const char* password);

/*
 * Brings the channel half up, after IOTC_Initialize2. maxChannels: how many AV channels can be
 * open at once. Does not wait. Returns that number; -20000 for a number below 1, -20003, -20019
 * when the session half is not up, -20031 when it is up already.
 */
AV_API int avInitialize(int maxChannels);

/*
 * Opens channel channelId of a connected session as a client. Blocks until the device has
 * answered, for timeoutSec seconds at most. account, password: zero terminated; they do not
 * travel. serviceType, resend: may be null; otherwise 0, and 1 or 0 for whether lost frames are
 * sent again.
 * Returns the AV index; -59, -20000 for a null text, -20002, -20003, -20009, -20010 for a session
 * that is not connected, -20011, -20015, -20016, -20019, -20026, -20027.
 */
AV_API int avClientStart2(int sessionId, const char* account, const char* password,
    unsigned int timeoutSec, unsigned int* serviceType, unsigned char channelId, int* resend);

/*
 * Closes a client's channel and frees its index; what waits in its queues is dropped. Does not
 * wait for the device. An index that is not open, or is a server's, is ignored.
 */
AV_API void avClientStop(int avIndex);

/*
 * Drops the video and sound frames that wait; IO-control messages stay. Does not wait.
 * Returns 0.
 */
AV_API int avClientCleanBuf(int avIndex);

/* Drops the sound frames that wait. Takes a server's index too. Does not wait. Returns 0. */
AV_API int avClientCleanAudioBuf(int avIndex);

/*
 * Sends one IO-control message of size bytes, 1 to 1024. Blocks until the device's side has taken
 * it, without a limit of its own: avSendIOCtrlExit ends it. Messages of a channel arrive in
 * sending order, each once. A server's channel carries none: -20010.
 * Returns 0; -20000 for null data, -20006, -20022.
 */
AV_API int avSendIOCtrl(int avIndex, unsigned int type, const char* data, int size);

/*
 * Makes the sends in flight on this index return -20022 within 100 ms; later ones work. Does not
 * wait for them. Returns 0.
 */
AV_API int avSendIOCtrlExit(int avIndex);

/*
 * Takes the next IO-control message: its type to *type, its bytes to buffer. Waits for one for
 * timeoutMs milliseconds at most; 0 does not wait. Messages are never reordered, lost or doubled
 * while the session lives. Returns the length in bytes; -20000 for a null pointer or a capacity
 * below 1, -20001, -20011 when none came.
 */
AV_API int avRecvIOCtrl(
    int avIndex, unsigned int* type, char* buffer, int capacity, unsigned int timeoutMs);

/*
 * Takes the next video frame; never waits. buffer gets the frame, frameInfo the device's
 * AV_FRAME_INFO_BYTES, *frameNumber a number that counts up by one per frame sent. actualSize,
 * expectedSize, actualInfoSize may be null; otherwise they get the bytes received, the bytes the
 * frame has, and the bytes of frame information.
 * Waiting frames are bounded to 256 and 8 MiB per channel; past that they are dropped up to the
 * next key frame. Returns the frame's size in bytes; -20000 for another null pointer, a capacity
 * below 1 or a frameInfoCapacity below AV_FRAME_INFO_BYTES, -20001, -20012 when none is ready,
 * -20013 for a frame that came in part, -20014 once for each run of frames that was lost.
 */
AV_API int avRecvFrameData2(int avIndex, char* buffer, int capacity, int* actualSize,
    int* expectedSize, char* frameInfo, int frameInfoCapacity, int* actualInfoSize,
    unsigned int* frameNumber);

/* The number of results that wait for avRecvAudioData, losses included. Does not wait. */
AV_API int avCheckAudioBuf(int avIndex);

/*
 * Takes the next sound frame, as avRecvFrameData2 does; at most 64 wait per channel.
 * Returns the frame's size in bytes; -20000, -20001, -20012, -20013, -20014.
 */
AV_API int avRecvAudioData(int avIndex, char* buffer, int capacity, char* frameInfo,
    int frameInfoCapacity, unsigned int* frameNumber);

/*
 * Sends one sound frame of size bytes with its frame information to the device that joined this
 * server. Copies it and does not wait for the device. Returns 0; -20000 for a null pointer, a
 * size below 1 or a frameInfoSize other than AV_FRAME_INFO_BYTES, -20020 for a client's index,
 * -20006 for more than AV_SOUND_MAX_BYTES, -20030 when too much waits to be sent; the frame is
 * dropped.
 */
AV_API int avSendAudioData(
    int avIndex, const char* data, int size, const void* frameInfo, int frameInfoSize);

/*
 * Waits for the device to join channel channelId of a connected session as a client, for
 * timeoutSec seconds at most; a device that auth refuses has not joined. serviceType: not used.
 * resend: may be null; otherwise gets 1 or 0 for whether lost frames are sent again.
 * Returns the AV index; -20000 for a null auth, -20002, -20003, -20010 for a session that is not
 * connected, -20009 and -59 when the device does not take our password any more, -20011, -20015,
 * -20016, -20019, -20026, -20027.
 */
AV_API int avServStart3(int sessionId, AV_AuthCallback auth, unsigned int timeoutSec,
    unsigned int serviceType, unsigned char channelId, int* resend);

/*
 * Closes a server's channel and frees its index. Does not wait for the device. An index that is
 * not open, or is a client's, is ignored.
 */
AV_API void avServStop(int avIndex);

/*
 * Writes to *size the bytes sent on a server's index that the device has not confirmed yet.
 * Does not wait. Returns 0; -20000 for a null size.
 */
AV_API int avServGetResendSize(int avIndex, unsigned int* size);

#ifdef __cplusplus
}
#endif

#endif
