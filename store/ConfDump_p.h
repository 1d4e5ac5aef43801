#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QByteArray>
#include <QJsonObject>

#include <vector>

/// What a store dumps, as it was when this was made: one walk through both maps of the store side
/// by side, and then either the object or the text.
///
/// It shares the maps with the store, so that a log handler that changes the store while a message
/// of the dump is on its way takes nothing away from under it.
class ConfDump
{
public:
    ConfDump(const ConfStorage &store, ConfStorage::DumpConfType type);

    QJsonObject toObject() const;

    /// The bytes of `QJsonDocument(toObject()).toJson(QJsonDocument::Compact)`, without the object:
    /// building one costs more than writing its text.
    QByteArray toText() const;

private:
    /// A changed value, or without one the time of a removal.
    struct Member
    {
        QString name;
        qint64 time;
        const ConfValue *value;
        bool isDefault;
    };

    void collectValues();
    void collectRemoved(const ConfStorage &store);
    void sortMembers();
    QJsonObject entryOf(const Member &member) const;
    void appendEntry(QByteArray &text, const Member &member) const;

    const ConfStorage::DumpConfType mType;
    const QMap<QString, ConfValue> mValues;
    const QMap<QString, ConfStorage::ConfMeta> mMetas;
    std::vector<Member> mMembers; // in the order of their names, each name once
};
