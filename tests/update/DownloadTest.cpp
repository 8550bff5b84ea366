#include "support/Files.h"
#include "support/Printing.h"
#include "update/UpdateWorld.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;
using Behind = HttpsServer::Behind;

namespace {

/// Larger than what one read of a connection gives.
const QByteArray program = QByteArray("new program").repeated(100'000);

class DownloadTest : public testing::Test, public UpdateWorld
{
protected:
    static void SetUpTestSuite() { startMainLoop(); }

    DownloadTest() { announce("1.1", program); }

    /// Checks and downloads what is found.
    void download()
    {
        check();
        updater->download();
        settle();
    }

    /// Why the download fails when the server gives this answer.
    QString refusal(const QByteArray& answer, Behind behind = Behind::close)
    {
        server.answer(filePath, answer, behind);
        download();
        EXPECT_EQ(files(), QStringList()) << "nothing is left behind";
        return failureOf(UpdateFailed::Step::download);
    }

    static QByteArray answerWith(const QByteArray& body, qsizetype length)
    {
        return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(length) + "\r\n\r\n" + body;
    }

    QStringList files() const
    {
        return QDir(downloads).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    const QString filePath = u"/1.1.bin"_s;
    const QString downloads = folder.filePath(u"Downloads"_s);
};

} // namespace

TEST_F(DownloadTest, KeepsWhatIsWholeAndSigned)
{
    server.serve(filePath, program);
    check();
    QList<qint64> received;
    QObject::connect(&*updater, &AppcastUpdater::stateChanged, &*updater, [&] {
        if (const auto* state = std::get_if<UpdateDownloading>(&updater->state())) {
            received.append(state->received);
        }
    });
    updater->download();
    settle();
    EXPECT_EQ(received.first(), 0);
    EXPECT_GT(received.size(), 3);
    EXPECT_TRUE(std::is_sorted(received.begin(), received.end()));
    EXPECT_EQ(received.last(), program.size());

    ASSERT_TRUE(isIn<UpdateDownloaded>());
    const QString kept = QDir(downloads).filePath(u"1.1.bin"_s);
    EXPECT_EQ(std::get<UpdateDownloaded>(updater->state()).path, kept);
    EXPECT_EQ(files(), QStringList{u"1.1.bin"_s});
    EXPECT_EQ(bytesIn(kept), program);
    EXPECT_TRUE(QFile::permissions(kept).testFlag(QFile::ReadOther));
    EXPECT_EQ(workspace.folders, QStringList{downloads});

    workspace.refusal = Error{u"no file manager"_s};
    download();
    EXPECT_TRUE(isIn<UpdateDownloaded>());
    EXPECT_EQ(files(), QStringList({u"1.1 (1).bin"_s, u"1.1.bin"_s})) << "no file is ever replaced";
    EXPECT_EQ(log.take(), QStringList{u"no file manager"_s});
}

TEST_F(DownloadTest, KeepsNothingElse)
{
    const qsizetype size = program.size();
    QByteArray forged = program;
    forged[size / 2] = '?';
    const auto wrongSignature =
        u"The file's signature is wrong: it does not come from the makers of Aerolith"_s;
    const auto tooLong = u"The file is longer than the %1 bytes that it should have"_s.arg(size);
    EXPECT_EQ(refusal(answerWith(forged, size)), wrongSignature);
    EXPECT_EQ(refusal(answerWith(program + "!", size + 1)), tooLong);
    EXPECT_EQ(refusal("HTTP/1.1 200 OK\r\n\r\n" + program + "!", Behind::trickle), tooLong);
    EXPECT_EQ(refusal(answerWith(program.chopped(1), size - 1)),
              u"The file has %1 bytes in place of the %2 that it should have"_s.arg(size - 1).arg(size));
    const QString cut = refusal(answerWith(program.first(500'000), size));
    EXPECT_TRUE(cut.startsWith(u"The connection to localhost ended after "_s) && cut.contains(u" bytes: "_s))
        << cut.toStdString();
    EXPECT_EQ(refusal("HTTP/1.1 403 No\r\n\r\n"), u"localhost answered with the HTTP status 403"_s);

    const QByteArray good = answerWith(program, size);
    announce("1.1", program);
    keys = Keys();
    makeUpdater();
    EXPECT_EQ(refusal(good), wrongSignature) << "somebody else's";
    // Longer than a slow machine needs for the feed that comes before the file.
    https.longestSilence = std::chrono::milliseconds(1'500);
    makeUpdater();
    EXPECT_EQ(refusal(good.chopped(1), Behind::silence), u"localhost has been silent for 1.5 seconds"_s);
    EXPECT_TRUE(workspace.folders.isEmpty());
}

TEST_F(DownloadTest, LeavesNothingBehindWhenItIsCancelled)
{
    server.answer(filePath, answerWith(program.first(500'000), program.size()), Behind::silence);
    check();
    updater->download();
    EXPECT_TRUE(handleEventsUntil([this] {
        const auto* state = std::get_if<UpdateDownloading>(&updater->state());
        return state != nullptr && state->received == 500'000;
    }));
    updater->dismiss();
    EXPECT_TRUE(isIn<UpdateIdle>());
    EXPECT_EQ(files(), QStringList());
    updater->download();
    EXPECT_TRUE(isIn<UpdateIdle>()) << "nothing is available now";
    server.serve(filePath, program);
    download();
    EXPECT_TRUE(isIn<UpdateDownloaded>());
}

TEST_F(DownloadTest, SaysWhereNothingCanBeSaved)
{
    server.serve(filePath, program);
    putFile(downloads, "a file in its place");
    download();
    EXPECT_EQ(failureOf(UpdateFailed::Step::download), u"The folder %1 cannot be made"_s.arg(downloads));
}

TEST(DownloadName, IsAPlainName)
{
    const QList<std::pair<QString, QString>> cases{
        {u"a/aerolith_1.2-1_amd64.deb?x=/y#z"_s, u"aerolith_1.2-1_amd64.deb"_s},
        {u"My%20File%20(2).tar.gz"_s, u"My File (2).tar.gz"_s},
        {u"..%2F..%2F.bashrc"_s, u"bashrc"_s},
        {u".."_s, u"download"_s},
        {u""_s, u"download"_s},
        {u"--rf%0A%00%1B[2J$(x)%E2%80%AEgpj.deb"_s, u"rf2J(x)gpj.deb"_s},
        {u"%E6%BC%A2%E5%AD%97.deb"_s, u"漢字.deb"_s},
        {u"long"_s.repeated(100) + u".deb"_s, u"long"_s.repeated(19) + u".deb"_s},
    };
    for (const auto& [path, name] : cases) {
        EXPECT_EQ(downloadName(QUrl(u"https://example.org/"_s + path)), name) << path.toStdString();
    }
}

TEST(DownloadFile, FindsAFreeName)
{
    const QTemporaryDir folder;
    for (const auto& name : {u"a-1.2%1.deb"_s, u"a-1.2%1.tar.gz"_s, u"download%1"_s}) {
        for (const auto& number : {u""_s, u" (1)"_s, u" (2)"_s}) {
            DownloadFile file(folder.path());
            EXPECT_FALSE(file.open());
            EXPECT_FALSE(file.write("bytes"));
            EXPECT_EQ(file.keep(name.arg(QString())).value(), folder.filePath(name.arg(number)));
        }
    }
}

} // namespace aerolith
