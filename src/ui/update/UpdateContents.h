#pragma once

#include "update/UpdateState.h"

#include <QString>

#include <optional>

namespace aerolith {

/// What the dialog about updates shows: plain texts, fit to be shown whatever the feed holds.
struct UpdateContents
{
    QString heading;
    /// Empty: none.
    QString message = {};
    /// Lines; empty: none.
    QString notes = {};
    /// Something is under way, for how long nobody knows.
    bool isBusy = false;
    /// From 0 to 1.
    std::optional<double> progress = {};
    bool offersDownload = false;
    /// The moment to decide on automatic checks.
    bool offersAutomaticChecks = false;
    /// The title of the button that ends it.
    QString dismiss;
    /// Return ends it.
    bool isOver = false;
};

/// `running` is the program's own version.
[[nodiscard]] UpdateContents updateContents(const UpdateState& state, const QString& running);

} // namespace aerolith
