#include "app/ReducedMotion.h"

#include "app/ProgramStyle.h"
#include "platform/linux/networkmanager/PrivateBus.h"

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
        call.setDelayedReply(true);
        m_bus.send(call.createReply(m_answer));
    }

private:
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    QDBusConnection m_bus;
    QVariant m_answer;
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

class ReducedMotionTest : public testing::Test
{
protected:
    ReducedMotionTest()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus().address().toUtf8());
        QApplication::setStyle(new ProgramStyle);
        new ReducedMotion(window);
    }

    /// One for all tests: a process finds its session's bus once.
    static const PrivateBus& bus()
    {
        static const PrivateBus theBus;
        return theBus;
    }

    Moving window;
};

} // namespace

TEST_F(ReducedMotionTest, FollowsTheDesktopWhileItRuns)
{
    FakePortal portal(
        bus().address(),
        QVariant::fromValue(Settings{{u"org.gnome.desktop.interface"_s,
                                      {{u"enable-animations"_s, false}, {u"font-name"_s, u"Sans"_s}}}}));
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.moves(); })) << "asked after the first painting";

    portal.change(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.moves(); }));
    portal.change(u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 1U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.moves(); }));
    portal.change(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, true);
    QTest::qWait(50);
    EXPECT_FALSE(window.moves()) << "either of them is enough";
}

TEST_F(ReducedMotionTest, OutlivesAnAnswerOfAnotherType)
{
    FakePortal portal(bus().address(), QVariantMap{{u"enable-animations"_s, false}});
    window.show();
    QTest::qWait(50);
    EXPECT_TRUE(window.moves());
    portal.change(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.moves(); }));
}

} // namespace aerolith

#include "ReducedMotionTest.moc"
