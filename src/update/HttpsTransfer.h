#pragma once

#include "platform/Result.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace aerolith {

/// How files are fetched.
struct HttpsSettings
{
    /// Whom to trust; absent: whom the system does, which takes a while to find out.
    std::optional<QSslConfiguration> tls = {};
    /// How long a server may be silent.
    std::chrono::milliseconds longestSilence{30'000};
    /// How long the feed may take as a whole; a download takes as long as the user waits.
    std::chrono::milliseconds longestFeed{60'000};
};

/// Who is given what a transfer fetches.
struct HttpsConsumer
{
    /// The bytes in the order of the file, in pieces. An error ends the transfer with it.
    std::function<Failure(const QByteArray& bytes)> receive;
    /// Once, when all has been received or something went wrong. The transfer may be destroyed in it.
    std::function<void(const Failure& failure)> end;
};

/// One file on its way from an https address, byte by byte as the server has it: neither cookies nor
/// passwords nor compression. It follows redirects, a few, from https to https only. Destroying it cancels it
/// without another call. Main thread.
class HttpsTransfer : public QObject
{
public:
    /// Starts at once; calls come from the event loop. The manager outlives it. `timeLimit` is for the whole
    /// transfer, redirects included.
    HttpsTransfer(QNetworkAccessManager& manager, HttpsSettings settings, const QUrl& url,
                  std::optional<std::chrono::milliseconds> timeLimit, HttpsConsumer consumer);
    ~HttpsTransfer() override;

private:
    struct AbandonReply
    {
        void operator()(QNetworkReply* reply) const;
    };

    void request(const QUrl& url);
    void handleStatus();
    void redirect();
    void handleBytes();
    void handleEnd();
    [[nodiscard]] Failure receive();
    void end(const Failure& failure);
    [[nodiscard]] QString host() const;
    [[nodiscard]] QString explained(QNetworkReply::NetworkError error) const;

    QNetworkAccessManager& m_manager;
    HttpsSettings m_settings;
    HttpsConsumer m_consumer;
    std::unique_ptr<QNetworkReply, AbandonReply> m_reply;
    int m_redirects = 0;
    qint64 m_received = 0;
    QTimer m_silence;
    QTimer m_timeLimit;
};

} // namespace aerolith
