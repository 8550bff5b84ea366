#pragma once

#include "platform/Log.h"

#include <cstdio>

namespace aerolith {

/// Writes log lines to a standard stream, each in one piece and at once.
class StandardLog : public Log
{
public:
    /// `stream` is stdout or stderr.
    explicit StandardLog(std::FILE* stream) : m_stream(stream) {}

    void line(const QString& text) override;

private:
    std::FILE* m_stream;
};

/// The text with every character that could end or disguise a line, or drive a terminal, as a \u{...} escape:
/// control characters, line and paragraph separators, and the controls of text direction.
[[nodiscard]] QString escapedForLog(const QString& text);

} // namespace aerolith
