#include "ui/update/UpdateContents.h"

#include "ui/common/PlainText.h"

#include <QCoreApplication>
#include <QLocale>

namespace aerolith {

namespace {

struct UpdateContentsTexts
{
    Q_DECLARE_TR_FUNCTIONS(UpdateContents)
};

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
        return {.heading = UpdateContentsTexts::tr("Checking for updates\u2026"),
                .isBusy = true,
                .dismiss = UpdateContentsTexts::tr("Cancel")};
    }

    UpdateContents operator()(const UpdateUpToDate&) const
    {
        return {.heading = UpdateContentsTexts::tr("Aerolith is up to date"),
                .message = UpdateContentsTexts::tr("There is nothing newer than version %1.").arg(running),
                .offersAutomaticChecks = true,
                .dismiss = UpdateContentsTexts::tr("OK"),
                .isOver = true};
    }

    UpdateContents operator()(const UpdateAvailable& available) const
    {
        return {.heading =
                    UpdateContentsTexts::tr("Aerolith %1 is available").arg(shownVersion(available.item)),
                .message = UpdateContentsTexts::tr("You have version %1. The download is %2.")
                               .arg(running, shownSize(available.item.length)),
                .notes = shownNotes(available.item.notes),
                .offersDownload = true,
                .offersAutomaticChecks = true,
                .dismiss = UpdateContentsTexts::tr("Later")};
    }

    UpdateContents operator()(const UpdateDownloading& downloading) const
    {
        const auto& [item, received] = downloading;
        return {.heading = UpdateContentsTexts::tr("Downloading Aerolith %1\u2026").arg(shownVersion(item)),
                .message =
                    UpdateContentsTexts::tr("%1 of %2").arg(shownSize(received), shownSize(item.length)),
                .progress = static_cast<double>(received) / static_cast<double>(item.length),
                .dismiss = UpdateContentsTexts::tr("Cancel")};
    }

    UpdateContents operator()(const UpdateDownloaded& downloaded) const
    {
        return {.heading =
                    UpdateContentsTexts::tr("Aerolith %1 is downloaded").arg(shownVersion(downloaded.item)),
                .message = UpdateContentsTexts::tr("Its signature is right. It was saved as\n%1")
                               .arg(singleLine(downloaded.path)),
                .dismiss = UpdateContentsTexts::tr("OK"),
                .isOver = true};
    }

    UpdateContents operator()(const UpdateFailed& failed) const
    {
        const bool checking = failed.step == UpdateFailed::Step::check;
        return {.heading = checking ? UpdateContentsTexts::tr("Updates could not be checked")
                                    : UpdateContentsTexts::tr("The update was not downloaded"),
                .message = UpdateContentsTexts::tr("%1.").arg(singleLine(failed.error.description)),
                .dismiss = UpdateContentsTexts::tr("Close"),
                .isOver = true};
    }
};

} // namespace

UpdateContents updateContents(const UpdateState& state, const QString& running)
{
    return std::visit(ContentsOf{running}, state);
}

} // namespace aerolith
