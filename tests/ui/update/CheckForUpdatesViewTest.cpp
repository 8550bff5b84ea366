#include "ui/update/CheckForUpdatesView.h"

#include "support/Printing.h"

#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// An updater with one observer, who is told what the test says.
class FakeUpdater : public Updater
{
public:
    void start() override {}

    [[nodiscard]] std::unique_ptr<Observation>
    observeCanCheckForUpdates(std::function<void(bool)> newObserver) override
    {
        observer = std::move(newObserver);
        observer(can);
        return std::make_unique<Ending>(observer);
    }

    void checkForUpdates() override { ++checks; }

    void change(bool newCan)
    {
        can = newCan;
        observer(can);
    }

    bool can = false;
    std::function<void(bool)> observer;
    int checks = 0;

private:
    class Ending : public Observation
    {
    public:
        explicit Ending(std::function<void(bool)>& observed) : m_observed(observed) {}

        ~Ending() override { m_observed = nullptr; }

    private:
        std::function<void(bool)>& m_observed;
    };
};

} // namespace

TEST(CheckForUpdatesView, FollowsTheUpdaterAndStartsOneCheck)
{
    FakeUpdater updater;
    QMenu menu;
    std::optional<CheckForUpdatesView> item(std::in_place, updater);
    menu.addAction(&*item);
    menu.popup({});
    EXPECT_EQ(item->text(), u"Check for Updates\u2026"_s);
    EXPECT_FALSE(item->isEnabled());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&*item).center());
    EXPECT_EQ(updater.checks, 0);

    updater.change(true);
    EXPECT_TRUE(item->isEnabled());
    menu.popup({});
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&*item).center());
    EXPECT_EQ(updater.checks, 1);
    updater.change(false);
    EXPECT_FALSE(item->isEnabled());

    updater.can = true;
    item.reset();
    EXPECT_EQ(updater.observer, nullptr);
    EXPECT_TRUE(CheckForUpdatesView(updater).isEnabled()) << "from the start";
}

} // namespace aerolith
