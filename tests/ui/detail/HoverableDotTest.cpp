#include "ui/detail/HoverableDot.h"

#include "support/Printing.h"
#include "ui/detail/SampleHistory.h"

#include <QApplication>
#include <QFontMetrics>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(HoverableDot, ReadsItsSampleOutBesideIt)
{
    HoverableDot dot{.position = {500, 40}, .data = history({-50}, 3).first(), .totalWidth = 600};
    EXPECT_EQ(dot.readOut(), (QStringList{u"RSSI: -50 dBm"_s, u"Noise: 3 dBm"_s}));
    const QRectF box = dot.readOutBox(QApplication::font());
    EXPECT_EQ(box.center(), QPointF(550, 40));
    EXPECT_GT(box.height(), 2 * 11 + 12);

    dot.position.setX(500.5);
    EXPECT_EQ(dot.readOutBox(QApplication::font()).center(), QPointF(450.5, 40));
    dot.position = {0, 0};
    EXPECT_EQ(dot.readOutBox(QApplication::font()).center(), QPointF(50, 0)) << "past the edges";
}

} // namespace aerolith
