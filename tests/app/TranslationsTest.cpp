#include "app/Translations.h"

#include "support/Printing.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString channel()
{
    return QCoreApplication::translate("aerolith::SidebarStatusBar", "Channel");
}

QString networks(int count)
{
    return QCoreApplication::translate("aerolith::Sidebar", "%n Networks", nullptr, count);
}

} // namespace

TEST(Translations, ChoosesTheFirstLanguageThatThereIs)
{
    const struct
    {
        QStringList languages;
        QString channel;
    } cases[] = {{{}, u"Channel"_s},
                 {{u"en_GB"_s, u"de"_s}, u"Channel"_s},
                 {{u"tlh"_s, u"de_AT"_s, u"fr"_s}, u"Kanal"_s},
                 {{u"zh_SG"_s}, u"\u4fe1\u9053"_s},
                 {{u"zh_TW"_s, u"es_419"_s}, u"Canal"_s},
                 {{u"zh_TW"_s}, u"Channel"_s}};

    for (const auto& [languages, expected] : cases) {
        const Translations translations(languages);
        EXPECT_EQ(channel(), expected) << languages.join(u' ').toStdString();
    }
    EXPECT_EQ(channel(), u"Channel"_s) << "only while it lives";
}

TEST(Translations, CountsAsEachLanguageDoes)
{
    EXPECT_EQ(networks(1), u"1 Networks"_s);
    {
        const Translations german({u"de"_s});
        EXPECT_EQ(networks(1), u"1 Netzwerk"_s);
        EXPECT_EQ(networks(0), u"0 Netzwerke"_s);
    }
    const Translations french({u"fr"_s});
    EXPECT_EQ(networks(0), u"0 r\u00e9seau"_s);
}

} // namespace aerolith
