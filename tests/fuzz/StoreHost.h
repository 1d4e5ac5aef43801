#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

#include <functional>
#include <map>
#include <memory>
#include <variant>
#include <vector>

/// The declarations of a host, which can be repeated in another store.
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
        bool reserves; ///< whether the creator reserves the key
    };
    std::vector<Setting> settings;
    std::vector<Family> families;
    QMap<QString, QJsonValue> presets;
};

/// A host with its own store, and a variable for each setting and each dynamic key.
class StoreHost
{
public:
    /// In the order of `ConfValue::ConfType`.
    using Variable = std::variant<std::monostate, QColor, int, qreal, bool, QString, QFont,
                                  QKeySequence, QJsonObject, QJsonArray>;

    explicit StoreHost(const StoreDeclarations &declarations);
    Q_DISABLE_COPY(StoreHost)

    /// Returns the text of the local file.
    QByteArray dump() const;
    /// Returns the current values of the settings' variables, by key.
    std::map<QString, Variable> variables() const;
    /// Returns the JSON of every value in the store.
    QJsonObject values() const;
    bool isDeclared(const QString &key) const;

    ConfStorage store;
    QMap<QString, int> calls;              ///< number of callback calls, by key
    std::function<void(QString)> onChange; ///< called by every callback

private:
    void install(const QString &key);

    const StoreDeclarations mDeclarations;
    std::vector<Variable> mVariables;
    std::map<QString, QJsonObject> mDynamic;
    std::vector<ConfStorage::DynamicConfClass> mClasses;
};

/// Loads `document` into hosts with these declarations and checks the documented properties of
/// loading.
void checkLoading(const StoreDeclarations &declarations, const QJsonObject &document,
                  ConfStorage::LoadConfType type);
