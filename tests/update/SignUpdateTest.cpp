// The script that signs new versions, against the program that checks them.

#include "support/Files.h"
#include "support/Printing.h"
#include "update/Appcast.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(const QString& command, const QStringList& arguments)
{
    QProcess process;
    process.start(command, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
        << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

bool isSigned(const PublicKey& key, const QByteArray& file, const Signature& signature)
{
    return key.hasSigned({reinterpret_cast<const unsigned char*>(file.constData()), std::size_t(file.size())},
                         signature);
}

} // namespace

TEST(SignUpdate, AnnouncesWhatTheProgramAccepts)
{
    const QTemporaryDir folder;
    const QString keyPath = folder.filePath(u"key.pem"_s);
    const QString script = QStringLiteral(AEROLITH_SIGN_UPDATE);
    outputOf(u"openssl"_s, {u"genpkey"_s, u"-algorithm"_s, u"ed25519"_s, u"-out"_s, keyPath});
    const QByteArray program = QByteArray("program\0", 8).repeated(1000);
    const QString programPath = folder.filePath(u"a program.deb"_s);
    putFile(programPath, program);

    const QString url = u"https://example.org/?a=1&b=2"_s;
    const QByteArray enclosure = outputOf(script, {keyPath, u"1.2-rc.1"_s, url, programPath});
    const auto items = parseAppcast("<rss version='2.0' xmlns:aerolith='https://aerolith.example/appcast'>"
                                    "<channel><item>" +
                                    enclosure + "</item></channel></rss>");
    ASSERT_TRUE(items.ok()) << items.error().description.toStdString();
    ASSERT_EQ(items.value().size(), 1);
    const AppcastItem& item = items.value().first();
    EXPECT_EQ(item.versionText, u"1.2-rc.1"_s);
    EXPECT_EQ(item.url, QUrl(url));
    EXPECT_EQ(item.length, program.size());

    const auto key = PublicKey::parse(QString::fromLatin1(outputOf(script, {keyPath})));
    ASSERT_TRUE(key.has_value());
    EXPECT_TRUE(isSigned(*key, program, item.signature));
    EXPECT_FALSE(isSigned(*key, program.chopped(1), item.signature));
    EXPECT_FALSE(isSigned(PublicKey{QByteArray(32, '\0')}, program, item.signature));
}

} // namespace aerolith
