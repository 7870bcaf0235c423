#include "weather/network_address.h"

#include <algorithm>

#include <fmt/format.h>

#include "core/base/text.h"
#include "core/files/files.h"
#include "core/state.h"

namespace veraqua {

void UseNetwork(std::string_view url) {
    State.BaseUrl = url;
    if (!url.ends_with('/')) State.BaseUrl += '/';
}

void TakeNetworkOfUser() {
    const auto bytes = files::Read(NetworkFile);
    const std::string_view text = bytes ? std::string_view(*bytes) : std::string_view();
    const std::string url = Utf8FromLatin1(Trimmed(text.substr(0, text.find_first_of("\r\n"))));
    const ApplicationState builtIn;
    UseNetwork(url.empty() ? builtIn.BaseUrl : url);
}

std::string NetworkAdvice(std::string_view url) {
    constexpr std::string_view behindScheme = "://";
    const std::size_t scheme = url.find(behindScheme);
    const std::string_view address = scheme == std::string_view::npos ? url : url.substr(scheme + behindScheme.size());
    const std::size_t slash = std::min(address.find('/'), address.size());
    return fmt::format(
        "{} didn't give the file {}.\nLook whether this computer has a network and try again later, or take default "
        "weather meanwhile. If the weather network has moved, write its new address into the first line of {}{}.",
        address.substr(0, slash), address.substr(slash), files::DirectoryPath(), NetworkFile);
}

}  // namespace veraqua
