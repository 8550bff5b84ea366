#include "ui/detail/DetailStatusBar.h"

#include "export/NetworkCsv.h"

#include <QGridLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int lastSeenSize = 12;

} // namespace

DetailStatusBar::DetailStatusBar(WiFiScanner& scanner, const DetailSurroundings& surroundings,
                                 QWidget* parent)
    : StatusBarFrame(parent)
    , m_scanner(scanner)
    , m_surroundings(surroundings)
    , m_export(makeButton(u"exportDetails"_s, u"square.and.arrow.up"_s, tr("Export network data")))
    , m_lastSeen(new SecondaryLabel(lastSeenSize))
    , m_refresh(makeButton(u"refresh"_s, u"arrow.clockwise"_s, tr("Refresh network data")))
    , m_spinner(new Spinner)
    , m_publish([this] { showState(); })
{
    m_export->setTitle(tr("Export network data"));
    m_lastSeen->setObjectName(u"lastSeen"_s);
    m_spinner->setObjectName(u"scanning"_s);
    m_spinner->setAccessibleName(tr("Scanning"));
    layOut();

    connect(m_export, &SymbolButton::clicked, this, &DetailStatusBar::exportDetails);
    connect(m_refresh, &SymbolButton::clicked, this, [this] {
        Q_EMIT refreshRequested();
        m_scanner.scanNetworks();
    });
    connect(&m_scanner, &WiFiScanner::statusChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    showState();
}

void DetailStatusBar::layOut()
{
    // One place for both, so that nothing moves when they take turns.
    auto* place = new QGridLayout;
    place->setColumnMinimumWidth(0, m_refresh->sizeHint().width());
    place->addWidget(m_refresh, 0, 0, Qt::AlignCenter);
    place->addWidget(m_spinner, 0, 0, Qt::AlignCenter);

    row().addWidget(m_export);
    row().addStretch();
    row().addWidget(m_lastSeen);
    row().addLayout(place);
}

void DetailStatusBar::showNetwork(const std::optional<WiFiNetwork>& network)
{
    m_network = network;
    showState();
}

void DetailStatusBar::showState()
{
    m_export->setVisible(m_network.has_value());
    m_lastSeen->setVisible(m_network.has_value());
    if (m_network) {
        //: %1 is a time before now, as in "5 sec. ago".
        m_lastSeen->setText(
            tr("Last seen %1")
                .arg(m_surroundings.texts.relative(m_network->timestamp, m_surroundings.clock.now())));
    }
    showScanning(m_scanner.status() == ScannerStatus::scanning);
}

/// The keyboard focus stays in the place of what has it.
void DetailStatusBar::showScanning(bool isScanning)
{
    QWidget* const shown = isScanning ? static_cast<QWidget*>(m_spinner) : m_refresh;
    QWidget* const gone = isScanning ? static_cast<QWidget*>(m_refresh) : m_spinner;
    shown->show();
    if (gone->hasFocus()) {
        shown->setFocus();
    }
    gone->hide();
}

void DetailStatusBar::exportDetails()
{
    m_surroundings.exporter.save(*this, u"network_details.csv"_s, [this] {
        return CSVFile(m_network ? networkDetailsCSV(*m_network, m_surroundings.texts) : QString());
    });
}

} // namespace aerolith
