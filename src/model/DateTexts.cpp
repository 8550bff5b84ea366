#include "model/DateTexts.h"

#include <unicode/dtptngen.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace aerolith {

namespace {

/// Never null.
std::unique_ptr<icu::TimeZone> zoneOf(const UserLocale& locale)
{
    return std::unique_ptr<icu::TimeZone>(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(locale.timeZone.constData())));
}

icu::UnicodeString patternOf(const icu::DateFormat* format)
{
    icu::UnicodeString pattern;
    if (const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format)) {
        simple->toPattern(pattern);
    }
    return pattern;
}

/// The pattern in which the locale joins a date {1} and a time {0} when both stand in a sentence.
icu::UnicodeString longJoiner(const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    icu::UnicodeString joiner(u"{1} {0}");
    if (U_SUCCESS(status)) {
        const icu::UnicodeString& found = generator->getDateTimeFormat(UDAT_LONG, status);
        if (U_SUCCESS(status)) {
            joiner = found;
        }
    }
    return joiner;
}

QString plainBlanks(const icu::UnicodeString& text)
{
    QString plain = QString::fromUtf16(text.getBuffer(), text.length());
    // CLDR sets the day period and some joiners off with no-break blanks, narrow (U+202F) and wide (U+00A0).
    return plain.replace(QChar(0x202f), u' ').replace(QChar(0x00a0), u' ');
}

/// Milliseconds since 1970, as ICU counts.
UDate dateOf(TimePoint time)
{
    return static_cast<UDate>(std::chrono::floor<std::chrono::milliseconds>(time).time_since_epoch().count());
}

QString formatted(const icu::DateFormat* format, TimePoint time)
{
    icu::UnicodeString text;
    if (format != nullptr) {
        format->format(dateOf(time), text);
    }
    return plainBlanks(text);
}

struct Unit
{
    std::chrono::seconds length;
    URelativeDateTimeUnit unit;
};

using std::chrono_literals::operator""h;
using std::chrono_literals::operator""min;
using std::chrono_literals::operator""s;

/// Largest first. Months and years count 30 and 365 days.
constexpr std::array<Unit, 7> units{{
    {365 * 24h, UDAT_REL_UNIT_YEAR},
    {30 * 24h, UDAT_REL_UNIT_MONTH},
    {7 * 24h, UDAT_REL_UNIT_WEEK},
    {24h, UDAT_REL_UNIT_DAY},
    {1h, UDAT_REL_UNIT_HOUR},
    {1min, UDAT_REL_UNIT_MINUTE},
    {1s, UDAT_REL_UNIT_SECOND},
}};

} // namespace

struct DateTexts::Formats
{
    explicit Formats(const UserLocale& userLocale)
    {
        const icu::Locale locale(userLocale.time.constData());
        time.reset(icu::DateFormat::createTimeInstance(icu::DateFormat::kMedium, locale));
        const std::unique_ptr<icu::DateFormat> date(
            icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));

        icu::UnicodeString pattern = longJoiner(locale);
        pattern.findAndReplace(u"{1}", patternOf(date.get())).findAndReplace(u"{0}", patternOf(time.get()));
        UErrorCode status = U_ZERO_ERROR;
        dateTime = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);

        const std::unique_ptr<icu::TimeZone> zone = zoneOf(userLocale);
        for (icu::DateFormat* format : {dateTime.get(), time.get()}) {
            if (format != nullptr) {
                format->setTimeZone(*zone);
            }
        }
        relative = std::make_unique<icu::RelativeDateTimeFormatter>(locale, nullptr, UDAT_STYLE_SHORT,
                                                                    UDISPCTX_CAPITALIZATION_NONE, status);
    }

    std::unique_ptr<icu::DateFormat> dateTime;
    std::unique_ptr<icu::DateFormat> time;
    std::unique_ptr<icu::RelativeDateTimeFormatter> relative;
};

DateTexts::DateTexts(UserLocale locale) : m_locale(std::move(locale)) {}

DateTexts::~DateTexts() = default;

const DateTexts::Formats& DateTexts::formats() const
{
    if (!m_formats) {
        m_formats = std::make_unique<Formats>(m_locale);
    }
    return *m_formats;
}

QString DateTexts::mediumDateTime(TimePoint time) const
{
    return formatted(formats().dateTime.get(), time);
}

QString DateTexts::mediumTime(TimePoint time) const
{
    return formatted(formats().time.get(), time);
}

QString DateTexts::relative(TimePoint time, TimePoint now) const
{
    const auto offset = std::chrono::duration_cast<std::chrono::seconds>(time - now);
    const auto distance = std::chrono::abs(offset);
    const auto* unit = &units.back();
    for (const Unit& candidate : units) {
        if (distance >= candidate.length) {
            unit = &candidate;
            break;
        }
    }
    const auto count = static_cast<double>(distance / unit->length);
    icu::UnicodeString text;
    UErrorCode status = U_ZERO_ERROR;
    // The sign of a zero decides between "ago" and "in".
    formats().relative->formatNumeric(offset > 0s ? count : -count, unit->unit, text, status);
    return plainBlanks(text);
}

} // namespace aerolith
