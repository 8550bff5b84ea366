#pragma once

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace aerolith {

/// An icon that is drawn by paint() whenever it is asked for, at the size that is asked for.
class PaintedIconEngine : public QIconEngine
{
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
};

} // namespace aerolith
