#include "platform/files/WholeFile.h"

#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(WholeFile, ReplacesAFileInOneStep)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.csv"_s);
    EXPECT_FALSE(writeFile(path, "first, and longer"));
    EXPECT_FALSE(writeFile(path, "second"));
    EXPECT_EQ(readFile(path).value(), "second");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing else is left behind";
}

TEST(WholeFile, NamesPathAndReasonAndTouchesNothing)
{
    const QTemporaryDir folder;
    const QString nowhere = folder.filePath(u"no/list.csv"_s);
    EXPECT_EQ(writeFile(nowhere, "x")->description,
              u"Cannot write %1: No such file or directory"_s.arg(nowhere));
    EXPECT_EQ(readFile(nowhere).error().description,
              u"Cannot read %1: No such file or directory"_s.arg(nowhere));
    EXPECT_TRUE(writeFile(folder.path(), "x")) << "a folder";
    EXPECT_FALSE(readFile(u"/proc/self/mem"_s).ok()) << "it can be opened, but not read";
    EXPECT_EQ(writeFile(u"/dev/full"_s, "x")->description,
              u"Cannot write /dev/full: No space left on device"_s);
    EXPECT_TRUE(QFile::exists(u"/dev/full"_s)) << "a device is not replaced by a file";
}
