#include "support/CleanStore.h"
#include "support/TableTranslator.h"
#include "support/TestMain.h"

#include "MaltoConfiguration/window/find/FoldedText_p.h"
#include "MaltoConfiguration/window/find/SettingsIndex_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QKeySequence>

#include <memory>
#include <vector>

using MtConf::FoldedText;
using MtConf::SettingsIndex;
using MtConf::SettingsQuery;

/// The index of Find: which settings and custom pages a query finds, and in which order.
class tst_SettingsIndex : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void textIsFolded_data();
    void textIsFolded();
    void hitsArePositionsInTheOriginalText_data();
    void hitsArePositionsInTheOriginalText();
    void queryIsParsed_data();
    void queryIsParsed();
    void everyWordMustOccur_data();
    void everyWordMustOccur();
    void textsAreFoundInBothLanguages_data();
    void textsAreFoundInBothLanguages();
    void captionsComeFirst();
    void wordStartsComeFirst();
    void wholeWordsComeFirst();
    void changedSettingsAreFound();
    void changedSubItemsAreFound();
    void hotkeysAreFound();
    void hiddenSettingsAreNotFound();
    void customPagesOfferTexts();
    void customPagesAreFoundWhenChanged();
    void itemsOfCustomPagesAreNotFound();
    void indexFollowsTheDeclarations();
    void indexFollowsTheLanguage();
    void hostCodeMayDestroyTheManager_data();
    void hostCodeMayDestroyTheManager();
    void tenThousandSettingsAreSearched();

private:
    MtConf::ConfItem *addFlag(const char *caption, const QString &major, const QString &name,
                              const QString &subName = QString());
    /// Returns the keys of the settings, and the texts of custom pages, that `query` finds.
    QStringList found(const QString &query);

    std::unique_ptr<MtConf::MtConfManage> mManager;
    std::unique_ptr<SettingsIndex> mIndex;
    std::vector<std::unique_ptr<bool>> mFlags;
    QKeySequence mKeys;
    int mChoice = 0;
};

void tst_SettingsIndex::init()
{
    clearStore();
    mManager = std::make_unique<MtConf::MtConfManage>();
    mIndex = std::make_unique<SettingsIndex>(mManager.get());
    mKeys = QKeySequence();
    mChoice = 0;
}

void tst_SettingsIndex::cleanup()
{
    mIndex.reset();
    mManager.reset();
    clearStore();
    mFlags.clear();
}

MtConf::ConfItem *tst_SettingsIndex::addFlag(const char *caption, const QString &major,
                                             const QString &name, const QString &subName)
{
    mFlags.push_back(std::make_unique<bool>(false));
    return mManager->addConfBool(caption, mFlags.back().get(), major, name, subName);
}

QStringList tst_SettingsIndex::found(const QString &query)
{
    QStringList classes;
    for (const MtConf::MajorConfItem &major : std::as_const(mManager->majorItems))
        classes << major.name;
    mIndex->update(classes);
    QStringList names;
    const QList<int> hits = mIndex->find(SettingsQuery(query));
    for (const int hit : hits) {
        const SettingsIndex::Entry &entry = mIndex->at(hit);
        names << (entry.item ? entry.item->getFullName() : entry.className + '/' + entry.text);
    }
    return names;
}

void tst_SettingsIndex::textIsFolded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("folded");
    QTest::newRow("case") << "Hotkeys IN Full"
                          << "hotkeys in full";
    QTest::newRow("accents") << QStringLiteral(u"Größe Éléphant Łódź") << "grosse elephant lodz";
    QTest::newRow("accents of their own") << QStringLiteral(u"e\u0301te\u0301") << "ete";
    QTest::newRow("Turkish") << QStringLiteral(u"İstanbul ışık ŞİFRE") << "istanbul isik sifre";
    QTest::newRow("Nordic") << QStringLiteral(u"Ærø Åland Þór Đakovo") << "aero aland thor dakovo";
    QTest::newRow("ligatures and widths")
        << QStringLiteral(u"ﬁle Ｆｕｌｌ œuvre") << "file full oeuvre";
    QTest::newRow("Vietnamese") << QStringLiteral(u"Tiếng Việt") << "tieng viet";
    QTest::newRow("Greek") << QStringLiteral(u"Ρυθμίσεις ΡΥΘΜΊΣΕΙΣ")
                           << QStringLiteral(u"ρυθμισεισ ρυθμισεισ");
    QTest::newRow("Russian") << QStringLiteral(u"Всё ЁЛКА") << QStringLiteral(u"все елка");
    QTest::newRow("Arabic vowels and tatweel")
        << QStringLiteral(u"إِعْدَادَات لـون") << QStringLiteral(u"اعدادات لون");
    QTest::newRow("Devanagari vowels stay") << QStringLiteral(u"हिन्दी") << QStringLiteral(u"हिन्दी");
    QTest::newRow("Chinese") << QStringLiteral(u"截图设置") << QStringLiteral(u"截图设置");
    QTest::newRow("voiced kana stay") << QStringLiteral(u"ガ") << QStringLiteral(u"カ\u3099");
    QTest::newRow("soft hyphen and joiner")
        << QStringLiteral(u"hot\u00adkey \u200cx") << "hotkey x";
    QTest::newRow("outside of the basic plane")
        << QStringLiteral(u"\U00010400 \U0001d400") << QStringLiteral(u"\U00010428 a");
    QTest::newRow("half a pair") << QString(QChar(0xd801))
                                 << QString(QChar(QChar::ReplacementCharacter));
}

void tst_SettingsIndex::textIsFolded()
{
    QFETCH(QString, text);
    QFETCH(QString, folded);
    QCOMPARE(MtConf::foldedText(text), folded);
    QCOMPARE(FoldedText(text).text(), folded);
}

void tst_SettingsIndex::hitsArePositionsInTheOriginalText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("marked");
    QTest::newRow("nothing") << "Hotkeys" << QStringList{"x"} << "Hotkeys";
    QTest::newRow("each occurrence")
        << "Hotkeys of Hotels" << QStringList{"hot"} << "[Hot]keys of [Hot]els";
    QTest::newRow("words in another order")
        << "Capture a window" << QStringList{"win", "cap"} << "[Cap]ture a [win]dow";
    QTest::newRow("overlapping words")
        << "windows" << QStringList{"indo", "win", "ow"} << "[window]s";
    QTest::newRow("one letter that folds into two")
        << QStringLiteral(u"Größe") << QStringList{"gros"} << QStringLiteral(u"[Größ]e");
    QTest::newRow("accent of its own") << QStringLiteral(u"cafe\u0301!") << QStringList{"cafe"}
                                       << QStringLiteral(u"[cafe\u0301]!");
    QTest::newRow("at the end") << "Hot" << QStringList{"t"} << "Ho[t]";
    QTest::newRow("outside of the basic plane")
        << QStringLiteral(u"\U0001f600a") << QStringList{"a"} << QStringLiteral(u"\U0001f600[a]");
}

void tst_SettingsIndex::hitsArePositionsInTheOriginalText()
{
    QFETCH(QString, text);
    QFETCH(QStringList, words);
    const auto ranges = FoldedText(text).rangesOf(words);
    for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
        text.insert(range->second, ']');
        text.insert(range->first, '[');
    }
    QTEST(text, "marked");
}

void tst_SettingsIndex::queryIsParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("onlyChanged");
    QTest::addColumn<bool>("onlyHotkeys");
    QTest::newRow("nothing") << "" << QStringList() << false << false;
    QTest::newRow("white space") << QStringLiteral(u" \t\u3000") << QStringList() << false << false;
    QTest::newRow("words") << " Full  SCREEN full" << QStringList{"full", "screen"} << false
                           << false;
    QTest::newRow("filter") << "@changed" << QStringList() << true << false;
    QTest::newRow("filters and words")
        << "@Hotkey win @CHANGED" << QStringList{"win"} << true << true;
    QTest::newRow("filter not complete") << "win @chang" << QStringList{"win"} << false << false;
    QTest::newRow("no filter") << "@change_d" << QStringList{"@change_d"} << false << false;
}

void tst_SettingsIndex::queryIsParsed()
{
    QFETCH(QString, text);
    const SettingsQuery query(text);
    QTEST(query.words, "words");
    QTEST(query.onlyChanged, "onlyChanged");
    QTEST(query.onlyHotkeys, "onlyHotkeys");
    QCOMPARE(query.isEmpty(), text.trimmed().isEmpty());
}

void tst_SettingsIndex::everyWordMustOccur_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("keys");
    const QStringList both{"Capture.Window.Area", "Capture.Window.Frame"};
    QTest::newRow("caption") << "frame" << QStringList{"Capture.Window.Frame"};
    QTest::newRow("words in any order") << "area CAPTURE" << QStringList{"Capture.Window.Area"};
    QTest::newRow("one word does not occur") << "area moon" << QStringList();
    QTest::newRow("part of a word") << "rea" << QStringList{"Capture.Window.Area"};
    QTest::newRow("help") << "borderless" << QStringList{"Capture.Window.Frame"};
    QTest::newRow("class") << "capture" << both;
    QTest::newRow("group") << "window" << both;
    QTest::newRow("key") << "capture.window.a" << QStringList{"Capture.Window.Area"};
    QTest::newRow("choice") << "triple" << QStringList{"Mouse.Action"};
    QTest::newRow("word across two texts") << "areacapture" << QStringList();
    QTest::newRow("everything") << "" << QStringList{both + QStringList{"Mouse.Action"}};
}

void tst_SettingsIndex::everyWordMustOccur()
{
    addFlag("Take the area", "Capture", "Window", "Area");
    addFlag("Show a frame", "Capture", "Window", "Frame")->setHelp("Also for borderless windows");
    mManager->addConfInt32WithCombobox("On a click", {"Single", "Triple"}, &mChoice, "Mouse",
                                       "Action");
    QFETCH(QString, query);
    QTEST(found(query), "keys");
}

void tst_SettingsIndex::textsAreFoundInBothLanguages_data()
{
    QTest::addColumn<QString>("caption"); // translated
    QTest::addColumn<QString>("query");
    QTest::newRow("English") << QString() << "frame";
    QTest::newRow("German, in English") << QStringLiteral(u"Größe des Rahmens") << "frame";
    QTest::newRow("German") << QStringLiteral(u"Größe des Rahmens") << QStringLiteral(u"GRÖSSE");
    QTest::newRow("German without accents")
        << QStringLiteral(u"Größe des Rahmens") << "rahmen gros";
    QTest::newRow("Turkish") << QStringLiteral(u"Işık çerçevesi") << "isik cerceve";
    QTest::newRow("Polish") << QStringLiteral(u"Żółta ramka") << "zolt";
    QTest::newRow("Russian") << QStringLiteral(u"Показать рамку") << QStringLiteral(u"РАМК");
    QTest::newRow("Ukrainian") << QStringLiteral(u"Їжак і рамка") << QStringLiteral(u"їжак");
    QTest::newRow("Arabic") << QStringLiteral(u"إظهار الإطار") << QStringLiteral(u"الاطار");
    QTest::newRow("Hindi") << QStringLiteral(u"फ़्रेम दिखाएँ") << QStringLiteral(u"दिखा");
    QTest::newRow("Chinese") << QStringLiteral(u"显示窗口边框") << QStringLiteral(u"边框 窗口");
    QTest::newRow("Japanese") << QStringLiteral(u"フレームを表示") << QStringLiteral(u"ﾌﾚｰﾑ");
    QTest::newRow("Korean, while a syllable is typed")
        << QStringLiteral(u"테두리 표시") << QStringLiteral(u"테두ㄹ");
}

void tst_SettingsIndex::textsAreFoundInBothLanguages()
{
    QFETCH(QString, caption);
    QFETCH(QString, query);
    const TableTranslator translator({{"Show a frame", caption}});
    addFlag("Show a frame", "Capture", "Window", "Border");
    addFlag("Other", "Capture", "Window", "Other");
    QCOMPARE(found(query), QStringList{"Capture.Window.Border"});
}

void tst_SettingsIndex::captionsComeFirst()
{
    addFlag("First", "Class", "A")->setHelp("All about hotkeys");
    addFlag("Second", "Hotkeys", "B");
    addFlag("Use hotkeys", "Class", "C");
    addFlag("Hotkeys", "Class", "D");
    QCOMPARE(found("hotkeys"), (QStringList{"Class.C", "Class.D", "Class.A", "Hotkeys.B"}));
    QCOMPARE(found("class"), (QStringList{"Class.A", "Class.C", "Class.D"}));
}

void tst_SettingsIndex::wordStartsComeFirst()
{
    addFlag("Repeat", "Class", "A");
    addFlag("To eat", "Class", "B");
    QCOMPARE(found("eat"), (QStringList{"Class.B", "Class.A"}));
}

void tst_SettingsIndex::wholeWordsComeFirst()
{
    addFlag("Capture the windows", "Class", "A");
    addFlag("Capture a window", "Class", "B");
    QCOMPARE(found("capture window"), (QStringList{"Class.B", "Class.A"}));
    QCOMPARE(found("capture windo"), (QStringList{"Class.A", "Class.B"}));
}

void tst_SettingsIndex::changedSettingsAreFound()
{
    addFlag("First", "Class", "A");
    addFlag("Second", "Class", "B");
    addFlag("Third", "Class", "C");
    QCOMPARE(found("@changed"), QStringList());
    ConfStorage::instance()->set("Class.B", true);
    ConfStorage::instance()->set("Class.C", true);
    QCOMPARE(found("@changed"), (QStringList{"Class.B", "Class.C"}));
    QCOMPARE(found("@changed third"), QStringList{"Class.C"});
    QCOMPARE(found("first @changed"), QStringList());
    ConfStorage::instance()->setToDefault("Class.B", true);
    QCOMPARE(found("@changed"), QStringList{"Class.C"});
}

void tst_SettingsIndex::changedSubItemsAreFound()
{
    bool sub = false;
    MtConf::ConfItem *item = addFlag("First", "Class", "A");
    item->subConfs.insert("Sub", MtConf::ConfItem(&sub, "Class", "A", "Sub"));
    ConfStorage::instance()->set("Class.A.Sub", true);
    QCOMPARE(found("@changed"), QStringList{"Class.A"});
    clearStore();
}

void tst_SettingsIndex::hotkeysAreFound()
{
    addFlag("Press keys", "Class", "A");
    mManager->addConfQKeySequence("Take a picture", &mKeys, "Class", "B");
    QCOMPARE(found("@hotkey"), QStringList{"Class.B"});
    QCOMPARE(found("@hotkey @changed"), QStringList());
    ConfStorage::instance()->set("Class.A", true);
    ConfStorage::instance()->set("Class.B", QKeySequence("Ctrl+A"));
    QCOMPARE(found("@hotkey @changed"), QStringList{"Class.B"});
    QCOMPARE(found("@hotkey press"), QStringList());
}

void tst_SettingsIndex::hiddenSettingsAreNotFound()
{
    int number = 0;
    addFlag("Expert", "Class", "A")->setExpert();
    addFlag("Refused", "Class", "B")->flags = MtConf::ItemIsFiltered;
    mManager->addConfValue(&number, "Class", "C");
    addFlag("No editor", "Class", "D")->widgetCreator = nullptr;
    addFlag("Shown", "Class", "E");
    QCOMPARE(found(""), QStringList{"Class.E"});
    QCOMPARE(mIndex->count(), 1);

    mManager->showExpertItems = true;
    QCOMPARE(found(""), (QStringList{"Class.A", "Class.E"}));

    mManager->itemFilter = [](const MtConf::ConfItem &item) { return item.name == "B"; };
    mIndex->clear();
    QCOMPARE(found(""), (QStringList{"Class.A", "Class.B", "Class.E"}));
    clearStore(); // before the number is gone
}

void tst_SettingsIndex::customPagesOfferTexts()
{
    mManager->setMajorWidget("Profiles", [](QWidget *) { return nullptr; });
    addFlag("Show the list", "Class", "A");
    QCOMPARE(found("profiles"), QStringList{"Profiles/"});
    mManager->getMajorConfItemByName("Profiles")->searchTexts = [] {
        return QStringList{"Work at home", QStringLiteral(u"Büro")};
    };
    mIndex->clear();
    QCOMPARE(found("buro"), QStringList{QStringLiteral(u"Profiles/Büro")});
    QCOMPARE(found("profiles home"), QStringList{"Profiles/Work at home"});
    QCOMPARE(found("profiles").size(), 3);
    QCOMPARE(found("@hotkey"), QStringList());
}

void tst_SettingsIndex::customPagesAreFoundWhenChanged()
{
    mManager->setMajorWidget("Profiles", [](QWidget *) { return nullptr; });
    MtConf::MajorConfItem *page = mManager->getMajorConfItemByName("Profiles");
    page->searchTexts = [] { return QStringList{"Work"}; };
    QCOMPARE(found("@changed"), QStringList());
    bool isChanged = true;
    page->isChanged = [&isChanged] { return isChanged; };
    QCOMPARE(found("@changed"), QStringList{"Profiles/"});
    QCOMPARE(found("@changed other"), QStringList());
    isChanged = false;
    QCOMPARE(found("@changed"), QStringList());
}

void tst_SettingsIndex::itemsOfCustomPagesAreNotFound()
{
    addFlag("Hidden behind the page", "Profiles", "A");
    QCOMPARE(found("hidden"), QStringList{"Profiles.A"});
    mManager->setMajorWidget("Profiles", [](QWidget *) { return nullptr; });
    mIndex->clear();
    QCOMPARE(found("hidden"), QStringList());
}

void tst_SettingsIndex::indexFollowsTheDeclarations()
{
    addFlag("First", "Class", "A");
    QCOMPARE(found(""), QStringList{"Class.A"});
    addFlag("Second", "Class", "B");
    QCOMPARE(found("second"), QStringList{"Class.B"});
    mManager->items.removeAt(0);
    addFlag("Third", "Class", "C");
    QCOMPARE(found(""), (QStringList{"Class.B", "Class.C"}));
    mManager->setMajorWidget("Profiles", [](QWidget *) { return nullptr; });
    QCOMPARE(found("profiles"), QStringList{"Profiles/"});
}

void tst_SettingsIndex::indexFollowsTheLanguage()
{
    addFlag("First", "Class", "Group", "A");
    QCOMPARE(found("zuerst"), QStringList());
    const TableTranslator translator({{"First", "Zuerst"}, {"Class", "Seite"}, {"Group", "Teil"}});
    QCOMPARE(found("zuerst"), QStringList());
    mIndex->clear();
    QCOMPARE(found("zuerst seite teil"), QStringList{"Class.Group.A"});
    QCOMPARE(found("first class group"), QStringList{"Class.Group.A"});
}

void tst_SettingsIndex::hostCodeMayDestroyTheManager_data()
{
    QTest::addColumn<QString>("where");
    for (const char *where : {"itemFilter", "searchTexts", "isChanged"})
        QTest::newRow(where) << where;
}

void tst_SettingsIndex::hostCodeMayDestroyTheManager()
{
    QFETCH(QString, where);
    const auto destroyIn = [this, where](const char *name) {
        if (where == QLatin1String(name))
            mManager.reset();
        return true;
    };
    mManager->setMajorWidget("First", [](QWidget *) { return nullptr; });
    MtConf::MajorConfItem *page = mManager->getMajorConfItemByName("First");
    page->searchTexts = [destroyIn] {
        destroyIn("searchTexts");
        return QStringList();
    };
    page->isChanged = [destroyIn] { return destroyIn("isChanged"); };
    mManager->itemFilter = [destroyIn](const MtConf::ConfItem &) {
        return destroyIn("itemFilter");
    };
    addFlag("A", "Class", "A")->flags = MtConf::ItemIsFiltered;
    ConfStorage::instance()->set("Class.A", true);
    QCOMPARE(found("@changed"), QStringList());
    QVERIFY(!mManager);
    if (where != QLatin1String("isChanged"))
        QCOMPARE(mIndex->count(), 0);
}

void tst_SettingsIndex::tenThousandSettingsAreSearched()
{
    constexpr int sCount = 10000;
    for (int i = 0; i < sCount; ++i)
        addFlag("Show the border", "Capture", QString("Item%1").arg(i));
    addFlag("The last one", "Capture", "Last");
    QCOMPARE(found("border").size(), sCount);
    QCOMPARE(found("last"), QStringList{"Capture.Last"});
    QCOMPARE(found("item9999 border"), QStringList{"Capture.Item9999"});
}

int main(int argc, char **argv)
{
    return runTest<tst_SettingsIndex>(argc, argv);
}

#include "tst_SettingsIndex.moc"
