#pragma once

#include <QCoreApplication>

namespace aerolith {

/// Why there is no answer about newer versions, or no file of one.
struct UpdateTexts
{
    Q_DECLARE_TR_FUNCTIONS(UpdateFailure)
};

} // namespace aerolith
