#pragma once

#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include "DumpMember_p.h"

#include <QStringList>

#include <optional>
#include <vector>

struct DumpText;
struct PlainMember;

/// Merges the members of a dump into a store, one after the other: for each key the newer change
/// wins, and a tie keeps the stored one, or is decided by `ConfStorage::ResolveTies`.
///
/// One object is one load: its destructor logs the timestamps that are too far ahead, and stores
/// the report of the load. A load that a callback starts ends earlier than the load that called
/// the callback, so the report of the outermost load is stored last.
class ConfLoad
{
public:
    enum class Merge {
        NewerWins, ///< the newer change of a key wins
        Replace    ///< the loaded entry wins; only what it really changes is a change
    };

    ConfLoad(ConfStorage &store, ConfStorage::LoadConfType type, Merge merge = Merge::NewerWins);
    ~ConfLoad();
    Q_DISABLE_COPY(ConfLoad)

    /// Returns whether the text is a JSON object; nothing else is loaded.
    bool loadText(const DumpText &dump);
    /// Reports the load as that of the file at `path`.
    void setFile(const QString &path);
    /// Loads the content of the file at `path`.
    void loadFile(const QString &path, const DumpText &dump);
    void loadObject(const QJsonObject &object);
    void loadMember(const QString &key, const QJsonValue &entry);
    /// Merges a member whose key belongs to `cls`. Returns false if it must be loaded like a member
    /// of an ordinary key.
    bool loadMemberOfClass(const QString &key, const QJsonValue &entry,
                           const ConfStorage::DynamicConfClass *cls);

    /// Merges the kept entries of `key`, which exists now.
    void loadKept(const QString &key);
    /// Merges the kept entries of all keys of `store` that belong to a class.
    static void loadKeptOfClasses(ConfStorage &store);
    /// Merges the entry that has set the value of `key` when it was reserved, for a new converter.
    void convertApplied(const QString &key);
    /// Returns the timestamp of a change of `key` by the user: now, or a second after the kept
    /// entries of the key, which would win against the change otherwise.
    static QDateTime timeOfUserChange(ConfStorage &store, const QString &key)
    {
        return store.mKeptEntries ? ConfLoad(store, ConfStorage::LoadLocal).timeAfterKept(key)
                                  : QDateTime::currentDateTimeUtc();
    }

private:
    // `Member` has the functions of `ParsedMember`.
    /// The merge rule: the newer change wins, and a tie keeps the stored one, so that loading a
    /// dump twice changes nothing.
    bool storedWins(qint64 stored, qint64 incoming) const
    {
        return !replaces() && stored >= incoming;
    }
    /// Returns whether the loaded entry wins. An entry of a former name may be older than that of
    /// the current name in the same file.
    bool replaces() const { return mReplaces && !mIsFormer; }
    /// Returns whether ties are decided by the content of the entries. In the local file the
    /// current name wins, as the entry of a former name stays there when the user changes the
    /// setting in the same second.
    bool resolvesTies() const { return mResolvesTies && !mReplaces && !(mIsFormer && mIsLocal); }
    /// The same for a change that may not exist.
    bool storedWins(const QDateTime &stored, const QDateTime &incoming) const;
    static QDateTime timeOfChange(std::optional<qint64> seconds);
    /// Returns the new value of a setting; undefined if the entry sets the default value.
    template<class Member> QJsonValue newValue(const Member &member) const
    {
        QJsonValue value = member.value();
        if (mNullIsDefault && value.isNull())
            value = QJsonValue(QJsonValue::Undefined);
        return value;
    }

    void loadMembers(const std::vector<PlainMember> &members);
    template<class Member> void load(QString key, const Member &member);
    template<class Member> void loadCurrent(const QString &key, const Member &member);
    template<class Member> void loadLocked(const QString &key, const Member &member);
    template<class Member> void loadDeclared(const QString &key, const Member &member);
    template<class Member>
    bool deferFormer(const QString &key, const QString &name, const Member &member);
    void loadFormer();
    void merge(const QString &key, const QJsonValue &entry);
    QString currentNameOf(const QString &key, int *steps = nullptr) const;
    bool isFormerName(const QString &key) const;
    bool isLocalOnly(const QString &key) const;
    QString withoutMark(const QString &name) const;
    QJsonValue converted(const QString &key, const QJsonValue &entry);
    bool isMerged(const QString &key, const QJsonValue &entry) const;
    QStringList keptNamesOf(const QString &key) const;
    QDateTime timeAfterKept(const QString &key) const;
    template<class Member> bool isFromFuture(const QString &key, const Member &member);
    bool isRefused(const QString &key, const QJsonValue &value, qint64 limit);
    void refuseType(const QString &key, bool isMarked, const QJsonValue &entry);
    void refuseAndKeep(const QString &key, ConfLoadReport::Reason reason, bool isMarked,
                       const QJsonValue &entry);
    bool isBeyondLimits(const QString &key);
    void refuse(const QString &key, ConfLoadReport::Reason reason);
    bool isDeclared(const QString &key) const;
    bool isUnwatched(const QString &key) const;
    QString keyOf(const PlainMember &member) const;
    bool hasNoRoom(const QString &name, const QJsonValue &entry);
    bool keeps(const QString &name) const;
    void keep(const QString &name, const QJsonValue &entry);
    template<class Member> bool loadDynamic(const QString &key, const Member &member);
    template<class Member> bool mergeDynamic(const QString &key, const Member &member,
                                             const ConfStorage::DynamicConfClass *cls);
    template<class Member> void loadStatic(const QString &key, const Member &member);
    void loadConstrained(const QString &key, const QJsonValue &value, const QJsonValue &entry,
                         std::optional<qint64> time);
    void applyValue(const QString &key, const QJsonValue &value,
                    QMap<QString, ConfValue>::iterator stored,
                    QMap<QString, ConfStorage::ConfMeta>::iterator meta);
    void keepDynamic(const QString &key, const QJsonValue &entry, quint32 flags);
    void mergeDefault(const QString &key, const QDateTime &incoming, bool isTimed);
    void mergeRemoval(const QString &key, const QDateTime &incoming);

    QMap<QString, ConfValue>::iterator valueOf(const QString &key);
    QMap<QString, ConfStorage::ConfMeta>::iterator metaOf(const QString &key);
    void forgetPosition();

    ConfStorage &mStore;
    const ConfOperation mOperation;
    const bool mReplaces;
    const bool mIsLocal; // any type but LoadLocal is a shared load
    const bool mNullIsDefault;
    const bool mKeepsUnknown;
    const bool mIsStrict;
    const bool mResolvesTies;
    const TimeRange mTimes;
    const QString mSystemMark;
    bool mIsSavable = false; // whether every value of the source can be saved
    bool mIsRetry = false;   // of kept entries, which were reported when they were kept
    bool mIsKept = false;    // whether the entries that are loaded are kept already
    bool mIsFormer = false;  // whether entries of former names are being loaded
    const QJsonValue *mUnconverted = nullptr; // the entry that is being loaded in another form

    /// An entry of a former name.
    struct Former
    {
        int steps; // from the former name to the current one
        QString key;
        QJsonValue entry;
    };
    std::vector<Former> mFormer; // loaded last, so that entries of the current name win ties

    ConfLoadReport mReport;
    bool mIsReported = false; // not for single members

    std::optional<qint64> mLastTime; // later timestamps are too far ahead; null: none is
    int mAheadCount = 0;
    QString mFirstAhead;

    // Where the next key probably is in both maps: the members of a dump are in the order of the
    // maps. Reset before callbacks and log handlers run, which may change the maps.
    std::optional<QMap<QString, ConfValue>::iterator> mNextValue;
    std::optional<QMap<QString, ConfStorage::ConfMeta>::iterator> mNextMeta;
};
