#pragma once

#include "model/WiFiScanner.h"
#include "ui/common/OncePerTurn.h"
#include "ui/common/VisibleClock.h"

#include <QWidget>

namespace aerolith {

class SecondaryLabel;

/// What fills the detail column while no access point is shown there: a pulsing symbol over a message that
/// says what to do or what is going on, with waves behind them while the list is empty.
class WavingBackground : public QWidget
{
    Q_OBJECT

public:
    /// The scanner outlives the widget.
    explicit WavingBackground(WiFiScanner& scanner);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showState();
    void repaintMoving();
    /// The symbol at scale 1.
    [[nodiscard]] QRectF symbolFrame() const;
    void paintRings(QPainter& painter) const;
    void paintSymbol(QPainter& painter) const;

    WiFiScanner& m_scanner;
    QString m_symbol;
    bool m_showsRings = false;
    SecondaryLabel* m_message;
    OncePerTurn m_publish;
    VisibleClock m_clock;
};

} // namespace aerolith
