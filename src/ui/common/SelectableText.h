#pragma once

#include <QTextEdit>

namespace aerolith {

/// Plain text to read and to copy from, by pointer and keys. It looks like a label, but a word that is wider
/// than the place it has is broken, and a text that would take more than half the screen's height scrolls.
class SelectableText : public QTextEdit
{
public:
    /// Text size in device-independent pixels.
    explicit SelectableText(int pixelSize, QWidget* parent = nullptr);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace aerolith
