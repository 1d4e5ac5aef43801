#include <OrvUtils/getPreferredLanguages.h>

#include <QLocale>

QStringList getPreferredLanguages()
{
    QStringList languages = QLocale::system().uiLanguages();
    languages.removeDuplicates();
    return languages;
}
