// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/deploymentlink.h"

#include "wire/uid.h"

#include <nlohmann/json.hpp>

#include <arpa/inet.h>

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

namespace {

using Json = nlohmann::json;
namespace fs = std::filesystem;

bool isHostName(std::string_view text)
{
    constexpr std::string_view letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    return !text.empty() && letters.find(text.front()) != std::string_view::npos
        && text.find_first_not_of(std::string(letters) + ".-") == std::string_view::npos;
}

bool isV6Address(const std::string& text)
{
    in6_addr address{};
    return text.find_first_not_of("0123456789abcdefABCDEF:.") == std::string::npos
        && inet_pton(AF_INET6, text.c_str(), &address) == 1;
}

bool readPort(std::string_view text, std::uint16_t& port)
{
    constexpr std::size_t longest = 5;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() && end == text.data() + text.size() && text.size() <= longest
        && port != 0;
}

// "host:port" or "[v6 address]:port"
std::optional<DeploymentLink::Endpoint> endpointOf(const std::string& text)
{
    const std::size_t colon = text.rfind(':');
    if (colon == std::string::npos || colon == 0)
        return std::nullopt;
    DeploymentLink::Endpoint endpoint;
    endpoint.host = text.substr(0, colon);
    const bool bracketed = endpoint.host.front() == '[' && endpoint.host.back() == ']';
    if (bracketed)
        endpoint.host = endpoint.host.substr(1, endpoint.host.size() - 2);
    const bool sound = bracketed ? isV6Address(endpoint.host) : isHostName(endpoint.host);
    if (!sound || !readPort(std::string_view(text).substr(colon + 1), endpoint.port))
        return std::nullopt;
    return endpoint;
}

bool readBook(const Json& book, DeploymentLink& link)
{
    if (!book.is_object())
        return false;
    for (const auto& [uid, value] : book.items()) {
        const auto endpoint =
            value.is_string() ? endpointOf(value.get<std::string>()) : std::nullopt;
        if (!isUid(uid) || !endpoint)
            return false;
        link.addressBook.emplace(uid, *endpoint);
    }
    return true;
}

bool readScope(const Json& scope, DeploymentLink& link)
{
    link.loopbackOnly = scope == "loopback";
    return scope == "loopback" || scope == "lan";
}

bool readPart(const Json& part, DeploymentLink& link)
{
    if (!part.is_object())
        return false;
    for (const auto& [key, value] : part.items()) {
        if (key == "searchScope" ? !readScope(value, link)
                                 : key != "addressBook" || !readBook(value, link))
            return false;
    }
    return true;
}

bool read(const Json& root, DeploymentLink& link)
{
    return root.is_object() && (!root.contains("link") || readPart(root["link"], link));
}

std::vector<fs::path> folders()
{
    std::error_code error;
    std::vector<fs::path> found;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (program.has_parent_path())
        found.push_back(program.parent_path());
    const char* configured = std::getenv("XDG_CONFIG_DIRS");
    std::string_view list = configured != nullptr && *configured != '\0' ? configured : "/etc/xdg";
    while (!list.empty()) {
        const std::string_view folder = list.substr(0, list.find(':'));
        list.remove_prefix(std::min(list.size(), folder.size() + 1));
        found.push_back(fs::path(folder) / "Quvane" / "ORVA");
    }
    return found;
}

} // namespace

DeploymentLink DeploymentLink::parse(std::string_view json)
{
    const Json root = Json::parse(json, nullptr, false);
    DeploymentLink link;
    return read(root, link) ? link : DeploymentLink();
}

DeploymentLink DeploymentLink::load()
{
    for (const fs::path& folder : folders()) {
        const fs::path path = folder / "deployment.json";
        std::error_code error;
        if (!fs::exists(path, error))
            continue;
        // A pipe in its place would never end.
        if (!fs::is_regular_file(path, error))
            return {};
        std::ifstream file(path, std::ios::binary);
        return parse(std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return {};
}
