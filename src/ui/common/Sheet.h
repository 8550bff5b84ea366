#pragma once

#include <QDialog>

class QVBoxLayout;

namespace aerolith {

/// A dialog that belongs to one window: of a fixed width for the size of the text, as tall as what is in it,
/// also when that changes.
class Sheet : public QDialog
{
public:
    /// `width` and `spacing`, the distance between its parts, in device-independent pixels.
    Sheet(int width, int spacing, QWidget* parent);

    [[nodiscard]] QVBoxLayout& content() { return *m_content; }

    bool event(QEvent* event) override;

private:
    void fitHeight();

    QVBoxLayout* m_content;
    int m_width;
};

} // namespace aerolith
