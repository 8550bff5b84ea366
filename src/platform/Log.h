#pragma once

#include <QString>

namespace aerolith {

/// The process's log. Any thread; lines of two threads never mix.
class Log
{
public:
    Log() = default;
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    virtual ~Log() = default;

    /// Writes one line, without time stamp or level. The text may hold names from the air: characters that
    /// would break or forge a line are written as escapes.
    virtual void line(const QString& text) = 0;
};

} // namespace aerolith
