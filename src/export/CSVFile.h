#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>

namespace aerolith {

/// A document of one CSV text, for export only.
class CSVFile
{
public:
    explicit CSVFile(QString content) : m_content(std::move(content)) {}

    /// The document that stands for a file read in: empty, whatever the file holds.
    [[nodiscard]] static CSVFile reading(const QByteArray& file);

    /// The media types that can be read, and written: comma-separated values alone.
    [[nodiscard]] static QStringList contentTypes();

    [[nodiscard]] const QString& content() const { return m_content; }

    /// The whole contents of the file: UTF-8 without a byte-order mark.
    [[nodiscard]] QByteArray fileWrapper() const { return m_content.toUtf8(); }

private:
    QString m_content;
};

} // namespace aerolith
