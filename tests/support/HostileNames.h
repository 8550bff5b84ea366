#pragma once

#include <QString>
#include <QStringList>

namespace aerolith {

/// Names that anybody may give a network: more than one line, markup, mnemonics, control characters, text
/// that turns its surroundings around, towers of marks, the widest there are, nothing but pictures.
inline QStringList hostileNames()
{
    using namespace Qt::StringLiterals;
    return {u"one\ntwo\nthree\r\n\u2028four\u0085five"_s,
            u"<h1>Big</h1> & <img src=x><br>"_s,
            u"&File %1 %s %n"_s,
            u"\u202Egpj.exe \u2067\u2067"_s,
            u"\u0000\u0001\u001B[31m"_s,
            u"Z"_s + u"\u0336\u0353\u0489"_s.repeated(10),
            u"A"_s + QString(15, QChar(0x0301)),
            u"g"_s + QString(15, QChar(0x0323)),
            QString(32, u'W'),
            u"﷽﷽﷽"_s,
            u"\U0001F4F6"_s.repeated(8)};
}

} // namespace aerolith
