#include "platform/qt/SettingsFile.h"

#include "support/Files.h"
#include "support/Printing.h"
#include "support/RecordingLog.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>
#include <sys/stat.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

namespace {

class SettingsFileTest : public testing::Test
{
protected:
    RecordingLog m_log;
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"aerolith/aerolith.conf"_s);
};

} // namespace

TEST_F(SettingsFileTest, KeepsValuesForTheNextStart)
{
    {
        SettingsFile settings(m_path, m_log);
        EXPECT_FALSE(settings.doubleForKey(u"scanInterval"_s));
        settings.setDouble(15, u"scanInterval"_s);
        settings.setInteger(std::numeric_limits<qint64>::min(), u"historyLimit"_s);
        settings.setData("[\"aa:bb\",\"cc:dd\"]", u"hiddenBSSIDs"_s);
    }
    const SettingsFile settings(m_path, m_log);
    EXPECT_EQ(settings.doubleForKey(u"scanInterval"_s), 15.0);
    EXPECT_EQ(settings.integerForKey(u"historyLimit"_s), std::numeric_limits<qint64>::min());
    EXPECT_EQ(settings.dataForKey(u"hiddenBSSIDs"_s), QByteArray("[\"aa:bb\",\"cc:dd\"]"));
    EXPECT_EQ(m_log.take(), QStringList());
}

TEST_F(SettingsFileTest, CountsNonsenseAsAbsentAndStaysUsable)
{
    for (const QByteArray& nonsense :
         {QByteArray("scanInterval=nan\nhistoryLimit=9e99\nhiddenBSSIDs=1, 2, 3\n"),
          QByteArray("scanInterval=ten\nhistoryLimit=\nhiddenBSSIDs=@Variant(\\0\\0\\0\\x7f\\0)\n"),
          QByteArray("[[[\n\xff\xfe\0=%zz\nscanInterval\n", 26), QByteArray(5000, '%')}) {
        putFile(m_path, nonsense);
        SettingsFile settings(m_path, m_log);
        EXPECT_FALSE(settings.doubleForKey(u"scanInterval"_s)) << nonsense.toStdString();
        EXPECT_FALSE(settings.integerForKey(u"historyLimit"_s));
        EXPECT_FALSE(settings.dataForKey(u"hiddenBSSIDs"_s));
        settings.setDouble(7, u"scanInterval"_s);
        EXPECT_EQ(settings.doubleForKey(u"scanInterval"_s), 7.0);
    }
}

TEST_F(SettingsFileTest, IsItsOwnersAlone)
{
    const mode_t usual = umask(0);
    SettingsFile settings(m_path, m_log);
    settings.setData("[\"aa:bb\"]", u"hiddenBSSIDs"_s);
    umask(usual);
    constexpr auto owners = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(m_path), owners);

    const auto open = owners | QFile::ReadGroup | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(m_path, open));
    settings.setDouble(7, u"scanInterval"_s);
    EXPECT_EQ(QFile::permissions(m_path), owners) << "at the next change";
    ASSERT_TRUE(QFile::setPermissions(m_path, open));
    const SettingsFile restarted(m_path, m_log);
    EXPECT_EQ(QFile::permissions(m_path), owners) << "at the next start";
    EXPECT_EQ(restarted.dataForKey(u"hiddenBSSIDs"_s), QByteArray("[\"aa:bb\"]"));
}

TEST_F(SettingsFileTest, KeepsQtFromValuesThatTheProgramDoesNotStore)
{
    // A list of four thousand million texts, by one damaged byte; the other number is whole.
    putFile(m_path, "historyLimit=20\nasText=\"[\\\"aa:bb\\\"]\"\nscanInterval=@Variant("
                    "\\0\\0\\0\\xB\\xff\\xff\\xff\\xf0\\0\\0)\n"
                    "other=@Variant(\\0\\0\\0\\x6@.\\0\\0\\0\\0\\0\\0)\n");
    SettingsFile settings(m_path, m_log);
    EXPECT_EQ(m_log.take(), QStringList(u"The settings file %1 is malformed: what cannot be read counts as "
                                        "not set"_s.arg(m_path)));
    EXPECT_FALSE(settings.doubleForKey(u"scanInterval"_s));
    EXPECT_EQ(settings.integerForKey(u"historyLimit"_s), 20);
    EXPECT_EQ(settings.doubleForKey(u"other"_s), 15.0);
    EXPECT_EQ(settings.dataForKey(u"asText"_s), QByteArray("[\"aa:bb\"]")) << "as a person may write it";
}

TEST_F(SettingsFileTest, GoesOnWithAFileThatCannotBeWrittenAndStoresAllOnceItCan)
{
    QFile blocker(m_folder.filePath(u"aerolith"_s));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    SettingsFile settings(m_path, m_log);
    m_log.take();
    settings.setDouble(7, u"scanInterval"_s);
    settings.setDouble(8, u"scanInterval"_s);
    EXPECT_EQ(settings.doubleForKey(u"scanInterval"_s), 8.0);
    const QStringList refusal{
        u"Cannot write the settings file %1: access refused or disk full"_s.arg(m_path)};
    EXPECT_EQ(m_log.take(), refusal) << "once, not at every step of a slider";

    ASSERT_TRUE(blocker.remove());
    settings.setData("[]", u"hiddenBSSIDs"_s);
    EXPECT_EQ(m_log.take(), QStringList());
    const SettingsFile reread(m_path, m_log);
    EXPECT_EQ(reread.doubleForKey(u"scanInterval"_s), 8.0);
    EXPECT_EQ(reread.dataForKey(u"hiddenBSSIDs"_s), QByteArray("[]"));

    ASSERT_TRUE(QDir(m_folder.filePath(u"aerolith"_s)).removeRecursively());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    settings.setDouble(9, u"scanInterval"_s);
    EXPECT_EQ(m_log.take(), refusal) << "a new outage";
}
