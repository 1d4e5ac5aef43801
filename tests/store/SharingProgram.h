#pragma once

#include "SharingModel.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <map>
#include <memory>

/// A program that shares its file with others: a store of its own with the variables of a host for
/// the keys of `sSharingKeys`, and a clock that the test sets.
class SharingProgram
{
public:
    explicit SharingProgram(const QString &path) : mPath(path) { start(); }
    Q_DISABLE_COPY(SharingProgram)

    /// Starts the program again. What it has not saved is lost.
    void start()
    {
        mStore = std::make_unique<ConfStorage>();
        mStore->mFileOptions = ConfStorage::SharedFile | ConfStorage::LongTimes;
        mStore->mLocalSaveFile = mPath;
        mEntries.clear();
        addClass(mClasses[0], "Entry.", 0);
        addClass(mClasses[1], "SystemEntry.", ConfStorage::FlagSystemIndependent);
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            const SharingKey &info = sSharingKeys[key];
            if (info.dynamic && info.defaultValue)
                mStore->mPresetDynamicConfs[name(key)] = valueOf(*info.defaultValue);
            if (info.dynamic)
                continue;
            mNumbers[key] = *info.defaultValue;
            mStore->reserveConf(name(key), &mNumbers[key]);
            if (info.system)
                mStore->mConfMetas[name(key)].flags |= ConfStorage::FlagSystemIndependent;
        }
    }

    void set(size_t key, int value, qint64 now)
    {
        const QDateTime before = timeOf(key);
        if (sSharingKeys[key].dynamic)
            mStore->set<QJsonObject>(name(key), valueOf(value));
        else
            mStore->set<int>(name(key), value);
        stamp(key, before, now);
    }
    void create(size_t key, int value, qint64 now)
    {
        const QDateTime before = timeOf(key);
        mStore->createDynamicConf(name(key), valueOf(value), nullptr);
        stamp(key, before, now);
    }
    void remove(size_t key, qint64 now)
    {
        const QDateTime before = timeOf(key);
        mStore->removeDynamicConf(name(key));
        stamp(key, before, now);
    }
    void restore(size_t key, qint64 now)
    {
        const QDateTime before = timeOf(key);
        mStore->setToDefault(name(key), true);
        stamp(key, before, now);
    }
    /// Changes the variable without telling the store.
    void assign(size_t key, int value)
    {
        if (sSharingKeys[key].dynamic)
            mEntries[name(key)] = valueOf(value);
        else
            mNumbers[key] = value;
    }
    void loadPresets() { mStore->loadPresetDynamicConf(); }
    QJsonObject dump() const { return mStore->dumpConf(ConfStorage::DumpShared); }
    void import(const QJsonObject &dump) { mStore->loadConf(dump, ConfStorage::LoadShared); }
    void load() { mStore->loadLocalConfFile(); }
    void save() { mStore->saveToLocalConfFile(); }
    bool hasChanges() const { return mStore->mChanged; }

    /// Returns what the host sees: the values of its variables, and the timestamps.
    SharingState state() const
    {
        SharingState state;
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            SharingCell &cell = state[key];
            cell.present = mStore->mConfValues.contains(name(key));
            if (cell.present)
                cell.value = sSharingKeys[key].dynamic ? mEntries.at(name(key)).value("n").toInt()
                                                       : mNumbers[key];
            const QDateTime time = timeOf(key);
            if (time.isValid())
                cell.time = time.toSecsSinceEpoch();
        }
        return state;
    }

    /// Returns the entries of the file.
    static SharingEntries entriesOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QJsonObject members = QJsonDocument::fromJson(file.readAll()).object();
        SharingEntries entries;
        for (size_t key = 0; key < sSharingKeys.size(); ++key) {
            const SharingKey &info = sSharingKeys[key];
            const QString member = info.system ? addSysMark(name(key)) : name(key);
            if (members.contains(member))
                entries[key] = entryOf(members.value(member).toObject());
        }
        return entries;
    }

private:
    static QString name(size_t key) { return QLatin1String(sSharingKeys[key].name); }
    static QJsonObject valueOf(int number) { return {{"n", number}}; }

    static SharingEntry entryOf(const QJsonObject &entry)
    {
        if (entry.contains("d"))
            return {SharingEntry::Removal, 0, qint64(entry.value("d").toDouble())};
        const auto time = qint64(entry.value("t").toDouble());
        if (!entry.contains("v"))
            return {SharingEntry::Default, 0, time};
        const QJsonValue value = entry.value("v");
        return {SharingEntry::Value,
                value.isObject() ? value.toObject().value("n").toInt() : value.toInt(), time};
    }

    void addClass(ConfStorage::DynamicConfClass &cls, const char *prefix, quint32 flags)
    {
        cls.prefix = QLatin1String(prefix);
        cls.flags = flags;
        cls.creator = [this](const QString &key, const QJsonValue *value) {
            mEntries[key] = value->toObject();
            mStore->reserveConf(key, &mEntries[key]);
        };
        cls.remover = [this](const QString &key) { mEntries.erase(key); };
        mStore->mDynamicConfClasses << &cls;
    }

    QDateTime timeOf(size_t key) const
    {
        const auto meta = mStore->mConfMetas.constFind(name(key));
        return meta != mStore->mConfMetas.constEnd()
                   ? meta->lastChangeTime
                   : mStore->mRemovedDynamicConfs.value(name(key));
    }
    /// Replaces the timestamp of a change that was just made by `now`, in seconds.
    void stamp(size_t key, const QDateTime &before, qint64 now)
    {
        if (timeOf(key) == before)
            return; // nothing was changed
        const QDateTime time = QDateTime::fromSecsSinceEpoch(now, Qt::UTC);
        const auto meta = mStore->mConfMetas.find(name(key));
        if (meta != mStore->mConfMetas.end())
            meta->lastChangeTime = time;
        else
            mStore->mRemovedDynamicConfs[name(key)] = time;
    }

    const QString mPath;
    std::array<ConfStorage::DynamicConfClass, 2> mClasses;
    std::array<int, sSharingKeys.size()> mNumbers{};
    std::map<QString, QJsonObject> mEntries;
    std::unique_ptr<ConfStorage> mStore;
};
