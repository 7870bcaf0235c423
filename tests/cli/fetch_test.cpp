#include <fstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "tests/cli/loopback_server.h"
#include "tests/cli/program.h"
#include "tests/support/measured_weather.h"
#include "tests/support/network_line.h"

namespace veraqua {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string TextPath = "/kesta/data/0603rd.txt";

std::string Ok(const std::string& body) { return "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + body; }

std::string Moved(const std::string& to) {
    return "HTTP/1.1 302 Found\r\nLocation: " + to + "\r\nContent-Length: 0\r\n\r\n";
}

struct Fetch : CliTest {
    Ran FetchFrom(const std::string& url, const std::string& more = "") const {
        return Run("weather fetch 06" + more, {"--json", "--base-url", url});
    }
};

TEST_F(Fetch, BringsAMeasuredYearInAndLetsTheFieldsCatchUp) {
    const std::string path = VERAQUA_TEST_DATA "/weather/0603rd.txt";
    std::ifstream file(path, std::ios::binary);
    LoopbackServer server({{TextPath, Ok({std::istreambuf_iterator<char>(file), {}})},
                           {"/old/0603rd.txt", Moved("/kesta/data/0603rd.txt")}});
    const std::string day = R"({"julian": 731716, "date": "2003-07-14"})";
    const Ran appended = FetchFrom(server.Url("/old"));
    EXPECT_EQ(appended.Err, "");
    EXPECT_EQ(appended.Out, R"({"from": )" + day + R"(, "to": )" + day + R"(, "last_day": )" + day +
                                R"(, "fields_updated": 2})" + "\n");
    EXPECT_EQ(appended.Status, 0);

    EXPECT_EQ(FetchFrom(server.Url("/kesta/data/"), " --overwrite").Status, 0);
    const auto stored = nlohmann::json::parse(Run("weather show 06 2003", {"--json"}).Out);
    const std::vector<MeasuredDay> measured = WholeDays(path);
    ASSERT_EQ(stored.size(), 195U);
    for (std::size_t i = 0; i < stored.size(); ++i) {
        EXPECT_EQ(stored[i]["source"], "kesta");
        EXPECT_NEAR(stored[i]["temp_max"].get<double>(), measured[i].TempMax, 1e-4);
        EXPECT_NEAR(stored[i]["wind_run"].get<double>(), measured[i].WindSpeed * 86.4 * 0.93, 1e-2);
    }
    EXPECT_EQ(Run("weather fetch 06", {"--base-url", server.Url("")}).Status, 1);  // up to date: not asked for again
    EXPECT_THAT(server.Asked(), ElementsAre("/old/0603rd.txt", TextPath, TextPath));
}

TEST_F(Fetch, TellsWhyItFailedAndKeepsWhatIsThere) {
    LoopbackServer server({{"/large/0603rd.txt", Ok(std::string(5 << 20, 'x'))},
                           {"/busy/0603rd.txt", "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 0\r\n\r\n"},
                           {"/mute/0603rd.txt", "HTTP/1.1 500 \r\nContent-Length: 0\r\n\r\n"},
                           {"/loop/0603rd.txt", Moved("/loop/0603rd.txt")},
                           {"/file/0603rd.txt", Moved("file:///etc/hostname")},
                           {"/dead/0603rd.txt", "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n2003,1,6"}});
    LoopbackServer stopped({});
    const std::string nobody = stopped.Url("/");
    stopped.Stop();
    const auto before = Everything();
    for (const auto& [url, reason] : std::vector<std::pair<std::string, std::string>>{
             {server.Url("/nothing"), "404: Not Found"},
             {server.Url("/busy"), "503: Service Unavailable"},
             {server.Url("/mute"), "500: the server refused"},
             {server.Url("/large"), "63: the text is larger than 4 MiB"},
             {server.Url("/loop"), "47: Number of redirects hit maximum amount"},
             {server.Url("/file"), "1: Unsupported protocol"},
             {"file://" + Directory.Path(), "1: Unsupported protocol"},
             {server.Url("/dead"), "18: Transferred a partial file"},
             {nobody, "7: Couldn't connect to server"}}) {
        const Ran ran = FetchFrom(url);
        EXPECT_EQ(ran.Err, "Download Error: " + reason +
                               "\nDOWNLOAD FAILED: No weather data was saved, try loading default data\n");
        EXPECT_EQ(ran.Status, 1) << reason;
        EXPECT_EQ(ran.Out, "") << reason;
        EXPECT_EQ(Everything(), before) << reason;
    }
}

TEST_F(Fetch, AsksTheNetworkThatTheUserNames) {
    LoopbackServer server({{"/by-option/0603rd.txt", Ok("<html>")}, {"/by-file/0603rd.txt", Ok("<html>")}});
    Directory.Put("network.txt", "  " + server.Url("/by-file") + "  \r\nhttp://another.example/\r\n");
    for (const auto& options : {std::vector<std::string>{}, {"--base-url", server.Url("/by-option")}}) {
        const Ran ran = Run("weather fetch 06", options);
        EXPECT_THAT(ran.Err, HasSubstr("KESTA data is missing 194 days worth of data."));
        EXPECT_EQ(ran.Status, 1);
    }
    const Ran ran = Run("weather fetch 06", {"--answer", "yes"});
    EXPECT_THAT(ran.Err,
                testing::EndsWith("[yes]\nDownload Error: Wrong YEAR found in Weather download.  Try again\n"));
    EXPECT_THAT(server.Asked(), ElementsAre("/by-file/0603rd.txt", "/by-option/0603rd.txt", "/by-file/0603rd.txt"));
}

}  // namespace
}  // namespace veraqua
