#include "update/Appcast.h"

#include "update/FeedMarkup.h"
#include "update/HttpsAddress.h"
#include "update/ReleaseNotes.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownNamespace = "https://aerolith.example/appcast"_L1;

class AppcastReader
{
public:
    explicit AppcastReader(const QString& feed) : m_xml(feed) {}

    [[nodiscard]] Result<QList<AppcastItem>> read()
    {
        readDocument();
        if (!m_xml.hasError()) {
            return m_items;
        }
        // The reader's own words may quote the feed.
        constexpr qsizetype longest = 200;
        return Error{u"line %1: %2"_s.arg(m_xml.lineNumber()).arg(m_xml.errorString().left(longest))};
    }

private:
    /// Goes to the next element inside the current one; false at its end.
    bool readNextElement()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
                return false;
            default:
                break;
            }
        }
        return false;
    }

    [[nodiscard]] bool isAt(QLatin1StringView element) const
    {
        return m_xml.name() == element && m_xml.namespaceUri().isEmpty();
    }

    void readDocument()
    {
        if (readNextElement()) {
            if (!isAt("rss"_L1) || m_xml.attributes().value("version"_L1) != "2.0"_L1) {
                m_xml.raiseError(u"this is no RSS 2.0 feed"_s);
            }
            readRss();
        }
        // Something may follow that makes it no XML.
        while (!m_xml.atEnd()) {
            readNextElement();
        }
    }

    void readRss()
    {
        bool hasChannel = false;
        while (readNextElement()) {
            if (isAt("channel"_L1)) {
                hasChannel = true;
                readChannel();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (!hasChannel && !m_xml.hasError()) {
            m_xml.raiseError(u"the feed has no channel"_s);
        }
    }

    void readChannel()
    {
        while (readNextElement()) {
            if (isAt("item"_L1)) {
                readItem();
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void readItem()
    {
        const qsizetype first = m_items.size();
        QString notes;
        while (readNextElement()) {
            if (isAt("enclosure"_L1)) {
                m_items.append(enclosure());
                m_xml.skipCurrentElement();
            } else if (isAt("description"_L1)) {
                notes = readableNotes(readText());
            } else {
                m_xml.skipCurrentElement();
            }
        }
        for (qsizetype i = first; i < m_items.size(); ++i) {
            m_items[i].notes = notes;
        }
    }

    /// All text inside the current element. Qt's own way calls itself for each element in it, and would run
    /// out of stack.
    QString readText()
    {
        QString text;
        for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                ++depth;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            case QXmlStreamReader::Characters:
                text += m_xml.text();
                break;
            default:
                break;
            }
        }
        return text;
    }

    [[nodiscard]] AppcastItem enclosure()
    {
        AppcastItem item;
        item.versionText = required("version"_L1, ownNamespace);
        item.version = understood(Version::parse(item.versionText), "version"_L1);
        item.url = understood(httpsUrl(required("url"_L1)), "url"_L1);
        item.length = understood(fileLength(required("length"_L1)), "length"_L1);
        item.signature =
            understood(Signature::parse(required("edSignature"_L1, ownNamespace)), "edSignature"_L1);
        item.architecture = m_xml.attributes().value(ownNamespace, "architecture"_L1).toString();
        return item;
    }

    [[nodiscard]] QString required(QLatin1StringView attribute, QLatin1StringView nameSpace = {})
    {
        QString value = m_xml.attributes().value(nameSpace, attribute).toString();
        if (value.isEmpty() && !m_xml.hasError()) {
            m_xml.raiseError(u"the enclosure has no attribute \"%1\""_s.arg(attribute));
        }
        return value;
    }

    template <typename Value>
    [[nodiscard]] Value understood(const std::optional<Value>& value, QLatin1StringView attribute)
    {
        if (!value && !m_xml.hasError()) {
            m_xml.raiseError(u"the enclosure's attribute \"%1\" cannot be used"_s.arg(attribute));
        }
        return value.value_or(Value());
    }

    [[nodiscard]] static std::optional<QUrl> httpsUrl(const QString& text)
    {
        const QUrl url(text, QUrl::StrictMode);
        return isHttpsAddress(url) ? std::optional(url) : std::nullopt;
    }

    [[nodiscard]] static std::optional<qint64> fileLength(const QString& text)
    {
        bool ok = false;
        const qint64 length = text.toLongLong(&ok);
        return ok && length >= 1 && length <= maximumDownloadSize ? std::optional(length) : std::nullopt;
    }

    QXmlStreamReader m_xml;
    QList<AppcastItem> m_items;
};

} // namespace

Result<QList<AppcastItem>> parseAppcast(const QByteArray& feed)
{
    if (feed.size() > maximumFeedSize) {
        return Error{u"the feed is larger than %1 bytes"_s.arg(maximumFeedSize)};
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(feed);
    if (decoder.hasError()) {
        const qsizetype place = std::max<qsizetype>(text.indexOf(QChar::ReplacementCharacter), 0);
        return Error{u"line %1: the feed is not UTF-8 text"_s.arg(text.first(place).count(u'\n') + 1)};
    }
    if (const Failure obstacle = markupObstacle(text)) {
        return *obstacle;
    }
    return AppcastReader(text).read();
}

std::optional<AppcastItem> newestUpdate(const QList<AppcastItem>& items, const Version& running,
                                        const QString& architecture)
{
    std::optional<AppcastItem> newest;
    for (const AppcastItem& item : items) {
        const bool runsHere = item.architecture.isEmpty() || item.architecture == architecture;
        if (runsHere && item.version > (newest ? newest->version : running)) {
            newest = item;
        }
    }
    return newest;
}

} // namespace aerolith
