#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

/// Desktop entry files as text: pure functions over a file's bytes.
namespace aerolith::DesktopEntry {

/// Whether there is a group [Desktop Entry] at all.
[[nodiscard]] bool isEntry(const QByteArray& file);

/// The value of the entry's own key, escapes as in the file; of several the last. Absent when it is not set.
[[nodiscard]] std::optional<QByteArray> value(const QByteArray& file, const QByteArray& key);

/// The entry with `key` set, and everything else kept byte by byte: comments, foreign keys, other groups.
/// `value` has its escapes. A file that is no entry is returned as it is.
[[nodiscard]] QByteArray withValue(const QByteArray& file, const QByteArray& key, const QByteArray& value);

/// The value of the key Exec that runs this program, by its path, with no arguments, whatever characters the
/// path has.
[[nodiscard]] QByteArray execValue(const QString& program);

} // namespace aerolith::DesktopEntry
