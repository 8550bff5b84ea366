#include "app/ColourScheme.h"
#include "ui/Colours.h"
#include "ui/main/WindowDriver.h"

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QVariantAnimation>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// In the desktop's own colours at first, which come back with the end of the test.
class WindowColoursTest : public WindowDriver
{
protected:
    WindowColoursTest() { scan({network(u"a"_s, u"Alpha"_s, -70), network(u"b"_s, u"beta"_s, -40)}); }

    ~WindowColoursTest() override { become(m_own); }

    void become(const QPalette& palette)
    {
        QApplication::setPalette(palette);
        settle();
    }

    /// The signal line draws itself in the beginning.
    void finishDrawing(const MainWindow& shown)
    {
        auto* drawing = shown.findChild<QVariantAnimation*>(u"drawing"_s);
        ASSERT_TRUE(QTest::qWaitFor([&] { return drawing->state() == QVariantAnimation::Running; }));
        drawing->setCurrentTime(drawing->duration());
        settle();
    }

    /// Several times as large as on the display.
    QImage enlarged()
    {
        QImage image(window.size() * enlargement, QImage::Format_RGB32);
        image.setDevicePixelRatio(enlargement);
        window.render(&image);
        return image;
    }

    /// A part of the window in its enlarged picture, `place` being relative to the widget.
    QImage part(const QImage& image, const QWidget& widget, const QRect& place) const
    {
        const QRect inWindow(widget.mapTo(&window, place.topLeft()), place.size());
        return image.copy(QRect(inWindow.topLeft() * enlargement, inWindow.size() * enlargement));
    }

    static constexpr int enlargement = 4;

    const QPalette m_own = QApplication::palette();
};

} // namespace

/// Nothing keeps a colour: a window that has become dark is one that has been so from the start, and back
/// again.
TEST_F(WindowColoursTest, SwitchesWhileTheWindowIsOpen)
{
    click(u"a"_s);
    finishDrawing(window);
    const QImage light = window.grab().toImage();
    become(darkPalette());
    const QImage dark = window.grab().toImage();
    EXPECT_NE(dark, light);
    MainWindow fresh(*engine.scanner, surroundings);
    fresh.resize(window.size());
    fresh.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fresh));
    finishDrawing(fresh);
    EXPECT_EQ(dark, fresh.grab().toImage());
    fresh.hide();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    become(m_own);
    EXPECT_EQ(window.grab().toImage(), light);
}

/// Where the user's palette allows it. Not measured: the row that is selected, whose colours are the
/// palette's, and the values along the chart's edge, which are in a fixed gray.
TEST_F(WindowColoursTest, EveryTextIsReadableInLightAndDark)
{
    click(u"b"_s);
    for (const QPalette& palette : {m_own, darkPalette()}) {
        become(palette);
        const QImage image = enlarged();
        int measured = 0;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const QString text = widget->property("text").toString();
            if (widget->isVisible() && !text.isEmpty() && !widget->visibleRegion().isEmpty()) {
                ++measured;
                EXPECT_GE(contrastWithin(part(image, *widget, widget->visibleRegion().boundingRect())),
                          Theme::readableContrast)
                    << text.toStdString();
            }
        }
        EXPECT_GE(measured, 14);
        const QRect row = list.visualRect(list.model()->index(rowOf(u"a"_s), 0));
        const QRect name(row.left() + 44, row.top(), 120, row.height() / 2);
        for (const QRect& line : {name, name.translated(0, row.height() / 2)}) {
            EXPECT_GE(contrastWithin(part(image, *list.viewport(), line)), Theme::readableContrast);
        }
    }
}

} // namespace aerolith
