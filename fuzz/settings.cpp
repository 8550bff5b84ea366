#include "Require.h"
#include "model/HiddenList.h"
#include "model/SettingKeys.h"
#include "platform/qt/SettingsFile.h"
#include "update/AutomaticChecks.h"
#include "update/SettingKeys.h"

#include <QFile>
#include <QTemporaryDir>

#include <cmath>

using namespace aerolith;

namespace {

class SilentLog : public Log
{
public:
    void line(const QString& /*text*/) override {}
};

/// A file of that content, for the length of one run. Its name is new each time: Qt keeps in mind what a
/// settings file held.
class ContentFile
{
public:
    explicit ContentFile(const QByteArray& content)
    {
        static const QTemporaryDir folder;
        static quint64 count = 0;
        m_file.setFileName(folder.filePath(QString::number(++count)));
        require(m_file.open(QIODevice::WriteOnly) && m_file.write(content) == content.size());
        m_file.close();
    }

    ContentFile(const ContentFile&) = delete;
    ContentFile& operator=(const ContentFile&) = delete;

    ~ContentFile() { m_file.remove(); }

    [[nodiscard]] QString path() const { return m_file.fileName(); }

private:
    QFile m_file;
};

} // namespace

/// Qt keeps the files that it read last, so that no run frees what it allocates; looking for leaks after each
/// run would take most of the time.
extern "C" const char* __asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "detect_leaks=0";
}

/// The input is the settings file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const ContentFile file(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    SilentLog log;
    const SettingsFile settings(file.path(), log);
    for (const QString& key :
         {SettingKeys::scanInterval, SettingKeys::historyLimit, SettingKeys::hiddenBSSIDs,
          SettingKeys::automaticUpdateChecks, SettingKeys::lastUpdateCheck}) {
        require(!std::isnan(settings.doubleForKey(key).value_or(0)));
        (void)settings.dataForKey(key);
        const auto noted = settings.integerForKey(key);
        constexpr std::chrono::seconds now{1'800'000'000};
        require(isCheckDue(noted, now) || (noted && *noted <= now.count()));
    }
    // Whatever is hidden can be stored again.
    (void)encodeHiddenBSSIDs(loadHiddenBSSIDs(settings));
    return 0;
}
