#include "cli/http_get.h"

#include <memory>

#include "cli/curl_library.h"
#include "weather/network_text.h"

namespace veraqua {

namespace {

constexpr long SilenceLimitSeconds = 30;
constexpr long MostRedirects = 10;
constexpr long HttpOk = 200;

struct Received {
    std::string Body;
    std::string StatusLine;
    bool TooLarge = false;
};

std::size_t TakeBody(const char* data, std::size_t size, std::size_t count, void* user) {
    auto& received = *static_cast<Received*>(user);
    if (received.Body.size() + size * count > LargestNetworkText) {
        received.TooLarge = true;
        return 0;
    }
    received.Body.append(data, size * count);
    return size * count;
}

std::size_t TakeHeader(const char* data, std::size_t size, std::size_t count, void* user) {
    const std::string_view line(data, size * count);
    if (line.starts_with("HTTP/"))
        static_cast<Received*>(user)->StatusLine = line.substr(0, line.find_first_of("\r\n"));
    return size * count;
}

/// The reason in a status line such as "HTTP/1.1 404 Not Found".
std::string ReasonOf(const std::string& statusLine) {
    const std::size_t code = statusLine.find(' ');
    const std::size_t reason = code == std::string::npos ? code : statusLine.find(' ', code + 1);
    return reason >= statusLine.size() - 1 ? "the server refused" : statusLine.substr(reason + 1);
}

using Handle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;

Handle MakeHandle(const CurlLibrary& curl, const std::string& url, Received& received) {
    Handle handle(curl.Init(), curl.Cleanup);
    if (!handle) return handle;
    curl.Setopt(handle.get(), CURLOPT_URL, url.c_str());
    curl.Setopt(handle.get(), CURLOPT_PROTOCOLS_STR, "http,https");
    curl.Setopt(handle.get(), CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl.Setopt(handle.get(), CURLOPT_FOLLOWLOCATION, 1L);
    curl.Setopt(handle.get(), CURLOPT_MAXREDIRS, MostRedirects);
    curl.Setopt(handle.get(), CURLOPT_CONNECTTIMEOUT, SilenceLimitSeconds);
    curl.Setopt(handle.get(), CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl.Setopt(handle.get(), CURLOPT_LOW_SPEED_TIME, SilenceLimitSeconds);
    curl.Setopt(handle.get(), CURLOPT_NOSIGNAL, 1L);
    curl.Setopt(handle.get(), CURLOPT_ACCEPT_ENCODING, "");
    curl.Setopt(handle.get(), CURLOPT_WRITEFUNCTION, &TakeBody);
    curl.Setopt(handle.get(), CURLOPT_WRITEDATA, &received);
    curl.Setopt(handle.get(), CURLOPT_HEADERFUNCTION, &TakeHeader);
    curl.Setopt(handle.get(), CURLOPT_HEADERDATA, &received);
    return handle;
}

}  // namespace

HttpReply HttpGet(const std::string& url, const std::function<void(std::string_view)>& state) {
    const CurlLibrary* curl = LoadedCurl();
    if (curl == nullptr) return {false, CURLE_FAILED_INIT, "the library libcurl is missing", {}};
    Received received;
    const Handle handle = MakeHandle(*curl, url, received);
    if (!handle) return {false, CURLE_FAILED_INIT, "the network can't be used", {}};
    state("Resolving IP/Connecting...");
    const CURLcode outcome = curl->Perform(handle.get());
    if (received.TooLarge) return {false, CURLE_FILESIZE_EXCEEDED, "the text is larger than 4 MiB", {}};
    if (outcome != CURLE_OK) return {false, static_cast<int>(outcome), curl->Strerror(outcome), {}};
    long status = 0;
    curl->Getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &status);
    if (status != HttpOk) return {false, static_cast<int>(status), ReasonOf(received.StatusLine), {}};
    return {true, static_cast<int>(status), {}, std::move(received.Body)};
}

}  // namespace veraqua
