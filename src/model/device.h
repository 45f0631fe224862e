// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channel.h"
#include "model/relaxed.h"

#include <QMetaType>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

// One camera, DVR or NVR of the account: a plain record, told apart by its UID. The registry
// (`Dev`) alone owns devices; everyone else borrows Device* and Channel*. Main thread, but for
// the session fields.
//
// Tasks and events may still carry a channel when its device leaves the registry. So the registry
// never deletes a device: it retires it, and the device goes when the last ChannelHold on one of
// its channels has gone too. See DeviceOwner below.
class Device
{
public:
    Device() = default;
    ~Device();
    Q_DISABLE_COPY_MOVE(Device)

    const QString& id() const { return id_; } // record id in the cloud list
    const QString& uid() const { return uid_; }
    const QString& nickName() const { return nickName_; }
    // What views show: the nick name, or the UID where there is none; at most 200 characters, since
    // a list may hold anything.
    QString shownName() const;
    const QString& viewPassword() const { return viewPassword_; } // clear text, in memory only
    QString viewAccount() const; // "Admin" while none is set
    int type() const { return type_; } // device type code of the cloud list
    int channelCount() const { return channelCount_; }

    void setId(const QString& id) { id_ = id; }
    void setUid(const QString& uid) { uid_ = uid; }
    void setNickName(const QString& name) { nickName_ = name; }
    void setViewPassword(const QString& password) { viewPassword_ = password; }
    void setViewAccount(const QString& account) { viewAccount_ = account; }
    void setType(int type) { type_ = type; }

    // A channel's number travels as one byte.
    static constexpr int maxChannels = 256;

    // 0 counts as 1, more than maxChannels as maxChannels. The list of channels grows to `count`
    // and never shrinks, since channels are borrowed: loops over channels run to channelCount(),
    // not over all there are.
    void setChannelCount(int count);

    // Null for an index that the list does not have.
    Channel* channel(int index) const;
    int channelListSize() const { return static_cast<int>(channels_.size()); }

    // Gives up the owner's hold. The device is destroyed from the main thread's event loop once no
    // task and no event carries one of its channels; so plain pointers stay good to the end of the
    // slot that retires it, unless that runs an event loop of its own. Main thread; only for a
    // device made with `new`.
    void retire();
    // It has left the registry: only work that was under way still knows it. Main thread.
    bool isRetired() const { return retired_; }

    // Session of the link layer, shared with worker threads without a lock: `sid` below 0 and
    // not connecting is not connected, 0 or above is connected.
    Relaxed<int> sid{-1};
    Relaxed<bool> connecting{false};

private:
    friend class ChannelHold;
    friend class LastHoldEvent;
    void retain() { holds_.fetch_add(1, std::memory_order_relaxed); }
    void release();

    QString id_;
    QString uid_;
    QString nickName_;
    QString viewPassword_;
    QString viewAccount_;
    int type_ = 0;
    int channelCount_ = 0;
    std::vector<std::unique_ptr<Channel>> channels_;
    bool retired_ = false;
    std::atomic<int> holds_{1}; // the owner's, and one for each ChannelHold
};

Q_DECLARE_METATYPE(Device*)

struct DeviceRetirer
{
    void operator()(Device* device) const { device->retire(); }
};

// How a registry owns a device: retires it instead of deleting it.
using DeviceOwner = std::unique_ptr<Device, DeviceRetirer>;
