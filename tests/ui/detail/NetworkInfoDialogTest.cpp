#include "ui/detail/NetworkInfoDialog.h"

#include "platform/simulated/ScenarioReader.h"
#include "platform/simulated/SimulatedRadio.h"
#include "support/FakeDesktop.h"
#include "support/ManualMainQueue.h"
#include "support/Printing.h"
#include "support/RecordingLog.h"
#include "ui/detail/InterfaceSnapshot.h"

#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

class NetworkInfoDialogTest : public testing::Test
{
protected:
    /// That of a scenario: the members of "interface" and the name of the network that it is joined to.
    std::shared_ptr<CWInterface> interfaceOf(const QByteArray& members, const QByteArray& joined = "null")
    {
        const QByteArray scenario = R"({"interface": {)" + members + R"(}, "cycles": [{"joined": {"ssid": )" +
                                    joined + R"(}, "networks": []}]})";
        radio.emplace(parseScenario(scenario).value(), main);
        return radio->wifiClient().interface();
    }

    void open(const std::shared_ptr<CWInterface>& interface = nullptr)
    {
        dialog.emplace(interface, desktop.hostAddresses, desktop.workspace, log);
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }

    /// The value beside a label.
    QTextEdit& value(const QString& label)
    {
        for (auto* text : dialog->findChildren<QTextEdit*>()) {
            if (text->accessibleName() == label) {
                return *text;
            }
        }
        ADD_FAILURE() << label.toStdString();
        return *dialog->findChild<QTextEdit*>();
    }

    ManualMainQueue main;
    std::optional<SimulatedRadio> radio;
    FakeDesktop desktop;
    RecordingLog log;
    std::optional<NetworkInfoDialog> dialog;
};

} // namespace

TEST_F(NetworkInfoDialogTest, TellsWhatTheInterfaceDelivers)
{
    const auto facts = [this](CWInterface* interface) {
        QStringList lines;
        for (const auto& [label, value] :
             interfaceFacts(InterfaceSnapshot::read(interface, desktop.hostAddresses))) {
            lines.append(label + u": "_s + value);
        }
        return lines;
    };
    desktop.hostAddresses.address = u"192.168.1.20"_s;
    EXPECT_EQ(
        facts(interfaceOf(R"("name": "wlp3s0", "transmitPower": 63, "channels": [36, 1, 36])", R"("a\nb")")
                  .get()),
        QStringList({u"Interface: wlp3s0"_s, u"Hardware Address: 02:00:00:00:00:00"_s,
                     u"IP Address: 192.168.1.20"_s, u"Connected Network: a\uFFFDb"_s,
                     u"Transmit Power: 63 mW"_s, u"Supported Channels: 36, 1, 36"_s}));
    EXPECT_EQ(facts(nullptr), QStringList({u"Interface: Unknown"_s, u"Hardware Address: Unknown"_s,
                                           u"IP Address: 192.168.1.20"_s, u"Transmit Power: 0 mW"_s,
                                           u"Supported Channels: None"_s}))
        << "the address is not the interface's";

    desktop.hostAddresses.address.reset();
    EXPECT_EQ(facts(interfaceOf(R"("name": null, "hardwareAddress": null, "channels": [])").get()),
              QStringList({u"Interface: Unknown"_s, u"Hardware Address: Unknown"_s,
                           u"Transmit Power: 20 mW"_s, u"Supported Channels: "_s}));
}

TEST_F(NetworkInfoDialogTest, ShowsLongAndHostileTextsWholeAndLetsThemBeCopied)
{
    open(interfaceOf(R"("channels": [1,2,3,4,5,6,7,8,9,10,11,12,13,36,40,44,48,52,56,60,64,100,104,108])",
                     R"("<b>WWWWWWWWWWWWWWWWWWWWWWWWW</b>")"));
    for (auto* text : dialog->findChildren<QTextEdit*>()) {
        SCOPED_TRACE(text->toPlainText().toStdString());
        EXPECT_GE(text->viewport()->height(), text->document()->size().height()) << "cut off";
        EXPECT_LE(text->document()->idealWidth(), text->viewport()->width());
        EXPECT_TRUE(dialog->rect().contains(QRect(text->mapTo(&*dialog, QPoint()), text->size())));
    }
    auto& name = value(u"Connected Network"_s);
    name.setFocus();
    QTest::keySequence(&name, QKeySequence::SelectAll);
    QTest::keySequence(&name, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), u"<b>WWWWWWWWWWWWWWWWWWWWWWWWW</b>"_s);
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible()) << "closes it from anywhere";
}

TEST_F(NetworkInfoDialogTest, FollowsTheInterfaceAndKeepsToTheScreen)
{
    open();
    const QPointer<QTextEdit> kept(&value(u"Interface"_s));
    kept->selectAll();
    desktop.hostAddresses.address = u"192.168.1.20"_s;
    dialog->readInterface();
    EXPECT_EQ(value(u"IP Address"_s).toPlainText(), u"192.168.1.20"_s);
    EXPECT_TRUE(kept != nullptr && kept->textCursor().hasSelection()) << "it may be copied";
    const auto* last = dialog->findChildren<QTextEdit*>().value(4);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->accessibleName(), u"Supported Channels"_s);
    desktop.hostAddresses.address.reset();
    dialog->readInterface();
    EXPECT_FALSE(last->isVisible());

    open(interfaceOf("\"channels\": [" + QByteArray("100, ").repeated(999) + "1]"));
    EXPECT_LT(dialog->height(), dialog->screen()->availableGeometry().height());
    auto& channels = value(u"Supported Channels"_s);
    channels.moveCursor(QTextCursor::End);
    EXPECT_GT(channels.verticalScrollBar()->value(), 0) << "the rest can be reached";
}

TEST_F(NetworkInfoDialogTest, OpensTheNetworkSettingsAndStaysWhereThatFails)
{
    open();
    auto* settings = dialog->findChild<QPushButton*>(u"openNetworkSettings"_s);
    desktop.workspace.refusal = Error{u"Cannot open the network settings"_s};
    QTest::mouseClick(settings, Qt::LeftButton);
    EXPECT_EQ(desktop.workspace.pages, QList<SettingsPage>{SettingsPage::network});
    EXPECT_EQ(log.take(), QStringList(u"Cannot open the network settings"_s));
    EXPECT_TRUE(dialog->isVisible());
    settings->setFocus();
    QTest::keyClick(settings, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
}

} // namespace aerolith
