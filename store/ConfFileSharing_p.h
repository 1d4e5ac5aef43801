#pragma once

#include "DumpMember_p.h"
#include "MemberTexts_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class ConfDump;
class LocalFile;
struct DumpText;

/// The local file of a store when other programs change it, too.
///
/// Every read and write is done under a lock. A save merges: an entry that no operation of this
/// store has touched since the file was last read or written keeps the bytes of the file. A touched
/// entry yields only to a change of others with a later second that is not in the future; otherwise
/// it wins, with a timestamp after that of the file. What others changed is loaded after the lock
/// is released.
class ConfFileSharing
{
public:
    explicit ConfFileSharing(ConfStorage &store);
    ~ConfFileSharing();
    Q_DISABLE_COPY(ConfFileSharing)

    /// Merges the file into the store and creates the missing presets. Logs a failure.
    void load();

    /// Merges both into the file, and what others changed into the store. Returns whether all
    /// changes are in the file; logs a failure.
    bool save();

    /// Loads what others have changed since the file was last read. Does nothing if it is unchanged
    /// or locked for too long, or not a JSON object.
    void update();

    /// Notes that an operation of this store has changed the kept entry `name`.
    void touchKept(const QString &name);

    /// Marks that loads during the lifetime of the object do not change the entry `name`: it was
    /// kept until now, or its key is being locked. Does nothing if the entry is to be saved anyway.
    class UnchangedEntry
    {
    public:
        UnchangedEntry(const std::shared_ptr<ConfFileSharing> &sharing, const QString &name);
        ~UnchangedEntry();
        Q_DISABLE_COPY(UnchangedEntry)

    private:
        const std::shared_ptr<ConfFileSharing> mSharing; // may be null
        int mOuterDepth = 0;
    };

    /// Lets the next load take the entry of a key that is reserved now, even if the file stays the
    /// same.
    void addReserved(const QString &key) { mReserved.insert(key); }

    /// Returns whether operations of this store are not in the file yet, or the file is damaged.
    bool hasChanges() const { return mNeedsRepair || !mTouched.isEmpty(); }

private:
    using Members = std::vector<MemberText>;

    void observe(const ConfChange &change);
    void useFile(const QString &path);
    void loadFile();
    void loadWhole(const DumpText &dump);
    void setText(const QByteArray &text, std::optional<bool> isObject);
    DumpText read(LocalFile *file);
    void take(const QByteArray &text);
    void findMembers();
    bool write(LocalFile *file);
    bool collectForeign(const Members &known);
    void collectUnloaded();
    QByteArray merged(const ConfDump &dump, const QSet<QString> &touched);
    QByteArray winner(const ConfDump &dump, size_t index, std::string_view theirs);
    QByteArray keptWinner(const ConfDump &dump, size_t index, std::string_view theirs) const;
    static bool yields(qint64 ourTime, qint64 theirTime);
    TimeRange timeRange() const;
    void stamp(const QString &key, qint64 seconds);
    void yieldToNewer();
    void loadForeign();

    ConfStorage &mStore;
    std::shared_ptr<ConfObservers> mObservers;
    int mObserver = 0;
    bool mNeedsRepair = false; // the file was damaged
    int mMergeDepth = -1;      // of host code while entries of the file are loaded; -1: none are

    QString mPath;                        // of the file that the following belongs to
    bool mIsRead = false;                 // even if the file did not exist
    QByteArray mText;                     // of the file, when it was last read or written
    std::optional<bool> mIsObject;        // whether `mText` is a JSON object, if that is known
    std::optional<Members> mMembers;      // of `mText`, if they are known
    QSet<QString> mTouched;               // keys that were changed here since then
    QSet<QString> mReserved;              // keys that were reserved since the last load
    QMap<QString, QByteArray> mForeign;   // entries by name that are to be loaded
    QMap<QString, QByteArray> mContested; // entries by name that others changed, of touched keys
};
