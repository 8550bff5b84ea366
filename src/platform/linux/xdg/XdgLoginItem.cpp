#include "platform/linux/xdg/XdgLoginItem.h"

#include "platform/files/WholeFile.h"
#include "platform/linux/xdg/DesktopEntry.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// The switch of one desktop that does without the common one.
constexpr auto gnomeSwitch = "X-GNOME-Autostart-enabled";

constexpr auto newEntry = "[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Aerolith\n"
                          "Icon=org.aerolith.Aerolith\n";

/// No bytes when there is no file.
Result<QByteArray> read(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return QByteArray();
    }
    if (!info.isFile()) {
        return Error{u"%1 is not a file"_s.arg(path)};
    }
    return readFile(path);
}

Failure write(const QString& path, const QByteArray& bytes)
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder)) {
        return Error{u"Cannot create the folder %1"_s.arg(folder)};
    }
    return writeFile(path, bytes);
}

bool isOn(const QByteArray& entry)
{
    return DesktopEntry::isEntry(entry) && DesktopEntry::value(entry, "Hidden") != "true" &&
           DesktopEntry::value(entry, gnomeSwitch) != "false";
}

QByteArray switchedOn(const QByteArray& file, const QString& program)
{
    QByteArray entry = DesktopEntry::isEntry(file) ? file : QByteArray(newEntry);
    entry = DesktopEntry::withValue(entry, "Exec", DesktopEntry::execValue(program));
    if (DesktopEntry::value(entry, gnomeSwitch)) {
        entry = DesktopEntry::withValue(entry, gnomeSwitch, "true");
    }
    return DesktopEntry::withValue(entry, "Hidden", "false");
}

} // namespace

XdgLoginItem::XdgLoginItem(QString entryPath, QString program)
    : m_entryPath(std::move(entryPath)), m_program(std::move(program))
{
}

QString XdgLoginItem::userPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/autostart/org.aerolith.Aerolith.desktop"_L1;
}

bool XdgLoginItem::isEnabled() const
{
    const auto entry = read(m_entryPath);
    return entry.ok() && isOn(entry.value());
}

Failure XdgLoginItem::setEnabled(bool enabled)
{
    const auto entry = read(m_entryPath);
    if (!entry.ok()) {
        return entry.error();
    }
    if (enabled) {
        return write(m_entryPath, switchedOn(entry.value(), m_program));
    }
    return isOn(entry.value()) ? write(m_entryPath, DesktopEntry::withValue(entry.value(), "Hidden", "true"))
                               : Failure();
}

} // namespace aerolith
