#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace aerolith {

/// Closing the main window hides it, with all that belongs to it, while `comesBack` says that the user can
/// bring it back. The program ends by QApplication::exit(), or with the user's session.
class HideOnClose : public QObject
{
public:
    /// The window outlives this object.
    HideOnClose(QWidget& window, std::function<bool()> comesBack);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
    std::function<bool()> m_comesBack;
};

} // namespace aerolith
