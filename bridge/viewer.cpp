// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewer.h"

#include "answers.h"
#include "wire/framing.h"

void Viewer::videoFrame(const std::shared_ptr<const LinkFrame>& frame)
{
    if (faults_.dropsPicture(++pictures_))
        link_->loseVideo();
    else
        link_->sendVideo(*frame);
}

void Viewer::audioFrame(const std::shared_ptr<const LinkFrame>& frame)
{
    link_->sendAudio(*frame);
}

void Viewer::answer(std::uint32_t type, std::string bytes)
{
    if (faults_.isMute())
        return;
    if (const auto status = faults_.statusFor(type))
        bytes.replace(0, 4, statusAnswer(*status), 0, std::min<std::size_t>(bytes.size(), 4));
    switch (faults_.damageNext()) {
    case Faults::Damage::None:
        link_->sendControl(type, bytes);
        break;
    case Faults::Damage::Truncated:
        link_->sendControl(type, bytes.substr(0, (bytes.size() + 1) / 2));
        break;
    case Faults::Damage::Oversized:
        bytes.resize(1400);
        link_->sendRaw(encode(Control{1, type, bytes}));
        break;
    case Faults::Damage::Broken: {
        const std::string packet = encode(Control{1, type, bytes});
        link_->sendRaw(std::string_view(packet).substr(0, packet.size() / 2));
        break;
    }
    }
}
