#include "desktop/http_request.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "weather/network_text.h"

namespace veraqua {

namespace {

/// A weather network on this machine that gives one answer to every request, and nothing at all where it is empty.
class Network : public QTcpServer {
  public:
    explicit Network(QByteArray answer) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, [this, answer] {
            QTcpSocket* client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, [this, client, answer] {
                ++Requests;
                client->readAll();
                if (answer.isEmpty()) return;
                client->write(answer);
                client->disconnectFromHost();
            });
        });
    }

    std::string Url() const { return "http://127.0.0.1:" + std::to_string(serverPort()) + "/kesta/data/0603rd.txt"; }

    int Requests = 0;
};

/// A request with the states that it has told of.
struct Download {
    explicit Download(std::chrono::milliseconds longestSilence = HttpRequest::UsualSilence) : Request(longestSilence) {}

    void Start(const std::string& url) {
        Request.Start(url, [this](const HttpProgress& progress) { States.push_back(progress.State), Last = progress; });
    }
    /// Lets the event loop go on until `done`, for a minute at most.
    template <class Done>
    static void Until(Done done) {
        for (QDeadlineTimer patience(60'000); !done() && !patience.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        ASSERT_TRUE(done());
    }
    const HttpReply& Outcome(const std::string& url) {
        Start(url);
        Until([this] { return Last.State >= HttpProgress::Error; });
        EXPECT_EQ(Last.Reply.Succeeded, Last.State == HttpProgress::Complete);
        return Last.Reply;
    }

    HttpRequest Request;
    std::vector<int> States;
    HttpProgress Last;
};

QByteArray Answer(const QByteArray& status, const QByteArray& body, const QByteArray& header = {}) {
    return "HTTP/1.1 " + status + "\r\n" + header + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body;
}

}  // namespace

TEST(HttpRequest, BringsTheTextWithItsStatesFromTheEventLoopOnly) {
    const Network network(Answer("200 OK", "3,1,6,2.5\r\n3,2,6,4"));
    Download download;
    download.Start(network.Url());
    EXPECT_TRUE(download.States.empty());
    EXPECT_EQ(download.Outcome(network.Url()).Body, "3,1,6,2.5\r\n3,2,6,4");
    EXPECT_EQ(network.Requests, 1) << "the first was cancelled before it was sent";
    EXPECT_THAT(download.States, testing::ElementsAre(HttpProgress::Resolving, HttpProgress::Connecting,
                                                      HttpProgress::Connected, HttpProgress::Complete));
}

TEST(HttpRequest, EveryFailureHasItsReason) {
    struct Case {
        QByteArray Answer;
        int Code;
        std::string Reason;
    };
    const QByteArray most(static_cast<qsizetype>(LargestNetworkText), '1');
    for (const Case& answered :
         {Case{Answer("404 Not Found", "no such station"), 404, "Not Found"},
          {Answer("503 ", ""), 503, "the server refused"},
          {Answer("200 OK", most), 200, ""},
          {Answer("200 OK", most + '1'), QNetworkReply::OperationCanceledError, "the text is larger than 4 MiB"},
          {Answer("200 OK", "half").replace("4", "9"), QNetworkReply::RemoteHostClosedError,
           "before the text was complete"},
          {Answer("302 Found", "", "Location: ftp://127.0.0.1/\r\n"), QNetworkReply::ProtocolUnknownError, "protocol"},
          {Answer("302 Found", "", "Location: /again\r\n"), QNetworkReply::TooManyRedirectsError, "maximum amount"}}) {
        const HttpReply reply = Download().Outcome(Network(answered.Answer).Url());
        EXPECT_EQ(reply.Code, answered.Code) << answered.Reason;
        EXPECT_THAT(reply.Text, testing::HasSubstr(answered.Reason));
        EXPECT_EQ(reply.Body.size(), reply.Succeeded ? LargestNetworkText : 0);
    }
    EXPECT_EQ(Download().Outcome("http://127.0.0.1:1/").Text, "Couldn't connect to server");
    EXPECT_EQ(Download().Outcome("file:///etc/hostname").Text, "Unsupported protocol");
    EXPECT_EQ(Download().Outcome(" ").Text, "URL using bad/illegal format or missing URL");
    EXPECT_EQ(Download(std::chrono::milliseconds(50)).Outcome(Network("").Url()).Text, "Timeout was reached");
}

TEST(HttpRequest, ACancelledRequestIsNotHeardOfAgain) {
    const Network silent("");
    const Network network(Answer("200 OK", "1"));
    Download download;
    download.Start(silent.Url());
    Download::Until([&] { return silent.Requests == 1; });
    download.Request.Cancel();
    const std::vector<int> states = download.States;
    EXPECT_EQ(Download().Outcome(network.Url()).Body, "1");  // meanwhile everything that is under way arrives
    EXPECT_EQ(download.States, states);
    EXPECT_EQ(download.Outcome(network.Url()).Body, "1");
}

}  // namespace veraqua
