#pragma once

#include <QWidget>

namespace aerolith {

/// A label and, beside it, a value that wraps wherever it must and can be selected and copied by pointer and
/// keys. Both are plain text.
class InfoRow : public QWidget
{
public:
    InfoRow(const QString& label, const QString& value, QWidget* parent = nullptr);
};

} // namespace aerolith
