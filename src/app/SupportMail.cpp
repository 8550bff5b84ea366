#include "app/SupportMail.h"

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

constexpr auto supportAddress = "support@aerolith.example"_L1;
constexpr auto subject = u"Aerolith Support Request";
constexpr auto body = u"Hello Aerolith Team,\n\nI need assistance with the following:\n\n";

} // namespace

QByteArray queryEncoded(const QString& text)
{
    return QUrl::toPercentEncoding(text, "!$&'()*+,/:;=?@");
}

QUrl supportMailUrl()
{
    return QUrl::fromEncoded("mailto:" + QByteArray(supportAddress.data(), supportAddress.size()) +
                                 "?subject=" + queryEncoded(QString::fromUtf16(subject)) +
                                 "&body=" + queryEncoded(QString::fromUtf16(body)),
                             QUrl::StrictMode);
}

} // namespace aerolith
