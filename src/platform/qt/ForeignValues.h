#pragma once

#include <QByteArray>

namespace aerolith {

/// The text of a settings file without the lines that Qt must not read: those with a value of a type that the
/// program does not store, in the form in which Qt stores types without a text of their own. In one of them,
/// which a damaged byte may make of any, a length may stand that asks for more memory than there is. The
/// other lines stay as they are.
[[nodiscard]] QByteArray withoutForeignValues(const QByteArray& settings);

} // namespace aerolith
