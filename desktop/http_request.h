#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "screen/screen.h"

class QNetworkAccessManager;
class QNetworkReply;

namespace veraqua {

/// HTTP or HTTPS GET of a text of at most `LargestNetworkText` bytes, one at a time, through the proxy of the system,
/// while the event loop goes on. Up to 10 redirects are followed, but none from https to http. A status other than 200
/// is a failure with that status and its reason; everything else that goes wrong has the network library's error number
/// and a reason in the words of the command line.
class HttpRequest {
  public:
    static constexpr std::chrono::milliseconds UsualSilence = std::chrono::seconds(30);

    /// `longestSilence` without data ends a request, the wait for the connection included.
    explicit HttpRequest(std::chrono::milliseconds longestSilence = UsualSilence);
    ~HttpRequest();
    HttpRequest(const HttpRequest&) = delete;
    HttpRequest& operator=(const HttpRequest&) = delete;

    /// Begins the request and returns; one in work is cancelled. `progress` is called from the event loop only, last
    /// with Error or Complete. It may start or cancel, but not destroy this.
    void Start(const std::string& url, std::function<void(const HttpProgress&)> progress);

    /// Ends the request in work, if there is one; `progress` isn't called again.
    void Cancel();

  private:
    struct Exchange;

    void Send(const std::string& url);
    void Follow();
    void TakeBody();
    void Finish();
    void End(HttpReply reply);
    void Report(const HttpProgress& state) const;

    std::chrono::milliseconds longestSilence_;
    /// Made by the first request: the start of the program is quicker.
    std::unique_ptr<QNetworkAccessManager> manager_;
    std::shared_ptr<Exchange> exchange_;  ///< the request in work
};

}  // namespace veraqua
