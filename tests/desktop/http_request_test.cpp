#include "desktop/http_request.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>

#include <gmock/gmock.h>

#include "weather/network_text.h"

namespace veraqua {
namespace {

/// A weather network on this machine that gives one answer to every request, and stays silent if that is empty.
struct Network : QTcpServer {
    explicit Network(const QByteArray& answer) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, [this, answer] {
            QTcpSocket* client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, [client, answer] {
                if (client->readAll(); client->write(answer) > 0) client->disconnectFromHost();
            });
        });
    }
    std::string Url() const { return "http://127.0.0.1:" + std::to_string(serverPort()) + "/kesta/data/0603rd.txt"; }
};

struct Download : HttpRequest {
    using HttpRequest::HttpRequest;
    const HttpReply& Until(HttpState state, const std::string& url) {
        Start(url, [this](const HttpProgress& told) { States.push_back(told.State), Reply = told.Reply; });
        EXPECT_TRUE(States.empty()) << "it may only tell from the event loop";
        while (States.empty() || States.back() < state) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return Reply;
    }
    HttpReply Outcome(const std::string& url) { return Until(HttpState::Error, url); }

    std::vector<HttpState> States;
    HttpReply Reply;
};

QByteArray Answer(const QByteArray& status, const QByteArray& body) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

}  // namespace

TEST(HttpRequest, EveryFailureHasItsReason) {
    const QByteArray most(static_cast<qsizetype>(LargestNetworkText), '1');
    const std::pair<QByteArray, std::string> cases[] = {
        {Answer("404 Not Found", "no such station"), "404 Not Found"},
        {Answer("503 ", ""), "503 the server refused"},
        {Answer("200 OK", most), "200 "},
        {Answer("200 OK", most + '1'), "5 the text is larger than 4 MiB"},
        {Answer("200 OK", "half").replace('4', '9'), "2 The server closed the connection before the text was complete"},
        {Answer("302 Found\r\nLocation: ftp://localhost", ""), "301 Unsupported protocol"},
        {Answer("302 Found\r\nLocation: /again", ""), "10 Number of redirects hit maximum amount"}};
    for (const auto& [answer, outcome] : cases) {
        const HttpReply reply = Download().Outcome(Network(answer).Url());
        EXPECT_EQ(std::to_string(reply.Code) + ' ' + reply.Text, outcome);
        EXPECT_EQ(reply.Body.size(), reply.Succeeded ? LargestNetworkText : 0);
    }
    EXPECT_EQ(Download().Outcome("http://127.0.0.1:1/").Text, "Couldn't connect to server");
    EXPECT_EQ(Download(std::chrono::milliseconds(50)).Outcome(Network("").Url()).Text, "Timeout was reached");
}

TEST(HttpRequest, TellsNothingOnceItIsCancelled) {
    const Network silent(""), network(Answer("200 OK", "3,1,6"));
    Download download, next;
    download.Until(HttpState::Connected, silent.Url());
    download.Cancel();
    EXPECT_EQ(next.Outcome(network.Url()).Body, "3,1,6");
    using enum HttpState;
    EXPECT_THAT(next.States, testing::ElementsAre(Resolving, Connecting, Connected, Complete));
    EXPECT_THAT(download.States, testing::ElementsAre(Resolving, Connecting, Connected));
}

}  // namespace veraqua
