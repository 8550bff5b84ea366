#include "app/Translations.h"

#include "support/Printing.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <tuple>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(Translations, ChoosesTheFirstLanguageThatThereIsAndCountsAsItDoes)
{
    const std::tuple<QStringList, QString, QString> cases[] = {
        {{}, u"Channel"_s, u"1 Networks"_s},
        {{u"en_GB"_s, u"de"_s}, u"Channel"_s, u"1 Networks"_s},
        {{u"tlh"_s, u"de_AT"_s, u"fr"_s}, u"Kanal"_s, u"1 Netzwerk"_s},
        {{u"zh_SG"_s}, u"\u4fe1\u9053"_s, u"1 \u4e2a\u7f51\u7edc"_s},
        {{u"zh_TW"_s, u"es_419"_s}, u"Canal"_s, u"1 red"_s},
        {{u"zh_TW"_s}, u"Channel"_s, u"1 Networks"_s},
        // Only while they live.
        {{}, u"Channel"_s, u"1 Networks"_s},
    };
    for (const auto& [languages, channel, oneNetwork] : cases) {
        SCOPED_TRACE(languages.join(u' ').toStdString());
        const Translations translations(languages);
        EXPECT_EQ(QCoreApplication::translate("aerolith::SidebarStatusBar", "Channel"), channel);
        EXPECT_EQ(QCoreApplication::translate("aerolith::Sidebar", "%n Networks", nullptr, 1), oneNetwork);
    }
}

} // namespace aerolith
