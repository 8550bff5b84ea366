#include "update/UpdateDownload.h"

#include "update/UpdateTexts.h"

#include <utility>

namespace aerolith {

UpdateDownload::UpdateDownload(QNetworkAccessManager& manager, const HttpsSettings& settings,
                               AppcastItem item, PublicKey key, const QString& folder, Observer observer)
    : m_item(std::move(item))
    , m_key(std::move(key))
    , m_observer(std::move(observer))
    , m_file(folder)
    , m_transfer(manager, settings, m_item.url, {},
                 {.receive = [this](const QByteArray& bytes) { return receive(bytes); },
                  .end = [this](const Failure& failure) { end(failure); }})
{
}

Failure UpdateDownload::receive(const QByteArray& bytes)
{
    if (m_received == 0) {
        if (Failure failure = m_file.open()) {
            return failure;
        }
    }
    m_received += bytes.size();
    if (m_received > m_item.length) {
        return Error{
            UpdateTexts::tr("The file is longer than the %1 bytes that it should have").arg(m_item.length)};
    }
    if (Failure failure = m_file.write(bytes)) {
        return failure;
    }
    m_observer.progress(m_received);
    return {};
}

void UpdateDownload::end(const Failure& transferred)
{
    // It may destroy this object.
    const auto report = m_observer.end;
    report(keep(transferred));
}

Result<QString> UpdateDownload::keep(const Failure& transferred)
{
    if (transferred) {
        return *transferred;
    }
    if (m_received != m_item.length) {
        return Error{UpdateTexts::tr("The file has %1 bytes in place of the %2 that it should have")
                         .arg(m_received)
                         .arg(m_item.length)};
    }
    if (!m_file.isSignedBy(m_key, m_item.signature)) {
        return Error{
            UpdateTexts::tr("The file's signature is wrong: it does not come from the makers of Aerolith")};
    }
    return m_file.keep(downloadName(m_item.url));
}

} // namespace aerolith
