#include "ui/common/Sheet.h"

#include "ui/common/Theme.h"

#include <QEvent>
#include <QVBoxLayout>

namespace aerolith {

namespace {

constexpr int padding = 16;

} // namespace

Sheet::Sheet(int width, int spacing, QWidget* parent)
    : QDialog(parent), m_content(new QVBoxLayout(this)), m_width(Theme::scaledToText(width))
{
    m_content->setContentsMargins(padding, padding, padding, padding);
    m_content->setSpacing(spacing);
    m_content->setSizeConstraint(QLayout::SetNoConstraint);
}

bool Sheet::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    // Polishing gives the parts their fonts; a request comes whenever one of them wants another size.
    if (event->type() == QEvent::Polish || event->type() == QEvent::LayoutRequest) {
        fitHeight();
    }
    return handled;
}

void Sheet::fitHeight()
{
    const bool wraps = m_content->hasHeightForWidth();
    setFixedSize(m_width,
                 wraps ? m_content->totalHeightForWidth(m_width) : m_content->totalSizeHint().height());
}

} // namespace aerolith
