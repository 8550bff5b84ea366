#pragma once

#include <QString>

namespace aerolith {

/// A name from the air as one line of text that disturbs nothing around it: every control character, line
/// break, and embedding, override or isolate of text direction stands as U+FFFD. All else is kept, joiners
/// and combining marks included. Whoever draws it draws plain text: what looks like markup or a mnemonic is
/// part of the name.
[[nodiscard]] QString singleLine(const QString& text);

/// A single-line text as a part of a longer one: its direction is its own and does not reorder its
/// surroundings.
[[nodiscard]] QString isolated(const QString& text);

} // namespace aerolith
