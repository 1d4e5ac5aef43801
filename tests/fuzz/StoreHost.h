#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

#include <functional>
#include <map>
#include <memory>
#include <variant>
#include <vector>

/// What a host declares: enough to declare it again in another store.
struct StoreDeclarations
{
    struct Setting
    {
        QString key;
        ConfValue::ConfType type;
        quint32 flags;
    };
    struct Family
    {
        QString prefix;
        quint32 flags;
        bool reserves; ///< the creator does its work
    };
    std::vector<Setting> settings;
    std::vector<Family> families;
    QMap<QString, QJsonValue> presets;
};

/// A host of its own store, with a variable for each setting and for each dynamic key.
class StoreHost
{
public:
    /// In the order of `ConfValue::ConfType`.
    using Variable = std::variant<std::monostate, QColor, int, qreal, bool, QString, QFont,
                                  QKeySequence, QJsonObject, QJsonArray>;

    explicit StoreHost(const StoreDeclarations &declarations);
    Q_DISABLE_COPY(StoreHost)

    /// The local file's text.
    QByteArray dump() const;
    /// What the variables of the settings hold now, by key.
    std::map<QString, Variable> variables() const;
    /// The JSON of every value in the store.
    QJsonObject values() const;
    bool isDeclared(const QString &key) const;

    ConfStorage store;
    QMap<QString, int> calls;              ///< how often each key's callback was called
    std::function<void(QString)> onChange; ///< called by each of them

private:
    void install(const QString &key);

    const StoreDeclarations mDeclarations;
    std::vector<Variable> mVariables;
    std::map<QString, QJsonObject> mDynamic;
    std::vector<ConfStorage::DynamicConfClass> mClasses;
};

/// Loads `text` into hosts with these declarations and holds what comes of it against what loading
/// promises.
void checkLoading(const StoreDeclarations &declarations, const QJsonObject &document,
                  ConfStorage::LoadConfType type);
