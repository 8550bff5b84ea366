#pragma once

#include "platform/LoginItem.h"

#include <QString>

namespace aerolith {

/// The login item as an autostart entry, a file that every desktop reads when the user logs in. Desktops
/// switch such an entry off by marking it, and so does this; an entry that is there keeps what else is in it.
class XdgLoginItem : public LoginItem
{
public:
    /// `entryPath` is the entry's file, `program` the absolute path of what it starts.
    XdgLoginItem(QString entryPath, QString program);

    /// The user's own: $XDG_CONFIG_HOME/autostart, in ~/.config when the variable is unset.
    [[nodiscard]] static QString userPath();

    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] Failure setEnabled(bool enabled) override;

private:
    QString m_entryPath;
    QString m_program;
};

} // namespace aerolith
