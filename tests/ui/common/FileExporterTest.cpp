#include "support/Printing.h"
#include "ui/SavedFiles.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(FileExporter, SuggestsTheFolderOfTheLastFileAndEndsABareNameUnlessThatReplacesAFile)
{
    SavedFiles files;
    QWidget view;
    const auto save = [&](const QString& path, const QString& text) {
        files.exporter.save(view, u"list.csv"_s, [text] { return CSVFile(text); });
        return files.confirm(path);
    };
    EXPECT_EQ(save(files.path(u"list.txt"_s), u"1"_s), "1");
    save(files.path(u"bare"_s), u"2"_s);
    EXPECT_EQ(files.suggested(), files.path(u"list.csv"_s));
    EXPECT_FALSE(QFile::exists(files.path(u"bare"_s)));
    EXPECT_EQ(save(files.path(u"bare"_s), u"3"_s), "3") << "bare.csv exists, and nobody was asked about it";
}

} // namespace aerolith
