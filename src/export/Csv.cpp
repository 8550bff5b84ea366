#include "export/Csv.h"

#include <algorithm>
#include <iterator>

namespace aerolith {

namespace {

/// What a row takes at most: every character doubled, two quotes and a separator for each field.
qsizetype roomFor(std::initializer_list<QStringView> fields)
{
    qsizetype room = 0;
    for (const QStringView field : fields) {
        room += 2 * field.size() + 3;
    }
    return room;
}

struct KeptQuotes
{
    static char16_t* write(char16_t* to, QStringView field)
    {
        return std::copy_n(field.utf16(), field.size(), to);
    }
};

struct DoubledQuotes
{
    static char16_t* write(char16_t* to, QStringView field)
    {
        for (const QChar character : field) {
            *to++ = character.unicode();
            if (character == u'"') {
                *to++ = character.unicode();
            }
        }
        return to;
    }
};

template <typename Quotes>
char16_t* writeRow(char16_t* to, std::initializer_list<QStringView> fields)
{
    bool first = true;
    for (const QStringView field : fields) {
        if (!first) {
            *to++ = u',';
        }
        first = false;
        *to++ = u'"';
        to = Quotes::write(to, field);
        *to++ = u'"';
    }
    return to;
}

} // namespace

void CsvText::addRow(std::initializer_list<QStringView> fields)
{
    const qsizetype begin = m_text.isEmpty() ? 0 : m_text.size() + 1;
    m_text.resize(begin + roomFor(fields));
    auto* const text = reinterpret_cast<char16_t*>(m_text.data());
    if (begin > 0) {
        text[begin - 1] = u'\n';
    }
    // A quote inside a field is rare: the row is written as if there were none, and again if there was one.
    char16_t* end = writeRow<KeptQuotes>(text + begin, fields);
    if (std::count(text + begin, end, u'"') != 2 * std::ssize(fields)) {
        end = writeRow<DoubledQuotes>(text + begin, fields);
    }
    m_text.resize(end - text);
}

DecimalField::DecimalField(qint64 number)
{
    const bool negative = number < 0;
    quint64 rest = negative ? quint64{0} - static_cast<quint64>(number) : static_cast<quint64>(number);
    char16_t* to = m_digits.end();
    do {
        *--to = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (negative) {
        *--to = u'-';
    }
    m_begin = to - m_digits.begin();
}

} // namespace aerolith
