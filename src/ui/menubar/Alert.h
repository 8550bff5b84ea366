#pragma once

#include "ui/common/Sheet.h"

class QDialogButtonBox;

namespace aerolith {

/// An alert: a message over a quieter text that says more. It belongs to no window, so that it stays when the
/// one that caused it goes. Both texts are shown as they stand; a name from the air is made a single line
/// before.
class Alert : public Sheet
{
    Q_OBJECT

public:
    Alert(const QString& message, const QString& informativeText);

protected:
    /// Below the texts, in the middle.
    void addAccessory(QWidget* accessory);

    /// With the platform's button for "seen"; a subclass may replace it by its own.
    [[nodiscard]] QDialogButtonBox& buttons() { return *m_buttons; }

private:
    QDialogButtonBox* m_buttons;
};

} // namespace aerolith
