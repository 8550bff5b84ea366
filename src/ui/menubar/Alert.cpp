#include "ui/menubar/Alert.h"

#include "ui/common/SelectableText.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int alertWidth = 320;
constexpr int spacing = 10;
constexpr int messageSize = 13;
constexpr int informativeSize = 12;

SelectableText* makeText(const QString& objectName, int pixelSize, const QString& name, const QString& text)
{
    auto* label = new SelectableText(pixelSize);
    label->setObjectName(objectName);
    label->setAccessibleName(name);
    label->setPlainText(text);
    label->setFocusPolicy(Qt::ClickFocus);
    return label;
}

} // namespace

Alert::Alert(const QString& message, const QString& informativeText)
    : Sheet(alertWidth, spacing, nullptr), m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok))
{
    setObjectName(u"alert"_s);
    setWindowTitle(u"Aerolith"_s);
    setAccessibleName(message);
    setAccessibleDescription(informativeText);
    // It may be the only window there is, while the icon stands in the tray.
    setAttribute(Qt::WA_QuitOnClose, false);

    SelectableText* messageLabel = makeText(u"message"_s, messageSize, tr("Message"), message);
    QFont bold = messageLabel->font();
    bold.setWeight(QFont::DemiBold);
    messageLabel->setFont(bold);
    m_buttons->setObjectName(u"buttons"_s);

    content().addWidget(messageLabel);
    content().addWidget(makeText(u"informativeText"_s, informativeSize, tr("Details"), informativeText));
    content().addWidget(m_buttons);
    m_buttons->button(QDialogButtonBox::Ok)->setFocus();
    connect(m_buttons, &QDialogButtonBox::accepted, this, &Alert::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &Alert::reject);
}

void Alert::addAccessory(QWidget* accessory)
{
    content().insertWidget(content().indexOf(m_buttons), accessory, 0, Qt::AlignHCenter);
}

} // namespace aerolith
