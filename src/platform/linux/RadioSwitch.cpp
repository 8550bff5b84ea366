#include "platform/linux/RadioSwitch.h"

#include <QDir>
#include <QFile>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

std::optional<bool> isBlocked(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll().trimmed() != "0";
}

} // namespace

std::optional<bool> radioSwitchedOn(const QString& systemFiles, const QString& interfaceName)
{
    const QDir radio(u"%1/class/net/%2/phy80211"_s.arg(systemFiles, interfaceName));
    std::optional<bool> on;
    for (const auto& name : radio.entryList({u"rfkill*"_s}, QDir::Dirs)) {
        const auto soft = isBlocked(radio.filePath(name + u"/soft"_s));
        const auto hard = isBlocked(radio.filePath(name + u"/hard"_s));
        if (soft && hard) {
            on = on.value_or(true) && !*soft && !*hard;
        }
    }
    return on;
}

} // namespace aerolith
