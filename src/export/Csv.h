#pragma once

#include <QString>

#include <initializer_list>

namespace aerolith {

/// Builds a CSV text: every field in double quotes, fields joined by a comma, rows by a line feed, none after
/// the last row. A double quote inside a field is doubled; every other character passes through unchanged.
class CsvText
{
public:
    /// Rows may differ in length.
    void addRow(std::initializer_list<QStringView> fields);

    void reserve(qsizetype characters) { m_text.reserve(characters); }

    [[nodiscard]] const QString& text() const { return m_text; }

private:
    void addField(QStringView field);

    QString m_text;
};

} // namespace aerolith
