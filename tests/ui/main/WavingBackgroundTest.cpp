#include "ui/main/WavingBackground.h"

#include "support/Engine.h"
#include "support/Printing.h"

#include <QApplication>
#include <QLabel>
#include <QPaintEvent>
#include <QProxyStyle>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// The style of a desktop that asks for no animations.
class StillStyle : public QProxyStyle
{
public:
    StillStyle() : QProxyStyle(u"Fusion"_s) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// Notes which part of a widget is painted.
class PaintRecorder : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++count;
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    int count = 0;
    QRegion painted;
};

/// The backdrop in a window, on an engine that the test drives.
class WavingBackgroundTest : public testing::Test
{
protected:
    WavingBackgroundTest()
    {
        window.resize(600, 640);
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->addWidget(&backdrop);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        backdrop.installEventFilter(&recorder);
        message = backdrop.findChild<QLabel*>();
    }

    ~WavingBackgroundTest() override { backdrop.setParent(nullptr); }

    void publish(const QList<CWNetwork>& networks)
    {
        engine.cycle(networks);
        QCoreApplication::processEvents();
    }

    /// What is painted over some frames of the animation.
    QRegion paintedInFrames()
    {
        QCoreApplication::processEvents();
        recorder.count = 0;
        recorder.painted = {};
        EXPECT_TRUE(QTest::qWaitFor([this] { return recorder.count >= 3; }));
        return recorder.painted;
    }

    Engine engine;
    QWidget window;
    WavingBackground backdrop{*engine.scanner};
    PaintRecorder recorder;
    QLabel* message = nullptr;
};

} // namespace

TEST_F(WavingBackgroundTest, SaysWhatToDoOrWhatIsGoingOn)
{
    EXPECT_EQ(message->text(), u"Scanning for networks.\nPlease wait..."_s);
    const QPoint inRings = backdrop.rect().center() + QPoint(200, 0);
    EXPECT_TRUE(paintedInFrames().contains(inRings));

    engine.location.change(CLAuthorizationStatus::denied);
    QCoreApplication::processEvents();
    const QString access = u"Location access is required\nto scan for networks.\n\nPlease enable it\n"
                           "in System Settings."_s;
    EXPECT_EQ(message->text(), access);
    EXPECT_TRUE(paintedInFrames().contains(inRings)) << "still waiting for a first network";

    publish({network(u"01"_s, u"net"_s)});
    EXPECT_EQ(message->text(), access) << "comes before the hint";
    EXPECT_FALSE(paintedInFrames().contains(inRings));

    engine.location.change(CLAuthorizationStatus::authorizedWhenInUse);
    QCoreApplication::processEvents();
    EXPECT_EQ(message->text(), u"Select a network to view details"_s);
    EXPECT_FALSE(paintedInFrames().intersects(message->geometry())) << "only the symbol moves";

    engine.scanner->clearNetworks();
    engine.main.drain();
    QCoreApplication::processEvents();
    EXPECT_EQ(message->text(), u"Scanning for networks.\nPlease wait..."_s);
    EXPECT_TRUE(paintedInFrames().contains(inRings));
}

TEST_F(WavingBackgroundTest, MovesOnlyWhileItCanBeSeen)
{
    EXPECT_TRUE(backdrop.isAnimating());
    backdrop.hide();
    EXPECT_FALSE(backdrop.isAnimating());
    backdrop.show();
    EXPECT_TRUE(backdrop.isAnimating());

    window.hide();
    EXPECT_FALSE(backdrop.isAnimating());
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return backdrop.isAnimating(); }));
    backdrop.hide();
    window.hide();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_FALSE(backdrop.isAnimating()) << "hidden in a window that comes back";
    backdrop.show();

    window.showMinimized();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !backdrop.isAnimating(); }));
    window.showNormal();
    EXPECT_TRUE(QTest::qWaitFor([this] { return backdrop.isAnimating(); }));
}

TEST_F(WavingBackgroundTest, StaysStillWhereTheDesktopWantsNoAnimations)
{
    StillStyle still;
    backdrop.setStyle(&still);
    EXPECT_FALSE(backdrop.isAnimating());
    backdrop.setStyle(QApplication::style());
    EXPECT_TRUE(backdrop.isAnimating());
}

} // namespace aerolith
