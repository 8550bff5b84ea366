#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSslConfiguration>
#include <QSslServer>
#include <QUrl>

namespace aerolith {

/// A web server on this machine that gives the answers the test has written, byte by byte, with a certificate
/// of its own. It runs in the test's event loop.
class HttpsServer
{
public:
    enum class Behind
    {
        close,
        /// The connection stays open, and nothing more comes.
        silence,
        /// A byte comes now and then, and never the last.
        trickle
    };

    HttpsServer();

    [[nodiscard]] QUrl url(const QString& path) const;

    /// A client's settings that trust this server.
    [[nodiscard]] static QSslConfiguration trusting();

    /// What is sent for `path`, and what happens when it is out. Nothing else is found.
    void answer(const QString& path, const QByteArray& bytes, Behind behind = Behind::close);

    /// A whole answer, as a server gives it that means well.
    void serve(const QString& path, const QByteArray& body);

    /// The heads of the requests so far.
    QList<QByteArray> requests;

private:
    struct Answer
    {
        QByteArray bytes;
        Behind behind;
    };

    void handle(QTcpSocket& socket);

    QSslServer m_server;
    QHash<QByteArray, Answer> m_answers;
};

} // namespace aerolith
