#pragma once

#include "model/WiFiScanner.h"

#include <QWidget>

namespace aerolith {

/// Tells assistive technology how scans end, for whoever cannot see the list change. Not every one, which
/// would talk without end: the first scan, the one that the user has asked for, the first that fails and the
/// first that succeeds again.
///
/// It is a notification of one pixel that shows when there is something to say: what screen readers read out
/// wherever the focus is. Nothing of it can be seen.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    /// The scanner outlives the announcer.
    explicit Announcer(WiFiScanner& scanner, QWidget* parent = nullptr);

    /// The next end of a scan is told of, whatever it is.
    void expect() { m_isExpected = true; }

private:
    void handleEnd();
    void say(const QString& text);

    WiFiScanner& m_scanner;
    bool m_isExpected = true;
    bool m_hasFailed = false;
};

} // namespace aerolith
