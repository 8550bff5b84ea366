#pragma once

class QFont;
class QPainter;
class QRectF;
class QString;

namespace aerolith {

/// Draws one line at the leading side of a place in a row, cut off with an ellipsis where it is too long. The
/// side is that of the language, the text's own direction orders its characters.
void drawRowText(QPainter& painter, const QRectF& place, const QString& text, const QFont& font,
                 bool isMirrored);

} // namespace aerolith
