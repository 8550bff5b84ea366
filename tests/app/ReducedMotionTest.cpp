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
    explicit FakePortal(const QString& address) : m_bus(QDBusConnection::connectToBus(address, u"portal"_s))
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

    Q_SCRIPTABLE QMap<QString, QVariantMap> ReadAll(const QStringList& groups)
    {
        EXPECT_EQ(groups.size(), 2);
        return {{u"org.gnome.desktop.interface"_s,
                 {{u"enable-animations"_s, false}, {u"font-name"_s, u"Sans"_s}}}};
    }

private:
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    QDBusConnection m_bus;
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

} // namespace

TEST(ReducedMotion, FollowsTheDesktopWhileItRuns)
{
    const PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    FakePortal portal(bus.address());
    QApplication::setStyle(new ProgramStyle);
    Moving window;
    new ReducedMotion(window);
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

} // namespace aerolith

#include "ReducedMotionTest.moc"
