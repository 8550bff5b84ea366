#include "ui/common/Switch.h"
#include "ui/common/SymbolButton.h"
#include "ui/common/Symbols.h"
#include "ui/common/Theme.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(Symbols, AreDrawnInTheirColourAndNotToTheEdge)
{
    const QStringList files = QDir(u":/aerolith/symbols"_s).entryList({u"*.svg"_s});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        const QImage image = Symbols::pixmap(file.chopped(4), 12, QColor(255, 0, 0), 2).toImage();
        ASSERT_EQ(image.size(), QSize(24, 24));
        const QImage mean = image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_NEAR(mean.pixelColor(0, 0).alphaF(), 0.5, 0.4) << "empty, or a block";
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, 12);
            EXPECT_TRUE(pixel.alpha() < 128 || (pixel.red() > 250 && pixel.green() == 0));
            EXPECT_EQ(image.pixelColor(x, 0).alpha(), 0);
        }
    }
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

TEST(Switch, IsThrownByMouseAndKeyAnywhereOnIt)
{
    Switch control;
    control.setText(u"All Networks"_s);
    control.resize(control.sizeHint());
    control.show();
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(control.width() - 3, 3));
    EXPECT_TRUE(control.isChecked());
    QTest::keyClick(&control, Qt::Key_Space);
    EXPECT_FALSE(control.isChecked());
}

} // namespace aerolith
