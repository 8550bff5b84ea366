#include "app/MainMenu.h"

#include "app/SupportMail.h"
#include "ui/main/MainWindow.h"
#include "ui/update/CheckForUpdatesView.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

struct MainMenuTexts
{
    Q_DECLARE_TR_FUNCTIONS(MainMenu)
};

} // namespace

void addMainMenu(MainWindow& window, const MenuTargets& targets)
{
    QMenu* application = window.menuBar()->addMenu(MainMenuTexts::tr("&Aerolith"));
    application->addAction(MainMenuTexts::tr("&About Aerolith"), &window, [&window] { showAbout(window); });
    application->addSeparator();
    application->addAction(new CheckForUpdatesView(targets.updater, application));
    application->addSeparator();
    QAction* quit =
        application->addAction(MainMenuTexts::tr("&Quit"), &window, [] { QApplication::exit(0); });
    quit->setShortcut(QKeySequence::Quit);

    QMenu* view = window.menuBar()->addMenu(MainMenuTexts::tr("&View"));
    view->addAction(MainMenuTexts::tr("Toggle &Sidebar"), Qt::Key_F9, &window, &MainWindow::toggleSidebar);

    QMenu* help = window.menuBar()->addMenu(MainMenuTexts::tr("&Help"));
    help->addAction(MainMenuTexts::tr("Contact &Support"), &window,
                    [targets] { contactSupport(targets.workspace, targets.log); });
}

void showAbout(QWidget& window)
{
    // All in one text: a message box breaks the lines of an informative text anew, to be as narrow as it can.
    const QString text =
        MainMenuTexts::tr("Aerolith %1").arg(QApplication::applicationVersion()) + u"\n\n"_s +
        MainMenuTexts::tr("Wi-Fi survey for the Linux desktop.\nFree software under the MIT License.");
    auto* about = new QMessageBox(QMessageBox::NoIcon, MainMenuTexts::tr("About Aerolith"), text,
                                  QMessageBox::Close, &window);
    about->setObjectName(u"about"_s);
    about->setTextFormat(Qt::PlainText);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void contactSupport(Workspace& workspace, Log& log)
{
    const QUrl mail = supportMailUrl();
    if (!mail.isValid()) {
        log.line(u"Failed to create mailto URL"_s);
        return;
    }
    if (const Failure failure = workspace.openUrl(mail)) {
        log.line(u"Failed to open the support mail: %1"_s.arg(failure->description));
    }
}

} // namespace aerolith
