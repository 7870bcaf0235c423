#include "desktop/http_request.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QSslError>
#include <QSslSocket>
#include <QTimer>
#include <utility>

#include "desktop/text.h"
#include "weather/network_text.h"

namespace veraqua {

namespace {

using Failure = QNetworkReply::NetworkError;

constexpr int MostRedirects = 10;
constexpr int HttpOk = 200;

HttpReply Refused(Failure failure, std::string reason) { return {false, failure, std::move(reason), {}}; }

/// An address without a scheme is one of http.
QUrl UrlOf(const std::string& text) {
    const QString url = ToQt(text).trimmed();
    return QUrl(url.contains("://") ? url : "http://" + url);
}

/// Why `url` can't be asked for at all; nothing if it can.
std::optional<HttpReply> RefusalOf(const QUrl& url) {
    if (url.isValid() && url.scheme() != "http" && url.scheme() != "https")
        return Refused(Failure::ProtocolUnknownError, "Unsupported protocol");
    if (!url.isValid() || url.host().isEmpty())
        return Refused(Failure::ProtocolInvalidOperationError, "URL using bad/illegal format or missing URL");
    if (url.scheme() == "https" && !QSslSocket::supportsSsl())
        return Refused(Failure::ProtocolUnknownError, "https can't be used: this system has no TLS library");
    return std::nullopt;
}

QNetworkRequest RequestFor(const QUrl& url, std::chrono::milliseconds longestSilence) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(MostRedirects);
    // Begins anew with every piece that arrives; what doesn't connect, or falls silent, is aborted by it.
    request.setTransferTimeout(static_cast<int>(longestSilence.count()));
    request.setHeader(QNetworkRequest::UserAgentHeader, "Veraqua");
    return request;
}

/// Reasons in the words of the command line; empty for failures that it has no words for.
std::string_view KnownReason(Failure failure) {
    switch (failure) {
        case Failure::HostNotFoundError: return "Couldn't resolve host name";
        case Failure::ConnectionRefusedError: return "Couldn't connect to server";
        // Only the time limit aborts: a request that the user cancels isn't listened to any more.
        case Failure::OperationCanceledError:
        case Failure::TimeoutError: return "Timeout was reached";
        case Failure::TooManyRedirectsError: return "Number of redirects hit maximum amount";
        case Failure::ProtocolUnknownError: return "Unsupported protocol";
        case Failure::InsecureRedirectError: return "The server redirects from https to http";
        case Failure::RemoteHostClosedError: return "The server closed the connection before the text was complete";
        case Failure::ProxyNotFoundError: return "Couldn't resolve proxy name";
        case Failure::ProxyConnectionRefusedError: return "Couldn't connect to the proxy";
        case Failure::ProxyAuthenticationRequiredError: return "The proxy asks for a name and a password";
        default: return {};
    }
}

/// What a reply whose transfer is over without a failure of its own says: the server's status decides.
HttpReply AnswerOf(const QNetworkReply& reply, std::string body) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == HttpOk) return {true, status, {}, std::move(body)};
    const std::string reason = FromQt(reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
    return {false, status, reason.empty() ? "the server refused" : reason, {}};
}

/// Likewise of one that is over in any way.
HttpReply OutcomeOf(const QNetworkReply& reply, const QString& tlsFault, std::string body) {
    const Failure failure = reply.error();
    if (!tlsFault.isEmpty()) return Refused(failure, "The server can't be trusted: " + FromQt(tlsFault));
    if (const std::string_view known = KnownReason(failure); !known.empty())
        return Refused(failure, std::string(known));
    // The library calls statuses other than 2xx errors, too.
    constexpr int firstOfServer = Failure::ContentAccessDenied;
    if (failure == Failure::NoError || failure >= firstOfServer) return AnswerOf(reply, std::move(body));
    return Refused(failure, FromQt(reply.errorString()));
}

}  // namespace

struct HttpRequest::Exchange {
    std::function<void(const HttpProgress&)> Progress;
    QNetworkReply* Reply = nullptr;  ///< null until it is sent
    std::string Body;
    QString TlsFault;  ///< what is wrong with the server's certificate
};

HttpRequest::HttpRequest(std::chrono::milliseconds longestSilence) : longestSilence_(longestSilence) {}

HttpRequest::~HttpRequest() { Cancel(); }

void HttpRequest::Start(const std::string& url, std::function<void(const HttpProgress&)> progress) {
    Cancel();
    if (!manager_) {
        QNetworkProxyFactory::setUseSystemConfiguration(true);
        manager_ = std::make_unique<QNetworkAccessManager>();
    }
    exchange_ = std::make_shared<Exchange>();
    exchange_->Progress = std::move(progress);
    QTimer::singleShot(0, manager_.get(), [this, url, begun = std::weak_ptr(exchange_)] {
        if (exchange_ && exchange_ == begun.lock()) Send(url);
    });
}

void HttpRequest::Cancel() {
    const std::shared_ptr<Exchange> ended = std::exchange(exchange_, nullptr);
    if (!ended || ended->Reply == nullptr) return;
    ended->Reply->abort();
    ended->Reply->deleteLater();
}

void HttpRequest::Send(const std::string& url) {
    const std::shared_ptr<Exchange> sent = exchange_;
    Report({HttpState::Resolving, {}});
    if (exchange_ != sent) return;
    const QUrl asked = UrlOf(url);
    if (std::optional<HttpReply> refusal = RefusalOf(asked)) return End(std::move(*refusal));
    exchange_->Reply = manager_->get(RequestFor(asked, longestSilence_));
    Follow();
}

void HttpRequest::Follow() {
    QNetworkReply* reply = exchange_->Reply;
    // A reply that was left goes on sending until it is deleted.
    const auto when = [this, reply](auto signal, auto act) {
        QObject::connect(reply, signal, manager_.get(), [this, reply, act] {
            if (exchange_ && exchange_->Reply == reply) act();
        });
    };
    when(&QNetworkReply::socketStartedConnecting, [this] { Report({HttpState::Connecting, {}}); });
    when(&QNetworkReply::requestSent, [this] { Report({HttpState::Connected, {}}); });
    when(&QNetworkReply::readyRead, [this] { TakeBody(); });
    when(&QNetworkReply::finished, [this] { Finish(); });
    QObject::connect(reply, &QNetworkReply::sslErrors, manager_.get(), [this, reply](const QList<QSslError>& errors) {
        if (exchange_ && exchange_->Reply == reply) exchange_->TlsFault = errors.value(0).errorString();
    });
}

void HttpRequest::TakeBody() {
    // A reply that failed is closed.
    if (exchange_->Reply->isReadable()) exchange_->Body += exchange_->Reply->readAll().toStdString();
    if (exchange_->Body.size() > LargestNetworkText)
        End(Refused(Failure::OperationCanceledError, "the text is larger than 4 MiB"));
}

void HttpRequest::Finish() {
    TakeBody();
    if (exchange_) End(OutcomeOf(*exchange_->Reply, exchange_->TlsFault, std::move(exchange_->Body)));
}

void HttpRequest::End(HttpReply reply) {
    const std::shared_ptr<Exchange> ended = exchange_;
    Cancel();
    ended->Progress({reply.Succeeded ? HttpState::Complete : HttpState::Error, std::move(reply)});
}

void HttpRequest::Report(const HttpProgress& state) const {
    // Held for the call: it may cancel.
    const std::shared_ptr<Exchange> inWork = exchange_;
    inWork->Progress(state);
}

}  // namespace veraqua
