#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include <QComboBox>
#include <QSignalSpy>

#include <utility>

using MtConf::ConfigItemWidget;
using MtConf::ConfItem;
using MtConf::ItemList;
using MtConf::MtConfManage;

class tst_MtConfManage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { clearStore(); }
    void cleanup() { clearStore(); }

    void declaringFillsTheItem();
    void eachTypeHasItsOwnEditor();
    void textHasNoDefaultEditor();
    void givenFactoryReplacesTheDefaultOne();
    void startAtLoginHasASwitchAndAppliesItsChanges();
    void mouseActionIsStoredPerOperatingSystem();
    void hotkeyHasItsOwnEditor();
    void languageIsStoredAndItsChangesAreAnnounced();
    void afterTheManagerIsDestroyedTheLanguageIsOnlyStored();
    void choicesOfATextAreShownUnchanged();
    void choicesOfANumberStoreTheirIndexOrTheirValue_data();
    void choicesOfANumberStoreTheirIndexOrTheirValue();
    void itemAddressesStayValidAsTheListGrows();
    void itemAddressesStayValidWhileTheHostHasACopyOfTheList();
    void classAddressesStayValidAsTheListGrows();
    void addConfItem_addsACopyAndItsClass();
    void getItemByName_data();
    void getItemByName();
    void getItemByName_findsTheFirstOfTwo();
    void getItemByName_seesListsThatTheHostChanged();
    void getConfItemList_keepsTheOrderOfDeclaration();
    void getConfItemList_warnsAboutAnUnknownClass();
    void getConfItemList_isEmptyForAClassWithoutItems();
    void classesAppearInTheOrderOfFirstMention();
    void setConfigClassFlag_assignsAndCreates();
    void setMajorWidget_replacesTheFactory();
    void getMajorConfItemByName_neverCreates();
    void lookupsDoNotDetachASharedList();

private:
    MtConfManage *makeManager()
    {
        mManager = std::make_unique<MtConfManage>();
        return mManager.get();
    }

    std::unique_ptr<MtConfManage> mManager;
    QWidget mParent;
};

void tst_MtConfManage::declaringFillsTheItem()
{
    MtConfManage *manager = makeManager();
    int value = 6;
    const ConfItem *item = manager->addConfInt32("Size", &value, "General", "Size", "Wide");
    QCOMPARE(item, &manager->items.at(0));
    QCOMPARE(item->displayText, "Size");
    QCOMPARE(item->getFullName(), QString("General.Size.Wide"));
    QCOMPARE(ConfStorage::instance()->get<int>("General.Size.Wide"), 6);
    QCOMPARE(manager->majorItems.size(), 1);
    QCOMPARE(manager->majorItems.at(0).name, QString("General"));
    QVERIFY(!manager->majorItems.at(0).majorWidget);
    QCOMPARE(manager->majorItems.at(0).classFlag, 0);
    QVERIFY(!manager->languageItem);
    QVERIFY(!manager->itemFilter);
    QVERIFY(!manager->restoreAllHook);
    QVERIFY(manager->confFilePath.isEmpty());
}

void tst_MtConfManage::eachTypeHasItsOwnEditor()
{
    MtConfManage *manager = makeManager();
    int number = 0;
    bool flag = false;
    QColor color;
    QFont font;
    const auto editorOf = [&](ConfItem *item) { return item->widgetCreator(item, &mParent); };
    QVERIFY(dynamic_cast<MtConf::ConfDefWidgetInt32 *>(
        editorOf(manager->addConfInt32("n", &number, "M", "n"))));
    QVERIFY(dynamic_cast<MtConf::ConfDefWidgetBool *>(
        editorOf(manager->addConfBool("b", &flag, "M", "b"))));
    QVERIFY(dynamic_cast<MtConf::ConfDefWidgetQColor *>(
        editorOf(manager->addConfQColor("c", &color, "M", "c"))));
    QVERIFY(dynamic_cast<MtConf::ConfDefWidgetQFont *>(
        editorOf(manager->addConfQFont("f", &font, "M", "f"))));
    qDeleteAll(mParent.findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly));
}

void tst_MtConfManage::textHasNoDefaultEditor()
{
    QString text;
    QVERIFY(!makeManager()->addConfQString("t", &text, "M", "t")->widgetCreator);
}

void tst_MtConfManage::givenFactoryReplacesTheDefaultOne()
{
    MtConfManage *manager = makeManager();
    int number = 0, calls = 0;
    bool flag = false;
    QString text;
    QColor color;
    QFont font;
    const auto factory = [&](ConfItem *, QWidget *) -> ConfigItemWidget * {
        ++calls;
        return nullptr;
    };
    manager->addConfInt32("n", &number, "M", "n", "", factory);
    manager->addConfBool("b", &flag, "M", "b", "", factory);
    manager->addConfQString("t", &text, "M", "t", "", factory);
    manager->addConfQColor("c", &color, "M", "c", "", factory);
    manager->addConfQFont("f", &font, "M", "f", "", factory);
    for (ConfItem *item : manager->getConfItemList("M"))
        QVERIFY(!item->widgetCreator(item, &mParent));
    QCOMPARE(calls, 5);
}

void tst_MtConfManage::startAtLoginHasASwitchAndAppliesItsChanges()
{
    MtConfManage *manager = makeManager();
    bool autoRun = false;
    manager->addConfAutoRun("Start at login", &autoRun, "General", "AutoRun");
    ConfItem *item = manager->getItemByName("General", "AutoRun", "");
    const std::unique_ptr<ConfigItemWidget> editor(item->widgetCreator(item, &mParent));
    QVERIFY(dynamic_cast<MtConf::ConfDefWidgetBool *>(editor.get()));
    QVERIFY(ConfStorage::instance()->mConfMetas.value("General.AutoRun").changedCallback);
    ConfStorage::instance()->set<bool>("General.AutoRun", true);
    QVERIFY(autoRun);
}

void tst_MtConfManage::mouseActionIsStoredPerOperatingSystem()
{
    int gesture = 64;
    makeManager()->addConfMouseAction("Zoom", &gesture, 0, "Mouse", "Zoom");
    QCOMPARE(ConfStorage::instance()->mConfMetas.value("Mouse.Zoom").flags, 3u);
    ConfItem *item = mManager->getItemByName("Mouse", "Zoom", "");
    const std::unique_ptr<ConfigItemWidget> editor(item->widgetCreator(item, &mParent));
    QVERIFY(qobject_cast<MtConf::ConfWidgetMouseAction *>(editor.get()));
    QStringList actions;
    for (const QComboBox *box : editor->findChildren<QComboBox *>()) {
        if (box->findText("Wheel") >= 0)
            actions << box->itemText(0) << box->itemText(1);
    }
    QCOMPARE(actions, (QStringList{"None", "Wheel"}));
}

void tst_MtConfManage::hotkeyHasItsOwnEditor()
{
    QKeySequence keys;
    ConfItem *item = makeManager()->addConfQKeySequence("Capture", &keys, "Hotkeys", "Capture");
    const std::unique_ptr<ConfigItemWidget> editor(item->widgetCreator(item, &mParent));
    QVERIFY(qobject_cast<MtConf::ConfDefWidgetQKeySequence *>(editor.get()));
}

void tst_MtConfManage::languageIsStoredAndItsChangesAreAnnounced()
{
    MtConfManage *manager = makeManager();
    QString code("auto");
    manager->addConfLanguage("Language", &code, "General", "Language");
    QCOMPARE(manager->languageItem, manager->getItemByName("General", "Language", ""));
    QSignalSpy changes(manager, &MtConfManage::sigLanguageChange);
    ConfStorage::instance()->set<QString>("General.Language", "en-us");
    QCOMPARE(changes.count(), 1);
    const std::unique_ptr<ConfigItemWidget> editor(
        manager->languageItem->widgetCreator(manager->languageItem, &mParent));
    QVERIFY(qobject_cast<MtConf::ConfWidgetLanguage *>(editor.get()));
}

void tst_MtConfManage::afterTheManagerIsDestroyedTheLanguageIsOnlyStored()
{
    QString code("auto");
    makeManager()->addConfLanguage("Language", &code, "General", "Language");
    mManager.reset();
    ConfStorage::instance()->set<QString>("General.Language", "en-us");
    QCOMPARE(code, QString("en-us"));
}

void tst_MtConfManage::choicesOfATextAreShownUnchanged()
{
    QString format("jpg");
    ConfItem *item = makeManager()->addConfStrWithCombobox("Format", {"png", "jpg", "webp"},
                                                           &format, "Output", "Format");
    const std::unique_ptr<ConfigItemWidget> editor(item->widgetCreator(item, &mParent));
    const auto *box = editor->findChild<QComboBox *>();
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->currentText(), QString("jpg"));
}

void tst_MtConfManage::choicesOfANumberStoreTheirIndexOrTheirValue_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<int>("stored");
    QTest::newRow("index") << QList<int>() << 1;
    QTest::newRow("value") << QList<int>{10, 20, 30} << 20;
}

void tst_MtConfManage::choicesOfANumberStoreTheirIndexOrTheirValue()
{
    QFETCH(QList<int>, values);
    QFETCH(int, stored);
    MtConfManage *manager = makeManager();
    const QList<const char *> labels{"low", "middle", "high"};
    ConfItem *item = values.isEmpty()
                         ? manager->addConfInt32WithCombobox("Quality", labels, &stored, "Output",
                                                             "Quality")
                         : manager->addConfInt32WithCombobox("Quality", labels, values, &stored,
                                                             "Output", "Quality");
    const std::unique_ptr<ConfigItemWidget> editor(item->widgetCreator(item, &mParent));
    auto *box = editor->findChild<QComboBox *>();
    QCOMPARE(box->currentText(), QString("middle"));
    box->setCurrentIndex(2);
    QCOMPARE(stored, values.isEmpty() ? 2 : 30);
}

void tst_MtConfManage::itemAddressesStayValidAsTheListGrows()
{
    MtConfManage *manager = makeManager();
    std::vector<int> values(1000);
    ConfItem *first = manager->addConfInt32("0", &values[0], "M", "0");
    for (size_t i = 1; i < values.size(); ++i)
        manager->addConfInt32("n", &values[i], "M", QString::number(i));
    QCOMPARE(first, manager->getItemByName("M", "0", ""));
    QCOMPARE(first->displayText, "0");
}

void tst_MtConfManage::itemAddressesStayValidWhileTheHostHasACopyOfTheList()
{
    MtConfManage *manager = makeManager();
    int a = 0, b = 0;
    ConfItem *first = manager->addConfInt32("a", &a, "M", "a");
    {
        const ItemList<ConfItem> copy = manager->items;
        manager->addConfInt32("b", &b, "M", "b");
        QCOMPARE(copy.size(), 1);
    }
    QCOMPARE(first->getFullName(), QString("M.a"));
    QCOMPARE(manager->getConfItemList("M").size(), 2);
}

void tst_MtConfManage::classAddressesStayValidAsTheListGrows()
{
    MtConfManage *manager = makeManager();
    const MtConf::MajorConfItem *first = manager->addMajorConfItemIfNotExist("first");
    for (int i = 0; i < 1000; ++i)
        manager->addMajorConfItemIfNotExist(QString::number(i));
    QCOMPARE(manager->getMajorConfItemByName("first"), first);
    QCOMPARE(first->name, QString("first"));
}

void tst_MtConfManage::addConfItem_addsACopyAndItsClass()
{
    MtConfManage *manager = makeManager();
    bool flag = true;
    ConfItem own(&flag, "Own", "Flag", "");
    own.displayText = "Flag";
    const ConfItem *added = manager->addConfItem(own);
    QVERIFY(added != &own);
    QCOMPARE(added->displayText, "Flag");
    QVERIFY(manager->getMajorConfItemByName("Own"));
}

void tst_MtConfManage::getItemByName_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("found");
    QTest::newRow("two names") << QStringList{"General", "Hotkey", ""} << "General.Hotkey";
    QTest::newRow("three names") << QStringList{"General", "Hotkey", "Left"}
                                 << "General.Hotkey.Left";
    QTest::newRow("empty name") << QStringList{"General", "", ""} << "General.";
    QTest::newRow("other case") << QStringList{"general", "Hotkey", ""} << QString();
    QTest::newRow("unknown sub-name") << QStringList{"General", "Hotkey", "Up"} << QString();
    QTest::newRow("same key text, other names")
        << QStringList{"General", "Hotkey.Left", ""} << QString();
    QTest::newRow("nothing") << QStringList{"", "", ""} << QString();
}

void tst_MtConfManage::getItemByName()
{
    MtConfManage *manager = makeManager();
    int a = 0, b = 0, c = 0;
    manager->addConfInt32("a", &a, "General", "Hotkey");
    manager->addConfInt32("b", &b, "General", "Hotkey", "Left");
    manager->addConfInt32("c", &c, "General", "");
    QFETCH(QStringList, names);
    QFETCH(QString, found);
    const LogCapture log;
    const ConfItem *item = manager->getItemByName(names.at(0), names.at(1), names.at(2));
    QCOMPARE(item ? item->getFullName() : QString(), found);
    QVERIFY(log.messages().isEmpty());
}

void tst_MtConfManage::getItemByName_findsTheFirstOfTwo()
{
    MtConfManage *manager = makeManager();
    int a = 1, b = 2;
    const ConfItem *first = manager->addConfInt32("a", &a, "M", "n");
    manager->addConfInt32("b", &b, "M", "n");
    QCOMPARE(manager->items.size(), 2);
    QCOMPARE(manager->getItemByName("M", "n", ""), first);
    // The key is bound to the variable that was declared last.
    QCOMPARE(ConfStorage::instance()->get<int>("M.n"), 2);
}

void tst_MtConfManage::getItemByName_seesListsThatTheHostChanged()
{
    MtConfManage *manager = makeManager();
    int a = 0, b = 0;
    manager->addConfInt32("a", &a, "M", "a");
    QVERIFY(manager->getItemByName("M", "a", ""));
    manager->items.append(ConfItem(&b, "M", "b", ""));
    QVERIFY(manager->getItemByName("M", "b", ""));
    manager->items.removeFirst();
    QVERIFY(!manager->getItemByName("M", "a", ""));
    manager->items.clear();
    QVERIFY(!manager->getItemByName("M", "b", ""));
}

void tst_MtConfManage::getConfItemList_keepsTheOrderOfDeclaration()
{
    MtConfManage *manager = makeManager();
    int a = 0, b = 0, c = 0;
    const ConfItem *z = manager->addConfInt32("z", &a, "M", "z");
    manager->addConfInt32("x", &b, "Other", "x");
    const ConfItem *first = manager->addConfInt32("a", &c, "M", "a");
    const QList<ConfItem *> list = manager->getConfItemList("M");
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(0), z);
    QCOMPARE(list.at(1), first);
}

void tst_MtConfManage::getConfItemList_warnsAboutAnUnknownClass()
{
    MtConfManage *manager = makeManager();
    const LogCapture log;
    QVERIFY(manager->getConfItemList("Nowhere").isEmpty());
    QCOMPARE(log.messages().size(), 1);
    QCOMPARE(log.texts(QtWarningMsg), QStringList("major class not exist:  \"Nowhere\""));
}

void tst_MtConfManage::getConfItemList_isEmptyForAClassWithoutItems()
{
    MtConfManage *manager = makeManager();
    manager->setMajorWidget("Custom", [](QWidget *) { return nullptr; });
    const LogCapture log;
    QVERIFY(manager->getConfItemList("Custom").isEmpty());
    QVERIFY(log.messages().isEmpty());
}

void tst_MtConfManage::classesAppearInTheOrderOfFirstMention()
{
    MtConfManage *manager = makeManager();
    bool flag = false;
    manager->setConfigClassFlag("Third by name", 1);
    manager->addConfBool("b", &flag, "Second", "b");
    manager->setMajorWidget("Alpha", nullptr);
    manager->addConfBool("b", &flag, "Third by name", "b");
    QStringList names;
    for (const MtConf::MajorConfItem &major : std::as_const(manager->majorItems))
        names << major.name;
    QCOMPARE(names, (QStringList{"Third by name", "Second", "Alpha"}));
}

void tst_MtConfManage::setConfigClassFlag_assignsAndCreates()
{
    MtConfManage *manager = makeManager();
    manager->setConfigClassFlag("Page", 1);
    manager->setConfigClassFlag("Page", 4);
    QCOMPARE(manager->majorItems.size(), 1);
    QCOMPARE(manager->getMajorConfItemByName("Page")->classFlag, 4);
}

void tst_MtConfManage::setMajorWidget_replacesTheFactory()
{
    MtConfManage *manager = makeManager();
    int called = 0;
    manager->setMajorWidget("Page", [&](QWidget *) {
        called = 1;
        return nullptr;
    });
    manager->setMajorWidget("Page", [&](QWidget *) {
        called = 2;
        return nullptr;
    });
    manager->getMajorConfItemByName("Page")->majorWidget(nullptr);
    QCOMPARE(called, 2);
    manager->setMajorWidget("Page", nullptr);
    QVERIFY(!manager->getMajorConfItemByName("Page")->majorWidget);
}

void tst_MtConfManage::getMajorConfItemByName_neverCreates()
{
    MtConfManage *manager = makeManager();
    QVERIFY(!manager->getMajorConfItemByName("Page"));
    QVERIFY(manager->majorItems.isEmpty());
}

void tst_MtConfManage::lookupsDoNotDetachASharedList()
{
    MtConfManage *manager = makeManager();
    int a = 0;
    ConfItem *item = manager->addConfInt32("a", &a, "M", "a");
    const ItemList<ConfItem> copy = manager->items;
    QCOMPARE(manager->getItemByName("M", "a", ""), item);
    QCOMPARE(manager->getConfItemList("M"), QList<ConfItem *>{item});
    manager->restoreAllDefault();
    QCOMPARE(manager->getItemByName("M", "a", ""), item);
}

int main(int argc, char **argv)
{
    return runTest<tst_MtConfManage>(argc, argv);
}

#include "tst_MtConfManage.moc"
