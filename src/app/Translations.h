#pragma once

#include <QStringList>
#include <QTranslator>

namespace aerolith {

/// The program's texts, and Qt's own, in the first of the user's languages that there is a translation for;
/// English, in which they are written, needs none. While this object lives; main thread.
class Translations
{
public:
    /// As `messageLanguages()` has them. A QCoreApplication exists.
    explicit Translations(const QStringList& languages);

private:
    QTranslator m_own;
    /// Its buttons and dialogs.
    QTranslator m_qt;
};

} // namespace aerolith
