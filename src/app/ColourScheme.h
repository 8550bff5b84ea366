#pragma once

#include "app/PortalSettings.h"

#include <QObject>
#include <QPalette>

namespace aerolith {

/// The colours of dark windows.
[[nodiscard]] QPalette darkPalette();

/// Makes every window dark while the desktop asks for that and the toolkit, which knows few desktops' wishes,
/// has not done so itself. Main thread.
class ColourScheme : public QObject
{
public:
    explicit ColourScheme(const PortalSettings& settings);

private:
    void follow(const QString& group, const QString& key, const QVariant& value);

    /// Whether the palette is ours.
    bool m_isApplied = false;
};

} // namespace aerolith
