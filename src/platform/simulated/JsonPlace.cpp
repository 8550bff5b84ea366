#include "platform/simulated/JsonPlace.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace aerolith {

namespace {

constexpr qsizetype longestQuotation = 60;

QString found(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return u"null"_s;
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::String:
        return quoted(value.toString());
    case QJsonValue::Array:
        return value.toArray().isEmpty() ? u"an empty list"_s : u"a list"_s;
    case QJsonValue::Object:
        return u"an object"_s;
    case QJsonValue::Undefined:
        break;
    }
    return u"nothing"_s;
}

bool isPlainKey(const QString& key)
{
    return !key.isEmpty() && std::all_of(key.begin(), key.end(), [](QChar character) {
        return character.unicode() < 0x80 && (character.isLetterOrNumber() || character == u'_');
    });
}

} // namespace

QString quoted(const QString& text)
{
    QString result = u"\""_s;
    for (const char32_t character : text.left(longestQuotation).toUcs4()) {
        if (character == U'"' || character == U'\\') {
            result += u'\\';
            result += QChar(static_cast<char16_t>(character));
        } else if (QChar::isPrint(character)) {
            result += QChar::fromUcs4(character);
        } else {
            result += u"\\u"_s + QString::number(quint32{character}, 16).rightJustified(4, u'0');
        }
    }
    return result + (text.size() > longestQuotation ? u"…\""_s : u"\""_s);
}

JsonPlace::JsonPlace(QJsonValue document, Failure& failure)
    : m_value(std::move(document)), m_failure(&failure)
{
}

JsonPlace::JsonPlace(const JsonPlace& parent, QJsonValue value, QString step)
    : m_parent(&parent), m_value(std::move(value)), m_step(std::move(step)), m_failure(parent.m_failure)
{
}

JsonPlace JsonPlace::member(const QString& key) const
{
    return {*this, m_value.toObject().value(key), isPlainKey(key) ? u'.' + key : u'[' + quoted(key) + u']'};
}

JsonPlace JsonPlace::element(qsizetype index) const
{
    return {*this, m_value[index], u'[' + QString::number(index) + u']'};
}

JsonPlace JsonPlace::orNull() const
{
    JsonPlace place = *this;
    place.m_orNull = true;
    return place;
}

void JsonPlace::expected(const QString& what) const
{
    complain(u"expected %1%2, found %3"_s.arg(what, m_orNull ? u" or null"_s : QString(), found(m_value)));
}

void JsonPlace::complain(const QString& complaint) const
{
    if (!failed()) {
        *m_failure = Error{path() + u": "_s + complaint};
    }
}

QString JsonPlace::path() const
{
    if (m_parent == nullptr) {
        return u"top level"_s;
    }
    if (m_parent->m_parent == nullptr) {
        return m_step.startsWith(u'.') ? m_step.mid(1) : m_step;
    }
    return m_parent->path() + m_step;
}

JsonMembers::JsonMembers(const JsonPlace& place) : m_place(place), m_object(place.value().toObject())
{
    if (!place.value().isObject()) {
        place.expected(u"an object"_s);
    }
}

void JsonMembers::end() const
{
    for (const QString& key : m_object.keys()) {
        if (!m_keys.contains(key)) {
            m_place.member(key).complain(u"unknown key, expected one of "_s + m_keys.join(u", "));
        }
    }
    for (const QString& key : m_missing) {
        m_place.member(key).complain(u"expected this required key, found nothing"_s);
    }
}

} // namespace aerolith
