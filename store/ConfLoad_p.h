#pragma once

#include <MaltoConfiguration/store/ConfStorage.h>

#include <optional>

/// Merges the members of a dump into a store, one after the other: the newer change of each key
/// wins, and equal times keep the store's value.
class ConfLoad
{
public:
    ConfLoad(ConfStorage &store, ConfStorage::LoadConfType type);

    /// Whether `text` is a JSON object; nothing else is loaded.
    bool loadText(const QByteArray &text);
    void loadObject(const QJsonObject &object);
    void loadMember(const QString &key, const QJsonValue &value);

private:
    template<class Member> void loadEntry(QString key, const Member &member);
    template<class Member> bool loadDynamic(const QString &key, const Member &member);
    template<class Member> void loadStatic(const QString &key, const Member &member);

    QMap<QString, ConfValue>::iterator valueOf(const QString &key);
    QMap<QString, ConfStorage::ConfMeta>::iterator metaOf(const QString &key);
    void forgetPosition();

    ConfStorage &mStore;
    const bool mIsLocal; // and not shared, as any other type counts
    const QString mSystemMark;

    // Where the next key is likely to stand in both maps: members of a dump are in the order of the
    // maps. Forgotten as soon as code of the host may have run, callbacks and log handlers, which
    // may change the maps.
    std::optional<QMap<QString, ConfValue>::iterator> mNextValue;
    std::optional<QMap<QString, ConfStorage::ConfMeta>::iterator> mNextMeta;
};
