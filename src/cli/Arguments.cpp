#include "cli/Arguments.h"

#include <cmath>
#include <utility>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

/// Walks the arguments that are left once --simulate has been taken out; the first error stays.
class Parser
{
public:
    explicit Parser(QStringList arguments) : m_left(std::move(arguments)) {}

    Result<Arguments> parse()
    {
        auto simulate = takeSimulation(m_left);
        if (!simulate.ok()) {
            return simulate.error();
        }
        m_parsed.simulate = simulate.value();
        while (!m_left.isEmpty() && !m_error) {
            const QString option = m_left.takeFirst();
            takeOption(option);
            m_taken.append(option);
        }
        checkTogether();
        if (m_error) {
            return *m_error;
        }
        return m_parsed;
    }

private:
    void takeOption(const QString& option)
    {
        if (option == "--help"_L1 || option == "-h"_L1) {
            m_parsed.help = true;
        } else if (option == "--version"_L1) {
            m_parsed.version = true;
        } else if (option == "--visible-only"_L1) {
            m_parsed.visibleOnly = true;
        } else if (option == "--watch"_L1) {
            m_parsed.watch = true;
        } else if (option == "--cycles"_L1) {
            m_parsed.cycles = wholeNumber(option);
        } else if (option == "--interval"_L1) {
            m_parsed.interval = seconds(option);
        } else if (option == "--sort"_L1) {
            m_parsed.sort = sortOption(option);
        } else if (option == "--format"_L1) {
            m_parsed.format = format(option);
        } else if (option == "--list"_L1) {
            m_parsed.listFile = value(option, u"a file"_s);
        } else if (option == "--record"_L1) {
            m_parsed.recordFile = recordFile(option);
        } else if (option == "--details"_L1) {
            const QString bssid = value(option, u"a BSSID and a file"_s);
            m_parsed.details.append({.bssid = bssid, .file = value(option, u"a file after the BSSID"_s)});
        } else {
            fail(unknownArgument(option).description);
        }
    }

    void checkTogether()
    {
        for (const QString& option : {u"--list"_s, u"--details"_s, u"--sort"_s, u"--format"_s}) {
            if (m_parsed.watch && m_taken.contains(option)) {
                fail(u"--watch writes JSON lines as it scans, it does not go with %1"_s.arg(option));
            }
        }
    }

    QString value(const QString& option, const QString& expected)
    {
        if (m_left.isEmpty() || m_left.first().startsWith("--"_L1)) {
            fail(u"%1 needs %2"_s.arg(option, expected));
            return {};
        }
        return m_left.takeFirst();
    }

    QString recordFile(const QString& option)
    {
        QString file = value(option, u"a file"_s);
        if (file == "-"_L1 || file.isEmpty()) {
            fail(u"%1 needs a file, not \"%2\": standard output is for what was heard"_s.arg(option, file));
        }
        return file;
    }

    int wholeNumber(const QString& option)
    {
        const QString expected = u"a whole number from 1 up"_s;
        const QString text = value(option, expected);
        bool ok = false;
        const int number = text.toInt(&ok);
        if (!ok || number < 1) {
            fail(u"%1 needs %2, not \"%3\""_s.arg(option, expected, text));
        }
        return number;
    }

    double seconds(const QString& option)
    {
        const QString expected = u"a number of seconds from 0 up"_s;
        const QString text = value(option, expected);
        bool ok = false;
        const double number = text.toDouble(&ok);
        if (!ok || !std::isfinite(number) || number < 0) {
            fail(u"%1 needs %2, not \"%3\""_s.arg(option, expected, text));
        }
        return number;
    }

    template <typename Value, std::size_t Count>
    Value oneOf(const QString& option, const std::pair<QLatin1StringView, Value> (&choices)[Count])
    {
        QStringList names;
        for (const auto& [name, choice] : choices) {
            names.append(name);
        }
        const QString expected = u"one of "_s + names.join(u", "_s);
        const QString text = value(option, expected);
        for (const auto& [name, choice] : choices) {
            if (text == name) {
                return choice;
            }
        }
        fail(u"%1 needs %2, not \"%3\""_s.arg(option, expected, text));
        return {};
    }

    SortOption sortOption(const QString& option)
    {
        return oneOf<SortOption>(option, {{"signal"_L1, SortOption::signal},
                                          {"ssid"_L1, SortOption::ssid},
                                          {"channel"_L1, SortOption::channel},
                                          {"security"_L1, SortOption::security}});
    }

    ExportFormat format(const QString& option)
    {
        return oneOf<ExportFormat>(option, {{"csv"_L1, ExportFormat::csv}, {"json"_L1, ExportFormat::json}});
    }

    void fail(const QString& description)
    {
        if (!m_error) {
            m_error = Error{description};
        }
    }

    QStringList m_left;
    QStringList m_taken;
    Arguments m_parsed;
    Failure m_error;
};

} // namespace

Result<Arguments> parseArguments(const QStringList& arguments)
{
    return Parser(arguments).parse();
}

QString usage()
{
    return uR"(Usage: aerolith-scan [OPTION]...
Scans the Wi-Fi networks around the machine and writes what it heard.

  --simulate [FILE]     follow the scenario in FILE, or a built-in neighbourhood, instead of the machine's Wi-Fi
  --cycles N            scan N times (default 1; with --watch, until interrupted)
  --interval SECONDS    time from one scan to the next (default: the stored scan interval)
  --sort ORDER          order the list by signal, ssid, channel or security
  --visible-only        leave hidden access points out of the list
  --watch               after every scan, write one line of JSON for each access point to standard output
  --list FILE           write the list to FILE; the default, on standard output, where nothing else is asked for
  --details BSSID FILE  write the details of one access point to FILE; may be given several times
  --format FORMAT       csv (default) or json
  --record FILE         write what the radio reported to FILE, as a scenario for --simulate
  --help                show this text
  --version             show the version

FILE may be -, standard output, but for --simulate and --record. Log lines go to standard error.
An interrupt ends --watch and --record with status 0 and all of FILE, or with 1 where no scan to record had ended;
so does a pipe that nobody reads any more.
Exit status: 0; 1 when the last scan failed or a file cannot be written; 2 for wrong arguments or an unreadable
scenario; 3 when there is no Wi-Fi interface; 4 when an access point asked for is not known.
)"_s;
}

} // namespace aerolith
