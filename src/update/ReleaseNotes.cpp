#include "update/ReleaseNotes.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <optional>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestNotes = 20'000;

/// What separates two pieces of text, as line feeds.
enum Break
{
    none,
    line,
    paragraph
};

Break breakAround(const QString& tag)
{
    static const QSet<QString> paragraphs{u"p"_s,          u"h1"_s,    u"h2"_s, u"h3"_s, u"h4"_s,
                                          u"h5"_s,         u"h6"_s,    u"ul"_s, u"ol"_s, u"dl"_s,
                                          u"blockquote"_s, u"table"_s, u"hr"_s, u"pre"_s};
    static const QSet<QString> lines{u"li"_s,   u"div"_s,     u"tr"_s,      u"dt"_s,     u"dd"_s,
                                     u"body"_s, u"section"_s, u"article"_s, u"header"_s, u"footer"_s};
    return paragraphs.contains(tag) ? paragraph : lines.contains(tag) ? line : none;
}

/// What stands in such an element is not for readers.
bool isUnread(const QString& tag)
{
    static const QSet<QString> unread{u"script"_s, u"style"_s, u"title"_s, u"template"_s};
    return unread.contains(tag);
}

/// The character that an entity stands for, by what is between "&" and ";".
std::optional<char32_t> entity(QStringView name)
{
    static const QHash<QString, char32_t> names{
        {u"amp"_s, U'&'},        {u"lt"_s, U'<'},         {u"gt"_s, U'>'},         {u"quot"_s, U'"'},
        {u"apos"_s, U'\''},      {u"nbsp"_s, U'\u00A0'},  {u"copy"_s, U'\u00A9'},  {u"laquo"_s, U'\u00AB'},
        {u"raquo"_s, U'\u00BB'}, {u"times"_s, U'\u00D7'}, {u"ndash"_s, U'\u2013'}, {u"mdash"_s, U'\u2014'},
        {u"lsquo"_s, U'\u2018'}, {u"rsquo"_s, U'\u2019'}, {u"ldquo"_s, U'\u201C'}, {u"rdquo"_s, U'\u201D'},
        {u"bull"_s, U'\u2022'},  {u"hellip"_s, U'\u2026'}};
    if (!name.startsWith(u'#')) {
        const auto found = names.constFind(name.toString());
        return found != names.cend() ? std::optional(*found) : std::nullopt;
    }
    const bool isHexadecimal = name.startsWith(u"#x"_s, Qt::CaseInsensitive);
    bool ok = false;
    const uint code = name.sliced(isHexadecimal ? 2 : 1).toUInt(&ok, isHexadecimal ? 16 : 10);
    if (!ok) {
        return {};
    }
    const bool isCharacter = code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    return isCharacter ? char32_t{code} : char32_t{QChar::ReplacementCharacter};
}

bool isBlank(char32_t character)
{
    return QChar::category(character) == QChar::Other_Control || character == U' ' ||
           character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

/// The text as it grows: blanks and breaks are written when something follows them.
class Text
{
public:
    void add(char32_t character)
    {
        if (isBlank(character)) {
            m_blank = true;
            return;
        }
        if (m_text.isEmpty() || m_break != none) {
            m_text += QString(m_text.isEmpty() ? 0 : m_break, u'\n');
        } else if (m_blank) {
            m_text += u' ';
        }
        if (std::exchange(m_beginsItem, false)) {
            m_text += u"\u2022 "_s;
        }
        m_text += QString::fromUcs4(&character, 1);
        m_break = none;
        m_blank = false;
    }

    void breakAtLeast(Break least) { m_break = std::max(m_break, least); }

    void breakOnceMore() { m_break = m_break == none ? line : paragraph; }

    /// What follows begins an item of a list, or does not.
    void setBeginsItem(bool begins) { m_beginsItem = begins; }

    [[nodiscard]] bool isFull() const { return m_text.size() >= longestNotes; }

    [[nodiscard]] QString result() const { return isFull() ? m_text + u'\u2026' : m_text; }

private:
    QString m_text;
    Break m_break = none;
    bool m_blank = false;
    bool m_beginsItem = false;
};

/// Goes through the notes once, from the front.
class NotesReader
{
public:
    explicit NotesReader(QStringView notes) : m_rest(notes), m_keepsLines(!hasMarkup(notes)) {}

    [[nodiscard]] QString read()
    {
        while (!m_rest.isEmpty() && !m_text.isFull()) {
            if (beginsMarkup(m_rest)) {
                readMarkup();
            } else if (!readEntity()) {
                readCharacter();
            }
        }
        return m_text.result();
    }

private:
    /// A "<" that nothing follows which could be a name is one.
    [[nodiscard]] static bool beginsMarkup(QStringView text)
    {
        return text.size() > 1 && text.front() == u'<' &&
               (text[1].isLetter() || text[1] == u'/' || text[1] == u'!' || text[1] == u'?');
    }

    [[nodiscard]] static bool hasMarkup(QStringView text)
    {
        for (qsizetype i = text.indexOf(u'<'); i >= 0; i = text.indexOf(u'<', i + 1)) {
            if (beginsMarkup(text.sliced(i))) {
                return true;
            }
        }
        return false;
    }

    /// Skips to behind `end`; to the end of the notes without one.
    QStringView take(QStringView end, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive)
    {
        const qsizetype at = m_rest.indexOf(end, 0, sensitivity);
        const QStringView taken = at < 0 ? m_rest : m_rest.first(at);
        m_rest = at < 0 ? QStringView() : m_rest.sliced(at + end.size());
        return taken;
    }

    void readMarkup()
    {
        if (m_rest.startsWith(u"<!--"_s)) {
            take(u"-->"_s);
            return;
        }
        const QStringView tag = take(u">"_s).sliced(1);
        const bool ends = tag.startsWith(u'/');
        const auto nameEnd = std::find_if(tag.begin() + (ends ? 1 : 0), tag.end(),
                                          [](QChar character) { return !character.isLetterOrNumber(); });
        obey(tag.first(nameEnd - tag.begin()).sliced(ends ? 1 : 0).toString().toLower(), ends);
    }

    void obey(const QString& tag, bool ends)
    {
        if (isUnread(tag) && !ends) {
            take(u"</"_s + tag, Qt::CaseInsensitive);
            take(u">"_s);
        } else if (tag == "br"_L1) {
            m_text.breakOnceMore();
        } else if (tag == "td"_L1 || tag == "th"_L1) {
            m_text.add(U' ');
        }
        if (tag == "pre"_L1) {
            m_keepsLines = !ends;
        }
        m_text.breakAtLeast(breakAround(tag));
        if (tag == "li"_L1) {
            m_text.setBeginsItem(!ends);
        }
    }

    bool readEntity()
    {
        constexpr qsizetype longestName = 10;
        if (m_rest.front() != u'&') {
            return false;
        }
        const qsizetype end = m_rest.first(std::min(m_rest.size(), longestName)).indexOf(u';');
        const auto character = end > 0 ? entity(m_rest.first(end).sliced(1)) : std::nullopt;
        if (character) {
            m_text.add(*character);
            m_rest = m_rest.sliced(end + 1);
        }
        return character.has_value();
    }

    void readCharacter()
    {
        if (m_keepsLines && m_rest.front() == u'\n') {
            m_text.breakOnceMore();
        } else if (m_rest.size() > 1 && m_rest.front().isHighSurrogate() && m_rest[1].isLowSurrogate()) {
            m_text.add(QChar::surrogateToUcs4(m_rest[0], m_rest[1]));
            m_rest = m_rest.sliced(1);
        } else {
            m_text.add(m_rest.front().unicode());
        }
        m_rest = m_rest.sliced(1);
    }

    QStringView m_rest;
    /// A line feed counts as one.
    bool m_keepsLines;
    Text m_text;
};

} // namespace

QString readableNotes(const QString& notes)
{
    return NotesReader(notes).read();
}

} // namespace aerolith
