#pragma once

#include "platform/Log.h"
#include "platform/qt/StandardLog.h"

#include <QString>

#include <cstdio>
#include <mutex>

namespace aerolith {

/// A log whose stream, where it is a terminal, may have one more line below its last: how far a run has come.
/// Any thread.
class ProgressLine : public Log
{
public:
    /// `stream` is stdout or stderr.
    explicit ProgressLine(std::FILE* stream);

    void line(const QString& text) override;

    /// Replaces what stood in the bottom line; an empty text takes it away. Does nothing where the stream is
    /// no terminal. A text that is longer than the terminal is wide is cut off by it.
    void show(const QString& text);

private:
    void draw(const QString& text);

    std::FILE* m_stream;
    bool m_isTerminal;
    StandardLog m_log;
    std::mutex m_mutex;
    QString m_shown;
};

} // namespace aerolith
