#include "ui/detail/ChartLegend.h"

#include "ui/common/SecondaryLabel.h"
#include "ui/common/Theme.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>

namespace aerolith {

namespace {

struct ChartLegendTexts
{
    Q_DECLARE_TR_FUNCTIONS(ChartLegend)
};

constexpr int dotSize = 8;

/// A filled circle in the colour of a line.
class LegendDot : public QWidget
{
public:
    using ColorIn = QColor (*)(const QPalette& palette);

    explicit LegendDot(ColorIn color) : m_color(color) { setFixedSize(dotSize, dotSize); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_color(palette()));
        painter.drawEllipse(rect());
    }

private:
    ColorIn m_color;
};

QLabel* makeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setTextFormat(Qt::PlainText);
    caption->setFont(Theme::font(caption->font(), TextStyle::caption));
    return caption;
}

} // namespace

ChartLegend::ChartLegend(QWidget* parent) : QWidget(parent)
{
    auto* title = new SecondaryLabel(TextStyle::subheadline);
    title->setText(ChartLegendTexts::tr("Signal History"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(title);
    row->addStretch();
    row->addWidget(new LegendDot(Theme::green));
    row->addWidget(makeCaption(ChartLegendTexts::tr("Signal")));
    row->addWidget(new LegendDot(Theme::red));
    row->addWidget(makeCaption(ChartLegendTexts::tr("Noise")));
}

} // namespace aerolith
