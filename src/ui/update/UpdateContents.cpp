#include "ui/update/UpdateContents.h"

#include "ui/common/PlainText.h"

#include <QLocale>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString shownSize(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString shownVersion(const AppcastItem& item)
{
    constexpr qsizetype longest = 24;
    return item.versionText.size() > longest ? item.versionText.first(longest) + u'\u2026' : item.versionText;
}

QString shownNotes(const QString& notes)
{
    QStringList lines = notes.split(u'\n');
    for (QString& line : lines) {
        line = singleLine(line);
    }
    return lines.join(u'\n');
}

struct ContentsOf
{
    const QString& running;

    UpdateContents operator()(const UpdateIdle&) const { return {}; }

    UpdateContents operator()(const UpdateChecking&) const
    {
        return {.heading = u"Checking for updates\u2026"_s, .isBusy = true, .dismiss = u"Cancel"_s};
    }

    UpdateContents operator()(const UpdateUpToDate&) const
    {
        return {.heading = u"Aerolith is up to date"_s,
                .message = u"There is nothing newer than version %1."_s.arg(running),
                .offersAutomaticChecks = true,
                .dismiss = u"OK"_s,
                .isOver = true};
    }

    UpdateContents operator()(const UpdateAvailable& available) const
    {
        return {.heading = u"Aerolith %1 is available"_s.arg(shownVersion(available.item)),
                .message = u"You have version %1. The download is %2."_s.arg(
                    running, shownSize(available.item.length)),
                .notes = shownNotes(available.item.notes),
                .offersDownload = true,
                .offersAutomaticChecks = true,
                .dismiss = u"Later"_s};
    }

    UpdateContents operator()(const UpdateDownloading& downloading) const
    {
        const auto& [item, received] = downloading;
        return {.heading = u"Downloading Aerolith %1\u2026"_s.arg(shownVersion(item)),
                .message = u"%1 of %2"_s.arg(shownSize(received), shownSize(item.length)),
                .progress = static_cast<double>(received) / static_cast<double>(item.length),
                .dismiss = u"Cancel"_s};
    }

    UpdateContents operator()(const UpdateDownloaded& downloaded) const
    {
        return {.heading = u"Aerolith %1 is downloaded"_s.arg(shownVersion(downloaded.item)),
                .message = u"Its signature is right. It was saved as\n%1"_s.arg(singleLine(downloaded.path)),
                .dismiss = u"OK"_s,
                .isOver = true};
    }

    UpdateContents operator()(const UpdateFailed& failed) const
    {
        const bool checking = failed.step == UpdateFailed::Step::check;
        return {.heading = checking ? u"Updates could not be checked"_s : u"The update was not downloaded"_s,
                .message = singleLine(failed.error.description) + u'.',
                .dismiss = u"Close"_s,
                .isOver = true};
    }
};

} // namespace

UpdateContents updateContents(const UpdateState& state, const QString& running)
{
    return std::visit(ContentsOf{running}, state);
}

} // namespace aerolith
