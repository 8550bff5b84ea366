#include "app/MainMenu.h"

#include "app/SupportMail.h"
#include "support/FakeDesktop.h"
#include "support/Printing.h"
#include "support/RecordingLog.h"

#include <QDialog>
#include <QLabel>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(SupportMail, EncodesAsAQueryDoes)
{
    EXPECT_EQ(queryEncoded(u"a~(+)? \n\"#%é"_s), "a~(+)?%20%0A%22%23%25%C3%A9");
}

TEST(ContactSupport, HandsTheMailToTheDesktopAndLogsARefusal)
{
    FakeWorkspace workspace;
    RecordingLog log;
    workspace.refusal = Error{u"no mail program"_s};
    contactSupport(workspace, log);
    ASSERT_EQ(workspace.urls.size(), 1);
    const QByteArray mail = workspace.urls.first().toEncoded();
    EXPECT_TRUE(mail.startsWith("mailto:") && mail.contains("?subject=Aerolith%20Support%20Request&body="))
        << mail.constData();
    EXPECT_EQ(log.take(), QStringList{u"Failed to open the support mail: no mail program"_s});
}

TEST(About, BreaksItsLinesWhereTheTextDoes)
{
    QWidget window;
    window.show();
    showAbout(window);
    const auto* about = window.findChild<QDialog*>(u"about"_s);
    ASSERT_TRUE(about != nullptr && about->isVisible());

    const QList<QLabel*> labels = about->findChildren<QLabel*>();
    EXPECT_FALSE(labels.isEmpty());
    for (const QLabel* label : labels) {
        EXPECT_GE(label->width(), label->fontMetrics().size(0, label->text()).width())
            << label->text().toStdString();
    }
}

} // namespace aerolith
