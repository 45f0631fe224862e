// SPDX-License-Identifier: GPL-3.0-or-later
#include "arrivals.h"

#include "clientlink.h"
#include "device/linkframe.h"
#include "framemark.h"

#include <array>

using namespace std::chrono_literals;

std::unique_ptr<Arrivals> Arrivals::start(
    const std::string& uid, const std::string& password, std::string& error)
{
    std::unique_ptr<Arrivals> arrivals(new Arrivals);
    if (!arrivals->open(uid, password, error))
        return nullptr;
    arrivals->thread_ = std::thread([self = arrivals.get()] { self->run(); });
    return arrivals;
}

Arrivals::Arrivals()
    : link_(std::make_unique<ClientLink>())
    , buffer_(LinkFrame::maxBytes)
{
}

Arrivals::~Arrivals()
{
    stop();
}

bool Arrivals::open(const std::string& uid, const std::string& password, std::string& error)
{
    constexpr auto patience = 10s;
    int result = link_->error();
    if (result == 0) {
        session_ = std::make_unique<ClientSession>(ClientSession::connect(uid, patience));
        result = session_->result();
    }
    if (result >= 0) {
        channel_ = std::make_unique<ClientChannel>(*session_, 0, "Admin", password);
        result = channel_->open() ? channel_->startVideo() : channel_->index();
    }
    if (result < 0)
        error = "the bare link layer answers " + std::to_string(result);
    return result >= 0;
}

const Arrivals::Times& Arrivals::stop()
{
    stopping_ = true;
    if (thread_.joinable())
        thread_.join();
    return times_;
}

void Arrivals::run()
{
    constexpr auto pause = 1ms;
    while (!stopping_) {
        while (receive()) { }
        std::this_thread::sleep_for(pause);
    }
}

// False when nothing was ready.
bool Arrivals::receive()
{
    std::array<char, AV_FRAME_INFO_BYTES> info{};
    int actual = 0;
    int expected = 0;
    int infoSize = 0;
    unsigned number = 0;
    const int size =
        avRecvFrameData2(channel_->index(), buffer_.data(), static_cast<int>(buffer_.size()),
            &actual, &expected, info.data(), AV_FRAME_INFO_BYTES, &infoSize, &number);
    if (size <= 0)
        return false;
    const auto now = Clock::now();
    times_.emplace(frameMark(buffer_.data(), static_cast<std::size_t>(size)), now);
    return true;
}
