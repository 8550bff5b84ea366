#include "ui/common/PlainText.h"

#include <algorithm>

namespace aerolith {

namespace {

constexpr QChar firstStrongIsolate(0x2068);
constexpr QChar popDirectionalIsolate(0x2069);

bool isDirectionControl(QChar character)
{
    const auto code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool isLineBreak(QChar character)
{
    return character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

QChar visible(QChar character)
{
    const bool disturbs = character.category() == QChar::Other_Control || isLineBreak(character) ||
                          isDirectionControl(character);
    return disturbs ? QChar(QChar::ReplacementCharacter) : character;
}

} // namespace

QString singleLine(const QString& text)
{
    QString line = text;
    std::transform(text.cbegin(), text.cend(), line.begin(), visible);
    return line;
}

QString isolated(const QString& text)
{
    return firstStrongIsolate + text + popDirectionalIsolate;
}

} // namespace aerolith
