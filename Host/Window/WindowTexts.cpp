// The language of the window's own texts.
#include "WindowTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace host {

namespace {

/// Takes the texts of a language, or of its general form, in place of those before.
void use(QTranslator &texts, const QString &folder, const QString &beginning, const QString &language)
{
    QCoreApplication::removeTranslator(&texts);
    for (const QString &name : {language, language.section('_', 0, 0)}) {
        if (texts.load(folder + '/' + beginning + name + ".qm")) {
            QCoreApplication::installTranslator(&texts);
            return;
        }
    }
}

} // namespace

void useWindowTexts(const QString &language)
{
    static QTranslator ofQt; // in boxes, and where files are chosen
    static QTranslator ours;
    use(ofQt, QLibraryInfo::path(QLibraryInfo::TranslationsPath), "qtbase_", language);
    use(ours, ":/texts", "qnprint_", language);
}

} // namespace host
