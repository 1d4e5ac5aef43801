#include "support/CleanStore.h"
#include "support/FileText.h"
#include "support/FormSetting.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

using MtConf::ConfItem;
using MtConf::MtConfManage;

namespace {

const char sPath[] = "settings.json";
const char sKey[] = "Page.Name";
const QString sRefusal = "ConfStorage::loadConf() value of another type refused:  \"Page.Name\"";

/// A manager with one item, and a sub-item that is found under its own name, too.
struct Host
{
    explicit Host(const FormCase &form)
        : variable(form.variable()), subVariable(form.variable()),
          item(variable->item("Page", "Name", QString()))
    {
        item.subConfs.insert("Sub", subVariable->item("Page", "Name", "Sub"));
        manager.items.append(item);
        manager.items.append(item.subConfs.first());
    }
    Q_DISABLE_COPY(Host)

    void load(const QByteArray &text)
    {
        writeFile(sPath, text);
        manager.loadFromFile(sPath);
    }

    std::unique_ptr<FormCase::Variable> variable, subVariable;
    ConfItem item;
    MtConfManage manager;
};

/// Returns the member that a user writes for the value: a wrapper if the value is an object.
QByteArray memberOf(const FormCase &form)
{
    return form.json().isObject() ? R"({"value":)" + form.text + '}' : form.text;
}

} // namespace

/// Items of every type with a `JsonForm`, and the configuration file.
class tst_ConfItemTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "EST5"); } // local time is not UTC
    void init();
    void cleanup();

    void valueIsLoadedFromAFile_data() { addCases(); }
    void valueIsLoadedFromAFile();
    void valueInAWrapperIsLoaded_data() { addCases(); }
    void valueInAWrapperIsLoaded();
    void subItemsAreLoaded_data() { addCases(); }
    void subItemsAreLoaded();
    void formerNameAndFormAreLoaded_data() { addCases(); }
    void formerNameAndFormAreLoaded();
    void nullUnbindsTheVariable_data() { addCases(); }
    void nullUnbindsTheVariable();
    void nullIsTheDefaultWithTheOption_data() { addCases(); }
    void nullIsTheDefaultWithTheOption();
    void valueIsLocked_data() { addCases(); }
    void valueIsLocked();
    void otherJsonIsRefused_data() { addCases(); }
    void otherJsonIsRefused();
    void defaultIsRestored_data() { addCases(); }
    void defaultIsRestored();
    void objectWithAMemberValueNeedsAWrapper();

private:
    static void addCases();
    const FormCase &form() const;
    static ConfStorage *store() { return ConfStorage::instance(); }

    std::optional<LogCapture> mLog;
};

void tst_ConfItemTypes::init()
{
    clearStore();
    store()->mFileOptions = 0;
    mLog.emplace();
}

void tst_ConfItemTypes::cleanup()
{
    mLog.reset();
    clearStore();
    store()->mFileOptions = 0;
}

void tst_ConfItemTypes::addCases()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < formCases().size(); ++i)
        QTest::newRow(formCases()[i]->name.constData()) << static_cast<int>(i);
}

const FormCase &tst_ConfItemTypes::form() const
{
    // QFETCH does not work here.
    const int row = *static_cast<int *>(QTest::qData("row", qMetaTypeId<int>()));
    return *formCases()[static_cast<size_t>(row)];
}

void tst_ConfItemTypes::valueIsLoadedFromAFile()
{
    Host host(form());
    QVERIFY(host.item.valueType >= 10);
    host.load(R"({"Page.Name":)" + memberOf(form()) + '}');
    QVERIFY(host.variable->hasValue());
    QVERIFY(host.variable->hasValueInStore(*store(), sKey));
    QVERIFY(host.subVariable->isInitial());
    QVERIFY(store()->mConfMetas[sKey].lastChangeTime.isValid());
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_ConfItemTypes::valueInAWrapperIsLoaded()
{
    Host host(form());
    host.load(R"({"Page.Name":{"value":)" + form().text + R"(,"locked":true},"Page.Name.Sub":)"
              + R"({"value":)" + form().text + "}}");
    QVERIFY(host.variable->hasValue());
    QVERIFY(host.subVariable->hasValue());
    QVERIFY(!store()->isLocked(sKey)); // without the option
}

void tst_ConfItemTypes::subItemsAreLoaded()
{
    Host host(form());
    host.item.loadFromJsonValue(QJsonObject{
        {"value", form().json()}, {"subConf", QJsonObject{{"Sub", jsonOfText(memberOf(form()))}}}});
    QVERIFY(host.variable->hasValue());
    QVERIFY(host.subVariable->hasValue());
}

void tst_ConfItemTypes::formerNameAndFormAreLoaded()
{
    Host host(form());
    host.manager.items[0].addFormerName("Page.Former");
    host.item.setConverter([](const QJsonValue &value) {
        const QJsonObject older = value.toObject();
        return older.contains("older form") ? older["older form"] : value;
    });
    host.load(R"({"Page.Former":{"older form":)" + form().text + "}}");
    QVERIFY(host.variable->hasValue());
}

void tst_ConfItemTypes::nullUnbindsTheVariable()
{
    Host host(form());
    host.load(R"({"Page.Name":)" + memberOf(form()) + '}');
    host.load(R"({"Page.Name":null})");
    QVERIFY(host.variable->hasValue());
    QCOMPARE(store()->mConfValues[sKey].mType, ConfValue::TyNone);
}

void tst_ConfItemTypes::nullIsTheDefaultWithTheOption()
{
    store()->mFileOptions = ConfStorage::NullIsDefault;
    for (const char *null : {"null", R"({"value":null})"}) {
        Host host(form());
        host.load(R"({"Page.Name":)" + memberOf(form()) + '}');
        QVERIFY(host.variable->hasValue());
        host.load(QByteArray(R"({"Page.Name":)") + null + '}');
        QVERIFY(host.variable->isInitial());
        QVERIFY(host.item.isDefaultValue());
    }
}

void tst_ConfItemTypes::valueIsLocked()
{
    store()->mFileOptions = ConfStorage::LockedValues;
    Host host(form());
    host.load(R"({"Page.Name":{"value":)" + form().text + R"(,"locked":true}})");
    QVERIFY(host.variable->hasValue());
    QVERIFY(store()->isLocked(sKey));
    host.item.restoreDefault();
    host.load(R"({"Page.Name":{"value":[]},"Page.Name.Sub":{"value":true,"locked":true}})");
    QVERIFY(host.variable->hasValue());
    QVERIFY(!store()->isLocked("Page.Name.Sub")); // the value is refused
}

void tst_ConfItemTypes::otherJsonIsRefused()
{
    Host host(form());
    host.load(R"({"Page.Name":)" + memberOf(form()) + '}');
    const QDateTime time = store()->mConfMetas[sKey].lastChangeTime;
    host.load(R"({"Page.Name":true})");
    host.load(R"({"Page.Name":{"value":true}})");
    QVERIFY(host.variable->hasValue());
    QCOMPARE(store()->mConfMetas[sKey].lastChangeTime, time);
    const QStringList messages{sRefusal, sRefusal};
    QCOMPARE(LogCapture::texts(QtWarningMsg), messages);
}

void tst_ConfItemTypes::defaultIsRestored()
{
    Host host(form());
    QVERIFY(host.item.isDefaultValue());
    host.subVariable->setInStore(*store(), "Page.Name.Sub");
    QCOMPARE(host.item.isDefaultValue(), form().isInitial());
    host.item.restoreDefault();
    QVERIFY(host.subVariable->isInitial());
    QVERIFY(host.item.isDefaultValue());
}

void tst_ConfItemTypes::objectWithAMemberValueNeedsAWrapper()
{
    QMap<QString, int> map;
    QVariantMap any;
    MtConfManage manager;
    manager.items.append(ConfItem(&map, "Page", "Name", QString()));
    manager.items.append(ConfItem(&any, "Page", "Any", QString()));
    const auto load = [&](const QByteArray &text) {
        writeFile(sPath, text);
        manager.loadFromFile(sPath);
    };
    load(R"({"Page.Name":{"a":1},"Page.Any":{"a":1}})"); // has no such member
    QCOMPARE(map, (QMap<QString, int>{{"a", 1}}));
    QCOMPARE(any, (QVariantMap{{"a", 1}}));
    load(R"({"Page.Name":{"value":1}})");
    QCOMPARE(LogCapture::texts(QtWarningMsg), QStringList{sRefusal});
    QCOMPARE(map, (QMap<QString, int>{{"a", 1}}));
    load(R"({"Page.Name":{"value":{"value":2,"locked":3,"subConf":4}}})");
    QCOMPARE(map, (QMap<QString, int>{{"locked", 3}, {"subConf", 4}, {"value", 2}}));
    load(R"({"Page.Any":{"value":{"value":2}}})");
    QCOMPARE(any, (QVariantMap{{"value", 2}}));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfItemTypes>(argc, argv);
}

#include "tst_ConfItemTypes.moc"
