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

void showAbout(QWidget& window)
{
    auto* about = new QMessageBox(QMessageBox::NoIcon, u"About Aerolith"_s,
                                  u"Aerolith %1"_s.arg(QApplication::applicationVersion()),
                                  QMessageBox::Close, &window);
    about->setObjectName(u"about"_s);
    about->setTextFormat(Qt::PlainText);
    about->setInformativeText(u"Wi-Fi survey for the Linux desktop.\nFree software under the MIT License."_s);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

} // namespace

void addMainMenu(MainWindow& window, const MenuTargets& targets)
{
    QMenu* application = window.menuBar()->addMenu(u"&Aerolith"_s);
    application->addAction(u"&About Aerolith"_s, &window, [&window] { showAbout(window); });
    application->addSeparator();
    application->addAction(new CheckForUpdatesView(targets.updater, application));
    application->addSeparator();
    QAction* quit = application->addAction(u"&Quit"_s, &window, [] { QApplication::exit(0); });
    quit->setShortcut(QKeySequence::Quit);

    QMenu* view = window.menuBar()->addMenu(u"&View"_s);
    view->addAction(u"Toggle &Sidebar"_s, Qt::Key_F9, &window, &MainWindow::toggleSidebar);

    QMenu* help = window.menuBar()->addMenu(u"&Help"_s);
    help->addAction(u"Contact &Support"_s, &window,
                    [targets] { contactSupport(targets.workspace, targets.log); });
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
