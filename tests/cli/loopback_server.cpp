#include "tests/cli/loopback_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>

namespace veraqua {

namespace {

constexpr int LookAroundMilliseconds = 20;
constexpr timeval Patience{5, 0};

sockaddr* Generic(sockaddr_in& address) { return reinterpret_cast<sockaddr*>(&address); }

}  // namespace

LoopbackServer::LoopbackServer(std::map<std::string, std::string> replies)
    : replies_(std::move(replies)), socket_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    if (bind(socket_.Number(), Generic(address), size) != 0 || listen(socket_.Number(), 8) != 0 ||
        getsockname(socket_.Number(), Generic(address), &size) != 0)
        throw std::runtime_error("There is no port for the test's web server");
    port_ = ntohs(address.sin_port);
    thread_ = std::jthread([this](const std::stop_token& stop) { Serve(stop); });
}

LoopbackServer::~LoopbackServer() { Stop(); }

std::string LoopbackServer::Url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(port_) + path;
}

void LoopbackServer::Stop() {
    thread_.request_stop();
    if (thread_.joinable()) thread_.join();
    socket_ = files::Descriptor();
}

std::vector<std::string> LoopbackServer::Asked() {
    Stop();
    return asked_;
}

void LoopbackServer::Serve(const std::stop_token& stop) {
    while (!stop.stop_requested()) {
        pollfd waiting{socket_.Number(), POLLIN, 0};
        if (poll(&waiting, 1, LookAroundMilliseconds) <= 0) continue;
        Answer(files::Descriptor(accept4(socket_.Number(), nullptr, nullptr, SOCK_CLOEXEC)));
    }
}

void LoopbackServer::Answer(const files::Descriptor& caller) {
    setsockopt(caller.Number(), SOL_SOCKET, SO_RCVTIMEO, &Patience, sizeof(Patience));
    setsockopt(caller.Number(), SOL_SOCKET, SO_SNDTIMEO, &Patience, sizeof(Patience));
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

}  // namespace veraqua
