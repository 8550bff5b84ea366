#include "platform/qt/StandardLog.h"

#include <QByteArray>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

bool isUnsafe(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString escapedForLog(const QString& text)
{
    QString safe;
    safe.reserve(text.size());
    for (const QChar character : text) {
        if (isUnsafe(character)) {
            safe += u"\\u{%1}"_s.arg(character.unicode(), 0, 16);
        } else {
            safe += character;
        }
    }
    return safe;
}

void StandardLog::line(const QString& text)
{
    const QByteArray bytes = escapedForLog(text).toUtf8() + '\n';
    // One call, so that the stream's own lock keeps lines of two threads apart. A closed stream is no reason
    // to stop.
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), m_stream);
    std::fflush(m_stream);
}

} // namespace aerolith
