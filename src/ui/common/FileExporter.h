#pragma once

#include "export/CSVFile.h"
#include "platform/Log.h"

#include <QString>

#include <functional>

class QWidget;

namespace aerolith {

/// Saves a document where the user wants it. Nothing is shown of the outcome; what could not be written is
/// logged. Main thread.
class FileExporter
{
public:
    /// Asks for a file, without blocking, over the view's window: suggests `path` and calls `chosen` with the
    /// path that the user has confirmed, at most once and only while the view exists.
    using AskForFile = std::function<void(QWidget& view, const QString& path,
                                          const std::function<void(const QString& path)>& chosen)>;

    explicit FileExporter(Log& log, AskForFile ask = askByDialog);

    /// The exporter outlives the view. `document` is called when the user has confirmed: what is saved is
    /// what is shown then.
    void save(QWidget& view, const QString& defaultName, const std::function<CSVFile()>& document);

private:
    /// The desktop's own dialog for saving, where it has one.
    static void askByDialog(QWidget& view, const QString& path,
                            const std::function<void(const QString& path)>& chosen);
    void write(const QString& path, const CSVFile& document);

    Log& m_log;
    AskForFile m_ask;
    /// Where the last file was saved in this session.
    QString m_folder;
};

} // namespace aerolith
