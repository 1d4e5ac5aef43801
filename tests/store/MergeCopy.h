#pragma once

#include "MergeModel.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonObject>

#include <array>
#include <map>
#include <memory>
#include <ostream>

/// Which operating system a simulated copy runs on.
enum class MergeSystem { Own, Foreign };

inline std::ostream &operator<<(std::ostream &out, MergeSystem system)
{
    return out << (system == MergeSystem::Own ? "own system" : "foreign system");
}

/// One copy of the configuration: a store of its own with the variables of a host for the keys of
/// `sMergeKeys`, and a clock that the test sets. The seconds that the test sets must be before the
/// year 2020: later timestamps are recognised as those that the store took from the real clock.
class MergeCopy
{
public:
    explicit MergeCopy(MergeSystem system = MergeSystem::Own, MergeTies ties = MergeTies::Stored)
        : mSystem(system), mTies(ties)
    {
        start();
        mStore->loadPresetDynamicConf();
    }
    Q_DISABLE_COPY(MergeCopy)

    MergeSystem system() const { return mSystem; }
    ConfStorage &store() { return *mStore; }

    void set(size_t key, int value, qint64 now)
    {
        if (sMergeKeys[key].dynamic)
            mStore->set<QJsonObject>(name(key), QJsonObject{{"n", value}});
        else
            mStore->set<int>(name(key), value);
        stamp(now);
    }
    void restore(size_t key, qint64 now)
    {
        mStore->setToDefault(name(key), true);
        stamp(now);
    }
    void create(size_t key, int value, qint64 now)
    {
        mStore->createDynamicConf(name(key), QJsonObject{{"n", value}}, nullptr);
        stamp(now);
    }
    void remove(size_t key, qint64 now)
    {
        mStore->removeDynamicConf(name(key));
        stamp(now);
    }
    void restoreClass(size_t ofKey, qint64 now)
    {
        mStore->restoreDynamicConf(name(ofKey).section('.', 0, 0) + '.');
        stamp(now);
    }
    /// Restarts the program: a new store loads the local file that the old one wrote.
    void restart()
    {
        const QJsonObject file = mStore->dumpConf(ConfStorage::DumpLocal);
        start();
        mStore->loadConf(file, ConfStorage::LoadLocal);
        mStore->loadPresetDynamicConf();
    }
    /// Returns the configuration that this copy sends to others.
    QJsonObject dump() const { return translated(mStore->dumpConf(ConfStorage::DumpShared)); }
    void load(const QJsonObject &dump)
    {
        mStore->loadConf(translated(dump), ConfStorage::LoadShared);
    }

    /// Returns what the host sees: the values of its variables, and the timestamps.
    MergeState state() const
    {
        MergeState state;
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            MergeCell &cell = state[key];
            cell.present = mStore->mConfValues.contains(name(key));
            if (cell.present)
                cell.value = sMergeKeys[key].dynamic ? mEntries.at(name(key)).value("n").toInt()
                                                     : mNumbers[key];
            const QDateTime time = mStore->mConfMetas.contains(name(key))
                                       ? mStore->mConfMetas[name(key)].lastChangeTime
                                       : mStore->mRemovedDynamicConfs.value(name(key));
            if (time.isValid())
                cell.time = time.toSecsSinceEpoch();
        }
        return state;
    }

    static QString name(size_t key) { return QLatin1String(sMergeKeys[key].name); }

private:
    void start()
    {
        mStore = std::make_unique<ConfStorage>();
        if (mTies == MergeTies::Greater)
            mStore->mFileOptions |= ConfStorage::ResolveTies;
        mEntries.clear();
        addClass(mClasses[0], "Entry.", 0);
        addClass(mClasses[1], "SystemEntry.", ConfStorage::FlagSystemIndependent);
        addClass(mClasses[2], "LocalEntry.", ConfStorage::FlagLocalOnly);
        for (size_t key = 0; key < sMergeKeys.size(); ++key) {
            const MergeKey &info = sMergeKeys[key];
            if (!info.dynamic) {
                mNumbers[key] = *info.defaultValue;
                mStore->reserveConf(name(key), &mNumbers[key]);
                if (info.system)
                    mStore->mConfMetas[name(key)].flags |= ConfStorage::FlagSystemIndependent;
                if (info.local)
                    mStore->mConfMetas[name(key)].flags |= ConfStorage::FlagLocalOnly;
            } else if (info.defaultValue) {
                mStore->mPresetDynamicConfs[name(key)] = QJsonObject{{"n", *info.defaultValue}};
            }
        }
    }
    void addClass(ConfStorage::DynamicConfClass &cls, const char *prefix, quint32 flags)
    {
        cls.prefix = QLatin1String(prefix);
        cls.flags = flags;
        cls.creator = [this](QString key, const QJsonValue *value) {
            mEntries[key] = value->toObject();
            mStore->reserveConf(key, &mEntries[key]);
        };
        cls.remover = [this](QString key) { mEntries.erase(key); };
        mStore->mDynamicConfClasses << &cls;
    }
    /// Replaces timestamps that the store has just taken from the real clock by `now`, in seconds.
    /// The fraction of a second must not matter, so it alternates between 0 and 999 ms.
    void stamp(qint64 now)
    {
        static const QDateTime sReal(QDate(2020, 1, 1), QTime(), Qt::UTC);
        mFraction = 999 - mFraction;
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(now * 1000 + mFraction, Qt::UTC);
        for (ConfStorage::ConfMeta &meta : mStore->mConfMetas) {
            if (meta.lastChangeTime > sReal)
                meta.lastChangeTime = time;
        }
        for (QDateTime &removed : mStore->mRemovedDynamicConfs) {
            if (removed > sReal)
                removed = time;
        }
    }
    /// Returns `dump` with the system marks that the operating system of this copy uses: a foreign
    /// system writes "#s.win" where this one writes "#s.mac".
    QJsonObject translated(const QJsonObject &dump) const
    {
        if (mSystem == MergeSystem::Own)
            return dump;
        QJsonObject result;
        for (auto member = dump.begin(); member != dump.end(); ++member) {
            QString key = member.key();
            if (key.endsWith("#s.mac"))
                key.replace("#s.mac", "#s.win");
            else if (key.endsWith("#s.win"))
                key.replace("#s.win", "#s.mac");
            result.insert(key, member.value());
        }
        return result;
    }

    const MergeSystem mSystem;
    const MergeTies mTies;
    qint64 mFraction = 999;
    std::array<ConfStorage::DynamicConfClass, 3> mClasses;
    std::array<int, sMergeKeys.size()> mNumbers{};
    std::map<QString, QJsonObject> mEntries;
    std::unique_ptr<ConfStorage> mStore;
};
