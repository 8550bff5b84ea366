#include "export/CSVFile.h"

namespace aerolith {

CSVFile CSVFile::reading(const QByteArray& /*file*/)
{
    return CSVFile(QString());
}

QStringList CSVFile::contentTypes()
{
    return {QStringLiteral("text/csv")};
}

} // namespace aerolith
