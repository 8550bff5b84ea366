#include "ui/menubar/WiFiConnectionManager.h"

#include "support/FakeWiFi.h"
#include "support/HostileNames.h"
#include "support/Printing.h"
#include "ui/common/PlainText.h"
#include "ui/menubar/DialogDriver.h"
#include "ui/menubar/WaitState.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

CWNetwork withSecurity(const QList<CWSecurity>& codes, const QString& ssid = u"Cafe"_s)
{
    CWNetwork found = network(u"a"_s, ssid);
    for (const CWSecurity code : codes) {
        found.securityCodes.insert(static_cast<int>(code));
    }
    return found;
}

QLineEdit& field(const QDialog& dialog)
{
    return *dialog.findChild<QLineEdit*>(u"password"_s);
}

void press(const QDialog& dialog, const QString& button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
}

class WiFiConnectionManagerTest : public testing::Test
{
protected:
    FakeWiFiClient wifi;
    WiFiConnectionManager manager{wifi};
    DialogDriver user;
};

} // namespace

TEST_F(WiFiConnectionManagerTest, AsksForAPasswordWhereTheKindOfNetworkNeedsOne)
{
    using enum CWSecurity;
    const std::pair<QList<CWSecurity>, bool> kinds[] = {
        {{wep}, true},
        {{wpaPersonal}, true},
        {{wpaPersonalMixed}, true},
        {{wpa2Personal}, true},
        {{wpa3Transition, wpa3Personal}, true},
        {{}, false},
        {{none}, false},
        {{owe}, false},
        {{wpa2Enterprise, enterprise}, false},
        {{wpa3Enterprise}, false},
        {{dynamicWEP}, false},
        {{personal}, false},
    };
    for (const auto& [codes, asks] : kinds) {
        SCOPED_TRACE(codes.isEmpty() ? -1 : static_cast<int>(codes.first()));
        user.shown.clear();
        wifi.air.joins.clear();
        manager.connectTo(withSecurity(codes));
        EXPECT_EQ(user.shown.size(), asks ? 1 : 0);
        EXPECT_EQ(wifi.air.joins.size(), asks ? 0 : 1) << "dismissed, nothing is joined";
    }
}

TEST_F(WiFiConnectionManagerTest, JoinsWithThePasswordAsItWasTyped)
{
    const CWNetwork cafe = withSecurity({CWSecurity::wpa2Personal});
    for (const QString& typed : {u" p\u00E4ss word "_s, QString(), QString(100, u'x')}) {
        wifi.air.joins.clear();
        user.answer([&](const QDialog& dialog) {
            EXPECT_EQ(dialog.focusWidget(), &field(dialog));
            field(dialog).insert(typed);
            const QString displayed = field(dialog).displayText();
            EXPECT_EQ(displayed, displayed.left(1).repeated(typed.size())) << "masked";
            QTest::keyClick(&field(dialog), Qt::Key_Return);
        });
        manager.connectTo(cafe);
        EXPECT_EQ(wifi.air.joins, QList<FakeJoin>({{"Cafe", typed}}));
    }
    EXPECT_EQ(user.shown.size(), 3) << "a join that has worked says nothing";
}

TEST_F(WiFiConnectionManagerTest, ShowsThatItIsBusyWhileItJoins)
{
    QPointer<QDialog> prompt;
    user.answer([&](QDialog& dialog) {
        prompt = &dialog;
        QTest::keyClicks(&field(dialog), u"secret"_s);
        press(dialog, u"connect"_s);
    });
    wifi.air.duringJoin = [&] {
        ASSERT_NE(prompt, nullptr);
        EXPECT_TRUE(prompt->findChild<QWidget*>(u"connecting"_s)->isVisible());
        EXPECT_FALSE(field(*prompt).isEnabled());
        EXPECT_FALSE(prompt->findChild<QPushButton*>(u"cancel"_s)->isEnabled());
        EXPECT_EQ(field(*prompt).text(), QString()) << "the password does not stay in the field";
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
    };
    manager.connectTo(withSecurity({CWSecurity::wpa2Personal}));
    EXPECT_EQ(wifi.air.joins.size(), 1);
    EXPECT_TRUE(prompt == nullptr && QGuiApplication::overrideCursor() == nullptr);
}

TEST_F(WiFiConnectionManagerTest, JoinsNothingWithoutAnInterfaceOrWhenTheUserGivesUp)
{
    const CWNetwork secured = withSecurity({CWSecurity::wpa3Personal});
    user.answer([](const QDialog& dialog) { press(dialog, u"cancel"_s); });
    user.answer([](QDialog& dialog) { dialog.close(); });
    manager.connectTo(secured);
    manager.connectTo(secured);

    wifi.setPresent(false);
    manager.connectTo(secured);
    manager.connectTo(withSecurity({}));
    EXPECT_EQ(user.shown.size(), 2);
    EXPECT_TRUE(wifi.air.joins.isEmpty());
}

TEST_F(WiFiConnectionManagerTest, SaysOnceWhyAJoinHasFailed)
{
    wifi.air.joinFailure = Error{u"No answer from <b>Cafe</b> & %1"_s};
    user.answer([](const QDialog& dialog) { press(dialog, u"connect"_s); });
    user.answer([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    manager.connectTo(withSecurity({CWSecurity::wep}));
    ASSERT_EQ(user.shown.size(), 2) << "the password is not asked for again";
    EXPECT_EQ(user.shown.last(), u"Connection Failed|No answer from <b>Cafe</b> & %1"_s);
}

TEST_F(WiFiConnectionManagerTest, ShowsEveryNameAsPlainText)
{
    for (const QString& ssid : hostileNames()) {
        user.shown.clear();
        user.answer([](QDialog& dialog) {
            auto* message = dialog.findChild<QTextEdit*>(u"message"_s);
            EXPECT_GE(message->height(), message->document()->size().height()) << "all of it is seen";
            dialog.reject();
        });
        manager.connectTo(withSecurity({CWSecurity::wep}, ssid));
        EXPECT_EQ(user.shown, QStringList(u"Connect to %1|Enter the network password:"_s.arg(
                                  isolated(singleLine(ssid)))));
    }
}

TEST(WaitState, ForgetsWhatWasPressedWhileItLasted)
{
    QPushButton button;
    button.show();
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++clicks; });
    const auto postClick = [&] {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QCoreApplication::postEvent(&button, new QMouseEvent(type, QPointF(5, 5), QPointF(5, 5),
                                                                 Qt::LeftButton, held, Qt::NoModifier));
        }
    };
    {
        const WaitState waiting;
        postClick();
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks, 0);
    postClick();
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks, 1);
}

} // namespace aerolith
