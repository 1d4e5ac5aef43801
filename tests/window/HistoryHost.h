#pragma once

#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QColor>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeySequence>
#include <QMap>
#include <QStringList>

#include <map>

/// A host with settings of several types, and entries that are created and removed at run time.
class HistoryHost
{
public:
    using Snapshot = QMap<QString, QString>;

    HistoryHost()
    {
        store.reserveConf("Size", &size);
        store.reserveConf("Ratio", &ratio);
        store.reserveConf("Flag", &flag);
        store.reserveConf("Text", &text);
        store.reserveConf("Colour", &colour);
        store.reserveConf("Font", &font);
        store.reserveConf("Key", &key);
        store.reserveConf("List", &list);
        store.reserveConf("Object", &object);
        store.reserveConf("Malto.Place", &place);
        entries.prefix = "Entry.";
        entries.creator = [this](const QString &name, const QJsonValue *value) {
            if (!canCreate)
                return;
            dynamic[name] = value->toObject();
            store.reserveConf(name, &dynamic[name]);
        };
        entries.remover = [this](const QString &name) { dynamic.erase(name); };
        store.mDynamicConfClasses.append(&entries);
        store.mPresetDynamicConfs["Entry.preset"] = QJsonObject{{"n", 1}};
        store.loadPresetDynamicConf();
    }
    Q_DISABLE_COPY(HistoryHost)

    /// Changes a setting as an editor does.
    void edit(const QString &name, const QJsonValue &value)
    {
        const ConfOperation operation(&store, ConfChange::Cause::Edited);
        store.loadValueFromJson(name, value);
    }
    void create(const QString &name, int number)
    {
        store.createDynamicConf(name, QJsonObject{{"n", number}}, nullptr);
    }

    /// Returns the value of each key that exists, and whether it is flagged default.
    Snapshot snapshot() const
    {
        Snapshot all;
        for (auto it = store.mConfValues.cbegin(); it != store.mConfValues.cend(); ++it) {
            const bool isDefault = store.mConfMetas[it.key()].flags & ConfStorage::FlagIsDefault;
            const QByteArray json = QJsonDocument(QJsonArray{it->toJsonValue()})
                                        .toJson(QJsonDocument::Compact);
            all.insert(it.key(), QString::fromUtf8(json) + (isDefault ? " default" : ""));
        }
        return all;
    }
    /// Returns the timestamp of a key or its tombstone in seconds.
    qint64 seconds(const QString &name) const
    {
        const QDateTime time = store.mConfMetas.contains(name)
                                   ? store.mConfMetas[name].lastChangeTime
                                   : store.mRemovedDynamicConfs[name];
        return time.toSecsSinceEpoch();
    }

    ConfStorage store;
    int size = 7;
    double ratio = 0.5;
    bool flag = true;
    QString text = "one";
    QColor colour = Qt::red;
    QFont font{"Sans", 12};
    QKeySequence key{Qt::CTRL | Qt::Key_F9};
    QStringList list{"a", "b"};
    QJsonObject object{{"x", 1}};
    int place = 0;
    std::map<QString, QJsonObject> dynamic; // a map, because its elements keep their addresses
    ConfStorage::DynamicConfClass entries;
    bool canCreate = true;
};
