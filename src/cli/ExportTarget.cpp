#include "cli/ExportTarget.h"

#include "platform/files/WholeFile.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

Failure ExportTarget::write(const QString& file, const QByteArray& document)
{
    if (file != "-"_L1) {
        return writeFile(file, document);
    }
    QByteArray bytes = document;
    const bool endsItsLine = bytes.endsWith('\n');
    if (std::exchange(m_lineIsOpen, !endsItsLine)) {
        bytes.prepend('\n');
    }
    if (!endsItsLine && isatty(fileno(m_output)) != 0) {
        bytes.append('\n');
    }
    return print(bytes);
}

Failure ExportTarget::print(const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, m_output) == size && std::fflush(m_output) == 0) {
        return {};
    }
    m_isClosed = true;
    if (errno == EPIPE) {
        return {};
    }
    return Error{u"Cannot write standard output: "_s + QString::fromLocal8Bit(std::strerror(errno))};
}

} // namespace aerolith
