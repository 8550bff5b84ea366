#include "cli/ProgressLine.h"

#include <unistd.h>

namespace aerolith {

ProgressLine::ProgressLine(std::FILE* stream)
    : m_stream(stream), m_isTerminal(isatty(fileno(stream)) != 0), m_log(stream)
{
}

void ProgressLine::line(const QString& text)
{
    const std::scoped_lock lock(m_mutex);
    draw({});
    m_log.line(text);
    draw(m_shown);
}

void ProgressLine::show(const QString& text)
{
    const std::scoped_lock lock(m_mutex);
    if (m_isTerminal && text != m_shown) {
        draw(text);
        m_shown = text;
    }
}

void ProgressLine::draw(const QString& text)
{
    if (m_shown.isEmpty() && text.isEmpty()) {
        return;
    }
    // Back to the margin and erase to the end; without wrapping, so that one erasure takes all of it.
    std::fputs("\r\033[K\033[?7l", m_stream);
    std::fputs(text.toUtf8().constData(), m_stream);
    std::fputs("\033[?7h", m_stream);
    std::fflush(m_stream);
}

} // namespace aerolith
