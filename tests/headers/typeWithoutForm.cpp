// A host's type as a setting, without a form. checkTypeWithoutForm.cmake compiles each use alone,
// and all of them with a form.
#include <MaltoConfiguration/manage/ConfItem.h>

struct Theme
{
    int number = 0;
};

#if MALTO_USE == 0
template<> struct MtConf::JsonForm<Theme>
{
    static QJsonValue toJson(const Theme &theme) { return theme.number; }
    static std::optional<Theme> fromJson(const QJsonValue &json) { return Theme{json.toInt()}; }
};
#endif

void useTheme()
{
    ConfStorage *const store = ConfStorage::instance();
    const QString key;
    static Theme theme;
    static QMap<QString, QList<std::optional<Theme>>> themes;
#if MALTO_USE == 0 || MALTO_USE == 1
    store->reserveConf(key, &theme);
#endif
#if MALTO_USE == 0 || MALTO_USE == 2
    theme = store->get<Theme>(key);
#endif
#if MALTO_USE == 0 || MALTO_USE == 3
    store->set(key, theme);
#endif
#if MALTO_USE == 0 || MALTO_USE == 4
    MtConf::ConfItem(&theme, key, key, key);
#endif
#if MALTO_USE == 0 || MALTO_USE == 5
    store->reserveConf(key, &themes);
#endif
#if MALTO_USE == 0 || MALTO_USE == 6
    store->set(key, themes);
#endif
}
