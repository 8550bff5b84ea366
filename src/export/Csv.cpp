#include "export/Csv.h"

namespace aerolith {

void CsvText::addRow(std::initializer_list<QStringView> fields)
{
    if (!m_text.isEmpty()) {
        m_text += u'\n';
    }
    bool first = true;
    for (const QStringView field : fields) {
        if (!first) {
            m_text += u',';
        }
        first = false;
        addField(field);
    }
}

void CsvText::addField(QStringView field)
{
    m_text += u'"';
    qsizetype begin = 0;
    for (qsizetype quote = field.indexOf(u'"'); quote >= 0; quote = field.indexOf(u'"', begin)) {
        m_text += field.sliced(begin, quote + 1 - begin);
        m_text += u'"';
        begin = quote + 1;
    }
    m_text += field.sliced(begin);
    m_text += u'"';
}

} // namespace aerolith
