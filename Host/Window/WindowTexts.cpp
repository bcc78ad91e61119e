// The language of the window's own texts.
#include "WindowTexts.h"

#include <QCoreApplication>
#include <QTranslator>

namespace host {

void useWindowTexts(const QString &language)
{
    static QTranslator texts;
    QCoreApplication::removeTranslator(&texts);
    for (const QString &name : {language, language.section('_', 0, 0)}) {
        if (texts.load(":/texts/qnprint_" + name + ".qm")) {
            QCoreApplication::installTranslator(&texts);
            return;
        }
    }
}

} // namespace host
