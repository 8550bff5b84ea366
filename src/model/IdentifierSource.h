#pragma once

#include <QRandomGenerator>
#include <QUuid>

namespace aerolith {

/// Makes random (version 4) identifiers from a generator that the system's entropy seeds once: a merge of ten
/// thousand access points needs twenty thousand of them, too many to ask the system for each. Not for
/// secrets. One thread at a time.
class IdentifierSource
{
public:
    [[nodiscard]] QUuid next();

private:
    QRandomGenerator64 m_generator = QRandomGenerator64::securelySeeded();
};

} // namespace aerolith
