#include "ui/update/CheckForUpdatesViewModel.h"

namespace aerolith {

CheckForUpdatesViewModel::CheckForUpdatesViewModel(Updater& updater)
    : m_observation(updater.observeCanCheckForUpdates([this](bool can) {
        m_canCheckForUpdates = can;
        Q_EMIT canCheckForUpdatesChanged();
    }))
{
}

} // namespace aerolith
