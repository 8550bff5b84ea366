#pragma once

#include <QString>

namespace aerolith {

/// Release notes as text to read, whether they were written as HTML or as plain text: markup is left out,
/// never obeyed. Paragraphs have an empty line between them, items of a list begin with a bullet, and there
/// is no control character but the line feed. At most 20,000 characters, the rest is cut off. Takes time in
/// proportion to the text's length, whatever is in it.
[[nodiscard]] QString readableNotes(const QString& notes);

} // namespace aerolith
