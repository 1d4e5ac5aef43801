#include "StoreHost.h"

#include <QJsonDocument>

namespace {

StoreHost::Variable initialValue(ConfValue::ConfType type)
{
    switch (type) {
    case ConfValue::TyQColor: return QColor(Qt::red);
    case ConfValue::TyInt32: return 7;
    case ConfValue::TyQreal: return 0.5;
    case ConfValue::TyBool: return true;
    case ConfValue::TyQString: return QStringLiteral("text");
    case ConfValue::TyQFont: return QFont(QStringLiteral("Sans"), 12);
    case ConfValue::TyQKeySequence: return QKeySequence(Qt::Key_F5);
    case ConfValue::TyQJsonObject: return QJsonObject{{QStringLiteral("a"), 1}};
    case ConfValue::TyQJsonArray: return QJsonArray{1};
    case ConfValue::TyNone: break;
    }
    return {};
}

} // namespace

StoreHost::StoreHost(const StoreDeclarations &declarations) : mDeclarations(declarations)
{
    store.mPresetDynamicConfs = declarations.presets;
    mClasses.reserve(declarations.families.size());
    for (const StoreDeclarations::Family &family : declarations.families) {
        ConfStorage::DynamicConfClass cls;
        cls.prefix = family.prefix;
        cls.flags = family.flags;
        cls.creator = [this, reserves = family.reserves](const QString &key,
                                                         const QJsonValue *value) {
            if (!reserves)
                return;
            QJsonObject &variable = mDynamic[key];
            variable = value->toObject();
            store.reserveConf(key, &variable);
            install(key);
        };
        cls.remover = [this](const QString &key) { mDynamic.erase(key); };
        mClasses.push_back(cls);
    }
    for (ConfStorage::DynamicConfClass &cls : mClasses)
        store.mDynamicConfClasses.append(&cls);
    mVariables.reserve(declarations.settings.size());
    for (const StoreDeclarations::Setting &setting : declarations.settings) {
        mVariables.push_back(initialValue(setting.type));
        std::visit(
            [&](auto &variable) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(variable)>, std::monostate>)
                    store.reserveConf(setting.key, &variable);
            },
            mVariables.back());
        store.mConfMetas[setting.key].flags |= setting.flags;
        install(setting.key);
    }
}

void StoreHost::install(const QString &key)
{
    store.setConfChangedCallback(key, [this](const QString &changed, const ConfValue *) {
        ++calls[changed];
        if (onChange)
            onChange(changed);
    });
}

QByteArray StoreHost::dump() const
{
    return QJsonDocument(store.dumpConf(ConfStorage::DumpLocal)).toJson(QJsonDocument::Compact);
}

std::map<QString, StoreHost::Variable> StoreHost::variables() const
{
    std::map<QString, Variable> result;
    for (std::size_t i = 0; i < mVariables.size(); ++i)
        result.insert_or_assign(mDeclarations.settings[i].key, mVariables[i]);
    return result;
}

QJsonObject StoreHost::values() const
{
    QJsonObject result;
    for (auto it = store.mConfValues.cbegin(); it != store.mConfValues.cend(); ++it)
        result.insert(it.key(), it->toJsonValue());
    return result;
}

bool StoreHost::isDeclared(const QString &key) const
{
    for (const StoreDeclarations::Setting &setting : mDeclarations.settings) {
        if (setting.key == key)
            return true;
    }
    for (const StoreDeclarations::Family &family : mDeclarations.families) {
        if (key.startsWith(family.prefix))
            return true;
    }
    return false;
}
