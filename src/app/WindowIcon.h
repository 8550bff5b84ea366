#pragma once

#include <QObject>

class QWidget;

namespace aerolith {

/// Gives the program's windows their icon once `window` has been painted: an icon is drawn in every size that
/// a desktop may ask for, which is a sixth of a start. The window outlives this object, or owns it. GUI
/// thread.
class WindowIcon : public QObject
{
public:
    explicit WindowIcon(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace aerolith
