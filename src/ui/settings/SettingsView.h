#pragma once

#include "model/WiFiScanner.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "ui/common/Sheet.h"

class QCheckBox;

namespace aerolith {

/// The sheet with the user's settings. A slider writes its setting at every change, and nothing undoes that:
/// "Save" makes a new interval count for the timer that is running, "Cancel" leaves the timer as it is. A
/// stored value that no slider reaches is told as it is, and stays until its slider is moved, which stands at
/// the nearest one.
class SettingsView : public Sheet
{
    Q_OBJECT

public:
    /// All of it outlives the view.
    SettingsView(WiFiScanner& scanner, UserDefaults& userDefaults, LoginItem& loginItem, Log& log,
                 QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QWidget* makeScanSettings();
    [[nodiscard]] QLayout* makeScanInterval();
    [[nodiscard]] QLayout* makeHistoryPoints();
    [[nodiscard]] QLayout* makeButtons();
    void save();
    void setLoginItem(bool enabled);
    void showLoginItem(bool enabled);

    WiFiScanner& m_scanner;
    UserDefaults& m_userDefaults;
    LoginItem& m_loginItem;
    Log& m_log;
    QCheckBox* m_startAtLogin;
};

} // namespace aerolith
