#include "model/Collation.h"

#include <QtGlobal>

#include <unicode/coll.h>
#include <unicode/unistr.h>

#include <utility>

namespace aerolith {

Collation::Collation(QByteArray locale) : m_locale(std::move(locale)) {}

Collation::~Collation() = default;

const icu::Collator* Collation::collator() const
{
    if (!m_collator) {
        UErrorCode status = U_ZERO_ERROR;
        m_collator.reset(icu::Collator::createInstance(icu::Locale(m_locale.constData()), status));
        if (m_collator) {
            // The secondary level: base letters and accents count, case does not.
            m_collator->setStrength(icu::Collator::SECONDARY);
        }
    }
    return m_collator.get();
}

QByteArray Collation::sortKey(const QString& text) const
{
    const icu::Collator* collator = this->collator();
    // ICU without its data files still has to give a usable order.
    if (collator == nullptr) {
        return text.toCaseFolded().toUtf8();
    }
    const icu::UnicodeString source(false, reinterpret_cast<const char16_t*>(text.utf16()),
                                    static_cast<int32_t>(text.size()));
    QByteArray key(64, Qt::Uninitialized);
    const auto fill = [&] {
        return collator->getSortKey(source, reinterpret_cast<uint8_t*>(key.data()),
                                    static_cast<int32_t>(key.size()));
    };
    const int32_t needed = fill();
    if (needed > key.size()) {
        key.resize(needed);
        fill();
    }
    key.truncate(needed);
    return key;
}

} // namespace aerolith
