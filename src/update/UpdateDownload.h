#pragma once

#include "update/Appcast.h"
#include "update/DownloadFile.h"
#include "update/HttpsTransfer.h"

#include <functional>

namespace aerolith {

/// One offered file on its way into the user's folder. It is kept only if it has exactly the length that the
/// feed gives and its signature is the key's. Destroying it cancels it without another call, and leaves
/// nothing behind. Main thread.
class UpdateDownload
{
public:
    struct Observer
    {
        /// How many of the item's bytes are here.
        std::function<void(qint64 received)> progress;
        /// Once: the path of the file that was kept, or why none was. The download may be destroyed in it.
        std::function<void(const Result<QString>& path)> end;
    };

    /// Starts at once; calls come from the event loop. The manager outlives it.
    UpdateDownload(QNetworkAccessManager& manager, const HttpsSettings& settings, AppcastItem item,
                   PublicKey key, const QString& folder, Observer observer);

private:
    [[nodiscard]] Failure receive(const QByteArray& bytes);
    void end(const Failure& transferred);
    [[nodiscard]] Result<QString> keep(const Failure& transferred);

    AppcastItem m_item;
    PublicKey m_key;
    Observer m_observer;
    DownloadFile m_file;
    qint64 m_received = 0;
    /// Last: it uses the others.
    HttpsTransfer m_transfer;
};

} // namespace aerolith
