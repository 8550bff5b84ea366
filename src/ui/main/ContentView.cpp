#include "ui/main/ContentView.h"

#include "ui/common/AccessibleRole.h"
#include "ui/common/Divider.h"
#include "ui/common/Theme.h"

#include <QPainter>
#include <QSplitterHandle>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize least{800, 500};
/// Room for the items of its status bar.
constexpr int narrowestSidebar = 284;
constexpr int usualSidebar = 340;
/// Leaves the details their room in the smallest window.
constexpr int widestSidebar = 420;

/// A hairline; what is grabbed is wider.
class SplitLine : public QSplitterHandle
{
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        Divider::paint(painter, contentsRect());
    }
};

} // namespace

ContentView::ContentView(WiFiScanner& scanner, const WindowSurroundings& surroundings, QWidget* parent)
    : QSplitter(parent)
    , m_scanner(scanner)
    , m_sidebar(new Sidebar(scanner, surroundings.userDefaults, surroundings.detail.exporter))
    , m_detailColumn(new QStackedWidget)
    , m_backdrop(new WavingBackground(scanner))
    , m_announcer(new Announcer(scanner, m_detailColumn))
    , m_surroundings(surroundings.detail)
    , m_publish([this] { showSelected(); })
{
    m_sidebar->setObjectName(u"sidebar"_s);
    m_sidebar->setMinimumWidth(Theme::scaledToText(narrowestSidebar));
    m_sidebar->setMaximumWidth(Theme::scaledToText(widestSidebar));
    m_backdrop->setObjectName(u"backdrop"_s);
    m_detailColumn->addWidget(m_backdrop);

    setHandleWidth(1);
    addWidget(m_sidebar);
    addWidget(m_detailColumn);
    setChildrenCollapsible(false);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    const int sidebar = Theme::scaledToText(usualSidebar);
    setSizes({sidebar, width() - sidebar});

    connect(&m_scanner, &WiFiScanner::networksChanged, &m_publish, &OncePerTurn::request);
    connect(&m_scanner.selectionStore(), &SelectionStore::selectedBSSIDChanged, &m_publish,
            &OncePerTurn::request);
    showSelected();
}

QSize ContentView::minimumSizeHint() const
{
    return QSplitter::minimumSizeHint().expandedTo(least);
}

QSplitterHandle* ContentView::createHandle()
{
    auto* line = new SplitLine(orientation(), this);
    setAccessibleRole(*line, QAccessible::Separator);
    return line;
}

std::optional<WiFiNetwork> ContentView::selectedNetwork() const
{
    const std::optional<QString>& bssid = m_scanner.selectionStore().selectedBSSID();
    if (!bssid) {
        return {};
    }
    const WiFiNetworkList& networks = m_scanner.networks();
    const auto found = std::find_if(networks.cbegin(), networks.cend(),
                                    [&](const WiFiNetwork& network) { return network.bssid == *bssid; });
    return found != networks.cend() ? std::optional(*found) : std::nullopt;
}

QString ContentView::title() const
{
    return m_detailColumn->currentWidget() == m_backdrop ? u"Aerolith"_s : m_details->windowTitle();
}

NetworkDetailView& ContentView::details()
{
    if (!m_details) {
        m_details = new NetworkDetailView(m_scanner, m_surroundings);
        m_detailColumn->addWidget(m_details);
        connect(m_details, &NetworkDetailView::refreshRequested, m_announcer, &Announcer::expect);
    }
    return *m_details;
}

void ContentView::showSelected()
{
    const std::optional<WiFiNetwork> network = selectedNetwork();
    if (network) {
        details().showNetwork(*network);
        m_detailColumn->setCurrentWidget(m_details);
    } else {
        m_detailColumn->setCurrentWidget(m_backdrop);
    }
    Q_EMIT titleChanged(title());
}

} // namespace aerolith
