#pragma once

#include <QCoreApplication>

namespace aerolith {

/// Why a network cannot be joined, or nothing be asked of the Wi-Fi interface: the same words, and
/// translations, on every platform.
struct JoinTexts
{
    Q_DECLARE_TR_FUNCTIONS(JoinFailure)
};

} // namespace aerolith
