#include "model/HiddenList.h"

#include "model/SettingKeys.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <optional>

namespace aerolith {

QStringList loadHiddenBSSIDs(const UserDefaults& defaults)
{
    return decodeHiddenBSSIDs(defaults.dataForKey(SettingKeys::hiddenBSSIDs).value_or(QByteArray()));
}

void saveHiddenBSSIDs(UserDefaults& defaults, const QStringList& bssids)
{
    defaults.setData(encodeHiddenBSSIDs(bssids), SettingKeys::hiddenBSSIDs);
}

bool isHidden(const UserDefaults& defaults, const QString& bssid)
{
    return loadHiddenBSSIDs(defaults).contains(bssid);
}

QStringList decodeHiddenBSSIDs(const QByteArray& stored)
{
    const QJsonDocument document = QJsonDocument::fromJson(stored);
    if (!document.isArray()) {
        return {};
    }
    QStringList bssids;
    for (const QJsonValue& value : document.array()) {
        if (!value.isString()) {
            return {};
        }
        bssids.append(value.toString());
    }
    return bssids;
}

QByteArray encodeHiddenBSSIDs(const QStringList& bssids)
{
    return QJsonDocument(QJsonArray::fromStringList(bssids)).toJson(QJsonDocument::Compact);
}

} // namespace aerolith
