#pragma once

#include "platform/Secret.h"
#include "platform/Undumpable.h"
#include "ui/common/Spinner.h"
#include "ui/menubar/Alert.h"

#include <QEventLoop>
#include <QLineEdit>

namespace aerolith {

/// Asks for a network's password. Once the user wants to connect it stays, takes no more input and says that
/// something is under way, until it is destroyed.
class PasswordDialog : public Alert
{
    Q_OBJECT

public:
    /// `ssid` as reported; empty when the network has none.
    explicit PasswordDialog(const QString& ssid);

    /// What was typed and not taken is overwritten.
    ~PasswordDialog() override;

    /// Blocks until the user has answered: true to connect.
    [[nodiscard]] bool ask();

    /// What was typed, unchanged. The field keeps nothing of it.
    [[nodiscard]] Secret takePassword();

    void done(int answer) override;

private:
    void wait();

    /// For what is typed.
    Undumpable m_undumpable;
    QLineEdit* m_field;
    Spinner* m_spinner;
    QEventLoop m_answer;
};

} // namespace aerolith
