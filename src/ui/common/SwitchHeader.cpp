#include "ui/common/SwitchHeader.h"

#include "ui/common/Switch.h"

namespace aerolith {

namespace {

constexpr int headerSidePadding = 12;
constexpr int headerPadding = 8;

} // namespace

SwitchHeader::SwitchHeader(Switch* control, QWidget* parent) : QWidget(parent), m_leading(new QHBoxLayout)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, headerPadding - Switch::margin, 0, headerPadding - Switch::margin);
    row->setSpacing(0);
    // Unlike margins, these change sides with the direction of the language.
    row->addSpacing(headerSidePadding);
    row->addLayout(m_leading);
    row->addStretch();
    row->addWidget(control);
    row->addSpacing(headerSidePadding - Switch::margin);
}

} // namespace aerolith
