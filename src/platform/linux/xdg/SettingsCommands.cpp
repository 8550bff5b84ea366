#include "platform/linux/xdg/SettingsCommands.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct DesktopCommands
{
    QLatin1StringView desktop;
    QList<QStringList> network;
    QList<QStringList> wifi;
};

/// Desktops that have no page of their own are not listed: they come with the common program.
const QList<DesktopCommands>& desktopCommands()
{
    static const QList<QStringList> plasma{{u"systemsettings"_s, u"kcm_networkmanagement"_s},
                                           {u"systemsettings5"_s, u"kcm_networkmanagement"_s}};
    static const QList<QStringList> cinnamon{{u"cinnamon-settings"_s, u"network"_s}};
    static const QList<DesktopCommands> commands{
        {.desktop = "Budgie"_L1,
         .network = {{u"budgie-control-center"_s, u"network"_s}},
         .wifi = {{u"budgie-control-center"_s, u"wifi"_s}}},
        {.desktop = "GNOME"_L1,
         .network = {{u"gnome-control-center"_s, u"network"_s}},
         .wifi = {{u"gnome-control-center"_s, u"wifi"_s}}},
        {.desktop = "Unity"_L1,
         .network = {{u"unity-control-center"_s, u"network"_s}, {u"gnome-control-center"_s, u"network"_s}},
         .wifi = {{u"unity-control-center"_s, u"network"_s}, {u"gnome-control-center"_s, u"wifi"_s}}},
        {.desktop = "KDE"_L1, .network = plasma, .wifi = plasma},
        {.desktop = "X-Cinnamon"_L1, .network = cinnamon, .wifi = cinnamon},
    };
    return commands;
}

QStringList connectionEditor(SettingsPage page)
{
    QStringList command{u"nm-connection-editor"_s};
    if (page == SettingsPage::wifi) {
        command << u"--show"_s << u"--type=802-11-wireless"_s;
    }
    return command;
}

} // namespace

QList<QStringList> settingsCommands(SettingsPage page, const QString& currentDesktop)
{
    QList<QStringList> commands;
    for (const QString& desktop : currentDesktop.split(u':')) {
        for (const DesktopCommands& known : desktopCommands()) {
            if (desktop.compare(known.desktop, Qt::CaseInsensitive) == 0) {
                commands += page == SettingsPage::wifi ? known.wifi : known.network;
            }
        }
    }
    commands.append(connectionEditor(page));
    return commands;
}

} // namespace aerolith
