#include "ui/main/Announcer.h"

#include "ui/common/AccessibleRole.h"

#include <utility>

namespace aerolith {

Announcer::Announcer(WiFiScanner& scanner, QWidget* parent) : QWidget(parent), m_scanner(scanner)
{
    setObjectName(QStringLiteral("announcer"));
    setAccessibleRole(*this, QAccessible::Notification);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(1, 1);
    hide();
    connect(&m_scanner, &WiFiScanner::scanCycleEnded, this, &Announcer::handleEnd);
}

void Announcer::handleEnd()
{
    if (m_scanner.status() == ScannerStatus::scanning) {
        return;
    }
    const bool failed = m_scanner.status() == ScannerStatus::error;
    const bool isNews = failed != std::exchange(m_hasFailed, failed);
    if (!std::exchange(m_isExpected, false) && !isNews) {
        return;
    }
    if (failed) {
        say(tr("Scan failed"));
        return;
    }
    // The list follows on the next turn.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const auto count = static_cast<int>(m_scanner.networks().size());
            say(count == 1 ? tr("Scan finished: 1 network")
                           : tr("Scan finished: %n networks", nullptr, count));
        },
        Qt::QueuedConnection);
}

void Announcer::say(const QString& text)
{
    hide();
    setAccessibleName(text);
    show();
}

} // namespace aerolith
