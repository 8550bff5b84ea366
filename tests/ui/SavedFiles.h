#pragma once

#include "support/RecordingLog.h"
#include "ui/common/FileExporter.h"

#include <QFile>
#include <QTemporaryDir>

namespace aerolith {

/// A user who saves files: confirms each file dialog when the test says so, with the suggested name.
class SavedFiles
{
public:
    /// The path that was suggested last.
    [[nodiscard]] const QString& suggested() const { return m_suggested; }

    /// Confirms the dialog with this path, or with the suggested name in a folder of the test's own, and
    /// reads what was saved there.
    QByteArray confirm(const QString& path = {})
    {
        const QString target = path.isEmpty() ? m_folder.filePath(QFileInfo(m_suggested).fileName()) : path;
        m_chosen(target);
        QFile file(target);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }

    RecordingLog log;
    FileExporter exporter{log, [this](QWidget&, const QString& path, const auto& chosen) {
                              m_suggested = path;
                              m_chosen = chosen;
                          }};

private:
    QTemporaryDir m_folder;
    QString m_suggested;
    std::function<void(const QString&)> m_chosen;
};

} // namespace aerolith
