#pragma once

#include <QString>

#include <array>
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
    QString m_text;
};

/// A whole number as a field: plain decimal, without memory of its own from the heap.
class DecimalField
{
public:
    explicit DecimalField(qint64 number);

    [[nodiscard]] QStringView text() const { return QStringView(m_digits).sliced(m_begin); }

private:
    /// The smallest 64-bit number has a sign and 19 digits.
    std::array<char16_t, 20> m_digits{};
    qsizetype m_begin = 20;
};

} // namespace aerolith
