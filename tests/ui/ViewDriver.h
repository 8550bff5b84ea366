#pragma once

#include "model/DateTexts.h"
#include "support/Engine.h"
#include "support/FakeDesktop.h"
#include "support/Printing.h"
#include "ui/SavedFiles.h"

#include <QCoreApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace aerolith {

/// A view on an engine that the test drives, as a user finds it: by the names of its parts.
class ViewDriver : public testing::Test
{
protected:
    /// The widget that has all parts.
    virtual const QWidget& whole() = 0;

    template <typename Widget = QWidget>
    Widget& child(const QString& name)
    {
        auto* found = whole().findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }

    void scan(const QList<CWNetwork>& results)
    {
        engine.cycle(results);
        QCoreApplication::processEvents();
    }

    /// Lets what the user did take effect.
    void settle()
    {
        engine.main.drain();
        QCoreApplication::processEvents();
    }

    /// What the Tab key goes through, from where the keyboard is until it is there again.
    QStringList reachedByTab()
    {
        QStringList reached;
        const QWidget* start = whole().focusWidget();
        do {
            QWidget* focused = whole().focusWidget();
            reached.append(focused->objectName());
            QTest::keyClick(focused, Qt::Key_Tab);
        } while (whole().focusWidget() != start && reached.size() < 50);
        return reached;
    }

    Engine engine;
    DateTexts texts{UserLocale()};
    SavedFiles files;
    FakeDesktop desktop;
};

} // namespace aerolith
