#pragma once

#include "support/FakeDesktop.h"
#include "support/MainLoop.h"
#include "support/ManualMainQueue.h"
#include "support/MemoryDefaults.h"
#include "support/RecordingLog.h"
#include "update/AppcastUpdater.h"
#include "update/HttpsServer.h"
#include "update/Keys.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace aerolith {

/// An updater of a program of version 1.0, and the world around it: a server, a key, a folder for downloads,
/// a clock.
class UpdateWorld
{
public:
    UpdateWorld() { makeUpdater(); }

    [[nodiscard]] UpdateOptions options() const
    {
        return {.source = feed ? std::optional(UpdateSource{*feed, keys.open}) : std::nullopt,
                .runningVersion = runningVersion,
                .folder = folder.filePath(QStringLiteral("Downloads")),
                .https = https};
    }

    [[nodiscard]] UpdateSurroundings surroundings()
    {
        return {
            .userDefaults = defaults, .mainQueue = main, .clock = main, .log = log, .workspace = workspace};
    }

    /// Anew, as after a restart.
    void makeUpdater()
    {
        updater.reset();
        updater.emplace(options(), surroundings());
    }

    /// A feed that announces this file as this version, at the path /VERSION.bin.
    void announce(const QByteArray& version, const QByteArray& file, const QByteArray& notes = "Better.")
    {
        const QByteArray url =
            server.url(QStringLiteral("/%1.bin").arg(QString::fromUtf8(version))).toEncoded();
        server.serve(feedPath, "<rss version='2.0' xmlns:a='https://aerolith.example/appcast'><channel><item>"
                               "<description>" +
                                   notes + "</description><enclosure url='" + url + "' length='" +
                                   QByteArray::number(file.size()) + "' a:version='" + version +
                                   "' a:edSignature='" + keys.sign(file).bytes.toBase64() +
                                   "'/></item></channel></rss>");
    }

    template <typename State>
    [[nodiscard]] bool isIn() const
    {
        return std::holds_alternative<State>(updater->state());
    }

    /// Lets what the user has started come to its end.
    void settle() const
    {
        EXPECT_TRUE(
            handleEventsUntil([this] { return !isIn<UpdateChecking>() && !isIn<UpdateDownloading>(); }));
    }

    void check()
    {
        updater->checkForUpdates();
        settle();
    }

    /// Why this step has failed.
    [[nodiscard]] QString failureOf(UpdateFailed::Step step) const
    {
        const auto* failed = std::get_if<UpdateFailed>(&updater->state());
        return failed != nullptr && failed->step == step ? failed->error.description : QString();
    }

    const QString feedPath = QStringLiteral("/feed.xml");
    HttpsServer server;
    /// Absent: the program was built without one.
    std::optional<QUrl> feed = server.url(feedPath);
    QString runningVersion = QStringLiteral("1.0");
    HttpsSettings https{.tls = HttpsServer::trusting()};
    Keys keys;
    QTemporaryDir folder;
    ManualMainQueue main;
    MemoryDefaults defaults;
    RecordingLog log;
    FakeWorkspace workspace;
    std::optional<AppcastUpdater> updater;
};

} // namespace aerolith
