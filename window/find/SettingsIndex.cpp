#include "SettingsIndex_p.h"

#include "FoldedText_p.h"
#include "MaltoConfiguration/manage/ItemVisibility_p.h"
#include "MaltoConfiguration/window/WindowFeature_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QHash>
#include <QStringMatcher>

#include <algorithm>
#include <utility>
#include <vector>

namespace MtConf {

namespace {

constexpr QLatin1Char sSeparator('\n');

/// How well a word matches; the sum of all words decides the order.
enum Score : int { CaptionWord, CaptionStart, InCaption, OtherStart, Elsewhere, NoMatch };

/// Appends a text in the language shown and, if it differs, in English.
void appendBoth(QString *texts, const QString &shown, const QString &english)
{
    texts->append(shown).append(sSeparator);
    if (english != shown)
        texts->append(english).append(sSeparator);
}

Score scoreOf(const QString &word, const QStringMatcher &matcher, const SettingsIndex::Entry &entry)
{
    int best = NoMatch;
    for (auto at = matcher.indexIn(entry.folded); at >= 0;
         at = matcher.indexIn(entry.folded, at + word.size())) {
        const bool isCaption = at < entry.captionSize;
        // What follows the caption cannot improve a match in the caption, nor one at a word start.
        if (!isCaption && best <= OtherStart)
            break;
        const bool isStart = isWordStart(entry.folded, at);
        if (isCaption && isStart && isWordEnd(entry.folded, at + word.size()))
            return CaptionWord;
        const int start = isCaption ? CaptionStart : OtherStart;
        best = std::min(best, isStart ? start : start + 1);
    }
    return static_cast<Score>(best);
}

/// The words of a query, prepared for the search in many entries.
class Words
{
public:
    explicit Words(const QStringList &words) : mWords(words)
    {
        for (const QString &word : words)
            mMatchers.emplace_back(word);
    }

    /// Returns the sum of the scores, or -1 if a word does not occur.
    int scoreOf(const SettingsIndex::Entry &entry) const
    {
        int sum = 0;
        for (std::size_t i = 0; i < mMatchers.size(); ++i) {
            const Score score = MtConf::scoreOf(mWords.at(static_cast<int>(i)), mMatchers[i],
                                                entry);
            if (score == NoMatch)
                return -1;
            sum += score;
        }
        return sum;
    }

private:
    const QStringList mWords;
    std::vector<QStringMatcher> mMatchers;
};

} // namespace

SettingsQuery::SettingsQuery(const QString &text)
{
    const QString changed = QStringLiteral("@changed");
    const QString hotkey = QStringLiteral("@hotkey");
    const QStringList parts = foldedText(text).simplified().split(QLatin1Char(' '));
    for (const QString &part : parts) {
        if (part == changed)
            onlyChanged = true;
        else if (part == hotkey)
            onlyHotkeys = true;
        else if (!changed.startsWith(part) && !hotkey.startsWith(part) && !words.contains(part))
            words.append(part);
    }
}

SettingsIndex::SettingsIndex(MtConfManage *manager) : mManager(manager) {}

void SettingsIndex::clear()
{
    mEntries.clear();
    mItems.clear();
    mIsBuilt = false;
}

bool SettingsIndex::isStale() const
{
    if (!mIsBuilt || mHadExperts != mManager->showExpertItems
        || mClassCount != static_cast<int>(mManager->majorItems.size()))
        return true;
    // A host that replaces items must not leave pointers to the old ones here.
    const auto &items = std::as_const(mManager->items);
    return !std::equal(items.begin(), items.end(), mItems.cbegin(), mItems.cend(),
                       [](const ConfItem &now, const ConfItem *then) { return &now == then; });
}

void SettingsIndex::update(const QStringList &classes)
{
    if (!mManager || !isStale())
        return;
    clear();
    mIsBuilt = true;
    mHadExperts = mManager->showExpertItems;
    // Host code that is called below may change the lists of the manager, or destroy the manager or
    // the window. The caller keeps the index.
    QHash<QString, QList<ConfItem *>> itemsOf;
    for (const ConfItem &item : std::as_const(mManager->items)) {
        // A loop that is not const would detach the list.
        itemsOf[item.majorName].append(const_cast<ConfItem *>(&item));
        mItems.append(&item);
    }
    QList<MajorConfItem> pages;
    for (const MajorConfItem &major : std::as_const(mManager->majorItems)) {
        if (classes.contains(major.name))
            pages.append(major);
    }
    mClassCount = static_cast<int>(mManager->majorItems.size());
    for (const MajorConfItem &major : std::as_const(pages)) {
        if (major.majorWidget) {
            addCustomPage(major);
            continue;
        }
        const QList<ConfItem *> items = itemsOf.value(major.name);
        for (ConfItem *item : items) {
            if (mManager && item->widgetCreator && isItemShown(*mManager, item) && mManager)
                addItem(item);
        }
    }
    if (!mManager)
        clear();
}

void SettingsIndex::addItem(ConfItem *item)
{
    Entry entry;
    entry.item = item;
    entry.className = item->majorName;

    QString texts;
    const QByteArray caption = item->displayText;
    appendBoth(&texts, QObject::tr(caption.constData()), QString::fromUtf8(caption));
    const QString folded = foldedText(texts);
    texts.clear();
    appendBoth(&texts, item->helpText(),
               item->properties.value(QStringLiteral("Malto.Help")).toString());
    for (const ConfChoice &choice : std::as_const(item->choices))
        appendBoth(&texts, choice.text(), choice.label);
    appendBoth(&texts, WindowFeature::translatedName(item->majorName), item->majorName);
    if (!item->subName.isEmpty())
        appendBoth(&texts, WindowFeature::translatedName(item->name), item->name);
    texts += item->getFullName();
    entry.folded = folded + foldedText(texts);
    entry.captionSize = folded.size();
    mEntries.append(entry);
}

void SettingsIndex::addCustomPage(const MajorConfItem &major)
{
    Entry page;
    page.className = major.name;
    QString names;
    appendBoth(&names, WindowFeature::translatedName(major.name), major.name);
    names = foldedText(names);
    page.folded = names;
    page.captionSize = names.size();
    mEntries.append(page);
    const QStringList texts = major.searchTexts ? major.searchTexts() : QStringList();
    for (const QString &text : texts) {
        Entry entry = page;
        entry.text = text;
        const QString folded = foldedText(text) + sSeparator;
        entry.folded = folded + names;
        entry.captionSize = folded.size();
        mEntries.append(entry);
    }
}

QList<int> SettingsIndex::find(const SettingsQuery &query)
{
    const Words words(query.words);
    std::vector<std::pair<int, int>> hits; // score and position
    // Host code that passes() calls may clear the index, or destroy the manager.
    for (int i = 0; mManager && i < count(); ++i) {
        const int score = words.scoreOf(mEntries.at(i));
        if (score >= 0 && passes(mEntries.at(i), query))
            hits.emplace_back(score, i);
    }
    if (!mManager || !count())
        return {};
    std::sort(hits.begin(), hits.end());
    QList<int> positions;
    positions.reserve(static_cast<int>(hits.size()));
    for (const auto &hit : hits)
        positions.append(hit.second);
    return positions;
}

bool SettingsIndex::passes(const Entry &entry, const SettingsQuery &query) const
{
    if (entry.item) {
        return (!query.onlyHotkeys || entry.item->valueType == ConfValue::TyQKeySequence)
               && (!query.onlyChanged || !entry.item->isDefaultValue());
    }
    if (query.onlyHotkeys || (query.onlyChanged && !entry.text.isEmpty()))
        return false;
    if (!query.onlyChanged)
        return true;
    const MajorConfItem *const major = mManager ? mManager->getMajorConfItemByName(entry.className)
                                                : nullptr;
    const auto isChanged = major ? major->isChanged : nullptr;
    return isChanged && isChanged();
}

} // namespace MtConf
