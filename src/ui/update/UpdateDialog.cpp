#include "ui/update/UpdateDialog.h"

#include "ui/common/SelectableText.h"
#include "ui/common/Theme.h"
#include "ui/update/UpdateContents.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int dialogWidth = 420;
constexpr int dialogSpacing = 12;
constexpr int messageSize = 12;
constexpr int notesHeight = 160;
constexpr int progressSteps = 1000;

} // namespace

UpdateDialog::UpdateDialog(AppcastUpdater& updater, QWidget* parent)
    : Sheet(dialogWidth, dialogSpacing, parent)
    , m_updater(updater)
    , m_spinner(new Spinner)
    , m_heading(new QLabel)
    , m_message(new SelectableText(messageSize))
    , m_notes(new QPlainTextEdit)
    , m_progress(new QProgressBar)
    , m_checkAutomatically(new QCheckBox(tr("Check once a day automatically")))
    , m_dismiss(new QPushButton)
    , m_download(new QPushButton(tr("Download")))
{
    setObjectName(u"updateDialog"_s);
    setWindowTitle(tr("Software Update"));
    // The program goes on when this is the only window that can be seen.
    setAttribute(Qt::WA_QuitOnClose, false);

    m_message->setObjectName(u"message"_s);
    m_message->setAccessibleName(tr("Details"));
    m_notes->setObjectName(u"notes"_s);
    m_notes->setAccessibleName(tr("What is new"));
    m_notes->setFont(Theme::font(m_notes->font(), messageSize));
    m_notes->setReadOnly(true);
    m_notes->setTabChangesFocus(true);
    m_notes->setFixedHeight(Theme::scaledToText(notesHeight));
    m_progress->setObjectName(u"progress"_s);
    m_progress->setAccessibleName(tr("Downloaded"));
    m_progress->setRange(0, progressSteps);
    m_progress->setTextVisible(false);
    m_checkAutomatically->setObjectName(u"checkAutomatically"_s);
    m_checkAutomatically->setChecked(m_updater.checksAutomatically());
    connect(m_checkAutomatically, &QCheckBox::toggled, this,
            [this](bool checked) { m_updater.setChecksAutomatically(checked); });

    content().addLayout(makeHeading());
    content().addWidget(m_message);
    content().addWidget(m_progress);
    content().addWidget(m_notes);
    content().addWidget(m_checkAutomatically);
    content().addLayout(makeButtons());
    showState();
}

QLayout* UpdateDialog::makeHeading()
{
    m_heading->setObjectName(u"heading"_s);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setFont(Theme::font(m_heading->font(), TextStyle::headline));
    m_spinner->setObjectName(u"busy"_s);
    m_spinner->setAccessibleName(tr("Checking"));

    auto* row = new QHBoxLayout;
    row->addWidget(m_spinner);
    row->addWidget(m_heading, 1);
    return row;
}

QLayout* UpdateDialog::makeButtons()
{
    m_dismiss->setObjectName(u"dismiss"_s);
    connect(m_dismiss, &QPushButton::clicked, this, &UpdateDialog::reject);
    m_download->setObjectName(u"download"_s);
    connect(m_download, &QPushButton::clicked, this, [this] { m_updater.download(); });
    // Return presses the default button or none, wherever the focus is.
    m_dismiss->setAutoDefault(false);
    m_download->setAutoDefault(false);

    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_dismiss);
    row->addWidget(m_download);
    return row;
}

void UpdateDialog::showState()
{
    const UpdateContents contents = updateContents(m_updater.state(), m_updater.runningVersion());
    m_spinner->setVisible(contents.isBusy);
    m_heading->setText(contents.heading);
    m_message->setVisible(!contents.message.isEmpty());
    m_message->setPlainText(contents.message);
    m_message->updateGeometry();
    m_notes->setVisible(!contents.notes.isEmpty());
    if (m_notes->toPlainText() != contents.notes) {
        m_notes->setPlainText(contents.notes);
    }
    m_progress->setVisible(contents.progress.has_value());
    m_progress->setValue(static_cast<int>(contents.progress.value_or(0) * progressSteps));
    m_checkAutomatically->setVisible(contents.offersAutomaticChecks);
    m_dismiss->setText(contents.dismiss);
    m_download->setVisible(contents.offersDownload);
    chooseDefaultButton(contents.offersDownload, contents.isOver);
    setAccessibleDescription(contents.heading);
}

/// None while something is under way: a key pressed twice ends nothing that it has just begun.
void UpdateDialog::chooseDefaultButton(bool offersDownload, bool isOver)
{
    m_download->setDefault(offersDownload);
    m_dismiss->setDefault(isOver);
    if (offersDownload && !m_notes->hasFocus()) {
        m_download->setFocus();
    } else if (isOver) {
        m_dismiss->setFocus();
    }
}

void UpdateDialog::reject()
{
    Sheet::reject();
    m_updater.dismiss();
}

} // namespace aerolith
