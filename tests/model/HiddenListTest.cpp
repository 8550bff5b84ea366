#include "model/HiddenList.h"

#include "model/SettingKeys.h"
#include "support/MemoryDefaults.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using namespace aerolith;
using namespace Qt::StringLiterals;

TEST(HiddenList, IsStoredAsCompactJson)
{
    MemoryDefaults defaults;
    saveHiddenBSSIDs(defaults, {u"aa:bb"_s, u"aa:bb"_s, u"q\"\u00fc"_s});
    EXPECT_EQ(defaults.dataForKey(SettingKeys::hiddenBSSIDs),
              QByteArray("[\"aa:bb\",\"aa:bb\",\"q\\\"\xc3\xbc\"]"));
    EXPECT_EQ(loadHiddenBSSIDs(defaults), QStringList({u"aa:bb"_s, u"aa:bb"_s, u"q\"\u00fc"_s}));
    saveHiddenBSSIDs(defaults, {});
    EXPECT_EQ(defaults.dataForKey(SettingKeys::hiddenBSSIDs), QByteArray("[]"));
}

TEST(HiddenList, ReadsAnyJsonArrayOfStringsAndNothingElse)
{
    EXPECT_EQ(decodeHiddenBSSIDs(" [ \"a\" ,\n\"b\" ] "), QStringList({u"a"_s, u"b"_s}));
    for (const QByteArray& stored :
         {QByteArray(), QByteArray("[\"a\""), QByteArray("{\"a\":1}"), QByteArray("[\"a\",1]"),
          QByteArray("[\"a\",[\"b\"]]"), QByteArray("\"a\""), QByteArray("[\"a\"] x"),
          QByteArray("[\"\xff\"]"), QByteArray("\0[\"a\"]", 6)}) {
        EXPECT_EQ(decodeHiddenBSSIDs(stored), QStringList()) << stored.toStdString();
    }
}
