#include "update/HttpsServer.h"

#include "support/Files.h"

#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Made anew for each run, and gone with it.
struct Certificate
{
    Certificate()
    {
        const QTemporaryDir folder;
        QProcess openssl;
        openssl.setWorkingDirectory(folder.path());
        openssl.start(u"openssl"_s,
                      {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                       u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"2"_s, u"-subj"_s,
                       u"/CN=localhost"_s, u"-addext"_s, u"subjectAltName=DNS:localhost"_s, u"-keyout"_s,
                       u"key"_s, u"-out"_s, u"certificate"_s});
        EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0)
            << openssl.readAllStandardError().toStdString();
        open = QSslCertificate(bytesIn(folder.filePath(u"certificate"_s)));
        key = QSslKey(bytesIn(folder.filePath(u"key"_s)), QSsl::Ec);
        EXPECT_FALSE(open.isNull() || key.isNull());
    }

    QSslCertificate open;
    QSslKey key;
};

const Certificate& certificate()
{
    static const Certificate made;
    return made;
}

void trickle(QTcpSocket& socket)
{
    auto* timer = new QTimer(&socket);
    timer->callOnTimeout(&socket, [&socket] { socket.write(" "); });
    timer->start(std::chrono::milliseconds(20));
}

} // namespace

HttpsServer::HttpsServer()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificate().open);
    configuration.setPrivateKey(certificate().key);
    m_server.setSslConfiguration(configuration);
    QObject::connect(&m_server, &QTcpServer::pendingConnectionAvailable, &m_server, [this] {
        QTcpSocket* socket = m_server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { handle(*socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        handle(*socket);
    });
    EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
}

QUrl HttpsServer::url(const QString& path) const
{
    return QUrl(u"https://localhost:%1%2"_s.arg(m_server.serverPort()).arg(path));
}

QSslConfiguration HttpsServer::trusting()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates({certificate().open});
    return configuration;
}

void HttpsServer::answer(const QString& path, const QByteArray& bytes, Behind behind)
{
    m_answers.insert(path.toUtf8(), {bytes, behind});
}

void HttpsServer::serve(const QString& path, const QByteArray& body)
{
    answer(path, "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

void HttpsServer::handle(QTcpSocket& socket)
{
    const QByteArray received = socket.peek(10'000);
    if (!received.contains("\r\n\r\n")) {
        return;
    }
    requests.append(socket.readAll());
    const QByteArray path = received.split(' ').value(1);
    const auto [bytes, behind] =
        m_answers.value(path, {"HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n", Behind::close});
    socket.write(bytes);
    if (behind == Behind::close) {
        socket.disconnectFromHost();
    } else if (behind == Behind::trickle) {
        trickle(socket);
    }
}

} // namespace aerolith
