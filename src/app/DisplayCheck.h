#pragma once

#include <QStringList>

namespace aerolith {

/// While it exists, a failure to open the display ends the process with one line on standard error and exit
/// status 1; without it Qt would abort. It spans the construction of the QApplication. One instance at a
/// time.
class DisplayCheck
{
public:
    DisplayCheck();
    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;

    /// Prints what Qt had to say meanwhile.
    ~DisplayCheck();
};

} // namespace aerolith
