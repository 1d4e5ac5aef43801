#include "ImportRows_p.h"

#include "MaltoConfiguration/window/PageGroups_p.h"
#include "MaltoConfiguration/window/rows/ValueInWords_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/manage/helpers.h>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace MtConf {

namespace {

constexpr int sLast = std::numeric_limits<int>::max();

/// A declared setting and where it is.
struct Place
{
    const ConfItem *item = nullptr;   ///< null: the key is not declared
    const ConfItem *onPage = nullptr; ///< the item whose row contains it
    int page = sLast;                 ///< sLast: none
    int group = 0;                    ///< the position of the first item of the group
    int position = 0;                 ///< among all items

    bool operator<(const Place &other) const
    {
        return std::tie(page, group, position) < std::tie(other.page, other.group, other.position);
    }
};

/// Finds declared settings by their keys.
class Places
{
public:
    explicit Places(const MtConfManage &manager)
    {
        constexpr int sUngrouped = -1; // such items are first on their page
        int position = 0;
        QHash<QString, int> pages;
        QHash<QString, int> groups;
        for (const MajorConfItem &major : manager.majorItems)
            pages.insert(major.name, static_cast<int>(pages.size()));
        for (const ConfItem &item : manager.items) {
            int group = sUngrouped;
            if (!item.subName.isEmpty()) {
                const QString name = getIndexName(item.majorName, item.name, QString());
                group = groups.value(name, position);
                groups.insert(name, group);
            }
            add(item, {&item, &item, pages.value(item.majorName, sLast), group, position++});
        }
    }

    Place of(const QString &key) const { return mPlaces.value(key); }
    QString captionOf(const QString &key) const
    {
        const ConfItem *const item = of(key).item;
        return item && item->displayText ? QObject::tr(item->displayText) : key;
    }

private:
    void add(const ConfItem &item, Place place)
    {
        place.item = &item;
        if (!mPlaces.contains(item.getFullName()))
            mPlaces.insert(item.getFullName(), place);
        for (const ConfItem &sub : item.subConfs)
            add(sub, place);
    }

    QHash<QString, Place> mPlaces;
};

QString groupOf(const Place &place)
{
    if (place.page == sLast)
        return QCoreApplication::translate("MtConf::ImportDialog", "Other settings");
    return groupCaption(*place.onPage);
}

QString words(const ConfItem *item, const QJsonValue &value)
{
    return item ? valueInWords(*item, value) : valueInWords(value);
}

QString wordsOf(const ConfItem *item, const ConfChange::State &state)
{
    const QString text = words(item, state.value);
    return state.isDefault ? QCoreApplication::translate("MtConf::ImportDialog", "%1 (default)")
                                 .arg(isolated(text))
                           : text;
}

ImportRow rowOf(const ConfChange &change, const Places &places)
{
    const Place place = places.of(change.key);
    ImportRow row{change.key, groupOf(place), places.captionOf(change.key), QString(), QString(),
                  QColor(),   QColor()};
    row.here = change.before.isPresent
                   ? wordsOf(place.item, change.before)
                   : QCoreApplication::translate("MtConf::ImportDialog", "Does not exist");
    row.inFile = change.after.isPresent
                     ? wordsOf(place.item, change.after)
                     : QCoreApplication::translate("MtConf::ImportDialog", "Removed");
    if (place.item) {
        row.hereColor = colorOfValue(*place.item, change.before.value);
        row.inFileColor = colorOfValue(*place.item, change.after.value);
    }
    return row;
}

} // namespace

QVector<ImportRow> importRows(const MtConfManage &manager, const QVector<ConfChange> &changes)
{
    const Places places(manager);
    QVector<ConfChange> sorted = changes;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&places](const ConfChange &a, const ConfChange &b) {
                         return places.of(a.key) < places.of(b.key);
                     });
    QVector<ImportRow> rows;
    for (const ConfChange &change : std::as_const(sorted))
        rows.append(rowOf(change, places));
    return rows;
}

QStringList importNotes(const MtConfManage &manager, const SettingsImport::LeftOut &leftOut)
{
    constexpr int sMaxCaptions = 5;
    QStringList notes;
    const auto add = [&notes](int count, const QString &text) {
        if (count > 0)
            notes.append(text.arg(count));
    };
    add(leftOut.unknown,
        QCoreApplication::translate("MtConf::ImportDialog",
                                    "Entries of other versions, which are left out: %1"));
    add(leftOut.unreadable,
        QCoreApplication::translate("MtConf::ImportDialog",
                                    "Entries that cannot be read, which are left out: %1"));
    add(leftOut.local,
        QCoreApplication::translate("MtConf::ImportDialog",
                                    "Settings that stay on each computer, which are left out: %1"));
    add(leftOut.locked, QCoreApplication::translate("MtConf::ImportDialog",
                                                    "Locked settings, which are left out: %1"));
    if (leftOut.refused.isEmpty())
        return notes;
    const Places places(manager);
    QStringList captions;
    for (const QString &key : leftOut.refused.mid(0, sMaxCaptions))
        captions.append(places.captionOf(key));
    if (leftOut.refused.size() > sMaxCaptions)
        captions.append(QStringLiteral("\u2026"));
    notes.append(QCoreApplication::translate("MtConf::ImportDialog",
                                             "Settings whose value is not accepted here: %1")
                     .arg(captions.join(listSeparator())));
    return notes;
}

} // namespace MtConf
