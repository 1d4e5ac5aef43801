#include "LangCodeTable_p.h"

#include <algorithm>
#include <iterator>

namespace MtConf {

namespace {

struct Row
{
    const char *code;
    const char32_t *name;
};

constexpr Row sRows[] = {
    {"auto", U"跟随系统"},
    {"zh-cn", U"简体中文"},
    {"zh-cht", U"繁體中文"},
    {"en-us", U"English (United States)"},
    {"en-gb", U"English (United Kingdom)"},
    {"fr-fr", U"Français (France)"},
    {"es-es", U"Español (España)"},
    {"de-de", U"Deutsch (Deutschland)"},
    {"ja-jp", U"日本語"},
    {"ko-kr", U"한국어"},
    {"ru-ru", U"Русский (Россия)"},
    {"pt-br", U"Português (Brasil)"},
    {"it-it", U"Italiano (Italia)"},
    {"ar-eg", U"العربية (مصر)"},
    {"hi-in", U"हिन्दी (भारत)"},
    {"nl-nl", U"Nederlands (Nederland)"},
    {"tr-tr", U"Türkçe (Türkiye)"},
    {"pl-pl", U"Polski (Polska)"},
    {"sv-se", U"Svenska (Sverige)"},
};

} // namespace

QString LangCodeTable::displayName(const QString &code)
{
    const auto row = std::find_if(std::begin(sRows), std::end(sRows), [&code](const Row &entry) {
        return code == QLatin1String(entry.code);
    });
    return row == std::end(sRows) ? QString() : QString::fromUcs4(row->name);
}

} // namespace MtConf
