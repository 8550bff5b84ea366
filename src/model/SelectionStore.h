#pragma once

#include "model/WiFiNetwork.h"
#include "platform/Lifeline.h"
#include "platform/Queues.h"

#include <QObject>
#include <QString>

#include <optional>

namespace aerolith {

/// The shared holder of the selected BSSID. Main thread.
class SelectionStore : public QObject
{
    Q_OBJECT

public:
    /// The queue outlives the store.
    explicit SelectionStore(MainQueue& mainQueue);

    /// Absent when nothing is selected. It may match no listed record.
    [[nodiscard]] const std::optional<QString>& selectedBSSID() const { return m_selectedBSSID; }

    /// Selects the record's access point, or nothing, on a later turn of the main queue.
    void select(const std::optional<WiFiNetwork>& network);

    /// Selects nothing, on a later turn of the main queue.
    void clearSelection();

Q_SIGNALS:
    /// After every assignment, also of the same value.
    void selectedBSSIDChanged();

private:
    void post(const std::optional<QString>& bssid);

    MainQueue& m_mainQueue;
    std::optional<QString> m_selectedBSSID;
    Lifeline m_lifeline;
};

} // namespace aerolith
