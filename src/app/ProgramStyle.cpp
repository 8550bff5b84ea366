#include "app/ProgramStyle.h"

#include "ui/common/PaintedIconEngine.h"
#include "ui/common/Theme.h"

#include <QApplication>
#include <QStyleOption>
#include <QWidget>

#include <utility>

namespace aerolith {

namespace {

class ArrowIconEngine : public PaintedIconEngine
{
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        QStyleOption option;
        option.rect = rect;
        option.palette = QApplication::palette();
        option.direction = QApplication::layoutDirection();
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, painter);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ArrowIconEngine(*this); }
};

} // namespace

void ProgramStyle::setStill(bool still)
{
    if (std::exchange(m_still, still) == still) {
        return;
    }
    for (QWidget* widget : QApplication::allWidgets()) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(widget, &change);
    }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const
{
    const bool isMotion = hint == SH_Widget_Animation_Duration || hint == SH_Widget_Animate;
    return m_still && isMotion ? 0 : QProxyStyle::styleHint(hint, option, widget, returnData);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox && Theme::isDark(option->palette)) {
        painter->setPen(Theme::gray());
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                 const QWidget* widget) const
{
    return standardIcon == SP_ToolBarHorizontalExtensionButton
               ? QIcon(new ArrowIconEngine)
               : QProxyStyle::standardIcon(standardIcon, option, widget);
}

} // namespace aerolith
