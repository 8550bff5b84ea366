#include "app/LeanStyle.h"

#include "ui/common/PaintedIconEngine.h"

#include <QApplication>
#include <QStyleOption>

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

QIcon LeanStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                              const QWidget* widget) const
{
    return standardIcon == SP_ToolBarHorizontalExtensionButton
               ? QIcon(new ArrowIconEngine)
               : QProxyStyle::standardIcon(standardIcon, option, widget);
}

} // namespace aerolith
