#include "ui/main/WavingBackground.h"

#include "ui/ViewDriver.h"
#include "ui/main/CircleLine.h"

#include <QLabel>
#include <QLineF>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

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

/// The backdrop in a window.
class WavingBackgroundTest : public ViewDriver
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
    }

    ~WavingBackgroundTest() override { backdrop.setParent(nullptr); }

    const QWidget& whole() override { return backdrop; }

    /// What is painted over some frames of the animation.
    QRegion paintedInFrames()
    {
        QCoreApplication::processEvents();
        recorder.count = 0;
        recorder.painted = {};
        EXPECT_TRUE(QTest::qWaitFor([this] { return recorder.count >= 3; }));
        return recorder.painted;
    }

    QWidget window;
    WavingBackground backdrop{*engine.scanner};
    QLabel* message = backdrop.findChild<QLabel*>();
    PaintRecorder recorder;
};

} // namespace

TEST_F(WavingBackgroundTest, SaysWhatToDoOrWhatIsGoingOn)
{
    EXPECT_EQ(message->text(), u"Scanning for networks.\nPlease wait..."_s);
    const QPoint inRings = backdrop.rect().center() + QPoint(200, 0);
    EXPECT_TRUE(paintedInFrames().contains(inRings));

    engine.location.change(CLAuthorizationStatus::denied);
    settle();
    const QString access = u"Location access is required\nto scan for networks.\n\nPlease enable it\n"
                           "in System Settings."_s;
    EXPECT_EQ(message->text(), access);
    EXPECT_TRUE(paintedInFrames().contains(inRings)) << "still waiting for a first network";

    scan({network(u"01"_s, u"net"_s)});
    EXPECT_EQ(message->text(), access) << "comes before the hint";
    EXPECT_FALSE(paintedInFrames().contains(inRings));

    engine.location.change(CLAuthorizationStatus::authorizedWhenInUse);
    settle();
    EXPECT_EQ(message->text(), u"Select a network to view details"_s);
    EXPECT_FALSE(paintedInFrames().intersects(message->geometry())) << "only the symbol moves";

    engine.scanner->clearNetworks();
    settle();
    EXPECT_TRUE(paintedInFrames().contains(inRings));
}

TEST_F(WavingBackgroundTest, PaintsTheSymbolAnewWhereItsMessageMoves)
{
    const QRect symbol(backdrop.rect().center().x() - 18, message->y() - 60, 36, 36);
    QCoreApplication::processEvents();
    recorder.painted = {};
    message->move(message->pos() + QPoint(0, 50));
    QCoreApplication::processEvents();
    EXPECT_TRUE(QRegion(symbol).subtracted(recorder.painted).isEmpty());
}

TEST(CircleLine, HasNoGapsAndNothingTwice)
{
    constexpr double lineWidth = 6;
    // As in a window, whose painter is moved to the widget.
    const QPointF centre(229.5, 180);
    const QPoint place(341, 78);
    const QColor color(0, 0, 255, 100);
    for (double radius = 136; radius < 160; radius += 0.37) {
        QImage window(459 + place.x(), 360 + place.y(), QImage::Format_ARGB32_Premultiplied);
        window.fill(Qt::transparent);
        QPainter painter(&window);
        painter.translate(place);
        paintCircle(painter, centre, radius, lineWidth, color);
        painter.end();
        const QImage picture = window.copy(QRect(place, QSize(459, 360)));
        int wrong = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const double distance = QLineF(centre, QPointF(x + 0.5, y + 0.5)).length();
                const bool isInLine = std::abs(distance - radius) < lineWidth / 2 - 1;
                wrong += isInLine && std::abs(picture.pixelColor(x, y).alpha() - color.alpha()) > 2 ? 1 : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << "radius " << radius;
    }
}

} // namespace aerolith
