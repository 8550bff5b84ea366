#include "ui/Colours.h"
#include "ui/common/Spinner.h"
#include "ui/common/Switch.h"
#include "ui/common/SwitchHeader.h"
#include "ui/common/SymbolButton.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QStyle>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(Symbols, AreDrawnInTheirColourAtTheDevicesPixels)
{
    const QStringList files = QDir(u":/aerolith/symbols"_s).entryList({u"*.svg"_s});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        const QPixmap pixmap = Symbols::pixmap(file.chopped(4), 12, QColor(255, 0, 0), 2);
        EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(12, 12));
        const QImage image = pixmap.toImage();
        EXPECT_EQ(image.size(), QSize(24, 24));
        const QImage mean = image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_NEAR(mean.pixelColor(0, 0).alphaF(), 0.5, 0.4) << "empty, or a block";
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, 12);
            EXPECT_TRUE(pixel.alpha() < 128 || (pixel.red() > 250 && pixel.green() == 0));
            EXPECT_EQ(image.pixelColor(x, 0).alpha(), 0) << "reaches the edge";
        }
    }
}

TEST(SymbolButton, FollowsItsPaletteAndFadesWhenDisabled)
{
    SymbolButton button(u"trash"_s, u"Clear"_s);
    const auto contrast = [&button] { return contrastWithin(button.grab().toImage()); };
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
    button.setPalette(palette);
    EXPECT_GT(contrast(), 10);
    button.setEnabled(false);
    EXPECT_LT(contrast(), 4.5);
}

TEST(Controls, ShowThatTheKeyboardIsAtThem)
{
    QWidget window;
    SymbolButton button(u"trash"_s, u"Clear"_s, &window);
    Switch control(&window);
    control.move(60, 0);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QWidget* focused : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&control)}) {
        const auto edge = [focused] {
            return focused->grab().toImage().pixelColor(focused->width() / 2, focused->height() - 1);
        };
        window.setFocus();
        EXPECT_NE(edge(), Theme::accent(focused->palette()));
        focused->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(edge(), Theme::accent(focused->palette()));
    }
}

TEST(Spinner, Turns)
{
    Spinner spinner;
    spinner.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&spinner));
    const QImage first = spinner.grab().toImage();
    EXPECT_TRUE(QTest::qWaitFor([&] { return spinner.grab().toImage() != first; }, 2000));
}

TEST(Switch, IsThrownByMouseAndKeyAnywhereOnIt)
{
    Switch control;
    control.setText(u"All Networks"_s);
    control.resize(control.sizeHint());
    control.show();
    const QImage off = control.grab().toImage();
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(control.width() - 3, 3));
    EXPECT_TRUE(control.isChecked());
    EXPECT_NE(control.grab().toImage(), off);
    QTest::keyClick(&control, Qt::Key_Space);
    EXPECT_FALSE(control.isChecked());
}

TEST(SwitchHeader, IsAsFarFromBothEdgesInEitherDirection)
{
    auto* control = new Switch;
    SwitchHeader header(control);
    auto* title = new QLabel(u"Wi-Fi"_s);
    header.leading().addWidget(title);
    header.resize(300, header.sizeHint().height());
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        header.setLayoutDirection(direction);
        header.layout()->activate();
        const auto inReadingOrder = [&](const QWidget* part) {
            return QStyle::visualRect(direction, header.rect(), part->geometry());
        };
        EXPECT_EQ(inReadingOrder(title).left(), 12) << direction;
        EXPECT_EQ(header.width() - 1 - inReadingOrder(control).right(), 12 - Switch::margin) << direction;
    }
}

} // namespace aerolith
