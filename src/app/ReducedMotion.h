#pragma once

#include <QDBusMessage>
#include <QHash>
#include <QObject>

#include <optional>

class QDBusPendingCallWatcher;

namespace aerolith {

/// Keeps every view still, the program's own and the toolkit's, for as long as the desktop asks for reduced
/// motion: its portal tells, once it is asked and whenever it changes. The application's style is a
/// ProgramStyle. Main thread.
class ReducedMotion : public QObject
{
    Q_OBJECT

public:
    /// Asks after the first painting of the window, which owns this object: that does not wait for an answer.
    explicit ReducedMotion(QWidget& window);

private Q_SLOTS:
    void handleChange(const QDBusMessage& signal);

private:
    void ask();
    void handleAnswer(const QDBusPendingCallWatcher& answer);
    void follow(const QString& group, const QString& key, const QVariant& value);

    /// What each group of settings asks for, of those that do.
    QHash<QString, bool> m_wishes;
};

/// Whether a desktop that has this setting asks for reduced motion; nothing where the setting is about
/// something else.
[[nodiscard]] std::optional<bool> reducesMotion(const QString& group, const QString& key,
                                                const QVariant& value);

} // namespace aerolith
