#pragma once

#include <QHBoxLayout>
#include <QWidget>

namespace aerolith {

class Switch;

/// The bar above a list, which ends with a switch: what is drawn of it is as far from the edges as all else.
class SwitchHeader : public QWidget
{
public:
    explicit SwitchHeader(Switch* control, QWidget* parent = nullptr);

    /// What the bar begins with.
    [[nodiscard]] QHBoxLayout& leading() { return *m_leading; }

private:
    QHBoxLayout* m_leading;
};

} // namespace aerolith
