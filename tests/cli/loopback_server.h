#pragma once

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <map>
#include <stdexcept>
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
    explicit LoopbackServer(std::map<std::string, std::string> replies) : replies_(std::move(replies)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(socket_.Number(), generic, size) != 0 || listen(socket_.Number(), 8) != 0 ||
            getsockname(socket_.Number(), generic, &size) != 0)
            throw std::runtime_error("There is no port for the test's web server");
        port_ = ntohs(address.sin_port);
        thread_ = std::jthread([this](const std::stop_token& stop) {
            while (!stop.stop_requested()) {
                pollfd waiting{socket_.Number(), POLLIN, 0};
                if (poll(&waiting, 1, 20) > 0)
                    Answer(files::Descriptor(accept4(socket_.Number(), nullptr, nullptr, SOCK_CLOEXEC)));
            }
        });
    }
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    ~LoopbackServer() { Stop(); }

    /// "http://127.0.0.1:4711" and `path`.
    std::string Url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }

    /// From now on nobody is served, and whoever calls is refused.
    void Stop() {
        thread_.request_stop();
        if (thread_.joinable()) thread_.join();
        socket_ = files::Descriptor();
    }

    /// The paths that were asked for. Stops the server.
    std::vector<std::string> Asked() { return Stop(), asked_; }

  private:
    void Answer(const files::Descriptor& caller) {
        constexpr timeval patience{5, 0};
        for (const int way : {SO_RCVTIMEO, SO_SNDTIMEO})
            setsockopt(caller.Number(), SOL_SOCKET, way, &patience, sizeof(patience));
        std::string request;
        char part[4096];
        while (request.find("\r\n\r\n") == std::string::npos) {
            const ssize_t count = recv(caller.Number(), part, sizeof(part), 0);
            if (count <= 0) return;
            request.append(part, static_cast<std::size_t>(count));
        }
        const std::size_t path = request.find(' ') + 1;
        asked_.push_back(request.substr(path, request.find(' ', path) - path));
        const auto found = replies_.find(asked_.back());
        const std::string reply =
            found != replies_.end() ? found->second : "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
        for (std::size_t sent = 0; sent < reply.size();) {
            const ssize_t count = send(caller.Number(), reply.data() + sent, reply.size() - sent, MSG_NOSIGNAL);
            if (count <= 0) return;
            sent += static_cast<std::size_t>(count);
        }
        shutdown(caller.Number(), SHUT_WR);
        while (recv(caller.Number(), part, sizeof(part), 0) > 0) {}  // the caller hangs up first and takes all it wants
    }

    std::map<std::string, std::string> replies_;
    std::vector<std::string> asked_;
    files::Descriptor socket_{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    int port_ = 0;
    std::jthread thread_;
};

}  // namespace veraqua
