#include <netinet/in.h>
#include <sys/socket.h>

#include <thread>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "core/files/disk.h"
#include "tests/cli/program.h"

namespace veraqua {
namespace {

/// A web server on 127.0.0.1, at a port that the system chooses. It ends with its life.
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
        thread_ = std::thread([this] {
            for (;;) {
                const files::Descriptor caller(accept4(socket_.Number(), nullptr, nullptr, SOCK_CLOEXEC));
                if (!caller.IsOpen()) return;
                Answer(caller.Number());
            }
        });
    }
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    ~LoopbackServer() {
        shutdown(socket_.Number(), SHUT_RDWR);  // the thread waits no longer
        thread_.join();
    }

    /// "http://127.0.0.1:4711" and `path`.
    std::string Url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }

  private:
    void Answer(int caller) {
        char part[4096];
        const ssize_t got = recv(caller, part, sizeof(part), 0);  // a request is short
        if (got <= 0) return;
        const std::string request(part, static_cast<std::size_t>(got));
        const std::size_t path = request.find(' ') + 1;
        const auto found = replies_.find(request.substr(path, request.find(' ', path) - path));
        const std::string reply =
            found != replies_.end() ? found->second : "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n";
        for (std::size_t sent = 0; sent < reply.size();) {
            const ssize_t count = send(caller, reply.data() + sent, reply.size() - sent, MSG_NOSIGNAL);
            if (count <= 0) return;
            sent += static_cast<std::size_t>(count);
        }
        shutdown(caller, SHUT_WR);
        while (recv(caller, part, sizeof(part), 0) > 0) {}  // the caller hangs up first and takes all it wants
    }

    std::map<std::string, std::string> replies_;
    files::Descriptor socket_{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    int port_ = 0;
    std::thread thread_;
};

std::string Ok(const std::string& body) { return "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + body; }

std::string Moved(const std::string& to) {
    return "HTTP/1.1 302 Found\r\nLocation: " + to + "\r\nContent-Length: 0\r\n\r\n";
}

struct Fetch : CliTest {
    Ran FetchFrom(const std::string& url) const { return Run("weather fetch 06", {"--json", "--base-url", url}); }
};

TEST_F(Fetch, BringsAMeasuredYearInAndLetsTheFieldsCatchUp) {
    const std::string path = VERAQUA_TEST_DATA "/weather/0603rd.txt";
    LoopbackServer server(
        {{"/kesta/data/0603rd.txt", Ok(TextOf(path))}, {"/old/0603rd.txt", Moved("/kesta/data/0603rd.txt")}});
    Directory.Put("network.txt", "http://127.0.0.1:1/");  // the option wins
    const std::string day = R"({"julian": 731716, "date": "2003-07-14"})";
    const Ran appended = FetchFrom(server.Url("/old"));
    EXPECT_EQ(appended.Out, R"({"from": )" + day + R"(, "to": )" + day + R"(, "last_day": )" + day +
                                R"(, "fields_updated": 2})" + "\n");
    EXPECT_EQ(appended.Status, 0);

    Directory.Put("network.txt", "  " + server.Url("/kesta/data/") + "  \r\nhttp://another.example/\r\n");
    EXPECT_EQ(Run("weather fetch 06 --overwrite").Status, 0);
    const auto stored = nlohmann::json::parse(Run("weather show 06 2003", {"--json"}).Out);
    ASSERT_EQ(stored.size(), 195U);
    EXPECT_NEAR(stored[194]["temp_max"].get<double>(), 37.11, 1e-4);  // as the text has it
}

TEST_F(Fetch, TellsWhyItFailedAndKeepsWhatIsThere) {
    LoopbackServer server({{"/large/0603rd.txt", Ok(std::string(5 << 20, 'x'))},
                           {"/loop/0603rd.txt", Moved("/loop/0603rd.txt")},
                           {"/file/0603rd.txt", Moved("file:///etc/hostname")},
                           {"/dead/0603rd.txt", "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n2003,1,6"}});
    const auto before = Everything();
    for (const auto& [url, reason] : std::vector<std::pair<std::string, std::string>>{
             {server.Url("/nothing"), "404: Not Found"},
             {server.Url("/large"), "63: the text is larger than 4 MiB"},
             {server.Url("/loop"), "47: Number of redirects hit maximum amount"},
             {server.Url("/file"), "1: Unsupported protocol"},
             {server.Url("/dead"), "18: Transferred a partial file"},
             {"http://127.0.0.1:1/", "7: Couldn't connect to server"}}) {
        const Ran ran = FetchFrom(url);
        EXPECT_EQ(ran.Err, "Download Error: " + reason +
                               "\nDOWNLOAD FAILED: No weather data was saved, try loading default data\n");
        EXPECT_EQ(ran.Status, 1) << reason;
        EXPECT_EQ(Everything(), before) << reason;
    }
}

}  // namespace
}  // namespace veraqua
