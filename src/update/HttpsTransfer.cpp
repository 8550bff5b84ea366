#include "update/HttpsTransfer.h"

#include "update/HttpsAddress.h"
#include "update/UpdateTexts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 5;
/// Bytes that wait to be received; the server is slowed down beyond.
constexpr qint64 readBuffer = 262'144;
constexpr int statusOk = 200;

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isRedirect(const QNetworkReply& reply)
{
    constexpr std::array redirects{301, 302, 303, 307, 308};
    return std::find(redirects.begin(), redirects.end(), statusOf(reply)) != redirects.end();
}

QNetworkRequest requestFor(const QUrl& url, const std::optional<QSslConfiguration>& tls)
{
    QNetworkRequest request(url);
    if (tls) {
        request.setSslConfiguration(*tls);
    }
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // A single file gains nothing from it.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // Set by hand, it also keeps the reply from being unpacked: lengths and signatures are the file's own.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Aerolith"_s);
    return request;
}

QString inSeconds(std::chrono::milliseconds time)
{
    return QString::number(std::chrono::duration<double>(time).count());
}

} // namespace

void HttpsTransfer::AbandonReply::operator()(QNetworkReply* reply) const
{
    reply->disconnect();
    // Its end aborts it. Not at once: it may be its signal that is being handled.
    reply->deleteLater();
}

HttpsTransfer::HttpsTransfer(QNetworkAccessManager& manager, HttpsSettings settings, const QUrl& url,
                             std::optional<std::chrono::milliseconds> timeLimit, HttpsConsumer consumer)
    : m_manager(manager), m_settings(std::move(settings)), m_consumer(std::move(consumer))
{
    m_silence.setSingleShot(true);
    m_silence.callOnTimeout(this, [this] {
        end(Error{UpdateTexts::tr("%1 has been silent for %2 seconds")
                      .arg(host(), inSeconds(m_settings.longestSilence))});
    });
    m_timeLimit.setSingleShot(true);
    m_timeLimit.callOnTimeout(this, [this] {
        end(Error{UpdateTexts::tr("%1 was not done after %2 seconds")
                      .arg(host(), inSeconds(m_timeLimit.intervalAsDuration()))});
    });
    if (timeLimit) {
        m_timeLimit.start(*timeLimit);
    }
    request(url);
}

HttpsTransfer::~HttpsTransfer() = default;

void HttpsTransfer::request(const QUrl& url)
{
    m_silence.start(m_settings.longestSilence);
    m_reply.reset(m_manager.get(requestFor(url, m_settings.tls)));
    m_reply->setReadBufferSize(readBuffer);
    connect(m_reply.get(), &QNetworkReply::metaDataChanged, this, &HttpsTransfer::handleStatus);
    connect(m_reply.get(), &QNetworkReply::readyRead, this, &HttpsTransfer::handleBytes);
    connect(m_reply.get(), &QNetworkReply::finished, this, &HttpsTransfer::handleEnd);
}

void HttpsTransfer::handleStatus()
{
    m_silence.start();
    if (isRedirect(*m_reply)) {
        redirect();
    } else if (const int status = statusOf(*m_reply); status != statusOk) {
        end(Error{UpdateTexts::tr("%1 answered with the HTTP status %2").arg(host()).arg(status)});
    }
}

void HttpsTransfer::redirect()
{
    const QByteArray location = m_reply->rawHeader("Location");
    const auto target = redirectTarget(m_reply->url(), location);
    if (!target) {
        constexpr qsizetype longest = 200;
        end(Error{UpdateTexts::tr("%1 redirects to an address that is not https: %2")
                      .arg(host(), QString::fromUtf8(location).left(longest))});
    } else if (++m_redirects > mostRedirects) {
        end(Error{UpdateTexts::tr("%1 redirects more than %n times", nullptr, mostRedirects).arg(host())});
    } else {
        request(*target);
    }
}

void HttpsTransfer::handleBytes()
{
    m_silence.start();
    if (const Failure failure = receive()) {
        end(failure);
    }
}

void HttpsTransfer::handleEnd()
{
    Failure failure = receive();
    if (const auto error = m_reply->error(); !failure && error != QNetworkReply::NoError) {
        failure = Error{explained(error)};
    }
    end(failure);
}

Failure HttpsTransfer::receive()
{
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    return bytes.isEmpty() ? Failure() : m_consumer.receive(bytes);
}

QString HttpsTransfer::explained(QNetworkReply::NetworkError error) const
{
    if (error == QNetworkReply::SslHandshakeFailedError) {
        return UpdateTexts::tr("There is no secure connection to %1: %2").arg(host(), m_reply->errorString());
    }
    if (m_received > 0) {
        return UpdateTexts::tr("The connection to %1 ended after %2 bytes: %3")
            .arg(host(), QString::number(m_received), m_reply->errorString());
    }
    return UpdateTexts::tr("%1 cannot be reached: %2").arg(host(), m_reply->errorString());
}

void HttpsTransfer::end(const Failure& failure)
{
    m_reply.reset();
    m_silence.stop();
    m_timeLimit.stop();
    // It may destroy this object.
    const auto report = std::exchange(m_consumer.end, {});
    report(failure);
}

QString HttpsTransfer::host() const
{
    return m_reply->url().host();
}

} // namespace aerolith
