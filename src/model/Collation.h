#pragma once

#include <QByteArray>
#include <QString>

#include <unicode/uversion.h>

#include <memory>

// ICU renames its namespace with every version.
U_NAMESPACE_BEGIN
class Collator;
U_NAMESPACE_END

namespace aerolith {

/// Orders texts as the user's locale does, without regard to case. One thread at a time.
class Collation
{
public:
    /// `locale` is an ICU locale identifier; one that ICU does not know falls back to its root order.
    explicit Collation(QByteArray locale);
    ~Collation();

    /// Bytes whose plain order is the order of the texts; texts that differ in case only have the same.
    [[nodiscard]] QByteArray sortKey(const QString& text) const;

private:
    [[nodiscard]] const icu::Collator* collator() const;

    QByteArray m_locale;
    /// Loaded when the first text is ordered. Null also where ICU has no data.
    mutable std::unique_ptr<icu::Collator> m_collator;
};

} // namespace aerolith
