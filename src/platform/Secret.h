#pragma once

#include "platform/Undumpable.h"

#include <QString>

#include <cstring>

namespace aerolith {

/// Overwrites the text where it lies, also in every copy that shares its storage, and empties it. A literal's
/// storage is left alone.
inline void wipe(QString& text)
{
    if (text.capacity() > 0) {
        // Not data(): that would make a copy to write into wherever the storage is shared.
        explicit_bzero(const_cast<QChar*>(text.constData()),
                       static_cast<std::size_t>(text.size()) * sizeof(QChar));
    }
    text.clear();
}

/// A password of the program's own keeping: a copy in storage of its own, overwritten when it goes. Copies of
/// text() share that storage, so that they go with it. Until then there is no core dump.
class Secret
{
public:
    explicit Secret(const QString& text) : m_text(text.constData(), text.size()) {}

    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;

    ~Secret() { wipe(m_text); }

    [[nodiscard]] const QString& text() const { return m_text; }

private:
    Undumpable m_undumpable;
    QString m_text;
};

} // namespace aerolith
