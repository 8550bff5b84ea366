#include "app/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>

namespace aerolith {

using namespace Qt::StringLiterals;

namespace {

QString folder()
{
    return u":/aerolith/translations"_s;
}

/// The languages whose words serve for `language`, which may name a country ("de_AT"), best first.
QStringList near(const QString& language)
{
    // Chinese is written in two ways: by name where the country tells, simplified where nothing does.
    if (language == "zh"_L1 || language == "zh_SG"_L1 || language.startsWith("zh_Hans"_L1)) {
        return {u"zh_CN"_s};
    }
    return {language, language.section(u'_', 0, 0)};
}

/// Null where the texts stay as they are.
QString translated(const QStringList& languages)
{
    for (const QString& language : languages) {
        for (const QString& candidate : near(language)) {
            if (candidate == "en"_L1) {
                return {};
            }
            if (QFile::exists(folder() + u'/' + candidate + ".qm"_L1)) {
                return candidate;
            }
        }
    }
    return {};
}

} // namespace

Translations::Translations(const QStringList& languages)
{
    const QString language = translated(languages);
    if (language.isNull() || !m_own.load(language, folder())) {
        return;
    }
    QCoreApplication::installTranslator(&m_own);
    if (m_qt.load("qtbase_"_L1 + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_qt);
    }
}

} // namespace aerolith
