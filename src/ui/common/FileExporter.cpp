#include "ui/common/FileExporter.h"

#include "platform/files/WholeFile.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString documentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// A name typed without an ending gets one, unless that would replace a file that the user was not asked
/// about.
QString withEnding(const QString& path)
{
    const QString ended = path + ".csv"_L1;
    const bool isComplete = !QFileInfo(path).suffix().isEmpty() || QFileInfo::exists(path);
    return isComplete || QFileInfo::exists(ended) ? path : ended;
}

} // namespace

FileExporter::FileExporter(Log& log, AskForFile ask)
    : m_log(log), m_ask(std::move(ask)), m_folder(documentsFolder())
{
}

void FileExporter::save(QWidget& view, const QString& defaultName, const std::function<CSVFile()>& document)
{
    m_ask(view, QDir(m_folder).filePath(defaultName),
          [this, document](const QString& path) { write(withEnding(path), document()); });
}

void FileExporter::write(const QString& path, const CSVFile& document)
{
    m_folder = QFileInfo(path).absolutePath();
    if (const Failure failure = writeFile(path, document.fileWrapper())) {
        m_log.line(failure->description);
    }
}

void FileExporter::askByDialog(QWidget& view, const QString& path,
                               const std::function<void(const QString& path)>& chosen)
{
    auto* dialog = new QFileDialog(view.window());
    dialog->setObjectName(u"saveDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setMimeTypeFilters(CSVFile::contentTypes());
    dialog->setDirectory(QFileInfo(path).absolutePath());
    dialog->selectFile(QFileInfo(path).fileName());
    QObject::connect(dialog, &QFileDialog::fileSelected, &view, chosen);
    // Open to the window alone, and back to the event loop.
    dialog->open();
}

} // namespace aerolith
