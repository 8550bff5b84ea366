#pragma once

#include "model/WiFiScanner.h"
#include "ui/common/OncePerTurn.h"
#include "ui/detail/NetworkDetailView.h"
#include "ui/main/Announcer.h"
#include "ui/main/Sidebar.h"
#include "ui/main/WavingBackground.h"
#include "ui/main/WindowSurroundings.h"

#include <QSplitter>
#include <QStackedWidget>

#include <optional>

namespace aerolith {

/// The two columns of the main window: the sidebar, and the details of the selected access point or, while
/// there is none to show, the backdrop.
class ContentView : public QSplitter
{
    Q_OBJECT

public:
    /// The scanner outlives the view.
    ContentView(WiFiScanner& scanner, const WindowSurroundings& surroundings, QWidget* parent = nullptr);

    void focusList() { m_sidebar->focusList(); }

    [[nodiscard]] bool isSidebarShown() const { return !m_sidebar->isHidden(); }

    /// A sidebar that comes back is as wide as it was.
    void setSidebarShown(bool shown) { m_sidebar->setVisible(shown); }

    /// What the window is called: the network whose details are shown, or the program.
    [[nodiscard]] QString title() const;

    /// More than the least where words or text are larger than usual.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void titleChanged(const QString& title);

protected:
    [[nodiscard]] QSplitterHandle* createHandle() override;

private:
    /// The selected access point's record, as long as it is listed.
    [[nodiscard]] std::optional<WiFiNetwork> selectedNetwork() const;
    [[nodiscard]] NetworkDetailView& details();
    void showSelected();

    WiFiScanner& m_scanner;
    Sidebar* m_sidebar;
    QStackedWidget* m_detailColumn;
    WavingBackground* m_backdrop;
    Announcer* m_announcer;
    const DetailSurroundings m_surroundings;
    /// Null before the first selection: the window comes up sooner without it.
    NetworkDetailView* m_details = nullptr;
    OncePerTurn m_publish;
};

} // namespace aerolith
