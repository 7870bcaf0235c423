#pragma once

#include <map>
#include <string>
#include <thread>
#include <vector>

#include "core/disk.h"

namespace veraqua {

/// A web server on 127.0.0.1, at a port that the system chooses. It waits for nobody longer than some seconds, and
/// ends with its life.
class LoopbackServer {
  public:
    /// Path to the whole reply, head and body; another path is not found.
    explicit LoopbackServer(std::map<std::string, std::string> replies);
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /// "http://127.0.0.1:4711" and `path`.
    std::string Url(const std::string& path) const;

    /// From now on nobody is served, and whoever calls is refused.
    void Stop();

    /// The paths that were asked for. Stops the server.
    std::vector<std::string> Asked();

  private:
    void Serve(const std::stop_token& stop);
    void Answer(const files::Descriptor& caller);

    std::map<std::string, std::string> replies_;
    std::vector<std::string> asked_;
    files::Descriptor socket_;
    int port_ = 0;
    std::jthread thread_;
};

}  // namespace veraqua
