#include "app/PortalSettings.h"

#include "app/ColourScheme.h"
#include "app/ProgramStyle.h"
#include "app/ReducedMotion.h"
#include "support/PrivateBus.h"
#include "ui/common/Theme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QStyle>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

using Settings = QMap<QString, QVariantMap>;

class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    /// `answer` is what ReadAll comes to.
    FakePortal(const QString& address, QVariant answer)
        : m_bus(QDBusConnection::connectToBus(address, u"portal"_s)), m_answer(std::move(answer))
    {
        qDBusRegisterMetaType<Settings>();
        m_bus.registerObject(path, this, QDBusConnection::ExportScriptableContents);
        EXPECT_TRUE(m_bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    ~FakePortal() override { QDBusConnection::disconnectFromBus(u"portal"_s); }

    /// The second time is after the first painting, when changes are listened to.
    void awaitQuestions(int count)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_questions == count; }));
    }

    void change(const QString& group, const QString& key, const QVariant& value)
    {
        auto signal =
            QDBusMessage::createSignal(path, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal.setArguments({group, key, QVariant::fromValue(QDBusVariant(value))});
        m_bus.send(signal);
    }

public Q_SLOTS:

    Q_SCRIPTABLE void ReadAll(const QStringList& groups, const QDBusMessage& call)
    {
        EXPECT_EQ(groups.size(), 2);
        ++m_questions;
        call.setDelayedReply(true);
        m_bus.send(call.createReply(m_answer));
    }

private:
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    QDBusConnection m_bus;
    QVariant m_answer;
    int m_questions = 0;
};

namespace {

/// Moves for as long as it hears that it should, as every view does.
class Moving : public QWidget
{
public:
    [[nodiscard]] bool moves() const { return m_moves; }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange) {
            m_moves = style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
        }
    }

private:
    bool m_moves = true;
};

class PortalSettingsTest : public testing::Test
{
protected:
    PortalSettingsTest() { QApplication::setStyle(new ProgramStyle); }

    ~PortalSettingsTest() override
    {
        QApplication::setPalette(QPalette());
        QApplication::setStyle(u"Fusion"_s);
    }

    /// As a desktop tells whether it is dark.
    static QVariant colourScheme(uint scheme)
    {
        return QVariant::fromValue(Settings{{PortalSettings::standard, {{u"color-scheme"_s, scheme}}}});
    }

    /// The program from its start to its first painting, beside a portal that answers this, if any.
    void start(const QVariant& answer)
    {
        if (answer.isValid()) {
            portal.emplace(bus().address(), answer);
        }
        settings.emplace();
        colours.emplace(*settings);
        motion.emplace(*settings);
        if (portal) {
            portal->awaitQuestions(1); // which it answers on this thread
        }
        settings->tellFirst();
        settings->followAfterPainting(window);
        window.show();
    }

    [[nodiscard]] static bool isDark() { return Theme::isDark(QApplication::palette()); }

    /// One for all tests: a process finds its session's bus once.
    static const PrivateBus& bus()
    {
        static const PrivateBus theBus;
        qputenv("DBUS_SESSION_BUS_ADDRESS", theBus.address().toUtf8());
        return theBus;
    }

    std::optional<FakePortal> portal;
    std::optional<PortalSettings> settings;
    std::optional<ColourScheme> colours;
    std::optional<ReducedMotion> motion;
    Moving window;
};

} // namespace

TEST_F(PortalSettingsTest, ReduceMotionWhileTheProgramRuns)
{
    const QString gnome = PortalSettings::gnome;
    start(QVariant::fromValue(Settings{{gnome, {{u"enable-animations"_s, false}}}}));
    EXPECT_FALSE(window.moves());
    portal->awaitQuestions(2);

    portal->change(gnome, u"enable-animations"_s, true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.moves(); }));
    portal->change(PortalSettings::standard, u"reduced-motion"_s, 1U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.moves(); }));
    portal->change(gnome, u"enable-animations"_s, true);
    QTest::qWait(50);
    EXPECT_FALSE(window.moves()) << "either of them is enough";
}

TEST_F(PortalSettingsTest, MakeTheProgramDarkFromItsFirstPicture)
{
    start(colourScheme(1));
    EXPECT_TRUE(isDark());
    portal->awaitQuestions(2);
    for (const uint scheme : {2U, 1U, 0U}) {
        portal->change(PortalSettings::standard, u"color-scheme"_s, scheme);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isDark() == (scheme == 1); })) << scheme;
    }
}

TEST_F(PortalSettingsTest, AreAskedForAgainWhereThePortalBeginsLate)
{
    bus();
    start({});
    EXPECT_FALSE(isDark());
    portal.emplace(bus().address(), colourScheme(1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDark(); }));
}

TEST_F(PortalSettingsTest, LeaveADarkDesktopItsOwnColours)
{
    const QPalette own(QColor(40, 0, 0), QColor(30, 0, 0));
    QApplication::setPalette(own);
    start(colourScheme(1));
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), own.color(QPalette::Base));
}

TEST_F(PortalSettingsTest, OutliveAnAnswerOfAnotherType)
{
    start(QVariantMap{{u"enable-animations"_s, false}});
    portal->awaitQuestions(2);
    EXPECT_TRUE(window.moves());
    portal->change(PortalSettings::gnome, u"enable-animations"_s, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.moves(); }));
}

} // namespace aerolith

#include "PortalSettingsTest.moc"
