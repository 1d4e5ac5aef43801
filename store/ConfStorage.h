#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfValue.h>
#include <MaltoConfiguration/store/JsonForm.h>

#include <QDateTime>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

class ConfAutosave;
class ConfConstraints;
class ConfMisuse;
class ConfObservers;
class ConfVersions;
class ConfFileSharing;
class ConfFileWatch;
class ConfKeptEntries;
class LockedConfs;
class QJsonObject;
struct ConfChange;
struct ConfLoadReport;

/// A callback that the store calls after the value of a key has changed. `value` points to the
/// entry of the key in the store. It is valid until the callback removes the key or reserves it
/// again.
///
/// Callbacks are re-entrant: they may change settings, their own key included, and so cause further
/// callbacks. If more than 200 are nested, the store logs the critical message
/// "ConfStorage::callChangedCallback nested too deeply: " with the key, and calls no callback until
/// the outermost one has returned.
///
/// @see ConfStorage::setConfChangedCallback
/// @since 0.1
using ConfChangedCallback = std::function<void(const QString &key, const ConfValue *value)>;

/// A function that decides which values a key accepts: returns `value`, or another value that is
/// stored instead, or nothing if the value is refused. Values are in JSON as
/// `ConfValue::toJsonValue` returns them. It must not change the store.
///
/// @see ConfStorage::setConfConstraint
/// @since 0.1
using ConfConstraint = std::function<std::optional<QJsonValue>(const QJsonValue &value)>;

/// The store of all configuration values by key.
///
/// A host reserves a key for each of its variables. From then on the store reads and writes the
/// variable in place, keeps its default value and the timestamp of its last change, and calls the
/// change callback of the key. Keys are any text; "#" and the text after the last "#" are
/// reserved for the system mark.
///
/// Each change has a timestamp, kept in UTC and written to files in whole seconds. When two copies
/// of a configuration are merged, the newer change of each key wins, and the stored one wins a tie.
/// The removal of a dynamic key is kept as a tombstone, its timestamp in `mRemovedDynamicConfs`, so
/// that it is merged like a change.
///
/// Use the store on the GUI thread only; it has no lock. Callbacks run synchronously and may call
/// any function of the store, also for their own key. No function reports a failure to its caller:
/// each failure is one message on Qt's log that ends with the key or the path.
///
/// All data is public. A host sets `mLocalSaveFile`, `mDynamicConfClasses` and
/// `mPresetDynamicConfs`, and may set flags in `mConfMetas`.
///
/// The store without the other classes of the library:
/// @include headless/main.cpp
///
/// @see ConfValue, MtConf::MtConfManage
/// @since 0.1
class MALTO_EXPORT ConfStorage
{
public:
    /// Bits of `ConfMeta::flags` and `DynamicConfClass::flags`.
    enum ConfFlag : quint32 {
        FlagIsDefault = 1,         ///< the value is known to be the default value
        FlagSystemIndependent = 2, ///< written with the system mark; see `addSysMark`
        FlagLocalOnly = 4,         ///< the key is written to the local file only
        FlagSecret = 8             ///< `debugTable` and `previewLoad` do not show the value
    };

    /// The record of a key: everything but its value.
    struct ConfMeta
    {
        QDateTime lastChangeTime;            ///< when the value last changed, in UTC; null: never
        quint32 flags = FlagIsDefault;       ///< `ConfFlag` bits
        ConfValue defaultValue;              ///< an owned copy of the default value
        ConfChangedCallback changedCallback; ///< may be empty
    };

    /// A class of dynamic keys, which are created and removed at run time. Owned by the host.
    ///
    /// @include dynamic-entries/main.cpp
    struct DynamicConfClass
    {
        QString prefix; ///< a key that starts with this prefix belongs to the class
        /// Creates the variable of the host for `key` from `value`, and reserves `key` for it.
        std::function<void(QString key, const QJsonValue *value)> creator;
        /// Destroys the variable of the host for `key`. The store removes the key afterwards.
        std::function<void(QString key)> remover;
        quint32 flags = 0; ///< `ConfFlag` bits for every key of the class
    };

    /// Which entries `loadConf` merges. Any other value is treated as `LoadShared`.
    enum LoadConfType {
        LoadShared = 0, ///< all but those of local-only keys
        LoadLocal = 1   ///< all
    };

    /// What `dumpConf` writes.
    enum DumpConfType {
        DumpLocal = 0,      ///< every key that ever changed, and tombstones
        DumpShared = 1,     ///< the same without local-only keys
        DumpChangedOnly = 2 ///< values without timestamps, of keys that are neither local-only nor
                            ///< flagged default
    };

    /// Bits of `mFileOptions`.
    enum ConfFileOption : quint32 {
        /// Makes saves atomic: after a crash, a full disk or a loss of power at any moment, the
        /// next load returns the content from before the save, or the new content. The file is
        /// still rewritten in place. During a save a journal is kept beside it, so its folder must
        /// be writable, and each save waits for the disk.
        ///
        /// A save can then fail in more ways, each with a critical message that starts with
        /// "ConfStorage::saveToLocalConfFile() ", and with the save still pending. "file could not
        /// be loaded: " (the last load could not read the file or its journal), "file has several
        /// names: " (hard links), "content could not be read back: " and "write journal failed: "
        /// leave the file unchanged. After "write file failed: " the new content is in the journal.
        SafeSave = 1,
        /// Reads timestamps up to 2^53 seconds. Without it a timestamp of more than 32 bits, which
        /// is one after 19 January 2038, is saved as it is, but counts as 0 when it is loaded: the
        /// change loses against every other one, and the next save drops it.
        LongTimes = 2,
        /// A null from a file or a dump sets the default value, as an entry without a value does.
        /// Without it null unbinds the key from its variable; see `ConfValue::loadFromJsonValue`.
        NullIsDefault = 4,
        /// Entries with timestamps more than a day ahead are not merged by `LoadShared`: they would
        /// win against every change until that time. `LoadLocal` merges them all the same, because
        /// they are changes made here while the clock was wrong. Each load logs at most one
        /// message, the warning "ConfStorage::loadConf() timestamps too far ahead refused: " or
        /// "ConfStorage::loadConf() timestamps too far ahead: " with the number of these entries
        /// and the first key. Without it they are merged by every load, and nothing is logged.
        RefuseFutureTimes = 8,
        /// Lets several programs change the local file at the same time. A save reads the file
        /// under a lock, merges it entry by entry and writes it. An entry that this store has not
        /// changed since it last read the file keeps what the file says; the callbacks of such
        /// entries are called after the save. See docs/guide/files.md.
        SharedFile = 0x10,
        /// Loads the changes that other programs make to the local file within a second, or within
        /// some seconds if the file system does not report them. Begins with the next load or save.
        /// Needs an event loop. Without `SharedFile` an entry is taken only if it is newer. A file
        /// that is not a JSON object is left alone: another program may be writing it.
        WatchFile = 0x20,
        /// Copies a local file that cannot be parsed aside before it is overwritten, and loads the
        /// content of the journal or the backup instead; `mChanged` is set then. The copy is named
        /// as the file, with ".damaged-" and the time in UTC; the newest three are kept. Each save
        /// keeps the previous content in a backup, with the ending ".backup". A file that cannot
        /// be read or copied is not overwritten until a load succeeds.
        ///
        /// Logs the critical messages "ConfStorage::loadLocalConfFile() damaged file copied: "
        /// with both paths, or "ConfStorage::loadLocalConfFile() damaged file could not be copied:
        /// " with the path, also before a save. Logs the warnings
        /// "ConfStorage::loadLocalConfFile() loaded from backup: " and
        /// "ConfStorage::saveToLocalConfFile() backup could not be written: " with the path of the
        /// backup.
        KeepDamagedFiles = 0x40,
        /// Keeps the entries of keys that are not declared, and writes them back to the local
        /// file. They are merged as others are, and set the value when the key is reserved later,
        /// without calling its callback. `DumpShared` and `DumpChangedOnly` leave them out.
        KeepUnknownEntries = 0x80,
        /// Refuses values whose JSON type is not that of the setting. The variable keeps its
        /// value, and with `KeepUnknownEntries` or `SharedFile` the local file keeps an entry that
        /// it contains. Each one is logged, with the warning "ConfStorage::loadConf() value of
        /// another type refused: " and the key. So is a font that is smaller than 0.1 or larger
        /// than 4096 points or pixels. Without it such values are converted by Qt's lenient rules,
        /// `"12"` to the number 0, and such a font to the default font.
        StrictTypes = 0x100,
        /// Decides ties by the content of the entries, so that all copies that merge each other's
        /// dumps end with the same values: a removal wins over a value, a value over a restored
        /// default, and of two values the one with the greater JSON text. Without it each copy
        /// keeps its own value in a tie.
        ResolveTies = 0x200,
        /// Makes new files readable by their owner only: the local file, its journal and backup,
        /// and copies of damaged files. Existing files keep their permissions.
        OwnerOnlyFiles = 0x400,
        /// Lets `MtConf::MtConfManage::loadFromFile` lock values: a member "locked" that is true
        /// beside "value". See `isLocked`.
        LockedValues = 0x800
    };

    /// Returns the store of the process. The first call creates it, empty; it is never destroyed.
    static ConfStorage *instance();

    /// Constructs an empty store. Hosts use `instance()`, as items and windows do. A separate store
    /// is for tools that merge copies of a configuration.
    ConfStorage();
    /// Destroys the store without saving it.
    ~ConfStorage();
    Q_DISABLE_COPY(ConfStorage)

    /// Makes the store as it was when it was constructed: without keys, presets, classes,
    /// tombstones and path. For hosts whose variables are destroyed before the process ends. Writes
    /// no file and calls no callback.
    void clear();

    /// Binds `key` to `*ptr`, whose current content becomes the default value. Reserving a key
    /// again binds it to the new variable and resets its callback, timestamp and flags. Calls no
    /// callback. `T` is a type of `ConfValue`, or one with a `MtConf::JsonForm`. Logs the critical
    /// message "ConfStorage::reserveConf null pointer: " with the key and reserves nothing if `ptr`
    /// is null.
    template<class T> void reserveConf(const QString &key, T *ptr);

    /// Ends the binding of `key` to its variable, which may be destroyed afterwards, and removes
    /// the callback. For plug-ins that are unloaded. With `KeepUnknownEntries` or `SharedFile` the
    /// local file keeps the entry, and a later `reserveConf` gets its value. Calls no callback and
    /// leaves no tombstone. Does nothing if the key is unknown.
    void releaseConf(const QString &key);

    /// Returns the value of `key`. Logs the critical message "ConfStorage::get key not found: "
    /// with the key if it is unknown, or what `ConfValue::get` logs if it is reserved for another
    /// type; both return a default-constructed `T`.
    template<class T> T get(const QString &key) const;

    /// Sets the value of `key`, updates its timestamp and calls its callback, even if the value
    /// stays the same. A value of another type than the reserved one is not stored, and logs what
    /// `ConfValue::set` logs, but counts as a change. An unknown key logs the warning
    /// "ConfStorage::set key not found: " with the key, and gets a record with the current time.
    template<class T> void set(const QString &key, const T &value);

    /// Restores the default value of `key` and calls its callback. Does nothing if the key is
    /// flagged default. With `updateTime` the timestamp of the key becomes the current time,
    /// otherwise it stays. An unknown key with a preset is created from its preset. Any other
    /// unknown key logs the critical message "ConfStorage::set key not found: " with the key.
    void setToDefault(const QString &key, bool updateTime);

    /// Returns whether `key` has its default value. True for a key without a record.
    bool isEqualToDefault(const QString &key) const;

    /// Sets the callback of `key` and replaces an earlier one. Logs the debug message
    /// "ConfStorage::setConfChangedCallback key not found: " with the key if it is unknown.
    void setConfChangedCallback(const QString &key, ConfChangedCallback cb);

    /// Calls `observer` for each operation on a key, once, before the callback of the key: for
    /// changes by `set`, `setToDefault`, `loadValueFromJson` and loads, for the creation and the
    /// removal of dynamic keys, and if `reserveConf` sets a value from a kept entry. Observers are
    /// called in the order in which they were added. A host that writes its variable or the public
    /// maps causes no event. Returns an id for `removeObserver`.
    ///
    /// Observers may change the store, and so cause further events. If more than 200 are nested,
    /// the store logs the critical message "ConfStorage::addObserver nested too deeply: " with the
    /// key, and calls no observer until the outermost one has returned.
    ///
    /// @see ConfChange, ConfOperation
    int addObserver(std::function<void(const ConfChange &change)> observer);

    /// Removes an observer, which is not called any more. Does nothing if `id` is unknown.
    void removeObserver(int id);

    /// Sets the value of `key` from JSON like a change by the user: updates the timestamp and calls
    /// the callback. Ignores an unknown key silently. With `NullIsDefault` null restores the
    /// default value like `setToDefault`.
    ///
    /// @see ConfValue::loadFromJsonValue
    void loadValueFromJson(QString key, QJsonValue value);

    /// Returns the configuration as one JSON object. Each member is an entry with "t", the
    /// timestamp of the change in seconds since 1970 (UTC), and "v", the value, or with "d", the
    /// timestamp of a removal. System-independent keys are written with the system mark. Logs the
    /// critical message "dumpConf findDynamicConfClass error : " with the key for a removed key
    /// without a class.
    ///
    /// JSON has neither infinity nor NaN: a `double` with such a value is dumped as restored to its
    /// default, and not at all by `DumpChangedOnly`.
    ///
    /// @see loadConf
    QJsonObject dumpConf(DumpConfType type) const;

    /// Merges a dump entry by entry: the newer change wins, and the stored one wins a tie. Skips
    /// unknown keys and keys with the mark of another system silently. `LongTimes`,
    /// `NullIsDefault`, `RefuseFutureTimes`, `KeepUnknownEntries`, `StrictTypes` and `ResolveTies`
    /// in `mFileOptions` change what is merged. Returns the number of members of `conf`.
    ///
    /// A value that no local file could hold, because it is larger than `mMaxFileSize` or nested
    /// too deeply, is not loaded. Logs the critical message "ConfStorage::loadConf() value could
    /// not be saved: " with the key.
    ///
    /// A dump cannot add a dynamic key or a tombstone of more than 65,536 characters (UTF-16
    /// units), nor one to a store that has 1,000,000 keys and tombstones. Logs the critical message
    /// "ConfStorage::loadConf() key too long: " or "ConfStorage::loadConf() too many keys: " with
    /// the key.
    ///
    /// @see dumpConf, lastLoad, previewLoad
    int loadConf(const QJsonObject &conf, LoadConfType type);

    /// Parses `json` and merges it. Returns false and logs the critical message
    /// "ConfStorage::importConf() parse json failed" if it is not a JSON object.
    bool loadConf(const QString &json, LoadConfType type);

    /// Returns what the last call of `loadConf` or `loadLocalConfFile` did. If a callback loads
    /// something, the report is that of the outer load as soon as that ends.
    ConfLoadReport lastLoad() const;

    /// Returns the changes that `loadConf` would make, without making them: key, state before and
    /// after, cause and time, in the order of the keys. Entries that only have a newer timestamp
    /// are included. Creators, removers and callbacks are not called, so what they would change in
    /// answer is not included. Logs what `loadConf` logs.
    QVector<ConfChange> previewLoad(const QJsonObject &conf, LoadConfType type) const;

    /// Merges one member of a dump. `key` may have a system mark.
    void loadSingleConf(QString key, const QJsonValue &value, LoadConfType type);

    /// Returns the timestamp of the newest change or removal in local time, local-only keys
    /// excepted; null if there is none. It shows which of two copies is newer.
    QDateTime calcLastConfTime() const;

    /// Returns the first class of `mDynamicConfClasses` whose prefix `key` starts with, or null.
    const DynamicConfClass *findDynamicConfClass(const QString &key) const;

    /// Creates a dynamic key from `value`, with the class `cls` or, if it is null, with the class
    /// that matches the key. Calls no change callback. Logs the critical message
    /// "ConfStorage::createDynamicConf() dynamicConfClass not found: " or
    /// "ConfStorage::createDynamicConf() key already exists: " with the key and creates nothing if
    /// there is no class or the key exists.
    ///
    /// @see DynamicConfClass
    void createDynamicConf(const QString &key, const QJsonValue &value,
                           const DynamicConfClass *cls);

    /// Removes a dynamic key and keeps a tombstone with the current time. Calls no change callback.
    /// Logs the critical message "ConfStorage::createDynamicConf() dynamicConfClass not found: " or
    /// "ConfStorage::removeDynamicConf() key not found: " with the key and removes nothing if there
    /// is no class or no such key.
    void removeDynamicConf(const QString &key);

    /// Restores the presets of the dynamic keys that start with `prefix`: keys with a preset get
    /// their default value, other keys are removed. Then creates the missing presets of every
    /// class. Logs what `setToDefault`, `removeDynamicConf` and `createDynamicConf` log, also for a
    /// key that a callback has removed meanwhile.
    void restoreDynamicConf(const QString &prefix);

    /// Creates every preset that neither exists nor has a tombstone. Logs what `createDynamicConf`
    /// logs.
    void loadPresetDynamicConf();

    /// Merges one member of a dump whose key belongs to `cls`. Returns false if the caller must
    /// load it like the entry of an ordinary key. Logs what `createDynamicConf`,
    /// `removeDynamicConf` and `setToDefault` log, and the critical message "createDynamicConf Not
    /// create conf: " with the key if the key has no record after its creation. That happens if a
    /// creator loads an entry of the key that it is creating.
    bool loadLoadDynamicConf(QString key, QJsonValue value, const DynamicConfClass *cls);

    /// Sets all bits of `mFileOptions`, as a new host should, and saves automatically one second
    /// after the last change.
    ///
    /// @see setAutosave
    void useRobustFiles();

    /// Saves the local file when nothing has changed for `quietTime` milliseconds, or ten times as
    /// long after the first of changes that do not stop, when the application emits
    /// `QCoreApplication::aboutToQuit`, and when the session manager ends the session. A negative
    /// time switches this off, as it is by default. Without an application object and its event
    /// loop nothing is saved. Nothing is saved before `loadLocalConfFile` has run and during a
    /// load. Changes without an event, such as writing a variable, do not begin the quiet time, but
    /// are saved if `mChanged` is set.
    ///
    /// After a save that fails, the next try follows after the quiet time, the one after that in
    /// twice the time, and so on up to a minute.
    ///
    /// @see addObserver
    void setAutosave(int quietTime);

    /// Returns whether an administrator has fixed the value of `key`. Then `set`, `setToDefault`,
    /// `loadValueFromJson` and `removeDynamicConf` do nothing, silently. Loads merge into the value
    /// of the user, which the locked value hides: dumps and the local file contain it, and the
    /// variable gets it when the key is not locked any more, in another run of the program. Then
    /// observers hear a change with the locked value before and after.
    bool isLocked(const QString &key) const;

    /// Fixes the value of `key` as `value`, in JSON as `ConfValue::toJsonValue` returns it, or as
    /// the default value if it is null. Tells observers, with the cause `Loaded`, and calls the
    /// callback if the value changes. A key that is locked already gets the new value. The key
    /// stays locked if it is reserved again; `clear` forgets all locks. Does nothing if the key is
    /// unknown. Logs the debug message "ConfStorage::lockConf() value locked: " with the key.
    ///
    /// With `StrictTypes` a value of another type is not locked. Logs the warning
    /// "ConfStorage::loadConf() value of another type refused: " with the key.
    void lockConf(const QString &key, const QJsonValue &value);

    /// Makes entries of `formerName` entries of `key`: the newest of both wins. With `keepEntry`
    /// the local file keeps the entry of the former name for older versions of the program.
    ///
    /// @see MtConf::ConfItem::addFormerName
    void addFormerName(const QString &key, const QString &formerName, bool keepEntry = true);

    /// Sets the function that converts values of `key` in files and dumps from an older form to
    /// the current one. It gets every value that is loaded for the key and must return values of
    /// the current form unchanged.
    void setConfConverter(const QString &key,
                          std::function<QJsonValue(const QJsonValue &value)> converter);

    /// Sets the function that decides which values `key` accepts, and replaces an earlier one. It
    /// is asked by `set`, `loadValueFromJson`, `lockConf` and all loads, but not for the default
    /// value and when a dynamic key is created. A value that was loaded before is checked now,
    /// unless the key is locked. An empty function accepts all values. `releaseConf` and another
    /// `reserveConf` of the key remove the constraint.
    ///
    /// A refused value changes nothing; one that was loaded before is replaced with the default
    /// value. With `KeepUnknownEntries` or `SharedFile` the local file keeps a refused entry. A
    /// value that the type does not have is refused. Logs the warning
    /// "ConfStorage::setConfConstraint() value refused: " or "ConfStorage::setConfConstraint()
    /// value changed: " with the key.
    ///
    /// @see MtConf::ConfItem::setRange
    void setConfConstraint(const QString &key, const ConfConstraint &constraint);

    /// Returns whether `key` has a constraint.
    bool hasConfConstraint(const QString &key) const;

    /// Makes the store warn of wrong use, once of each kind, from now on: of calls on another
    /// thread than this one, and of dynamic keys
    /// with "#", whose entries loads ignore. Logs the warnings "ConfStorage used on another thread:
    /// " with the function and "ConfStorage::createDynamicConf() key with # will not be loaded: "
    /// with the key. For developers: see docs/guide/checks.md.
    void warnOfMisuse();

    /// Writes `dumpConf(DumpLocal)` to `mLocalSaveFile` as compact JSON if something has changed
    /// since the file was last written or loaded. The file is rewritten in place. Logs the debug
    /// message "ConfStorage::saveToLocalConfFile() save to file: " with the path. Whether all of
    /// the text reaches the file is checked with `SafeSave` only. A text of more than
    /// `mMaxFileSize` bytes is not written, with the critical message
    /// "ConfStorage::saveToLocalConfFile() content could not be read back: " and the path.
    ///
    /// Logs the critical messages "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()" if
    /// no path is set, and "ConfStorage::saveToLocalConfFile() open file failed: " with the path if
    /// the file cannot be opened or truncated; then the next save tries again.
    void saveToLocalConfFile();

    /// Merges `mLocalSaveFile` and creates the missing presets. A file that is missing, unreadable
    /// or not a JSON object counts as an empty configuration, silently. So does a file of more than
    /// `mMaxFileSize` bytes, with the critical message "ConfStorage::loadLocalConfFile() file too
    /// large: " and the path. Logs the critical message "ConfStorage::loadLocalConfFile()
    /// mLocalSaveFile.isEmpty()" and does nothing if no path is set.
    ///
    /// If a save with `SafeSave` was interrupted, its content is recovered from the journal, even
    /// if `SafeSave` is off by then. One message that starts with "ConfStorage::loadLocalConfFile()
    /// " says so; docs/file-formats.md lists these messages.
    void loadLocalConfFile();

    /// Returns the content of the store as a table for debugging: for each key its value, its
    /// default value, whether they differ, the timestamp (UTC) and the flags ("default", "system",
    /// "local", "secret", "locked"); then the tombstones. Long keys and values are truncated,
    /// control characters are escaped, and secret values are "***". After 10,000 rows, a line
    /// counts the rest.
    QString debugTable() const;

    bool mChanged = false;     ///< something has changed since the local file was written or loaded
    bool mLocalLoaded = false; ///< `loadLocalConfFile` has run

    /// `ConfFileOption` bits, set by the host before it loads or saves.
    ///
    /// @see useRobustFiles
    quint32 mFileOptions = 0;

    /// The largest local file in bytes, and the largest journal. Larger ones are neither read nor
    /// written. Loading a file can take up to 50 times its size in memory with Qt 5, 82 times
    /// with Qt 6.
    qint64 mMaxFileSize = 16 * 1024 * 1024;

    QMap<QString, ConfValue> mConfValues;          ///< the values by key
    QMap<QString, ConfMeta> mConfMetas;            ///< the records by key
    QString mLocalSaveFile;                        ///< path of the local file; set by the host
    QMap<QString, QJsonValue> mPresetDynamicConfs; ///< dynamic keys that exist by default
    QList<DynamicConfClass *> mDynamicConfClasses; ///< in order of precedence; not owned
    QMap<QString, QDateTime> mRemovedDynamicConfs; ///< tombstones: when a key was removed, in UTC

private:
    friend class ConfDump;
    friend class ConfLoad;
    friend class ConfObservers;
    friend class ConfOperation;
    friend class ConfFileSharing;
    friend class ShadowStore;
    using ChangePtr = std::shared_ptr<ConfChange>;
    void reserveValue(const QString &key, ConfValue &&bound, ConfValue &&current);
    bool loadValue(const QString &key, const QJsonValue &json);
    void markUserChange(const QString &key, ConfValue *value, const ChangePtr &change);
    ChangePtr beginSet(const QString &key) const;
    void finishChange(const ChangePtr &change);
    std::optional<QJsonValue> constrained(const QString &key, const QJsonValue &json) const;
    void refuseLoaded(const QString &key);
    void keepEntryOf(const QString &key);
    void applyConstrained(const QString &key, const QJsonValue &json);
    bool setConstrained(const QString &key, const ConfValue &value);
    void checkUse(const char *function) const;
    bool isSecretEntry(const QString &name) const;
    void restore(const QString &key, const QDateTime &time);
    void restorePreset(const QString &key, const QDateTime &time);
    bool createDynamic(const QString &key, const QJsonValue &value, const DynamicConfClass *cls);
    bool removeDynamic(const QString &key);
    void watchFile(const QByteArray &content);
    void reloadChangedFile();
    void callChangedCallback(const QString &key, const ConfMeta &meta, ConfValue *value = nullptr);
    bool isDynamicWithoutPreset(const QString &key) const;
    void reportDamage(const QString &copy);
    void saveSharedFile();
    void loadSharedFile();
    void updateSharedFile();
    std::shared_ptr<ConfFileSharing> fileSharing();
    static void logNullPointer(const QString &key);
    static void logGetNotFound(const QString &key);
    static void logSetNotFound(const QString &key);

    QString mUnloadedFile; // the local file, if the last load could not read it or its journal
    int mCallbackDepth = 0;
    bool mCallbacksStopped = false;
    QSet<QString> mBusyDynamicConfs; // whose creator or remover is running

    // Null unless the host asks for them.
    std::shared_ptr<ConfObservers> mObservers;
    std::unique_ptr<ConfLoadReport> mLastLoad;
    std::unique_ptr<ConfKeptEntries> mKeptEntries;
    std::unique_ptr<ConfVersions> mVersions;
    std::shared_ptr<ConfConstraints> mConstraints;
    std::unique_ptr<ConfMisuse> mMisuse;
    std::unique_ptr<LockedConfs> mLockedConfs;
    std::shared_ptr<ConfFileSharing> mFileSharing;
    std::unique_ptr<ConfFileWatch> mFileWatch;
    std::unique_ptr<ConfAutosave> mAutosave;
};

template<class T> void ConfStorage::reserveConf(const QString &key, T *ptr)
{
    if (ptr)
        reserveValue(key, ConfValue::bound(ptr), ConfValue::owned(*ptr));
    else
        logNullPointer(key);
}

template<class T> T ConfStorage::get(const QString &key) const
{
    if (mMisuse)
        checkUse("get");
    const auto value = mConfValues.constFind(key);
    if (value != mConfValues.constEnd())
        return value->template get<T>();
    logGetNotFound(key);
    return T();
}

template<class T> void ConfStorage::set(const QString &key, const T &value)
{
    if (mMisuse)
        checkUse("set");
    if (mLockedConfs && isLocked(key))
        return;
    if (mConstraints && setConstrained(key, ConfValue::owned(value)))
        return;
    const ChangePtr change = mObservers ? beginSet(key) : nullptr;
    const auto stored = mConfValues.find(key);
    if (stored != mConfValues.end() && stored->mType == ConfValue::typeOf<T>()) {
        stored->template set<T>(value);
        markUserChange(key, &*stored, change);
        return;
    }
    // Logging may call a handler of the host, which may change the store.
    if (stored != mConfValues.end())
        stored->template set<T>(value);
    else
        logSetNotFound(key);
    // An unknown key gets a record, too: its timestamp counts in calcLastConfTime.
    markUserChange(key, nullptr, change);
}

/// Returns the name under which a system-independent key is written: `key` + "#s.mac". There is one
/// mark for all operating systems, so they share the entry. Entries with another mark are skipped
/// when a dump is loaded.
///
/// @see ConfStorage::FlagSystemIndependent
/// @since 0.1
MALTO_EXPORT QString addSysMark(const QString &key);
