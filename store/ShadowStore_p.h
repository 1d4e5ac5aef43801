#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <memory>
#include <vector>

/// A store that computes what another one would do, without any code or variable of the host. Its
/// values are copies, it has no callbacks, and its classes create entries that keep the whole
/// value.
class ShadowStore
{
public:
    ConfStorage &store() { return mStore; }
    const ConfStorage &store() const { return mStore; }

    /// Takes the options, the presets and the classes of `other`.
    void copyRules(const ConfStorage &other);
    /// Takes the value and the record of `key` from `other`.
    void copyKey(const ConfStorage &other, const QString &key);
    /// Takes all values, records and tombstones of `other`.
    void copyContent(const ConfStorage &other);

private:
    void addClass(const ConfStorage::DynamicConfClass *cls);
    void create(const QString &key, const QJsonValue &value);
    template<class T> void reserve(const QString &key, const T &value);

    ConfStorage mStore;
    std::vector<std::unique_ptr<ConfStorage::DynamicConfClass>> mClasses;
    std::vector<std::shared_ptr<void>> mVariables;
};
