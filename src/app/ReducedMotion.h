#pragma once

#include "app/PortalSettings.h"

#include <QHash>
#include <QObject>

#include <optional>

namespace aerolith {

/// Keeps every view still, the program's own and the toolkit's, for as long as the desktop asks for reduced
/// motion. The application's style is a ProgramStyle. Main thread.
class ReducedMotion : public QObject
{
public:
    explicit ReducedMotion(const PortalSettings& settings);

private:
    void follow(const QString& group, const QString& key, const QVariant& value);

    /// What each group of settings asks for, of those that do.
    QHash<QString, bool> m_wishes;
};

/// Whether a desktop that has this setting asks for reduced motion; nothing where the setting is about
/// something else.
[[nodiscard]] std::optional<bool> reducesMotion(const QString& group, const QString& key,
                                                const QVariant& value);

} // namespace aerolith
