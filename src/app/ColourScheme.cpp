#include "app/ColourScheme.h"

#include "ui/common/Theme.h"

#include <QApplication>
#include <QPalette>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

// Of the portal's "color-scheme"; any other number is no wish, or one for light windows.
constexpr uint preferDark = 1;

} // namespace

QPalette darkPalette()
{
    const QColor button(53, 56, 60), window(40, 42, 46), disabled(128, 131, 136);
    QPalette palette(button, window);
    palette.setColor(QPalette::Base, QColor(28, 30, 33));
    palette.setColor(QPalette::AlternateBase, QColor(34, 36, 40));
    palette.setColor(QPalette::Highlight, QColor(38, 110, 190));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 175, 250));
    palette.setColor(QPalette::LinkVisited, QColor(190, 155, 245));
    palette.setColor(QPalette::PlaceholderText, QColor(160, 163, 168));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    return palette;
}

ColourScheme::ColourScheme(const PortalSettings& settings)
{
    connect(&settings, &PortalSettings::told, this, &ColourScheme::follow);
}

void ColourScheme::follow(const QString& group, const QString& key, const QVariant& value)
{
    if (group != PortalSettings::standard || key != "color-scheme"_L1) {
        return;
    }
    const bool wantsDark = value.toUInt() == preferDark;
    if (wantsDark == m_isApplied || (wantsDark && Theme::isDark(QApplication::palette()))) {
        return;
    }
    m_isApplied = wantsDark;
    // An empty one stands for the toolkit's own.
    QApplication::setPalette(wantsDark ? darkPalette() : QPalette());
}

} // namespace aerolith
