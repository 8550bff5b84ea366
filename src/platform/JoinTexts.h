#pragma once

#include <QCoreApplication>

namespace aerolith {

/// Why a network cannot be joined, or nothing be asked of the Wi-Fi interface: the same words, and
/// translations, on every platform.
struct JoinTexts
{
    Q_DECLARE_TR_FUNCTIONS(JoinFailure)

public:
    [[nodiscard]] static QString radioOff() { return tr("The Wi-Fi radio is off"); }

    [[nodiscard]] static QString interfaceGone(const QString& name)
    {
        return tr("The Wi-Fi interface %1 is gone").arg(name);
    }
};

} // namespace aerolith
