#include "update/AppcastUpdater.h"

#include "update/UpdateTexts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSysInfo>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Ends with the object that the connection is made in.
class SignalObservation : public Observation
{
public:
    [[nodiscard]] QObject& context() { return m_context; }

private:
    QObject m_context;
};

Error unreadable(const Error& error)
{
    return {UpdateTexts::tr("The update feed cannot be read: %1").arg(error.description)};
}

} // namespace

UpdateOptions UpdateOptions::standard(Log& log)
{
    return {.source = builtInUpdateSource(log),
            .runningVersion = QCoreApplication::applicationVersion(),
            .folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)};
}

AppcastUpdater::AppcastUpdater(UpdateOptions options, const UpdateSurroundings& surroundings)
    : m_options(std::move(options))
    , m_surroundings(surroundings)
    , m_running(Version::parse(m_options.runningVersion))
    , m_automaticChecks(surroundings.userDefaults, surroundings.clock, surroundings.mainQueue, [this] {
        if (std::holds_alternative<UpdateIdle>(m_state)) {
            check(Asker::schedule);
        }
    })
{
}

AppcastUpdater::~AppcastUpdater() = default;

void AppcastUpdater::start()
{
    if (canCheckForUpdates()) {
        m_automaticChecks.start();
    }
}

void AppcastUpdater::setChecksAutomatically(bool wanted)
{
    m_automaticChecks.setWanted(wanted);
}

std::unique_ptr<Observation> AppcastUpdater::observeCanCheckForUpdates(std::function<void(bool)> observer)
{
    auto observation = std::make_unique<SignalObservation>();
    observer(canCheckForUpdates());
    connect(this, &AppcastUpdater::canCheckForUpdatesChanged, &observation->context(), std::move(observer));
    return observation;
}

bool AppcastUpdater::canCheckForUpdates() const
{
    return m_options.source && m_running && !std::holds_alternative<UpdateChecking>(m_state) &&
           !std::holds_alternative<UpdateDownloading>(m_state);
}

void AppcastUpdater::setState(const UpdateState& state)
{
    const bool couldCheck = canCheckForUpdates();
    m_state = state;
    Q_EMIT stateChanged();
    if (const bool can = canCheckForUpdates(); can != couldCheck) {
        Q_EMIT canCheckForUpdatesChanged(can);
    }
}

void AppcastUpdater::checkForUpdates()
{
    if (canCheckForUpdates()) {
        check(Asker::user);
        setState(UpdateChecking());
    }
}

void AppcastUpdater::check(Asker asker)
{
    m_automaticChecks.noteCheck();
    m_feed.clear();
    if (m_manager == nullptr) {
        m_manager = std::make_unique<QNetworkAccessManager>();
    }
    m_transfer = std::make_unique<HttpsTransfer>(
        *m_manager, m_options.https, m_options.source->feed, m_options.https.longestFeed,
        HttpsConsumer{.receive = [this](const QByteArray& bytes) { return receiveFeed(bytes); },
                      .end = [this, asker](const Failure& failure) { showOutcome(asker, failure); }});
}

Failure AppcastUpdater::receiveFeed(const QByteArray& bytes)
{
    m_feed += bytes;
    // The reader says what is wrong with a feed that is too large.
    return m_feed.size() > maximumFeedSize ? Failure(unreadable(parseAppcast(m_feed).error())) : Failure();
}

void AppcastUpdater::showOutcome(Asker asker, const Failure& transferred)
{
    const auto fail = [&](const Error& error) {
        if (asker == Asker::user) {
            setState(UpdateFailed{UpdateFailed::Step::check, error});
        } else {
            m_surroundings.log.line(u"Automatic update check failed: %1"_s.arg(error.description));
        }
    };
    m_transfer.reset();
    if (transferred) {
        fail(*transferred);
        return;
    }
    const auto items = parseAppcast(std::exchange(m_feed, {}));
    if (!items.ok()) {
        fail(unreadable(items.error()));
        return;
    }
    if (const auto item = newestUpdate(items.value(), *m_running, QSysInfo::buildCpuArchitecture())) {
        setState(UpdateAvailable{*item});
    } else if (asker == Asker::user) {
        setState(UpdateUpToDate());
    }
}

void AppcastUpdater::download()
{
    const auto* available = std::get_if<UpdateAvailable>(&m_state);
    if (available == nullptr) {
        return;
    }
    const AppcastItem item = available->item;
    m_download = std::make_unique<UpdateDownload>(
        *m_manager, m_options.https, item, m_options.source->key, m_options.folder,
        UpdateDownload::Observer{
            .progress =
                [this, item](qint64 received) {
                    setState(UpdateDownloading{item, received});
                },
            .end = [this, item](const Result<QString>& path) { showDownloaded(item, path); }});
    setState(UpdateDownloading{item});
}

void AppcastUpdater::showDownloaded(const AppcastItem& item, const Result<QString>& path)
{
    m_download.reset();
    if (!path.ok()) {
        setState(UpdateFailed{UpdateFailed::Step::download, path.error()});
        return;
    }
    if (const Failure failure = m_surroundings.workspace.openFolder(QFileInfo(path.value()).path())) {
        m_surroundings.log.line(failure->description);
    }
    setState(UpdateDownloaded{item, path.value()});
}

void AppcastUpdater::dismiss()
{
    m_transfer.reset();
    m_download.reset();
    setState(UpdateIdle());
}

} // namespace aerolith
