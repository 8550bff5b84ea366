#include "ui/common/FileExporter.h"

#include "support/Printing.h"
#include "ui/SavedFiles.h"

#include <QDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class FileExporterTest : public testing::Test
{
protected:
    QByteArray save(const QString& path, const QString& text)
    {
        files.exporter.save(view, u"list.csv"_s, [text] { return CSVFile(text); });
        return files.confirm(path);
    }

    SavedFiles files;
    QWidget view;
};

} // namespace

TEST_F(FileExporterTest, SuggestsTheFolderOfTheLastFile)
{
    ASSERT_TRUE(QDir(files.path(u"."_s)).mkdir(u"below"_s));
    EXPECT_EQ(save(files.path(u"below/one.csv"_s), u"1"_s), "1");
    save(files.path(u"below/two.csv"_s), u"2"_s);
    EXPECT_EQ(files.suggested(), files.path(u"below/list.csv"_s));
}

TEST_F(FileExporterTest, EndsABareNameUnlessThatReplacesAFile)
{
    save(files.path(u"bare"_s), u"1"_s);
    EXPECT_FALSE(QFile::exists(files.path(u"bare"_s)));
    EXPECT_EQ(save(files.path(u"bare"_s), u"2"_s), "2") << "bare.csv exists, and nobody was asked about it";
    EXPECT_EQ(save(files.path(u"list.txt"_s), u"3"_s), "3");
}

TEST_F(FileExporterTest, LogsWhatCannotBeWritten)
{
    const QString nowhere = files.path(u"no/such/folder/list.csv"_s);
    save(nowhere, u"1"_s);
    const QStringList lines = files.log.take();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().contains(nowhere));
    EXPECT_TRUE(lines.first().contains(u"No such file or directory"_s));
}

} // namespace aerolith
