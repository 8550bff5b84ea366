#include "platform/simulated/ScenarioReader.h"
#include "support/Printing.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace aerolith {
namespace {

TEST(SampleScenarios, showWhatTheirNamesSay)
{
    const QDir folder(QStringLiteral(SAMPLE_SCENARIOS));
    const QStringList names = folder.entryList({u"*.json"_s}, QDir::Files, QDir::Name);
    ASSERT_EQ(names, (QStringList{u"denied-access.json"_s, u"failing-scans.json"_s, u"moving-away.json"_s}));
    QList<Scenario> samples;
    for (const QString& name : names) {
        const Result<Scenario> sample = readScenario(folder.filePath(name));
        ASSERT_TRUE(sample.ok()) << sample.error().description.toStdString();
        samples.append(sample.value());
    }

    EXPECT_EQ(samples[0].authorization, CLAuthorizationStatus::notDetermined);
    EXPECT_EQ(samples[0].answer, CLAuthorizationStatus::denied);

    qsizetype failures = 0;
    for (const ScenarioCycle& cycle : samples[1].cycles) {
        failures += cycle.error ? 1 : 0;
    }
    EXPECT_GT(failures, 0);
    EXPECT_LT(failures, samples[1].cycles.size());

    const QList<ScenarioCycle>& leaving = samples[2].cycles;
    ASSERT_TRUE(leaving.first().joined);
    EXPECT_FALSE(leaving.last().joined);
    qint64 signal = 0;
    for (const ScenarioCycle& cycle : leaving) {
        for (const CWNetwork& network : cycle.networks) {
            if (network.bssid == leaving.first().joined->bssid) {
                EXPECT_LT(network.rssiValue, signal);
                signal = network.rssiValue;
            }
        }
    }
}

} // namespace
} // namespace aerolith
