#pragma once

#include "platform/Updater.h"

#include <QObject>

#include <memory>

namespace aerolith {

/// Mirrors whether the user may start a check for updates, from the updater's first word on. Main thread.
class CheckForUpdatesViewModel : public QObject
{
    Q_OBJECT

public:
    /// The updater outlives the model.
    explicit CheckForUpdatesViewModel(Updater& updater);

    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheckForUpdates; }

Q_SIGNALS:
    void canCheckForUpdatesChanged();

private:
    bool m_canCheckForUpdates = false;
    std::unique_ptr<Observation> m_observation;
};

} // namespace aerolith
