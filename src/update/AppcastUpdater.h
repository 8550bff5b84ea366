#pragma once

#include "platform/Log.h"
#include "platform/Updater.h"
#include "platform/Workspace.h"
#include "update/AutomaticChecks.h"
#include "update/HttpsTransfer.h"
#include "update/UpdateDownload.h"
#include "update/UpdateSource.h"
#include "update/UpdateState.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <memory>
#include <optional>

namespace aerolith {

/// What update checking asks of the program around it. All of it outlives the updater.
struct UpdateSurroundings
{
    UserDefaults& userDefaults;
    MainQueue& mainQueue;
    const Clock& clock;
    Log& log;
    Workspace& workspace;
};

/// What is checked, and where downloads go.
struct UpdateOptions
{
    /// Absent: nothing can be checked.
    std::optional<UpdateSource> source;
    QString runningVersion;
    /// The folder for downloads.
    QString folder;
    HttpsSettings https = {};

    /// The program's own: the source that it was built with, its version, the user's folder for downloads.
    [[nodiscard]] static UpdateOptions standard(Log& log);
};

/// Reads the appcast when it is asked to, and downloads the file that the user decides on. Publishes what the
/// user is to see; an automatic check is seen only if it finds something. Main thread.
class AppcastUpdater : public QObject, public Updater
{
    Q_OBJECT

public:
    AppcastUpdater(UpdateOptions options, const UpdateSurroundings& surroundings);
    ~AppcastUpdater() override;

    void start() override;
    [[nodiscard]] std::unique_ptr<Observation>
    observeCanCheckForUpdates(std::function<void(bool)> observer) override;
    void checkForUpdates() override;

    [[nodiscard]] const UpdateState& state() const { return m_state; }

    [[nodiscard]] const QString& runningVersion() const { return m_options.runningVersion; }

    /// Downloads what is available; nothing in any other state. The folder is opened when the file is there.
    void download();

    /// The user has seen enough: ends what is under way, back to idle.
    void dismiss();

    [[nodiscard]] bool checksAutomatically() const { return m_automaticChecks.areWanted(); }

    void setChecksAutomatically(bool wanted);

Q_SIGNALS:
    void stateChanged();
    void canCheckForUpdatesChanged(bool can);

private:
    enum class Asker
    {
        user,
        schedule
    };

    [[nodiscard]] bool canCheckForUpdates() const;
    void setState(const UpdateState& state);
    void check(Asker asker);
    [[nodiscard]] Failure receiveFeed(const QByteArray& bytes);
    void showOutcome(Asker asker, const Failure& transferred);
    void showDownloaded(const AppcastItem& item, const Result<QString>& path);

    UpdateOptions m_options;
    UpdateSurroundings m_surroundings;
    /// Absent when the program's own is none.
    std::optional<Version> m_running;
    AutomaticChecks m_automaticChecks;
    UpdateState m_state;
    QByteArray m_feed;
    /// Made for the first check: many a program never makes one.
    std::unique_ptr<QNetworkAccessManager> m_manager;
    /// Of the feed.
    std::unique_ptr<HttpsTransfer> m_transfer;
    std::unique_ptr<UpdateDownload> m_download;
};

} // namespace aerolith
