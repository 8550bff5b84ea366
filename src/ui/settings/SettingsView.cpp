#include "ui/settings/SettingsView.h"

#include "model/SettingKeys.h"
#include "ui/common/TitledBox.h"
#include "ui/settings/SliderSetting.h"

#include <QCheckBox>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 400;
constexpr int sheetSpacing = 20;
constexpr int settingSpacing = 16;
constexpr int buttonSpacing = 8;

template <typename Stored>
int wholeNumber(Stored stored)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<Stored>(stored, Limits::min(), Limits::max()));
}

} // namespace

SettingsView::SettingsView(WiFiScanner& scanner, UserDefaults& userDefaults, LoginItem& loginItem, Log& log,
                           QWidget* parent)
    : Sheet(sheetWidth, sheetSpacing, parent)
    , m_scanner(scanner)
    , m_userDefaults(userDefaults)
    , m_loginItem(loginItem)
    , m_log(log)
    , m_startAtLogin(new QCheckBox(tr("Start at login")))
{
    setObjectName(u"settingsView"_s);
    setWindowTitle(tr("Settings"));
    content().addWidget(makeScanSettings());
    content().addLayout(makeButtons());
}

void SettingsView::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        showLoginItem(m_loginItem.isEnabled());
    }
    Sheet::showEvent(event);
}

QWidget* SettingsView::makeScanSettings()
{
    m_startAtLogin->setObjectName(u"startAtLogin"_s);
    connect(m_startAtLogin, &QCheckBox::toggled, this, &SettingsView::setLoginItem);

    auto* box = new TitledBox(tr("Scan Settings"), settingSpacing);
    box->setSymbol(u"wifi"_s);
    box->rows().addLayout(makeScanInterval());
    box->rows().addLayout(makeHistoryPoints());
    box->rows().addWidget(m_startAtLogin);
    return box;
}

QLayout* SettingsView::makeScanInterval()
{
    constexpr int minimum = 5;
    constexpr int maximum = 30;
    return makeSliderBlock(
        {.objectName = u"scanInterval"_s,
         .title = tr("Scan Interval"),
         .minimum = minimum,
         .maximum = maximum,
         .step = 1,
         .value = wholeNumber<double>(m_scanner.scanInterval()),
         .texts =
             [](int value) {
                 //: The scan interval beside its slider: seconds, in as little room as there is.
                 return ValueTexts{tr("%1s").arg(value), tr("%n seconds", nullptr, value)};
             },
         .store = [this](int value) { m_userDefaults.setDouble(value, SettingKeys::scanInterval); }});
}

QLayout* SettingsView::makeHistoryPoints()
{
    constexpr int minimum = 10;
    constexpr int maximum = 50;
    return makeSliderBlock(
        {.objectName = u"historyLimit"_s,
         .title = tr("History Points"),
         .minimum = minimum,
         .maximum = maximum,
         .step = 5,
         .value = wholeNumber(m_scanner.historyLimit()),
         .texts =
             [](int value) {
                 return ValueTexts{QString::number(value), tr("%n points", nullptr, value)};
             },
         .store = [this](int value) { m_userDefaults.setInteger(value, SettingKeys::historyLimit); }});
}

QLayout* SettingsView::makeButtons()
{
    auto* cancelButton = new QPushButton(tr("Cancel"));
    // The Return key saves, wherever the focus is.
    cancelButton->setAutoDefault(false);
    cancelButton->setObjectName(u"cancel"_s);
    connect(cancelButton, &QPushButton::clicked, this, &SettingsView::reject);
    auto* saveButton = new QPushButton(tr("Save"));
    saveButton->setObjectName(u"save"_s);
    saveButton->setDefault(true);
    connect(saveButton, &QPushButton::clicked, this, &SettingsView::save);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addStretch();
    buttons->addWidget(cancelButton);
    buttons->addWidget(saveButton);
    return buttons;
}

void SettingsView::save()
{
    m_scanner.startTimer();
    accept();
}

void SettingsView::setLoginItem(bool enabled)
{
    if (const Failure failure = m_loginItem.setEnabled(enabled)) {
        m_log.line(u"Error toggling login item: %1"_s.arg(failure->description));
        showLoginItem(!enabled);
    }
}

/// Registers nothing: only the user's own changes do.
void SettingsView::showLoginItem(bool enabled)
{
    const QSignalBlocker blocker(m_startAtLogin);
    m_startAtLogin->setChecked(enabled);
}

} // namespace aerolith
