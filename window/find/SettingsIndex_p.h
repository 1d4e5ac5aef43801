#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace MtConf {

class ConfItem;
class MtConfManage;
struct MajorConfItem;

/// What the user has typed into the field of Find.
struct SettingsQuery
{
    SettingsQuery() = default;
    /// Parses words and filters, separated by white space. A filter that is not complete yet counts
    /// as not typed.
    explicit SettingsQuery(const QString &text);

    bool isEmpty() const { return words.isEmpty() && !onlyChanged && !onlyHotkeys; }
    bool operator==(const SettingsQuery &other) const
    {
        return words == other.words && onlyChanged == other.onlyChanged
               && onlyHotkeys == other.onlyHotkeys;
    }

    QStringList words;        ///< folded; each must occur
    bool onlyChanged = false; ///< `@changed`: settings that differ from their default value
    bool onlyHotkeys = false; ///< `@hotkey`: settings whose value is a key sequence
};

/// The settings and custom pages of a manager with their texts, in the language shown and in
/// English, and the search in them. Knows no widgets: pages need not exist.
class SettingsIndex
{
public:
    /// A setting, or a text of a custom page.
    struct Entry
    {
        ConfItem *item = nullptr; ///< null for a custom page
        QString className;        ///< not translated
        QString text;             ///< one of `MajorConfItem::searchTexts`; empty: the page itself
        QString folded;           ///< what is searched: the caption first
        QString::size_type captionSize = 0; ///< of the caption within `folded`
    };

    explicit SettingsIndex(MtConfManage *manager);

    /// Drops the texts, after a change of language or of the declarations.
    void clear();
    /// Reads the declarations of `classes` if there are no texts, or if settings were added since.
    /// Calls host code: `MtConfManage::itemFilter` and `MajorConfItem::searchTexts`.
    void update(const QStringList &classes);

    /// Returns the entries that match, by their positions: those with the words in their captions
    /// first, otherwise in declaration order. Calls host code: `MajorConfItem::isChanged`.
    QList<int> find(const SettingsQuery &query);
    const Entry &at(int position) const { return mEntries.at(position); }
    int count() const { return static_cast<int>(mEntries.size()); }

private:
    bool isStale() const;
    void addItem(ConfItem *item);
    void addCustomPage(const MajorConfItem &major);
    bool passes(const Entry &entry, const SettingsQuery &query) const;

    const QPointer<MtConfManage> mManager;
    QList<Entry> mEntries;
    QList<const ConfItem *> mItems; // of the manager when the texts were read
    int mClassCount = 0;
    bool mHadExperts = false;
    bool mIsBuilt = false;
};

} // namespace MtConf
