#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/ItemList.h>
#include <MaltoConfiguration/manage/ConfItem.h>

#include <QJsonObject>

using MtConf::ConfItem;
using MtConf::ItemList;

class tst_ConfItem : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { clearStore(); }
    void cleanup() { clearStore(); }

    void constructorFillsTheItemAndReservesItsKey();
    void valueTypeFollowsTheVariable();
    void nullVariableReservesNothing();
    void getFullName_data();
    void getFullName();
    void copyKeepsEveryField_data();
    void copyKeepsEveryField();
    void destructionKeepsTheKey();
    void setFlagSystemIndependent_isSetOnceOnTheItemAndItsSubItems();
    void setFlagSystemIndependent_makesAMissingRecord();
    void changeCallbackIsCalledWithKeyAndValue();
    void isDefaultValue_asksSubItemsToo();
    void restoreDefault_restoresSubItemsToo();
    void restoreDefault_survivesACallbackThatRemovesTheItem();
    void toJsonValue_isNull();
    void loadFromJsonValue_data();
    void loadFromJsonValue();
    void loadFromJsonValue_reachesSubItemsByName();
    void loadFromJsonValue_passesAnObjectWithoutValueToTheStore();
    void loadFromJsonValue_nullUnbindsTheVariable();

private:
    static ConfStorage *store() { return ConfStorage::instance(); }
    static ConfItem item(int *value, const char *name, const char *subName = "")
    {
        return ConfItem(value, QStringLiteral("General"), QLatin1String(name),
                        QLatin1String(subName));
    }
};

void tst_ConfItem::constructorFillsTheItemAndReservesItsKey()
{
    int value = 7;
    const ConfItem made = item(&value, "Size");
    QCOMPARE(made.majorName, QStringLiteral("General"));
    QCOMPARE(made.name, QStringLiteral("Size"));
    QVERIFY(made.subName.isEmpty());
    QVERIFY(made.subConfs.isEmpty());
    QVERIFY(made.properties.isEmpty());
    QCOMPARE(made.flags, 0u);
    QVERIFY(!made.displayText);
    QVERIFY(!made.widgetCreator);
    QVERIFY(!made.auxCallback);
    QVERIFY(!made.editor);
    QCOMPARE(store()->get<int>(QStringLiteral("General.Size")), 7);
    store()->set<int>(QStringLiteral("General.Size"), 9);
    QCOMPARE(value, 9);
}

void tst_ConfItem::valueTypeFollowsTheVariable()
{
    const QString major = QStringLiteral("M");
    QColor color;
    int number = 0;
    bool flag = false;
    QString text;
    QFont font;
    QKeySequence keys;
    QCOMPARE(ConfItem(&color, major, QStringLiteral("c"), QString()).valueType, 1);
    QCOMPARE(ConfItem(&number, major, QStringLiteral("i"), QString()).valueType, 2);
    QCOMPARE(ConfItem(&flag, major, QStringLiteral("b"), QString()).valueType, 4);
    QCOMPARE(ConfItem(&text, major, QStringLiteral("s"), QString()).valueType, 5);
    QCOMPARE(ConfItem(&font, major, QStringLiteral("f"), QString()).valueType, 6);
    QCOMPARE(ConfItem(&keys, major, QStringLiteral("k"), QString()).valueType, 7);
}

void tst_ConfItem::nullVariableReservesNothing()
{
    const LogCapture log;
    const ConfItem made = item(nullptr, "Size");
    QCOMPARE(
        log.texts(QtCriticalMsg),
        QStringList{QStringLiteral("ConfStorage::reserveConf null pointer:  \"General.Size\"")});
    QVERIFY(store()->mConfValues.isEmpty());
    QVERIFY(made.isDefaultValue());
    made.restoreDefault();
    made.loadFromJsonValue(3);
}

void tst_ConfItem::getFullName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("subName");
    QTest::addColumn<QString>("fullName");
    QTest::newRow("two parts") << "Hotkey"
                               << ""
                               << "General.Hotkey";
    QTest::newRow("three parts") << "Hotkey"
                                 << "Left"
                                 << "General.Hotkey.Left";
    QTest::newRow("empty name keeps its full stop") << ""
                                                    << ""
                                                    << "General.";
    QTest::newRow("empty name with sub-name") << ""
                                              << "Left"
                                              << "General..Left";
    QTest::newRow("full stops are not escaped") << "A.B"
                                                << "C"
                                                << "General.A.B.C";
}

void tst_ConfItem::getFullName()
{
    QFETCH(QString, name);
    QFETCH(QString, subName);
    bool value = false;
    QTEST(ConfItem(&value, QStringLiteral("General"), name, subName).getFullName(), "fullName");
}

void tst_ConfItem::copyKeepsEveryField_data()
{
    QTest::addColumn<bool>("isAssigned");
    QTest::newRow("constructed") << false;
    QTest::newRow("assigned") << true;
}

void tst_ConfItem::copyKeepsEveryField()
{
    QFETCH(bool, isAssigned);
    QWidget pointedTo;
    int value = 0;
    ConfItem original = item(&value, "Size", "Wide");
    original.flags = 0x10;
    original.displayText = "Size";
    original.addFormerName(QStringLiteral("Main.Size"));
    original.properties.insert(QStringLiteral("MaxValue"), 5);
    original.subConfs.insert(QStringLiteral("sub"), item(&value, "Sub"));
    int calls = 0;
    original.widgetCreator = [&](ConfItem *, QWidget *) {
        ++calls;
        return nullptr;
    };
    original.auxCallback = [&](QJsonValue, ConfItem *) { ++calls; };
    original.editor = reinterpret_cast<MtConf::ConfigItemWidget *>(&pointedTo);

    bool otherValue = false;
    ConfItem other(&otherValue, QStringLiteral("Other"), QStringLiteral("Other"), QString());
    if (isAssigned)
        other = original;
    ConfItem copy = isAssigned ? other : original;
    QCOMPARE(copy.majorName, QStringLiteral("General"));
    QCOMPARE(copy.name, QStringLiteral("Size"));
    QCOMPARE(copy.subName, QStringLiteral("Wide"));
    QCOMPARE(copy.valueType, 2);
    QCOMPARE(copy.editor, original.editor);
    QCOMPARE(copy.flags, 0x10u);
    QCOMPARE(copy.displayText, original.displayText);
    QCOMPARE(copy.formerNames, QStringList{QStringLiteral("Main.Size")});
    QCOMPARE(copy.properties, original.properties);
    QCOMPARE(copy.subConfs.keys(), QStringList{QStringLiteral("sub")});
    copy.widgetCreator(&copy, nullptr);
    copy.auxCallback(QJsonValue(), &copy);
    QCOMPARE(calls, 2);
}

void tst_ConfItem::destructionKeepsTheKey()
{
    int value = 3;
    {
        item(&value, "Size");
    }
    QCOMPARE(store()->get<int>(QStringLiteral("General.Size")), 3);
}

void tst_ConfItem::setFlagSystemIndependent_isSetOnceOnTheItemAndItsSubItems()
{
    int value = 0, subValue = 0, subSubValue = 0;
    ConfItem made = item(&value, "Size");
    ConfItem sub = item(&subValue, "Sub");
    sub.subConfs.insert(QStringLiteral("x"), item(&subSubValue, "SubSub"));
    made.subConfs.insert(QStringLiteral("sub"), sub);
    made.setFlagSystemIndependent();
    made.setFlagSystemIndependent();
    for (const char *key : {"General.Size", "General.Sub", "General.SubSub"})
        QCOMPARE(store()->mConfMetas.value(QLatin1String(key)).flags, 3u);
}

void tst_ConfItem::setFlagSystemIndependent_makesAMissingRecord()
{
    int value = 0;
    const ConfItem made = item(&value, "Size");
    store()->mConfMetas.clear();
    made.setFlagSystemIndependent();
    QCOMPARE(store()->mConfMetas.value(QStringLiteral("General.Size")).flags, 3u);
}

void tst_ConfItem::changeCallbackIsCalledWithKeyAndValue()
{
    int value = 0;
    const ConfItem made = item(&value, "Size");
    QString key;
    int seen = 0;
    made.setConfChangedCallback([&](const QString &changedKey, const ConfValue *changed) {
        key = changedKey;
        seen = changed->get<int>();
    });
    store()->set<int>(QStringLiteral("General.Size"), 12);
    QCOMPARE(key, QStringLiteral("General.Size"));
    QCOMPARE(seen, 12);
}

void tst_ConfItem::isDefaultValue_asksSubItemsToo()
{
    int value = 0, subValue = 0;
    ConfItem made = item(&value, "Size");
    QVERIFY(made.isDefaultValue());
    made.subConfs.insert(QStringLiteral("sub"), item(&subValue, "Sub"));
    QVERIFY(made.isDefaultValue());
    store()->set<int>(QStringLiteral("General.Sub"), 1);
    QVERIFY(!made.isDefaultValue());
    store()->set<int>(QStringLiteral("General.Sub"), 0);
    QVERIFY(made.isDefaultValue());
    store()->set<int>(QStringLiteral("General.Size"), 1);
    QVERIFY(!made.isDefaultValue());
}

void tst_ConfItem::restoreDefault_restoresSubItemsToo()
{
    int value = 1, first = 2, second = 3;
    ConfItem made = item(&value, "Size");
    made.subConfs.insert(QStringLiteral("b"), item(&second, "Second"));
    made.subConfs.insert(QStringLiteral("a"), item(&first, "First"));
    QStringList order;
    for (const char *key : {"General.Size", "General.First", "General.Second"}) {
        store()->set<int>(QLatin1String(key), 100);
        store()->setConfChangedCallback(QLatin1String(key),
                                        [&](const QString &k, const ConfValue *) { order << k; });
    }
    made.restoreDefault();
    QCOMPARE(value, 1);
    QCOMPARE(first, 2);
    QCOMPARE(second, 3);
    QCOMPARE(order, (QStringList{QStringLiteral("General.Size"), QStringLiteral("General.First"),
                                 QStringLiteral("General.Second")}));
    QVERIFY(!store()->mConfMetas.value(QStringLiteral("General.Size")).lastChangeTime.isNull());
}

void tst_ConfItem::restoreDefault_survivesACallbackThatRemovesTheItem()
{
    int value = 1, subValue = 2;
    ItemList<ConfItem> items{item(&value, "Size")};
    items.first().subConfs.insert(QStringLiteral("sub"), item(&subValue, "Sub"));
    store()->set<int>(QStringLiteral("General.Size"), 5);
    store()->set<int>(QStringLiteral("General.Sub"), 5);
    items.first().setConfChangedCallback(
        [&](const QString &, const ConfValue *) { items.clear(); });
    items.at(0).restoreDefault();
    QVERIFY(items.isEmpty());
    QCOMPARE(value, 1);
    QCOMPARE(subValue, 2);
}

void tst_ConfItem::toJsonValue_isNull()
{
    int value = 4;
    QVERIFY(item(&value, "Size").toJsonValue().isNull());
}

void tst_ConfItem::loadFromJsonValue_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<int>("loaded");
    QTest::newRow("plain value") << QJsonValue(5) << 5;
    QTest::newRow("object with value") << QJsonValue(QJsonObject{{"value", 6}}) << 6;
    QTest::newRow("object without \"value\" is the value")
        << QJsonValue(QJsonObject{{"other", 6}}) << 0;
    QTest::newRow("wrong type is converted leniently") << QJsonValue(QStringLiteral("7")) << 0;
    QTest::newRow("sub-items for an item that has none")
        << QJsonValue(QJsonObject{{"subConf", QJsonObject{{"x", 1}}}, {"value", 8}}) << 8;
    QTest::newRow("subConf that is not an object")
        << QJsonValue(QJsonObject{{"subConf", 3}, {"value", 9}}) << 9;
}

void tst_ConfItem::loadFromJsonValue()
{
    QFETCH(QJsonValue, json);
    int value = 1;
    const ConfItem made = item(&value, "Size");
    int calls = 0;
    made.setConfChangedCallback([&](const QString &, const ConfValue *) { ++calls; });
    QVERIFY(made.loadFromJsonValue(json));
    QTEST(value, "loaded");
    QCOMPARE(calls, 1);
}

void tst_ConfItem::loadFromJsonValue_reachesSubItemsByName()
{
    int value = 0, present = 0, absent = 0;
    ConfItem made = item(&value, "Size");
    made.subConfs.insert(QStringLiteral("present"), item(&present, "Present"));
    made.subConfs.insert(QStringLiteral("absent"), item(&absent, "Absent"));
    made.loadFromJsonValue(QJsonObject{
        {"subConf", QJsonObject{{"present", QJsonObject{{"value", 2}}}, {"unknown", 3}}},
        {"value", 1}});
    QCOMPARE(value, 1);
    QCOMPARE(present, 2);
    QCOMPARE(absent, 0);
    QVERIFY(store()->mConfMetas.value(QStringLiteral("General.Absent")).lastChangeTime.isNull());
}

void tst_ConfItem::loadFromJsonValue_passesAnObjectWithoutValueToTheStore()
{
    QString text = QStringLiteral("before");
    const ConfItem made(&text, QStringLiteral("General"), QStringLiteral("Text"), QString());
    made.loadFromJsonValue(QJsonObject{{"subConf", QJsonObject()}});
    QCOMPARE(text, QString());
}

void tst_ConfItem::loadFromJsonValue_nullUnbindsTheVariable()
{
    int value = 5;
    const ConfItem made = item(&value, "Size");
    made.loadFromJsonValue(QJsonObject{{"value", QJsonValue()}});
    QCOMPARE(value, 5);
    QCOMPARE(store()->mConfValues.value(QStringLiteral("General.Size")).mType, ConfValue::TyNone);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfItem>(argc, argv);
}

#include "tst_ConfItem.moc"
