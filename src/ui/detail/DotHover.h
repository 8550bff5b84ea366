#pragma once

#include <QHash>
#include <QObject>
#include <QUuid>
#include <QVariantAnimation>

#include <functional>
#include <optional>

namespace aerolith {

/// Which sample of a chart is hovered, and how far its dot has grown, or those before it have shrunk again,
/// since that changed. Main thread.
class DotHover : public QObject
{
public:
    /// `repaint` is called with every sample whose dot has changed its size.
    DotHover(std::function<void(const QUuid&)> repaint, QObject* parent);

    [[nodiscard]] const std::optional<QUuid>& hoveredPointId() const { return m_hoveredPointId; }

    void hover(const std::optional<QUuid>& id);

    /// From 0, at rest, to 1, hovered.
    [[nodiscard]] double growth(const QUuid& id) const;

    /// Every dot has its final size at once.
    void settle();

private:
    void turn(const QUuid& id, QVariantAnimation::Direction direction);

    std::function<void(const QUuid&)> m_repaint;
    std::optional<QUuid> m_hoveredPointId;
    /// Of the dots that are changing.
    QHash<QUuid, QVariantAnimation*> m_animations;
};

} // namespace aerolith
