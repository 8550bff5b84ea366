#pragma once

#include <QString>
#include <QUrl>

namespace aerolith {

/// A text as a part of a URL's query: letters, digits and !$&'()*+,-./:;=?@_~ as they are, everything else as
/// its UTF-8 bytes in upper-case hexadecimal.
[[nodiscard]] QByteArray queryEncoded(const QString& text);

/// Opens a message to the maker's mailbox in the user's mail program, with a subject and a beginning.
[[nodiscard]] QUrl supportMailUrl();

} // namespace aerolith
