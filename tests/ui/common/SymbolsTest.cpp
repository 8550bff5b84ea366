#include "ui/common/Symbols.h"

#include "support/Printing.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QStringList allSymbols()
{
    QStringList names;
    for (const QString& file : QDir(u":/aerolith/symbols"_s).entryList({u"*.svg"_s})) {
        names.append(file.chopped(4));
    }
    return names;
}

QSet<QString> attributeValues(const QString& svg, const QString& attribute)
{
    QSet<QString> values;
    const QRegularExpression pattern(u"\\b%1=\"([^\"]*)\""_s.arg(attribute));
    for (const auto& match : pattern.globalMatch(svg)) {
        values.insert(match.captured(1));
    }
    return values;
}

/// Share of the image that the symbol covers.
double coverage(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += image.pixelColor(x, y).alphaF();
        }
    }
    return sum / (image.width() * image.height());
}

} // namespace

TEST(Symbols, AreOneSet)
{
    ASSERT_FALSE(allSymbols().isEmpty());
    for (const QString& name : allSymbols()) {
        SCOPED_TRACE(name.toStdString());
        QFile file(u":/aerolith/symbols/%1.svg"_s.arg(name));
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const QString svg = QString::fromUtf8(file.readAll());
        EXPECT_EQ(attributeValues(svg, u"viewBox"_s), QSet<QString>{u"0 0 16 16"_s});
        for (const QString& color : attributeValues(svg, u"fill"_s) | attributeValues(svg, u"stroke"_s)) {
            EXPECT_TRUE(color == "none"_L1 || color == "currentColor"_L1) << color.toStdString();
        }
        EXPECT_TRUE((attributeValues(svg, u"stroke-width"_s) - QSet<QString>{u"1.5"_s}).isEmpty());
    }
}

TEST(Symbols, AreDrawnInTheirColourAtTheDevicesPixels)
{
    const QColor red(255, 0, 0);
    for (const QString& name : allSymbols()) {
        SCOPED_TRACE(name.toStdString());
        const QPixmap pixmap = Symbols::pixmap(name, 12, red, 2);
        EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(12, 12));
        const QImage image = pixmap.toImage();
        EXPECT_EQ(image.size(), QSize(24, 24));
        EXPECT_GT(coverage(image), 0.1);
        EXPECT_LT(coverage(image), 0.9);
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, 12);
            EXPECT_TRUE(pixel.alpha() < 128 || (pixel.red() > 250 && pixel.green() == 0));
            EXPECT_EQ(image.pixelColor(x, 0).alpha(), 0) << "reaches the edge";
        }
    }
}

TEST(Symbols, DrawNothingUnderAnUnknownName)
{
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QImage before = image;
    QPainter painter(&image);
    Symbols::paint(painter, {4, 4, 12, 12}, u"no.such.symbol"_s, Qt::black);
    painter.end();
    EXPECT_EQ(image, before);
}

} // namespace aerolith
