#include "update/FeedMarkup.h"

#include <QString>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTag = 4096;
constexpr qsizetype mostNameSpaces = 64;

/// The place behind the first `end` from `place` on; the text's end if there is none.
qsizetype behind(QLatin1StringView end, QStringView text, qsizetype place)
{
    const qsizetype found = text.indexOf(end, place);
    return found < 0 ? text.size() : found + end.size();
}

/// The place behind the tag that begins at `place`: quoted values may hold what ends a tag elsewhere.
qsizetype behindTag(QStringView text, qsizetype place)
{
    QChar quote;
    for (; place < text.size(); ++place) {
        const QChar character = text[place];
        if (!quote.isNull()) {
            quote = character == quote ? QChar() : quote;
        } else if (character == u'"' || character == u'\'') {
            quote = character;
        } else if (character == u'>') {
            return place + 1;
        }
    }
    return text.size();
}

} // namespace

Failure markupObstacle(QStringView feed)
{
    const auto at = [feed](qsizetype place, const QString& complaint) {
        return Error{u"line %1: %2"_s.arg(feed.first(place).count(u'\n') + 1).arg(complaint)};
    };
    for (qsizetype place = feed.indexOf(u'<'); place >= 0; place = feed.indexOf(u'<', place)) {
        const QStringView rest = feed.sliced(place);
        if (rest.startsWith("<!--"_L1)) {
            place = behind("-->"_L1, feed, place);
        } else if (rest.startsWith("<![CDATA["_L1)) {
            place = behind("]]>"_L1, feed, place);
        } else if (rest.startsWith("<!"_L1)) {
            return at(place, u"a document type declaration is not allowed"_s);
        } else {
            const qsizetype end = behindTag(feed, place);
            if (end - place > longestTag) {
                return at(place, u"a tag is longer than %1 characters"_s.arg(longestTag));
            }
            place = end;
        }
    }
    if (feed.count("xmlns"_L1) > mostNameSpaces) {
        return at(0, u"the feed declares more than %1 name spaces"_s.arg(mostNameSpaces));
    }
    return {};
}

} // namespace aerolith
