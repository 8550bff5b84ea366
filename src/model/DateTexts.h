#pragma once

#include "platform/Clock.h"
#include "platform/UserLocale.h"

#include <QString>

#include <memory>

namespace aerolith {

/// Times as the user's locale writes them. Blanks are plain spaces. What it needs to know of the locale is
/// loaded when the first text is asked for. One thread at a time.
class DateTexts
{
public:
    explicit DateTexts(UserLocale locale);
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
    struct Formats;

    [[nodiscard]] const Formats& formats() const;

    UserLocale m_locale;
    mutable std::unique_ptr<Formats> m_formats;
};

} // namespace aerolith
