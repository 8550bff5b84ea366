#include "platform/linux/xdg/XdgWorkspace.h"

#include "platform/linux/xdg/DiagnosticsCommands.h"
#include "platform/linux/xdg/SettingsCommands.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct XdgWorkspaceTexts
{
    Q_DECLARE_TR_FUNCTIONS(XdgWorkspace)
};

Failure startDetached(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached() ? Failure()
                                   : Error{u"%1 cannot be started: %2"_s.arg(program, process.errorString())};
}

/// What opens anything in the program that the user has chosen for it.
QList<QStringList> openers(const QString& target)
{
    return {{u"xdg-open"_s, target}, {u"gio"_s, u"open"_s, target}};
}

/// The first command whose program is there, as its path; else the programs that are missing.
Result<QStringList> firstInstalled(const QList<QStringList>& commands)
{
    QStringList missing;
    for (const QStringList& command : commands) {
        const QString program = QStandardPaths::findExecutable(command.first());
        if (!program.isEmpty()) {
            return QStringList(program) + command.sliced(1);
        }
        missing.append(command.first());
    }
    missing.removeDuplicates();
    return Error{missing.join(u", "_s)};
}

/// `what` completes "Cannot open ...".
Failure startFirst(const QString& what, const QList<QStringList>& commands)
{
    const auto command = firstInstalled(commands);
    return command.ok()
               ? startDetached(command.value().first(), command.value().sliced(1))
               : Error{u"Cannot open %1: not installed: %2"_s.arg(what, command.error().description)};
}

QString currentDesktop()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP");
}

} // namespace

Failure XdgWorkspace::openUrl(const QUrl& url)
{
    const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s};
    const QString text = url.toString(QUrl::FullyEncoded);
    if (!url.isValid() || !schemes.contains(url.scheme())) {
        return Error{u"Cannot open %1: not a web or mail address"_s.arg(text)};
    }
    return startFirst(text, openers(text));
}

Failure XdgWorkspace::openFolder(const QString& path)
{
    const QFileInfo folder(path);
    if (!folder.isAbsolute() || !folder.isDir()) {
        return Error{u"Cannot open %1: not a folder"_s.arg(path)};
    }
    return startFirst(path, openers(path));
}

Failure XdgWorkspace::openSettings(SettingsPage page)
{
    const QString what = page == SettingsPage::wifi ? u"the Wi-Fi settings"_s : u"the network settings"_s;
    return startFirst(what, settingsCommands(page, currentDesktop()));
}

Failure XdgWorkspace::openDiagnostics()
{
    return startFirst(u"a tool for network diagnostics"_s, diagnosticsCommands(currentDesktop()));
}

Failure XdgWorkspace::diagnosticsObstacle() const
{
    const auto command = firstInstalled(diagnosticsCommands(currentDesktop()));
    return command.ok()
               ? Failure()
               : Error{XdgWorkspaceTexts::tr("Cannot open a tool for network diagnostics: not installed: %1")
                           .arg(command.error().description)};
}

} // namespace aerolith
