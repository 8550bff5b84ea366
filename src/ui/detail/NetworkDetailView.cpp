#include "ui/detail/NetworkDetailView.h"

#include "ui/common/PlainText.h"
#include "ui/detail/ChartLegend.h"
#include "ui/detail/CustomSignalChart.h"
#include "ui/detail/DetailSection.h"
#include "ui/detail/DetailStatusBar.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr SignalChartParameters chartParameters{
    .showMiniVersion = false, .showNoiseLevel = true, .animate = true, .lineWidth = 2.5, .areaOpacity = 0.5};
constexpr int sidePadding = DetailSection::sidePadding;
constexpr int sectionSpacing = 24;
/// Above and below the chart.
constexpr int chartPadding = 16;
constexpr int legendSpacing = 8;

/// The space around the chart belongs to it, so that what reaches past its rectangle is seen.
QWidget* makeHistory(CustomSignalChart* chart)
{
    auto* history = new QWidget;
    auto* legend = new ChartLegend;
    legend->setContentsMargins(sidePadding, 0, sidePadding, 0);
    chart->setContentsMargins(sidePadding, legendSpacing + chartPadding, sidePadding, chartPadding);
    auto* stack = new QVBoxLayout(history);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    stack->addWidget(legend);
    stack->addWidget(chart);
    return history;
}

QScrollArea* makeScrollArea(const QList<DetailSection*>& sections)
{
    auto* content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    auto* stack = new QVBoxLayout(content);
    stack->setContentsMargins(0, sectionSpacing, 0, sectionSpacing);
    stack->setSpacing(sectionSpacing);
    for (DetailSection* section : sections) {
        stack->addWidget(section);
    }
    stack->addStretch();

    auto* area = new QScrollArea;
    area->setObjectName(u"networkDetails"_s);
    area->setAccessibleName(NetworkDetailView::tr("Network details"));
    area->setFrameShape(QFrame::NoFrame);
    area->setBackgroundRole(QPalette::Base);
    area->setWidgetResizable(true);
    area->setWidget(content);
    return area;
}

/// The name as a window's title: "[*]" is where a window would say that it is modified.
QString windowTitleOf(const WiFiNetwork& network)
{
    return singleLine(network.ssid).replace("[*]"_L1, "[*][*]"_L1);
}

} // namespace

NetworkDetailView::NetworkDetailView(WiFiScanner& scanner, const DetailSurroundings& surroundings,
                                     QWidget* parent)
    : QWidget(parent)
    , m_chart(new CustomSignalChart(chartParameters))
    , m_signalOverview(new DetailSection(tr("Signal Overview")))
    , m_networkInformation(new DetailSection(tr("Network Information")))
    , m_advanced(new DetailSection(tr("Advanced")))
    , m_statusBar(new DetailStatusBar(scanner, surroundings))
{
    setObjectName(u"networkDetailView"_s);
    m_chart->setObjectName(u"signalChart"_s);
    m_statusBar->setObjectName(u"detailStatusBar"_s);
    m_signalOverview->setHeader(makeHistory(m_chart));
    connect(m_statusBar, &DetailStatusBar::refreshRequested, this, &NetworkDetailView::refreshRequested);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    auto* facts = makeScrollArea({m_signalOverview, m_networkInformation, m_advanced});
    connect(facts->verticalScrollBar(), &QScrollBar::valueChanged, m_chart, [this] {
        if (m_chart->underMouse()) {
            m_chart->updateHover();
        }
    });
    stack->addWidget(facts);
    stack->addWidget(m_statusBar);
}

void NetworkDetailView::showNetwork(const WiFiNetwork& network)
{
    if (network.bssid != m_bssid) {
        m_bssid = network.bssid;
        m_chart->startOver();
    }
    m_chart->showHistory(network.signalHistory);
    m_chart->setAccessibleDescription(signalSummary(network));

    const NetworkDetails details(network);
    m_signalOverview->showDetails(details.signalOverview);
    m_networkInformation->showDetails(details.networkInformation);
    m_advanced->showDetails(details.advanced);
    m_statusBar->showNetwork(network);
    setWindowTitle(windowTitleOf(network));
}

/// Put away is the view itself, not a window with it.
void NetworkDetailView::hideEvent(QHideEvent* event)
{
    if (isHidden()) {
        m_bssid.clear();
    }
    QWidget::hideEvent(event);
}

} // namespace aerolith
