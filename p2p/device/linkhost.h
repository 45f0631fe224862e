// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkframe.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// The device's side of the link layer: a host publishes devices under their UIDs on one UDP port
// and answers the search on the local network. Everything a client sends is checked before it
// gets here. No function throws.

// One AV channel that a client has opened: it has shown that it knows account and password.
// Shared by the host and whoever sends to it. After the channel has closed sends do nothing.
// Threads: any. Nothing here waits for the client.
class LinkChannel
{
public:
    enum class Sent {
        Queued,
        Dropped, // the client takes less than is sent; pictures go on with the next key frame
        Closed,
    };

    LinkChannel() = default;
    LinkChannel(const LinkChannel&) = delete;
    LinkChannel& operator=(const LinkChannel&) = delete;
    virtual ~LinkChannel() = default;

    // Numbers of a device's channels, or one that offerChannel() gave.
    virtual int number() const = 0;
    // The session this channel belongs to; unique in the life of the host.
    virtual std::uint64_t session() const = 0;
    // "address:port" of the client, for the log.
    virtual std::string peer() const = 0;

    virtual Sent sendVideo(const LinkFrame& frame) = 0;
    virtual Sent sendAudio(const LinkFrame& frame) = 0;
    // 1 to 1024 bytes. Messages are never lost: false only when the channel has closed. A client
    // that lets 1024 messages pile up loses its session.
    virtual bool sendControl(std::uint32_t type, std::string_view bytes) = 0;

    // Joins the client's speech channel as its listener, as soon as the client serves it. One at
    // a time per session: the last call counts. Sound arrives at LinkDeviceHandler::speechReceived.
    virtual void joinSpeech(int speechNumber) = 0;
    virtual void leaveSpeech() = 0;

    // Lets this session open one further channel, for a replay. Returns its number, 64 to 254;
    // -1 when all are given. The number goes back when that channel closes or is taken back.
    virtual int offerChannel() = 0;
    virtual void takeBackChannel(int number) = 0;

    // What the client has not confirmed yet is lost.
    virtual void close() = 0;
    virtual void closeSession() = 0;

    // For trials of a client's defences: one datagram of the channel, as it stands.
    virtual void sendRaw(std::string_view datagram) = 0;
    // The same: as if the next picture had been lost on the way.
    virtual void loseVideo() = 0;
};

using LinkChannelPtr = std::shared_ptr<LinkChannel>;

// What a program does with its device's clients. All calls come from the host's one event thread,
// the last ones from whoever ends the host, and must not wait: the answers of all devices of the
// host come from it.
class LinkDeviceHandler
{
public:
    virtual ~LinkDeviceHandler() = default;

    // A client wants a session; false refuses it. `peer`: "address:port".
    virtual bool admit(const std::string& peer) = 0;
    virtual void channelOpened(const LinkChannelPtr& channel) = 0;
    // Once for each channelOpened().
    virtual void channelClosed(const LinkChannelPtr& channel) = 0;
    // One message, 1 to 1024 bytes. False leaves it untaken: the client's send goes on waiting,
    // until the client gives it up or a later message is taken.
    virtual bool controlReceived(
        const LinkChannelPtr& channel, std::uint32_t type, std::string_view bytes) = 0;
    // One sound frame on the speech channel that `channel` joined.
    virtual void speechReceived(const LinkChannelPtr& channel, const LinkFrame& frame) = 0;
    // A client presented a wrong account or password.
    virtual void wrongPassword(const std::string& peer, bool lockedOut) = 0;
};

struct LinkDevice
{
    std::string uid; // 20 characters A-Z 0-9
    std::string version; // the version text, at most 137 bytes, no control characters
    std::string account;
    std::string password;
    int channels = 1; // 1 to 64
};

struct LinkHostSettings
{
    std::string address = "0.0.0.0"; // IPv4 address to serve on
    std::uint16_t port = 0; // UDP; 0 takes a free one
    bool answerSearch = true;
    bool loopbackOnly = false; // answer searches from this machine only
};

class LinkHost
{
public:
    // Binds and starts the host's threads. Null when that fails; `error` tells why.
    static std::unique_ptr<LinkHost> start(const LinkHostSettings& settings, std::string& error);

    LinkHost() = default;
    LinkHost(const LinkHost&) = delete;
    LinkHost& operator=(const LinkHost&) = delete;
    // Ends every session. No handler is called after the return.
    virtual ~LinkHost() = default;

    virtual std::uint16_t port() const = 0;

    // From now on the device is found and can be connected to. `handler` must outlive the device's
    // publication. False for a UID or another field out of form, or a UID that is published here.
    virtual bool publish(const LinkDevice& device, LinkDeviceHandler& handler) = 0;
    // Ends its sessions; its handler is not called after the return. From within a handler it is
    // done after the return.
    virtual void withdraw(const std::string& uid) = 0;
    // Counts from the next channel on that a client opens.
    virtual void setPassword(const std::string& uid, const std::string& password) = 0;
    // Silent: the device answers nothing any more, as if its cable had been pulled.
    virtual void setSilent(const std::string& uid, bool silent) = 0;
};
