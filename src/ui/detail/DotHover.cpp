#include "ui/detail/DotHover.h"

#include "ui/common/EaseInOut.h"

#include <utility>

namespace aerolith {

namespace {

constexpr int milliseconds = 200;

} // namespace

DotHover::DotHover(std::function<void(const QUuid&)> repaint, QObject* parent)
    : QObject(parent), m_repaint(std::move(repaint))
{
}

void DotHover::hover(const std::optional<QUuid>& id)
{
    if (id == m_hoveredPointId) {
        return;
    }
    const std::optional<QUuid> left = std::exchange(m_hoveredPointId, id);
    if (left) {
        turn(*left, QVariantAnimation::Backward);
    }
    if (id) {
        turn(*id, QVariantAnimation::Forward);
    }
}

double DotHover::growth(const QUuid& id) const
{
    if (const QVariantAnimation* animation = m_animations.value(id)) {
        return animation->currentValue().toDouble();
    }
    return id == m_hoveredPointId ? 1 : 0;
}

void DotHover::settle()
{
    const QList<QUuid> changing = m_animations.keys();
    qDeleteAll(std::exchange(m_animations, {}));
    for (const QUuid& id : changing) {
        m_repaint(id);
    }
}

/// A dot that turns back half-way goes on from the size it has.
void DotHover::turn(const QUuid& id, QVariantAnimation::Direction direction)
{
    QVariantAnimation*& animation = m_animations[id];
    if (animation != nullptr) {
        animation->setDirection(direction);
        return;
    }
    animation = new QVariantAnimation(this);
    animation->setObjectName(QStringLiteral("dotGrowth"));
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->setDuration(milliseconds);
    animation->setEasingCurve(easeInOut());
    animation->setDirection(direction);
    connect(animation, &QVariantAnimation::valueChanged, this, [this, id] { m_repaint(id); });
    connect(animation, &QVariantAnimation::finished, this, [this, id] {
        m_animations.take(id)->deleteLater();
        m_repaint(id);
    });
    animation->start();
}

} // namespace aerolith
