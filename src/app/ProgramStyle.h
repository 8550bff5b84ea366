#pragma once

#include <QProxyStyle>

namespace aerolith {

/// The desktop's own style, but for three things. GUI thread.
///
/// The arrow of a menu bar that has no room for its menus is drawn by the style, if it is ever seen. Every
/// menu bar reads a picture of it when it is made, for which Qt loads its plugins for all kinds of pictures
/// before the first one is on the screen.
///
/// An empty check box is seen in a dark window too, where a style draws it darker still.
///
/// No animation takes any time while it is to be still, the toolkit's or the program's own: every view asks
/// its style.
class ProgramStyle : public QProxyStyle
{
public:
    /// Tells every widget of a change.
    void setStill(bool still);

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                     const QWidget* widget) const override;

private:
    bool m_still = false;
};

} // namespace aerolith
