#pragma once

#include "ui/common/Sheet.h"
#include "ui/common/Spinner.h"
#include "update/AppcastUpdater.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace aerolith {

class SelectableText;

/// Tells the user how a check or a download stands, and takes decisions. Closing it, however that is done,
/// ends what is under way. It blocks no window.
class UpdateDialog : public Sheet
{
    Q_OBJECT

public:
    /// The updater outlives the dialog.
    UpdateDialog(AppcastUpdater& updater, QWidget* parent);

    /// Shows the updater's state as it is now.
    void showState();

    void reject() override;

private:
    [[nodiscard]] QLayout* makeHeading();
    [[nodiscard]] QLayout* makeButtons();
    void chooseDefaultButton(bool offersDownload, bool isOver);

    AppcastUpdater& m_updater;
    Spinner* m_spinner;
    QLabel* m_heading;
    SelectableText* m_message;
    QPlainTextEdit* m_notes;
    QProgressBar* m_progress;
    QCheckBox* m_checkAutomatically;
    QPushButton* m_dismiss;
    QPushButton* m_download;
};

} // namespace aerolith
