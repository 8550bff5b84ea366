#pragma once

#include <QProxyStyle>

namespace aerolith {

/// The desktop's own style, but for a picture that every menu bar reads from a file when it is made: the arrow
/// for menus that it has no room for. Reading it makes Qt load its plugins for all kinds of pictures before
/// the first one is on the screen. Here the style draws the arrow itself, if it is ever seen. GUI thread.
class LeanStyle : public QProxyStyle
{
public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

} // namespace aerolith
