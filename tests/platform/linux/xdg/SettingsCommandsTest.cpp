#include "platform/linux/xdg/SettingsCommands.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(SettingsCommands, BeginWithTheRunningDesktopsOwn)
{
    struct
    {
        QString desktop;
        QString network;
        QString wifi;
    } const cases[] = {
        {u"GNOME"_s, u"gnome-control-center network"_s, u"gnome-control-center wifi"_s},
        {u"ubuntu:GNOME"_s, u"gnome-control-center network"_s, u"gnome-control-center wifi"_s},
        {u"Budgie:GNOME"_s, u"budgie-control-center network"_s, u"budgie-control-center wifi"_s},
        {u"Unity:Unity7:ubuntu"_s, u"unity-control-center network"_s, u"unity-control-center network"_s},
        {u"KDE"_s, u"systemsettings kcm_networkmanagement"_s, u"systemsettings kcm_networkmanagement"_s},
        {u"X-Cinnamon"_s, u"cinnamon-settings network"_s, u"cinnamon-settings network"_s},
        {u"XFCE"_s, u"nm-connection-editor"_s, u"nm-connection-editor --show --type=802-11-wireless"_s},
        {u"sway"_s, u"nm-connection-editor"_s, u"nm-connection-editor --show --type=802-11-wireless"_s},
        {u"::"_s, u"nm-connection-editor"_s, u"nm-connection-editor --show --type=802-11-wireless"_s},
        {QString(), u"nm-connection-editor"_s, u"nm-connection-editor --show --type=802-11-wireless"_s},
    };

    for (const auto& [desktop, network, wifi] : cases) {
        SCOPED_TRACE(desktop.toStdString());
        const auto commands = settingsCommands(SettingsPage::network, desktop);
        EXPECT_EQ(commands.first().join(u' '), network);
        EXPECT_EQ(commands.last(), QStringList{u"nm-connection-editor"_s}) << "what any desktop may have";
        EXPECT_EQ(settingsCommands(SettingsPage::wifi, desktop).first().join(u' '), wifi);
    }
}

} // namespace aerolith
