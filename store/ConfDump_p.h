#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QByteArray>
#include <QJsonObject>

#include <vector>

/// A dump of a store at the time of construction, as JSON object or as text. Iterates over both
/// maps of the store once, in parallel.
///
/// It shares the data of the maps, so it stays valid if a log handler changes the store while the
/// dump logs a message.
class ConfDump
{
public:
    ConfDump(const ConfStorage &store, ConfStorage::DumpConfType type);
    /// A local dump of one key.
    ConfDump(const ConfStorage &store, const QString &key);

    QJsonObject toObject() const;

    /// Returns the bytes of `QJsonDocument(toObject()).toJson(QJsonDocument::Compact)` without
    /// creating the object, which would cost more than writing its text. Strings and numbers that
    /// QJsonDocument would lose are kept; JsonText_p.h lists them.
    QByteArray toText() const;

    /// A member, in the order of the dump.
    struct Entry
    {
        const QString &name; ///< with the system mark, if the key has one
        qint64 time;         ///< of the change or the removal, in seconds since 1970
        bool isKept;         ///< whether the key is not declared
    };
    size_t size() const { return mMembers.size(); }
    Entry at(size_t index) const;

    /// Returns the text of an entry, with another timestamp if it is not kept.
    QByteArray entryText(size_t index, qint64 time) const;

private:
    /// A kept entry, or else a changed value, or a tombstone if `value` is null.
    struct Member
    {
        QString name;
        qint64 time;
        const ConfValue *value;
        bool isDefault; // dumped without a value
        const QJsonValue *kept = nullptr;
    };

    void collectKept(const ConfKeptEntries &kept);
    void collectValues();
    void collectValue(const QString &key, const ConfValue &value,
                      const ConfStorage::ConfMeta &record);
    void collectRemoved(const ConfStorage &store);
    void sortMembers();
    QJsonValue entryOf(const Member &member) const;
    void appendEntry(QByteArray &text, const Member &member) const;

    const ConfStorage::DumpConfType mType;
    QMap<QString, ConfValue> mValues;
    QMap<QString, ConfStorage::ConfMeta> mMetas;
    QMap<QString, QJsonValue> mKept;
    std::vector<Member> mMembers; // sorted by name, each name once
};
