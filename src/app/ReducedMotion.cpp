#include "app/ReducedMotion.h"

#include "app/ProgramStyle.h"

#include <QApplication>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

// Another style, which a desktop may put in its place, moves as that desktop wants it.
void setStill(bool still)
{
    if (auto* style = dynamic_cast<ProgramStyle*>(QApplication::style())) {
        style->setStill(still);
    }
}

} // namespace

std::optional<bool> reducesMotion(const QString& group, const QString& key, const QVariant& value)
{
    if (group == PortalSettings::standard && key == "reduced-motion"_L1) {
        return value.toUInt() == 1;
    }
    if (group == PortalSettings::gnome && key == "enable-animations"_L1) {
        return !value.toBool();
    }
    return {};
}

ReducedMotion::ReducedMotion(const PortalSettings& settings)
{
    connect(&settings, &PortalSettings::told, this, &ReducedMotion::follow);
}

void ReducedMotion::follow(const QString& group, const QString& key, const QVariant& value)
{
    if (const auto reduces = reducesMotion(group, key, value)) {
        m_wishes[group] = *reduces;
        setStill(m_wishes.values().contains(true));
    }
}

} // namespace aerolith
