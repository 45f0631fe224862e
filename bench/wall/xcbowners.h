// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <sys/ipc.h>
#include <sys/shm.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

// Owners of the X server's connection, of its answers, and of memory shared with it.

struct XcbDelete
{
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using XcbConnectionPtr = std::unique_ptr<xcb_connection_t, XcbDelete>;

struct XcbFree
{
    void operator()(void* answer) const { std::free(answer); }
};
template <typename Answer>
using XcbAnswerPtr = std::unique_ptr<Answer, XcbFree>;

// A System V segment that goes with its last user, also when this process is killed.
class SharedSegment
{
public:
    SharedSegment() = default;
    SharedSegment(const SharedSegment&) = delete;
    SharedSegment& operator=(const SharedSegment&) = delete;
    ~SharedSegment()
    {
        if (data_ != nullptr)
            shmdt(data_);
    }

    // Once. False without memory, or when the server cannot see it (it runs on another machine).
    bool create(xcb_connection_t* connection, std::size_t size)
    {
        const int id = shmget(IPC_PRIVATE, size, IPC_CREAT | 0600);
        if (id < 0)
            return false;
        void* const data = shmat(id, nullptr, 0);
        const bool here = reinterpret_cast<std::intptr_t>(data) != -1;
        data_ = here ? data : nullptr;
        name_ = xcb_generate_id(connection);
        const auto cookie = xcb_shm_attach_checked(connection, name_, static_cast<unsigned>(id), 0);
        const XcbAnswerPtr<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
        shmctl(id, IPC_RMID, nullptr);
        return here && error == nullptr;
    }

    std::uint32_t name() const { return name_; }
    const std::uint8_t* data() const { return static_cast<const std::uint8_t*>(data_); }

private:
    void* data_ = nullptr;
    std::uint32_t name_ = 0;
};
