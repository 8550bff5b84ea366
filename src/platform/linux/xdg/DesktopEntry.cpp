#include "platform/linux/xdg/DesktopEntry.h"

#include <QFile>
#include <QList>

#include <algorithm>

namespace aerolith::DesktopEntry {

namespace {

/// The lines of the group [Desktop Entry], its header excluded.
struct Group
{
    qsizetype begin;
    qsizetype end;
};

bool isHeader(const QByteArray& line)
{
    return line.startsWith('[');
}

std::optional<Group> entryGroup(const QList<QByteArray>& lines)
{
    const auto isEntryHeader = [](const QByteArray& line) { return line.trimmed() == "[Desktop Entry]"; };
    const auto header = std::find_if(lines.cbegin(), lines.cend(), isEntryHeader);
    if (header == lines.cend()) {
        return {};
    }
    const auto end = std::find_if(header + 1, lines.cend(), isHeader);
    return Group{header + 1 - lines.cbegin(), end - lines.cbegin()};
}

bool sets(const QByteArray& line, const QByteArray& key)
{
    const qsizetype equals = line.indexOf('=');
    return equals >= 0 && line.first(equals).trimmed() == key;
}

/// Escapes of any string value.
QByteArray escaped(const QByteArray& text)
{
    QByteArray value;
    for (const char character : text) {
        switch (character) {
        case '\\':
            value += R"(\\)";
            break;
        case '\n':
            value += R"(\n)";
            break;
        case '\r':
            value += R"(\r)";
            break;
        case '\t':
            value += R"(\t)";
            break;
        default:
            value += character;
        }
    }
    return value;
}

/// One word of a command.
QByteArray quoted(const QByteArray& word)
{
    QByteArray quoted;
    for (const char character : word) {
        if (character == '%') {
            // Alone it would begin a field code.
            quoted += '%';
        } else if (QByteArrayView("\"`$\\").contains(character)) {
            quoted += '\\';
        }
        quoted += character;
    }
    return '"' + quoted + '"';
}

} // namespace

bool isEntry(const QByteArray& file)
{
    return entryGroup(file.split('\n')).has_value();
}

std::optional<QByteArray> value(const QByteArray& file, const QByteArray& key)
{
    const QList<QByteArray> lines = file.split('\n');
    const auto group = entryGroup(lines);
    if (!group) {
        return {};
    }
    for (qsizetype i = group->end - 1; i >= group->begin; --i) {
        if (sets(lines[i], key)) {
            return lines[i].sliced(lines[i].indexOf('=') + 1).trimmed();
        }
    }
    return {};
}

QByteArray withValue(const QByteArray& file, const QByteArray& key, const QByteArray& value)
{
    QList<QByteArray> lines = file.split('\n');
    const auto group = entryGroup(lines);
    if (!group) {
        return file;
    }
    const auto isSet = [&](const QByteArray& line) { return sets(line, key); };
    const auto first = lines.begin() + group->begin;
    const auto end = lines.begin() + group->end;
    const auto found = std::find_if(first, end, isSet);
    const qsizetype place = found != end ? found - lines.begin() : group->begin;
    lines.erase(std::remove_if(first, end, isSet), end);
    lines.insert(place, key + '=' + value);
    return lines.join('\n');
}

QByteArray execValue(const QString& program)
{
    const QByteArray path = QFile::encodeName(program);
    // Some desktops look for the first word as it stands, with its percent signs doubled.
    return escaped(path.contains('%') ? "sh -c " + quoted(R"(exec "$0")") + ' ' + quoted(path)
                                      : quoted(path));
}

} // namespace aerolith::DesktopEntry
