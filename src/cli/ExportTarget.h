#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QString>

#include <cstdio>

namespace aerolith {

/// Takes documents and lines to files and, by the name of "-", to standard output. Main thread.
class ExportTarget
{
public:
    /// `output` is what "-" stands for; it outlives this.
    explicit ExportTarget(std::FILE* output) : m_output(output) {}

    /// On standard output a document begins on a line of its own, and on a terminal the last one ends its
    /// line.
    [[nodiscard]] Failure write(const QString& file, const QByteArray& document);

    /// To standard output, as it stands. A pipe that nobody reads any more is no failure: who reads one may
    /// have read enough.
    [[nodiscard]] Failure print(const QByteArray& bytes);

    /// Whether standard output takes nothing any more.
    [[nodiscard]] bool isClosed() const { return m_isClosed; }

private:
    std::FILE* m_output;
    bool m_lineIsOpen = false;
    bool m_isClosed = false;
};

} // namespace aerolith
