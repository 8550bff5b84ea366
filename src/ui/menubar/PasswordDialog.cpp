#include "ui/menubar/PasswordDialog.h"

#include "ui/common/PlainText.h"
#include "ui/common/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScopeGuard>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize fieldSize{200, 24};

/// An empty name is left out with what would isolate it.
QString message(const QString& ssid)
{
    return PasswordDialog::tr("Connect to %1").arg(ssid.isEmpty() ? QString() : isolated(singleLine(ssid)));
}

} // namespace

PasswordDialog::PasswordDialog(const QString& ssid)
    : Alert(message(ssid), tr("Enter the network password:")), m_field(new QLineEdit), m_spinner(new Spinner)
{
    setObjectName(u"passwordDialog"_s);
    m_field->setObjectName(u"password"_s);
    m_field->setAccessibleName(tr("Network password"));
    m_field->setEchoMode(QLineEdit::Password);
    m_field->setFixedSize(Theme::scaledToText(fieldSize));
    addAccessory(m_field);

    buttons().clear();
    auto* connectButton = buttons().addButton(tr("Connect"), QDialogButtonBox::AcceptRole);
    connectButton->setObjectName(u"connect"_s);
    connectButton->setDefault(true);
    buttons().addButton(QDialogButtonBox::Cancel)->setObjectName(u"cancel"_s);
    m_spinner->setObjectName(u"connecting"_s);
    m_spinner->setAccessibleName(tr("Connecting"));
    m_spinner->hide();
    buttons().layout()->addWidget(m_spinner);
    m_field->setFocus();
}

PasswordDialog::~PasswordDialog()
{
    const Secret forgotten = takePassword();
}

bool PasswordDialog::ask()
{
    setWindowModality(Qt::ApplicationModal);
    show();
    raise();
    activateWindow();
    return m_answer.exec() == Accepted;
}

void PasswordDialog::done(int answer)
{
    if (answer == Accepted) {
        wait();
    } else {
        Alert::done(answer);
    }
    m_answer.exit(answer);
}

void PasswordDialog::wait()
{
    m_field->setEnabled(false);
    buttons().setEnabled(false);
    m_spinner->show();
}

Secret PasswordDialog::takePassword()
{
    QString typed = m_field->text();
    const auto forget = qScopeGuard([&] {
        // The field's own storage.
        wipe(typed);
        // Unlike clear(), it leaves nothing to be undone.
        m_field->setText({});
    });
    return Secret(typed);
}

} // namespace aerolith
