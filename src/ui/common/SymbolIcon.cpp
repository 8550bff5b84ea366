#include "ui/common/SymbolIcon.h"

#include "ui/common/PaintedIconEngine.h"
#include "ui/common/Symbols.h"

#include <QPainter>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace aerolith {

namespace {

class SymbolIconEngine : public PaintedIconEngine
{
public:
    SymbolIconEngine(QString symbol, const QWidget& widget) : m_symbol(std::move(symbol)), m_widget(&widget)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = m_widget ? m_widget->palette() : QPalette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : palette.currentColorGroup();
        painter->setLayoutDirection(m_widget ? m_widget->layoutDirection() : Qt::LeftToRight);
        Symbols::paint(*painter, rect, m_symbol, palette.color(group, QPalette::ButtonText));
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SymbolIconEngine(*this); }

private:
    QString m_symbol;
    QPointer<const QWidget> m_widget;
};

} // namespace

QIcon symbolIcon(const QString& symbol, const QWidget& widget)
{
    return QIcon(new SymbolIconEngine(symbol, widget));
}

} // namespace aerolith
