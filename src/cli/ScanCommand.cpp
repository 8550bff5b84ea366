#include "cli/ScanCommand.h"

#include "export/CSVFile.h"
#include "export/NetworkCsv.h"
#include "export/NetworkJson.h"
#include "platform/simulated/ScenarioWriter.h"

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

ScanCommand::ScanCommand(const Surroundings& surroundings, Arguments arguments, ProgressLine& progress,
                         std::FILE* output, std::function<void(const QString&)> complain,
                         std::function<void(ExitStatus)> onEnd)
    : m_surroundings(surroundings)
    , m_arguments(std::move(arguments))
    , m_target(output)
    , m_complain(std::move(complain))
    , m_onEnd(std::move(onEnd))
    , m_run(
          surroundings.with(wifiClient(), surroundings.locationManager), cycles(), m_arguments.interval,
          [this] { endCycle(); }, [this](RunOutcome outcome) { endRun(outcome); })
{
    if (m_arguments.visibleOnly) {
        m_run.scanner().setShowHiddenNetworks(false);
    }
    m_sinceStart.start();
    m_progress.emplace(progress, surroundings.mainQueue, [this] { return this->progress(); });
}

std::optional<int> ScanCommand::cycles() const
{
    if (m_arguments.watch) {
        return m_arguments.cycles;
    }
    return m_arguments.cycles.value_or(1);
}

CWWiFiClient& ScanCommand::wifiClient()
{
    if (!m_arguments.recordFile) {
        return m_surroundings.wifiClient;
    }
    return m_recorder.emplace(m_surroundings.wifiClient);
}

QString ScanCommand::progress()
{
    const int ended = m_run.cyclesEnded();
    const QString ofHowMany = cycles() ? u" of %1"_s.arg(*cycles()) : QString();
    return u"Scans: %1%2; access points: %3; %4 s"_s.arg(ended)
        .arg(ofHowMany)
        .arg(m_run.scanner().networks().size())
        .arg(m_sinceStart.elapsed() / 1000);
}

void ScanCommand::endCycle()
{
    // A cycle that failed has a line in the log; the list is still the one of the cycle before.
    if (!m_arguments.watch || m_run.scanner().status() == ScannerStatus::error) {
        return;
    }
    if (m_progress) {
        m_progress->makeWay();
    }
    complainOf(m_target.print(m_watchLines.ofCycle(m_run.cyclesEnded(), m_run.scanner().networks())));
    if (m_target.isClosed()) {
        m_run.interrupt();
    }
}

void ScanCommand::endRun(RunOutcome outcome)
{
    m_progress.reset();
    if (outcome == RunOutcome::lastCycleFailed) {
        trouble(ExitStatus::failed, m_run.scanner().error().value_or(QString()));
    } else if (outcome == RunOutcome::noInterface) {
        trouble(ExitStatus::noInterface, u"This machine has no Wi-Fi interface"_s);
    }
    if (m_recorder) {
        writeRecording();
    }
    // Where a run was cut short, an empty list would replace an older file with nothing.
    const bool wasCutShort = outcome == RunOutcome::noInterface || outcome == RunOutcome::interrupted;
    if (m_arguments.watch || (wasCutShort && m_run.scanner().allNetworks().isEmpty())) {
        m_onEnd(m_status);
        return;
    }
    if (m_arguments.sort) {
        m_run.scanner().setSortOption(*m_arguments.sort);
    }
    // The new order is published on the next turn.
    m_surroundings.mainQueue.async([this] {
        writeExports();
        m_onEnd(m_status);
    });
}

void ScanCommand::writeRecording()
{
    const int cycles = m_run.cyclesEnded();
    if (cycles == 0 && m_status == ExitStatus::success) {
        trouble(ExitStatus::failed,
                u"Nothing is recorded in %1: no scan had come to its end"_s.arg(*m_arguments.recordFile));
        return;
    }
    const Scenario scenario =
        m_recorder->scenario(cycles, m_surroundings.locationManager.authorizationStatus());
    complainOf(m_target.write(*m_arguments.recordFile, scenarioJson(scenario)));
    if (m_recorder->isFull()) {
        trouble(ExitStatus::failed, u"%1 has the first %2 of %3 scans: a scenario has room for no more"_s.arg(
                                        *m_arguments.recordFile, QString::number(scenario.cycles.size()),
                                        QString::number(cycles)));
    }
}

void ScanCommand::writeExports()
{
    if (m_arguments.listFile || m_arguments.details.isEmpty()) {
        complainOf(m_target.write(m_arguments.listFile.value_or(u"-"_s), list()));
    }
    for (const Arguments::Details& asked : std::as_const(m_arguments.details)) {
        writeDetails(asked);
    }
}

void ScanCommand::writeDetails(const Arguments::Details& asked)
{
    const BssidMap<WiFiNetwork> known = m_run.scanner().allNetworks();
    const auto found = known.find(asked.bssid);
    if (found == known.end()) {
        trouble(ExitStatus::unknownAccessPoint, u"No access point %1 was heard"_s.arg(asked.bssid));
        return;
    }
    complainOf(m_target.write(asked.file, details(found.value())));
}

QByteArray ScanCommand::list()
{
    const WiFiNetworkList& networks = m_run.scanner().networks();
    return m_arguments.format == ExportFormat::json ? networkListJson(networks)
                                                    : CSVFile(networkListCSV(networks)).fileWrapper();
}

QByteArray ScanCommand::details(const WiFiNetwork& network) const
{
    return m_arguments.format == ExportFormat::json
               ? networkDetailsJson(network)
               : CSVFile(networkDetailsCSV(network, DateTexts(m_surroundings.locale))).fileWrapper();
}

void ScanCommand::complainOf(const Failure& failure)
{
    if (failure) {
        trouble(ExitStatus::failed, failure->description);
    }
}

void ScanCommand::trouble(ExitStatus status, const QString& line)
{
    if (m_status == ExitStatus::success) {
        m_status = status;
    }
    m_complain(line);
}

} // namespace aerolith
