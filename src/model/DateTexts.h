#pragma once

#include "platform/Clock.h"
#include "platform/UserLocale.h"

#include <QString>

#include <unicode/uversion.h>

#include <memory>

// ICU renames its namespace with every version.
U_NAMESPACE_BEGIN
class DateFormat;
class RelativeDateTimeFormatter;
U_NAMESPACE_END

namespace aerolith {

/// Times as the user's locale writes them. Blanks are plain spaces. One thread at a time.
class DateTexts
{
public:
    explicit DateTexts(const UserLocale& locale);
    ~DateTexts();

    /// Medium date and medium time, joined as the locale joins them in a sentence:
    /// "Nov 16, 2026 at 6:21:48 PM" in English (United States).
    [[nodiscard]] QString mediumDateTime(TimePoint time) const;

    /// Medium time alone: "6:21:48 PM".
    [[nodiscard]] QString mediumTime(TimePoint time) const;

    /// `time` as seen from `now` in the largest whole unit, short form, always with its number: "12 sec.
    /// ago", "in 3 min.". A difference below one second counts as 0 seconds ago.
    [[nodiscard]] QString relative(TimePoint time, TimePoint now) const;

private:
    std::unique_ptr<icu::DateFormat> m_dateTime;
    std::unique_ptr<icu::DateFormat> m_time;
    std::unique_ptr<icu::RelativeDateTimeFormatter> m_relative;
};

} // namespace aerolith
