#pragma once

#include <QIcon>
#include <QObject>
#include <QRect>

namespace aerolith {

/// The program's place in the desktop's bar: the button that it has there as long as the desktop offers one.
/// Main thread.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the user has a button to press.
    [[nodiscard]] virtual bool hasButton() const = 0;

    /// Only while there is a button. The description is what assistive technology says.
    virtual void setImage(const QIcon& image, const QString& accessibilityDescription) = 0;

    /// Where the button is on the screens, device-independent pixels; empty where the desktop does not tell.
    [[nodiscard]] virtual QRect frame() const = 0;

Q_SIGNALS:
    /// A button is there that was not when this object was made; it shows no image yet. Said once: one that
    /// goes and comes again keeps its image.
    void buttonAppeared();

    void pressed();
};

} // namespace aerolith
