#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

class QDialog;
class QWidget;

namespace aerolith {

/// Closing the main window hides it, with the dialogs that belong to it, while `comesBack` says that the user
/// can bring it back; they come back with it. The program ends by QApplication::exit(), or with the user's
/// session.
class HideOnClose : public QObject
{
public:
    /// The window outlives this object.
    HideOnClose(QWidget& window, std::function<bool()> comesBack);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void hide();
    void showDialogs();

    QWidget& m_window;
    /// That were hidden with it.
    QList<QPointer<QDialog>> m_dialogs;
    std::function<bool()> m_comesBack;
};

} // namespace aerolith
