#include "support/SettingTypes.h"

#include <MaltoConfiguration/store/ConfStorage.h>

// A library with settings of its own. It is built twice, and both share the store of the process.

#define MALTO_LIBRARY extern "C" Q_DECL_EXPORT

namespace {

using Settings::WrapMode;

WrapMode wrapMode = WrapMode::Word;
QMap<QString, QList<Settings::Margins>> margins;

} // namespace

MALTO_LIBRARY quint32 wrapModeType()
{
    return ConfValue::typeOf<WrapMode>();
}

MALTO_LIBRARY quint32 marginsType()
{
    return ConfValue::typeOf<decltype(margins)>();
}

MALTO_LIBRARY void reserveSettings(ConfStorage *store)
{
    store->reserveConf("Wrap", &wrapMode);
    store->reserveConf("Margins", &margins);
}

MALTO_LIBRARY void releaseSettings(ConfStorage *store)
{
    store->releaseConf("Wrap");
    store->releaseConf("Margins");
}

MALTO_LIBRARY void setSettings(ConfStorage *store, int mode, int left)
{
    store->set("Wrap", static_cast<WrapMode>(mode));
    store->set("Margins", decltype(margins){{"value", {{left, 0}}}});
}

MALTO_LIBRARY int wrapModeInStore(ConfStorage *store)
{
    return static_cast<int>(store->get<WrapMode>("Wrap"));
}

MALTO_LIBRARY int marginInStore(ConfStorage *store)
{
    return store->get<decltype(margins)>("Margins").value("value").value(0).left;
}
