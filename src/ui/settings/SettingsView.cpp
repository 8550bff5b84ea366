#include "ui/settings/SettingsView.h"

#include "model/SettingKeys.h"
#include "ui/common/SecondaryLabel.h"
#include "ui/common/Theme.h"
#include "ui/common/TitledBox.h"
#include "ui/settings/SteppedSlider.h"

#include <QCheckBox>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <limits>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr int sheetWidth = 400;
constexpr int sheetSpacing = 20;
constexpr int settingSpacing = 16;
constexpr int blockSpacing = 8;
constexpr int buttonSpacing = 8;
constexpr int valueWidth = 40;
constexpr int valueSize = 13;

/// How a setting's value reads: "10s" beside the slider, "10 seconds" for who hears it.
struct ValueTexts
{
    QString shown;
    QString spoken;
};

struct Setting
{
    QString objectName;
    QString title;
    int minimum = 0;
    int maximum = 0;
    int step = 1;
    /// What is stored, cut to a whole number.
    int value = 0;
    ValueTexts (*texts)(int value) = nullptr;
    /// The user has moved the slider.
    std::function<void(int value)> store;
};

template <typename Stored>
int wholeNumber(Stored stored)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<Stored>(stored, Limits::min(), Limits::max()));
}

/// Title, slider and value of one setting.
QLayout* makeBlock(const Setting& setting)
{
    auto* title = new QLabel(setting.title);
    title->setFont(Theme::font(title->font(), TextStyle::subheadline));
    auto* slider = new SteppedSlider(setting.minimum, setting.maximum, setting.step);
    slider->setObjectName(setting.objectName);
    slider->setAccessibleName(setting.title);
    title->setBuddy(slider);
    auto* shown = new SecondaryLabel(valueSize);
    shown->setObjectName(setting.objectName + "Value"_L1);
    shown->setAlignment(Qt::AlignCenter);
    const int widest = std::max(setting.maximum, setting.value);
    const int needed = shown->fontMetrics().horizontalAdvance(setting.texts(widest).shown);
    shown->setFixedWidth(std::max(valueWidth, needed));

    const auto show = [slider, shown, texts = setting.texts](int value) {
        shown->setText(texts(value).shown);
        slider->setAccessibleDescription(texts(value).spoken);
    };
    slider->setValue(setting.value);
    show(setting.value);
    QObject::connect(slider, &QSlider::valueChanged, slider, [show, store = setting.store](int value) {
        store(value);
        show(value);
    });

    auto* row = new QHBoxLayout;
    row->addWidget(slider);
    row->addWidget(shown);
    auto* block = new QVBoxLayout;
    block->setSpacing(blockSpacing);
    block->addWidget(title);
    block->addLayout(row);
    return block;
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
    return makeBlock(
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
    return makeBlock(
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
