#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfValue.h>

#include <QDateTime>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <functional>

class QJsonObject;

/// Called after a key's value has changed. `value` points at the key's entry in the store and is
/// valid until the callback itself removes the key or reserves it again.
///
/// A callback may change settings, its own too, and so set off callbacks. When they are nested more
/// than 200 deep the critical message "ConfStorage::callChangedCallback nested too deeply: " and
/// the key are logged, and none is called any more until the outermost one returns.
using ConfChangedCallback = std::function<void(const QString &key, const ConfValue *value)>;

/// The store of all configuration values, by key.
///
/// A host reserves a key for each of its variables; from then on the store reads and writes the
/// variable in place, knows its default and the time of its last change, and calls its callback.
/// Keys are any text; "#" and what follows the last one are reserved for the system mark.
///
/// The store is used on the GUI thread only and takes no lock. Callbacks run synchronously and may
/// call any operation of the store, on their own key too. No operation reports a failure to its
/// caller: a failure is one line on Qt's log, ending with the key or the path.
///
/// All data are public: a host fills `mLocalSaveFile`, `mDynamicConfClasses` and
/// `mPresetDynamicConfs`, and may set flags in `mConfMetas`.
///
/// The store by itself:
/// @include headless/main.cpp
class MALTO_EXPORT ConfStorage
{
public:
    /// Bits of `ConfMeta::flags` and `DynamicConfClass::flags`.
    enum ConfFlag : quint32 {
        FlagIsDefault = 1,         ///< the value is known to equal its default
        FlagSystemIndependent = 2, ///< each operating system keeps a value of its own
        FlagLocalOnly = 4          ///< the key never leaves the local file
    };

    /// What is kept about one key besides its value.
    struct ConfMeta
    {
        QDateTime lastChangeTime;            ///< when the value last changed, UTC; null: never
        quint32 flags = FlagIsDefault;       ///< `ConfFlag` bits
        ConfValue defaultValue;              ///< an owned copy of the default
        ConfChangedCallback changedCallback; ///< may be empty
    };

    /// A family of keys that come and go at run time. Owned by the host.
    ///
    /// @include dynamic-entries/main.cpp
    struct DynamicConfClass
    {
        QString prefix; ///< a key belongs to the class when it starts with this
        /// Makes the host's variable for `key` from `value` and reserves it in the store.
        std::function<void(QString key, const QJsonValue *value)> creator;
        /// Releases the host's variable of `key`, which still stands in the store meanwhile.
        std::function<void(QString key)> remover;
        quint32 flags = 0; ///< `ConfFlag` bits that every key of the class gets
    };

    /// What `loadConf` takes from a configuration; any other value acts as `LoadShared`.
    enum LoadConfType {
        LoadShared = 0, ///< local-only keys are skipped
        LoadLocal = 1   ///< nothing is skipped
    };

    /// What `dumpConf` writes.
    enum DumpConfType {
        DumpLocal = 0,  ///< everything that ever changed, local-only keys too
        DumpShared = 1, ///< the same without local-only keys
        DumpChangedOnly =
            2 ///< values without times of what is not at its default, shared keys only
    };

    /// The store of the process, made empty by the first call and never destroyed.
    static ConfStorage *instance();

    /// An empty store. Hosts use `instance()`, as items and windows do; a store of one's own serves
    /// tools that merge copies of a configuration.
    ConfStorage() = default;
    Q_DISABLE_COPY(ConfStorage)

    /// Binds `key` to `*ptr`, whose content at this moment becomes the default. Reserving a key
    /// again binds it to the new variable and forgets its callback, time and flags. For `int`,
    /// `bool`, `QString`, `QColor`, `QFont`, `QKeySequence` (and what else a `ConfValue` can hold).
    /// A null pointer logs the critical message "ConfStorage::reserveConf null pointer: " and
    /// reserves nothing. Calls no callback.
    template<class T> void reserveConf(const QString &key, T *ptr);

    /// The value of `key`. An unknown key logs the critical message
    /// "ConfStorage::get key not found: "; another type than the reserved one logs a warning; both
    /// give a default-constructed `T`.
    template<class T> T get(const QString &key) const;

    /// Changes the value of `key`, stamps the time and calls the key's callback, also when the
    /// value is the same as before. Another type than the reserved one logs a warning and leaves
    /// the value, but counts as a change all the same. An unknown key logs the warning
    /// "ConfStorage::set key not found: " and leaves a record with the time of the attempt.
    template<class T> void set(const QString &key, const T &value);

    /// Restores the default of `key` and calls its callback, unless the key is flagged default
    /// already. With `updateTime` the change is stamped with the current time, otherwise the time
    /// stays. A key that is a removed or not yet created preset is created. Any other unknown key
    /// logs the critical message "ConfStorage::set key not found: ".
    void setToDefault(const QString &key, bool updateTime);

    /// Whether `key` holds its default. True for a key without a record.
    bool isEqualToDefault(const QString &key) const;

    /// Installs the callback of `key`, replacing an earlier one. An unknown key logs the debug
    /// message "ConfStorage::setConfChangedCallback key not found: ".
    void setConfChangedCallback(const QString &key, ConfChangedCallback cb);

    /// Sets the value of `key` from JSON as if a person had changed it: stamps the time and calls
    /// the callback. An unknown key is ignored without a message.
    void loadValueFromJson(QString key, QJsonValue value);

    /// The whole configuration as one object of entries with the members "t" (seconds since 1970),
    /// "v" (value) and "d" (seconds since 1970 of a removal). System-independent keys bear the
    /// system mark. A removed key that no class declares any more logs the critical message
    /// "dumpConf findDynamicConfClass error : ".
    QJsonObject dumpConf(DumpConfType type) const;

    /// Merges a dumped configuration key by key, the newer change winning and equal times keeping
    /// the store's value. Unknown keys and entries of other operating systems are skipped silently.
    /// Returns the number of members of `conf`.
    int loadConf(const QJsonObject &conf, LoadConfType type);

    /// Parses `json` and merges it. Returns false and logs the critical message
    /// "ConfStorage::importConf() parse json failed" when it is no JSON object.
    bool loadConf(const QString &json, LoadConfType type);

    /// Merges one member of a dumped configuration; `key` may bear a system mark.
    void loadSingleConf(QString key, const QJsonValue &value, LoadConfType type);

    /// The time of the newest change or removal that other copies may know of, in local time; null
    /// when there is none. It tells which of two copies is newer.
    QDateTime calcLastConfTime() const;

    /// The first class of `mDynamicConfClasses` whose prefix starts `key`, or null.
    const DynamicConfClass *findDynamicConfClass(const QString &key) const;

    /// Creates a dynamic key from `value`; `cls` may be null and is found by prefix then. Logs the
    /// critical message "ConfStorage::createDynamicConf() dynamicConfClass not found: " or
    /// "ConfStorage::createDynamicConf() key already exists: " and creates nothing. Calls no change
    /// callback.
    void createDynamicConf(const QString &key, const QJsonValue &value,
                           const DynamicConfClass *cls);

    /// Removes a dynamic key and remembers when. Logs the critical message
    /// "ConfStorage::createDynamicConf() dynamicConfClass not found: " or
    /// "ConfStorage::removeDynamicConf() key not found: " and removes nothing. Calls no change
    /// callback.
    void removeDynamicConf(const QString &key);

    /// Brings the dynamic keys that start with `prefix` back to the presets: presets to their
    /// default, others removed. Removed presets of every class are created again. Logs what
    /// `setToDefault`, `removeDynamicConf` and `createDynamicConf` log; a key that a callback
    /// removes meanwhile is one that `removeDynamicConf` does not find.
    void restoreDynamicConf(const QString &prefix);

    /// Creates every preset that neither exists nor was removed by a person. Logs what
    /// `createDynamicConf` logs.
    void loadPresetDynamicConf();

    /// Merges one member of a dumped configuration that belongs to `cls`. Returns false when the
    /// caller is to load it like an ordinary key. Logs the critical message
    /// "createDynamicConf Not create conf: " when the class's creator left no record.
    bool loadLoadDynamicConf(QString key, QJsonValue value, const DynamicConfClass *cls);

    /// Writes `dumpConf(DumpLocal)` to `mLocalSaveFile` as compact JSON when something changed
    /// since the file was last written or loaded. Logs the critical message
    /// "ConfStorage::saveToLocalConfFile() mLocalSaveFile.isEmpty()", or
    /// "ConfStorage::saveToLocalConfFile() open file failed: " and the path, after which the next
    /// save tries again; on success the debug message
    /// "ConfStorage::saveToLocalConfFile() save to file: " and the path. Whether everything reached
    /// the file is checked with `mSafeSave` only.
    void saveToLocalConfFile();

    /// Merges `mLocalSaveFile` and creates missing presets. A missing or unreadable file, or one
    /// that holds no JSON object, counts as an empty configuration, silently; so does a file of
    /// more than 128 MiB, with the critical message "ConfStorage::loadLocalConfFile() file too
    /// large: " and the path. Logs the critical message "ConfStorage::loadLocalConfFile()
    /// mLocalSaveFile.isEmpty()" and does nothing when no path is set.
    ///
    /// When a save with `mSafeSave` was interrupted, its content is put back from its journal, also
    /// when the switch is off by now, and one message beginning with
    /// "ConfStorage::loadLocalConfFile() " says so; docs/file-formats.md lists them.
    void loadLocalConfFile();

    /// Everything in the store as a table to print while looking for a fault: for each key its
    /// value, its default, whether it differs, when it changed (UTC) and its flags ("default",
    /// "system", "local"); then the removed dynamic keys. Long values are cut. Changes nothing.
    QString debugTable() const;

    bool mChanged = false;     ///< something changed since the local file was written or loaded
    bool mLocalLoaded = false; ///< `loadLocalConfFile` has run

    /// Set by the host, before it saves: the local file survives a crash, a full disk and a loss of
    /// power at any instant. The next load finds what the file held before the save, or the new
    /// content. The file is still rewritten in place; a journal lies beside it meanwhile, so its
    /// folder must be writable, and a save waits for the disk.
    ///
    /// A save then also fails, with the file as it was and the save pending, with the critical
    /// messages "ConfStorage::saveToLocalConfFile() content could not be read back: " and
    /// "ConfStorage::saveToLocalConfFile() write journal failed: "; with
    /// "ConfStorage::saveToLocalConfFile() write file failed: " the new content is in the journal
    /// and the save pending.
    bool mSafeSave = false;

    QMap<QString, ConfValue> mConfValues;          ///< the values by key
    QMap<QString, ConfMeta> mConfMetas;            ///< the records by key
    QString mLocalSaveFile;                        ///< path of the local file; set by the host
    QMap<QString, QJsonValue> mPresetDynamicConfs; ///< dynamic keys that exist by default
    QList<DynamicConfClass *> mDynamicConfClasses; ///< in order of precedence; not owned
    QMap<QString, QDateTime> mRemovedDynamicConfs; ///< when each dynamic key was removed, UTC

private:
    friend class ConfLoad;
    void reserveValue(const QString &key, const ConfValue &bound, const ConfValue &current);
    bool loadValue(const QString &key, const QJsonValue &json);
    void markUserChange(const QString &key, ConfValue *value);
    void callChangedCallback(const QString &key, const ConfMeta &meta, ConfValue *value = nullptr);
    bool isDynamicWithoutPreset(const QString &key) const;
    bool saveInPlace() const;
    bool saveSafely() const;
    static void logNullPointer(const QString &key);
    static void logGetNotFound(const QString &key);
    static void logSetNotFound(const QString &key);

    int mCallbackDepth = 0;
    bool mCallbacksStopped = false;
    QSet<QString> mBusyDynamicConfs; // being created or removed by the host at this moment
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
    const auto value = mConfValues.constFind(key);
    if (value != mConfValues.constEnd())
        return value->template get<T>();
    logGetNotFound(key);
    return T();
}

template<class T> void ConfStorage::set(const QString &key, const T &value)
{
    const auto stored = mConfValues.find(key);
    if (stored != mConfValues.end() && stored->mType == ConfValue::typeOf<T>()) {
        stored->template set<T>(value);
        markUserChange(key, &*stored);
        return;
    }
    // What is logged runs a handler of the host, which may change the store.
    if (stored != mConfValues.end())
        stored->template set<T>(value);
    else
        logSetNotFound(key);
    // An unknown key gets its record all the same: its time counts as the newest change.
    markUserChange(key, nullptr);
}

/// The name under which a system-independent key is written: `key` + "#s.mac".
MALTO_EXPORT QString addSysMark(const QString &key);
