#include "ui/common/SelectableText.h"

#include "ui/common/Theme.h"

#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace aerolith {

SelectableText::SelectableText(int pixelSize, QWidget* parent) : QTextEdit(parent)
{
    setFont(Theme::font(font(), pixelSize));
    setReadOnly(true);
    setAcceptRichText(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    viewport()->setAutoFillBackground(false);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int SelectableText::heightForWidth(int width) const
{
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setTextWidth(width);
    const int whole = static_cast<int>(std::ceil(measured->size().height()));
    return std::min(whole, screen()->availableGeometry().height() / 2);
}

QSize SelectableText::sizeHint() const
{
    return {static_cast<int>(std::ceil(document()->idealWidth())), minimumSizeHint().height()};
}

QSize SelectableText::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

} // namespace aerolith
