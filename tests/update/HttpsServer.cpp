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
struct Certificates
{
    Certificates()
    {
        make(u"ca"_s, {u"-subj"_s, u"/CN=Test authority"_s});
        make(u"server"_s, {u"-subj"_s, u"/CN=localhost"_s, u"-CA"_s, u"ca.pem"_s, u"-CAkey"_s, u"ca.key"_s,
                           u"-addext"_s, u"subjectAltName=DNS:localhost"_s});
        authority = QSslCertificate(read(u"ca.pem"_s));
        server = QSslCertificate(read(u"server.pem"_s));
        serverKey = QSslKey(read(u"server.key"_s), QSsl::Ec);
        EXPECT_FALSE(authority.isNull() || server.isNull() || serverKey.isNull());
    }

    void make(const QString& name, const QStringList& more)
    {
        QProcess openssl;
        openssl.setWorkingDirectory(folder.path());
        openssl.start(u"openssl"_s,
                      QStringList{u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                                  u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"2"_s,
                                  u"-keyout"_s, name + ".key"_L1, u"-out"_s, name + ".pem"_L1} +
                          more);
        EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0)
            << openssl.readAllStandardError().toStdString();
    }

    [[nodiscard]] QByteArray read(const QString& name) const { return bytesIn(folder.filePath(name)); }

    QTemporaryDir folder;
    QSslCertificate authority;
    QSslCertificate server;
    QSslKey serverKey;
};

const Certificates& certificates()
{
    static const Certificates made;
    return made;
}

void trickle(QTcpSocket& socket)
{
    auto* timer = new QTimer(&socket);
    timer->callOnTimeout(&socket, [&socket] { socket.write(" "); });
    timer->start(std::chrono::milliseconds(20));
}

void sendLate(QTcpSocket& socket, const QByteArray& bytes)
{
    const auto head = bytes.indexOf("\r\n\r\n") + 4;
    QTimer::singleShot(1'000, &socket, [&socket, bytes, head] { socket.write(bytes.left(head)); });
    QTimer::singleShot(2'000, &socket, [&socket, bytes, head] {
        socket.write(bytes.mid(head));
        socket.disconnectFromHost();
    });
}

} // namespace

HttpsServer::HttpsServer()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificates().server);
    configuration.setPrivateKey(certificates().serverKey);
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
    configuration.setCaCertificates({certificates().authority});
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
    if (behind == Behind::late) {
        sendLate(socket, bytes);
        return;
    }
    socket.write(bytes);
    if (behind == Behind::close) {
        socket.disconnectFromHost();
    } else if (behind == Behind::trickle) {
        trickle(socket);
    }
}

} // namespace aerolith
