#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>

#include <memory>

using MtConf::ConfItem;
using MtConf::MtConfManage;

/// What MtConfManage::checkDeclarations() finds.
class tst_DeclarationCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void soundDeclarationsHaveNoProblem();
    void keyIsDeclaredTwice();
    void nameContainsASeparator_data();
    void nameContainsASeparator();
    void defaultIsOutsideOfItsRange();
    void defaultIsNotAmongItsChoices();
    void dynamicClassClaimsAKey();
    void variableIsNull();
    void noPageShowsAnItem();
    void twoDefaultsAreTheSameInput();
    void variableHasTwoKeys();
    void labelsAndValuesDiffer();
    void anotherManagerHasTheKey();
    void otherSettingIsNotDeclared();
    void dependencyIsImpossible();
    void formerNameIsDeclared();
    void classHasAPageOfItsOwn();

private:
    ConfItem *add(const char *name, int *value)
    {
        return mManager->addConfInt32("Label", value, "Page", name);
    }
    void check(const QStringList &problems)
    {
        const LogCapture log;
        QCOMPARE(mManager->checkDeclarations(), problems);
        QVERIFY(LogCapture::messages().isEmpty());
    }

    std::unique_ptr<MtConfManage> mManager;
    int mA = 1;
    int mB = 2;
};

void tst_DeclarationCheck::init()
{
    clearStore();
    mManager = std::make_unique<MtConfManage>();
}

void tst_DeclarationCheck::cleanup()
{
    mManager.reset();
    clearStore();
}

void tst_DeclarationCheck::soundDeclarationsHaveNoProblem()
{
    check({});
    ConfItem *a = add("A", &mA)->setRange(0, 9);
    add("B", &mB)->dependsOn(a, 1);
    QKeySequence none, noneEither;
    mManager->addConfQKeySequence("Label", &none, "Page", "C");
    mManager->addConfQKeySequence("Label", &noneEither, "Page", "D");
    int noGesture = 0, noGestureEither = 0;
    mManager->addConfMouseAction("Label", &noGesture, 1, "Page", "E");
    mManager->addConfMouseAction("Label", &noGestureEither, 1, "Page", "F");
    QStringList kept;
    mManager->addConfValue(&kept, "Page", "G");
    check({});
}

void tst_DeclarationCheck::keyIsDeclaredTwice()
{
    add("A", &mA);
    add("A", &mB);
    check({"\"Page.A\" is declared more than once."});
}

void tst_DeclarationCheck::nameContainsASeparator_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("separator");
    QTest::newRow("mark of another system") << "A#1"
                                            << "#";
    QTest::newRow("full stop") << "A.B"
                               << ".";
}

void tst_DeclarationCheck::nameContainsASeparator()
{
    QFETCH(const QString, name);
    QFETCH(const QString, separator);
    mManager->addConfInt32("Label", &mA, "Page", name);
    check({QStringLiteral("\"Page.%1\" has a name with \"%2\", which separates the parts of keys.")
               .arg(name, separator)});
}

void tst_DeclarationCheck::defaultIsOutsideOfItsRange()
{
    add("A", &mA)->setRange(2, 9);
    add("B", &mB)->properties["MaxValue"] = 1;
    int large = 500; // the spin box ends at 99
    add("E", &large);
    QDateTime time = QDateTime::currentDateTime();
    mManager->addConfValue(&time, "Page", "C")->setRange(time.addDays(1), time.addDays(2));
    double number = 5;
    mManager->addConfValue(&number, "Page", "D")->setRange(9, 2);
    check({"\"Page.A\" has a default value outside of its range.",
           "\"Page.B\" has a default value outside of its range.",
           "\"Page.E\" has a default value outside of its range.",
           "\"Page.C\" has a default value outside of its range.",
           "\"Page.D\" has a default value outside of its range.",
           "\"Page.D\" has a range whose lowest value is greater than its highest."});
}

void tst_DeclarationCheck::defaultIsNotAmongItsChoices()
{
    add("A", &mA)->choices = {{"None", 0}, {"Two", 2}};
    ConfItem *flags = add("B", &mB)->setMultiSelect();
    flags->choices = {{"One", 1}, {"Four", 4}};
    check({"\"Page.A\" has a default value that is not among its choices."});
}

void tst_DeclarationCheck::dynamicClassClaimsAKey()
{
    ConfStorage::DynamicConfClass cls{"Page.", nullptr, nullptr, 0};
    ConfStorage::instance()->mDynamicConfClasses.append(&cls);
    add("A", &mA);
    check({"\"Page.A\" belongs to the dynamic class with the prefix \"Page.\"."});
}

void tst_DeclarationCheck::variableIsNull()
{
    {
        const LogCapture log;
        add("A", nullptr);
    }
    check({"\"Page.A\" has no variable: it was declared with a null pointer, or released."});
}

void tst_DeclarationCheck::noPageShowsAnItem()
{
    QString text;
    mManager->addConfQString("Label", &text, "Page", "A");
    add("B", &mA)->flags |= MtConf::ItemIsFiltered;
    ConfItem *parent = add("C", &mB);
    int sub = 0;
    ConfItem subItem(&sub, "Page", "C", "Sub");
    subItem.displayText = "Label";
    subItem.widgetCreator = MtConf::ConfDefWidgetInt32::CreatConfWidget;
    parent->subConfs.insert("Sub", subItem);
    int unnamed = 0;
    mManager->addConfInt32(nullptr, &unnamed, "Page", "D");
    mManager->majorItems.clear();
    const QString noClass = "\"Page.%1\" belongs to a class that the manager does not have.";
    check({"\"Page.A\" has a label but no editor, so no page shows it.",
           "\"Page.B\" is filtered, but the manager has no filter, so no page shows it.",
           noClass.arg("B"), noClass.arg("C"),
           "\"Page.C.Sub\" is a sub-item with an editor, which no page shows.",
           noClass.arg("C.Sub"), "\"Page.D\" has an editor but no label.", noClass.arg("D")});
}

void tst_DeclarationCheck::twoDefaultsAreTheSameInput()
{
    QKeySequence a("Ctrl+K"), b("Ctrl+K"), c("Ctrl+L");
    mManager->addConfQKeySequence("Label", &a, "Page", "A");
    mManager->addConfQKeySequence("Label", &b, "Page", "B");
    mManager->addConfQKeySequence("Label", &c, "Page", "C");
    int d = 2, e = 2;
    mManager->addConfMouseAction("Label", &d, 1, "Page", "D");
    mManager->addConfMouseAction("Label", &e, 1, "Page", "E");
    QKeySequence f("2"); // a key, not the gesture 2
    mManager->addConfQKeySequence("Label", &f, "Page", "F");
    check({"\"Page.B\" has the same default hotkey or gesture as \"Page.A\".",
           "\"Page.E\" has the same default hotkey or gesture as \"Page.D\"."});
}

void tst_DeclarationCheck::variableHasTwoKeys()
{
    add("A", &mA);
    ConfStorage::instance()->reserveConf("Other", &mB);
    add("B", &mA);
    ConfStorage::instance()->reserveConf("Another", &mB); // neither has an item
    struct Both
    {
        QString first;
    } both;
    mManager->addConfValue(&both.first, "Page", "E");
    ConfItem whole(reinterpret_cast<int *>(&both), "Page", "F", ""); // at the same address
    whole.valueType = ConfValue::TyInt32;
    mManager->addConfItem(whole);
    QStringList list;
    mManager->addConfValue(&list, "Page", "C");
    mManager->addConfValue(&list, "Page", "D");
    check({"\"Page.B\" has the same variable as \"Page.A\".",
           "\"Page.D\" has the same variable as \"Page.C\"."});
}

void tst_DeclarationCheck::labelsAndValuesDiffer()
{
    mManager->addConfInt32WithCombobox("Label", {"One", "Two"}, {1}, &mA, "Page", "A");
    mManager->addConfInt32WithCombobox("Label", {"One"}, {2, 3}, &mB, "Page", "B");
    check({"\"Page.A\" has 2 labels for 1 values.", "\"Page.B\" has 1 labels for 2 values."});
}

void tst_DeclarationCheck::anotherManagerHasTheKey()
{
    add("A", &mA);
    {
        MtConfManage other;
        other.addConfInt32("Label", &mA, "Page", "A");
        check({"\"Page.A\" is declared by another manager, too."});
    }
    check({});
}

void tst_DeclarationCheck::otherSettingIsNotDeclared()
{
    ConfItem *a = add("A", &mA);
    add("B", &mB)->dependsOn(a, 1);
    ConfStorage::instance()->releaseConf("Page.A");
    check({"\"Page.A\" has no variable: it was declared with a null pointer, or released.",
           "\"Page.B\" depends on \"Page.A\", which is not declared."});
}

void tst_DeclarationCheck::dependencyIsImpossible()
{
    bool flag = true;
    QStringList list;
    ConfItem *a = mManager->addConfBool("Label", &flag, "Page", "A");
    ConfItem *b = mManager->addConfValue(&list, "Page", "B");
    add("C", &mA)->dependsOn(a, 1)->dependsOn(b, "text");
    ConfItem *d = add("D", &mB);
    d->dependsOn(d, 2);
    check({"\"Page.C\" depends on a value that \"Page.A\" cannot have.",
           "\"Page.C\" depends on a value that \"Page.B\" cannot have.",
           "\"Page.D\" depends on itself."});
}

void tst_DeclarationCheck::formerNameIsDeclared()
{
    add("A", &mA);
    add("B", &mB)->addFormerName("Page.A");
    check({"\"Page.B\" has the former name \"Page.A\", which is declared."});
}

void tst_DeclarationCheck::classHasAPageOfItsOwn()
{
    QString text;
    mManager->addConfQString("Label", &text, "Page", "A"); // that page may show it
    add("B", &mA);
    mManager->setMajorWidget("Page", [](QWidget *parent) { return new QWidget(parent); });
    check(
        {"\"Page.B\" has an editor, but its class has a page of its own, which does not show it."});
}

int main(int argc, char **argv)
{
    return runTest<tst_DeclarationCheck>(argc, argv);
}

#include "tst_DeclarationCheck.moc"
