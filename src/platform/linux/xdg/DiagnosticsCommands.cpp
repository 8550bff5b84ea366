#include "platform/linux/xdg/DiagnosticsCommands.h"

namespace aerolith {

using namespace Qt::StringLiterals;

QList<QStringList> diagnosticsCommands(const QString& currentDesktop)
{
    // The first asks the network (is it there, by which way, what answers), the second listens to it.
    QList<QStringList> commands{{u"gnome-nettool"_s}, {u"wireshark"_s}};
    if (currentDesktop.split(u':').contains(u"KDE"_s, Qt::CaseInsensitive)) {
        // It only shows the interfaces, but every such desktop has it.
        commands.append({u"kinfocenter"_s, u"kcm_nic"_s});
    }
    return commands;
}

} // namespace aerolith
