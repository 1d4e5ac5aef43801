#include "MouseActionFixture.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QTranslator>
#include <QWheelEvent>

#include <climits>

using MtConf::ConfWidgetMouseAction;
using Values = QList<int>;

Q_DECLARE_METATYPE(Values)

namespace {

/// Translates every text by prefixing it with its context.
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QString("%1: %2").arg(context, text);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_ConfWidgetMouseAction : public MouseActionFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { clear(); }

    void actionsFollowTheKind_data();
    void actionsFollowTheKind();
    void factoryReadsTheKindFromTheItem_data();
    void factoryReadsTheKindFromTheItem();
    void modifiersAreOffered();
    void controlsAreInOrder();

    void storedValueIsShown_data();
    void storedValueIsShown();
    void creatingTheEditorStoresNothing();

    void chosenActionIsStored();
    void chosenModifiersAreStored();
    void chosenGestureStoresItsValue_data();
    void chosenGestureStoresItsValue();
    void sameValueIsStoredAgain();
    void leftClickAloneIsNotStored();
    void leftClickWithAModifierIsStored();
    void wheelIsIgnored();

    void loadingStoresTheValueAgain();
    void loadingTheShownValueStoresNothing();
    void loadingBitsThatNoControlShowsMarksTheCaption();
    void loadingAnActionOfAnotherKindStoresNone();

    void textsHaveTheirContexts();
    void actionsFollowTheLanguage();
};

void tst_ConfWidgetMouseAction::actionsFollowTheKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<Values>("values");
    QTest::newRow("wheel") << 0 << QStringList{"None", "Wheel"} << Values{0, 64};
    QTest::newRow("clicks") << 1 << QStringList{"None",
                                                "Left Click",
                                                "Left Double Click",
                                                "Right Click",
                                                "Right Double Click",
                                                "Middle Click",
                                                "Middle Double Click"}
                            << Values{0, 1, 2, 4, 8, 16, 32};
    QTest::newRow("drags") << 2 << QStringList{"None", "Left Drag", "Right Drag", "Middle Drag"}
                           << Values{0, 128, 256, 512};
    QTest::newRow("none") << 3 << QStringList{"None"} << Values{0};
    QTest::newRow("none, -1") << -1 << QStringList{"None"} << Values{0};
    QTest::newRow("none, INT_MIN") << INT_MIN << QStringList{"None"} << Values{0};
}

void tst_ConfWidgetMouseAction::actionsFollowTheKind()
{
    QFETCH(int, kind);
    const Gesture *gesture = add("Zoom", 0, kind);
    QStringList texts;
    Values values;
    for (int i = 0; i < gesture->actions->count(); ++i) {
        texts << gesture->actions->itemText(i);
        values << gesture->actions->itemData(i, Qt::UserRole).toInt();
    }
    QTEST(texts, "texts");
    QTEST(values, "values");
}

void tst_ConfWidgetMouseAction::factoryReadsTheKindFromTheItem_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<Values>("values");
    QTest::newRow("wheel") << QVariantMap{{"Kind", 0}} << Values{0, 64};
    QTest::newRow("clicks") << QVariantMap{{"Kind", 1}} << Values{0, 1, 2, 4, 8, 16, 32};
    QTest::newRow("drags") << QVariantMap{{"Kind", 2}} << Values{0, 128, 256, 512};
    QTest::newRow("unknown kind") << QVariantMap{{"Kind", 3}} << Values{0};
    QTest::newRow("no kind") << QVariantMap{} << Values{0};
}

void tst_ConfWidgetMouseAction::factoryReadsTheKindFromTheItem()
{
    QFETCH(QVariantMap, properties);
    int value = 0x02000000;
    MtConf::ConfItem item(&value, "Mouse", "Zoom", "");
    item.displayText = "Zoom";
    item.properties = properties;
    item.widgetCreator = ConfWidgetMouseAction::CreatConfWidget;
    const std::unique_ptr<MtConf::ConfigItemWidget> editor(
        item.widgetCreator(&item, &mFixture->parent));
    QVERIFY(qobject_cast<ConfWidgetMouseAction *>(editor.get()));
    QCOMPARE(editor->parentWidget(), &mFixture->parent);
    const auto *actions = editor->findChild<ComboboxDisableWheel *>();
    Values values;
    for (int i = 0; i < actions->count(); ++i)
        values << actions->itemData(i).toInt();
    QTEST(values, "values");
    const auto *modifiers = editor->findChild<MultiSelectComboBox *>();
    QCOMPARE(modifiers->currentText(), QStringList(QString::fromUtf8("\u21e7")));
    QCOMPARE(item.properties, properties);
}

void tst_ConfWidgetMouseAction::modifiersAreOffered()
{
    Gesture *gesture = add("Zoom", 0, 0);
    QCOMPARE(gesture->modifiers->count(), 4);
    for (int row = 0; row < 4; ++row)
        gesture->modifiers->setItemChecked(row, true);
    QCOMPARE(gesture->modifiers->currentText(),
             (QStringList{QString::fromUtf8("\u21e7"), QString::fromUtf8("\u2318"),
                          QString::fromUtf8("\u2325"), QString::fromUtf8("\u2303")}));
    Values flags;
    for (int row = 0; row < 4; ++row) {
        bool checked = false;
        QVariant flag;
        gesture->modifiers->getItemData(row, checked, flag);
        QVERIFY(checked);
        flags << flag.toInt();
    }
    QCOMPARE(flags, (Values{0x02000000, 0x04000000, 0x08000000, 0x10000000}));
}

void tst_ConfWidgetMouseAction::controlsAreInOrder()
{
    const Gesture *gesture = add("Zoom", 64, 0);
    const auto *layout = qobject_cast<QHBoxLayout *>(gesture->editor->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 4);
    QCOMPARE(layout->itemAt(0)->widget(), gesture->modifiers.data());
    const auto *plus = qobject_cast<QLabel *>(layout->itemAt(1)->widget());
    QVERIFY(plus);
    QCOMPARE(plus->text(), QString("+"));
    QCOMPARE(layout->itemAt(2)->widget(), gesture->actions.data());
    QCOMPARE(layout->itemAt(3)->widget(), gesture->state.data());
    for (int i = 0; i < 4; ++i)
        QCOMPARE(layout->stretch(i), 0);
    for (int i = 0; i < 3; ++i) {
        const QSizePolicy policy = layout->itemAt(i)->widget()->sizePolicy();
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Minimum);
    }
    QCOMPARE(gesture->actions->accessibleName(), QString("Zoom"));
    QCOMPARE(gesture->modifiers->accessibleName(), QString("Zoom"));
}

void tst_ConfWidgetMouseAction::storedValueIsShown_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("kind");
    QTest::addColumn<Values>("checkedRows");
    QTest::addColumn<int>("index");
    QTest::newRow("nothing") << 0 << 0 << Values{} << 0;
    QTest::newRow("wheel") << 64 << 0 << Values{} << 1;
    QTest::newRow("Shift and wheel") << 0x02000040 << 0 << Values{0} << 1;
    QTest::newRow("Control and right click") << 0x04000004 << 1 << Values{1} << 3;
    QTest::newRow("Alt and Meta and middle drag") << 0x18000200 << 2 << Values{2, 3} << 3;
    QTest::newRow("all modifiers and none") << 0x1e000000 << 1 << Values{0, 1, 2, 3} << 0;
    QTest::newRow("left click alone") << 1 << 1 << Values{} << 1;
    QTest::newRow("an action of another kind") << 0x02000080 << 1 << Values{0} << -1;
    QTest::newRow("two actions") << 3 << 1 << Values{} << -1;
    QTest::newRow("an unused higher bit") << 0x20000004 << 1 << Values{} << 3;
    QTest::newRow("all bits") << -1 << 1 << Values{0, 1, 2, 3} << -1;
    QTest::newRow("the sign bit alone") << INT_MIN << 1 << Values{} << 0;
}

void tst_ConfWidgetMouseAction::storedValueIsShown()
{
    QFETCH(int, value);
    QFETCH(int, kind);
    const Gesture *gesture = add("Zoom", value, kind);
    Values rows;
    for (int row = 0; row < 4; ++row) {
        bool checked = false;
        QVariant flag;
        gesture->modifiers->getItemData(row, checked, flag);
        if (checked)
            rows << row;
    }
    QTEST(rows, "checkedRows");
    QTEST(gesture->actions->currentIndex(), "index");
    QCOMPARE(gesture->value, value);
    QCOMPARE(changedMark(gesture->editor), QString("0"));
}

void tst_ConfWidgetMouseAction::creatingTheEditorStoresNothing()
{
    Gesture *gesture = add("Zoom", 0x0e000004, 1);
    delete gesture->editor;
    int calls = 0;
    gesture->item->setConfChangedCallback(
        [&calls](const QString &, const ConfValue *) { ++calls; });
    gesture->editor = mFixture->edit<ConfWidgetMouseAction>(gesture->item.get());
    QCOMPARE(calls, 0);
}

void tst_ConfWidgetMouseAction::chosenActionIsStored()
{
    Gesture *gesture = add("Zoom", 0, 1);
    QVERIFY(mFixture->show());
    gesture->actions->showPopup();
    QAbstractItemView *view = gesture->actions->view();
    QTRY_VERIFY(view->isVisible());
    const QModelIndex row = gesture->actions->model()->index(3, 0);
    view->setCurrentIndex(row);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(action(gesture), QString("Right Click"));
    QCOMPARE(gesture->value, 4);
    QCOMPARE(changedMark(gesture->editor), QString("1"));
    QCOMPARE(stateClass(gesture), QString("CorrectIcon"));
}

void tst_ConfWidgetMouseAction::chosenModifiersAreStored()
{
    Gesture *gesture = add("Zoom", 64, 0);
    QVERIFY(mFixture->show());
    clickModifier(gesture, 0);
    QCOMPARE(gesture->value, 0x02000040);
    clickModifier(gesture, 3);
    QCOMPARE(gesture->value, 0x12000040);
    QCOMPARE(changedMark(gesture->editor), QString("1"));
    clickModifier(gesture, 0);
    clickModifier(gesture, 3);
    QCOMPARE(gesture->value, 64);
    QCOMPARE(changedMark(gesture->editor), QString("0"));
}

void tst_ConfWidgetMouseAction::chosenGestureStoresItsValue_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QList<int>>("rows");
    QTest::addColumn<int>("value");
    QTest::newRow("None with Shift") << 1 << "None" << QList<int>{0} << 0x02000000;
    QTest::newRow("Left Click with Control") << 1 << "Left Click" << QList<int>{1} << 0x04000001;
    QTest::newRow("Left Double Click") << 1 << "Left Double Click" << QList<int>{} << 0x2;
    QTest::newRow("Right Click with Alt") << 1 << "Right Click" << QList<int>{2} << 0x08000004;
    QTest::newRow("Right Double Click with Meta")
        << 1 << "Right Double Click" << QList<int>{3} << 0x10000008;
    QTest::newRow("Middle Click") << 1 << "Middle Click" << QList<int>{} << 0x10;
    QTest::newRow("Middle Double Click") << 1 << "Middle Double Click" << QList<int>{} << 0x20;
    QTest::newRow("Wheel with all") << 0 << "Wheel" << QList<int>{0, 1, 2, 3} << 0x1e000040;
    QTest::newRow("Left Drag") << 2 << "Left Drag" << QList<int>{} << 0x80;
    QTest::newRow("Right Drag") << 2 << "Right Drag" << QList<int>{} << 0x100;
    QTest::newRow("Middle Drag with Shift") << 2 << "Middle Drag" << QList<int>{0} << 0x02000200;
}

void tst_ConfWidgetMouseAction::chosenGestureStoresItsValue()
{
    QFETCH(int, kind);
    QFETCH(QString, action);
    QFETCH(QList<int>, rows);
    Gesture *gesture = add("Zoom", 0, kind);
    for (const int row : rows)
        gesture->modifiers->itemClicked(row);
    gesture->actions->setCurrentText(action);
    QTEST(gesture->value, "value");
}

void tst_ConfWidgetMouseAction::sameValueIsStoredAgain()
{
    Gesture *gesture = add("Zoom", 64, 0);
    int calls = 0;
    gesture->item->setConfChangedCallback(
        [&calls](const QString &, const ConfValue *) { ++calls; });
    gesture->editor->onCurrentIndexChanged();
    QCOMPARE(calls, 1);
    QCOMPARE(gesture->value, 64);
}

void tst_ConfWidgetMouseAction::leftClickAloneIsNotStored()
{
    Gesture *gesture = add("Zoom", 4, 1);
    int calls = 0;
    gesture->item->setConfChangedCallback(
        [&calls](const QString &, const ConfValue *) { ++calls; });
    gesture->actions->setCurrentText("Left Click");
    QCOMPARE(calls, 0);
    QCOMPARE(gesture->value, 4);
    QCOMPARE(action(gesture), QString("Left Click"));
    QCOMPARE(stateClass(gesture), QString("ErrorIcon"));
    // Back to the stored action.
    gesture->actions->setCurrentText("Right Click");
    QCOMPARE(gesture->value, 4);
    QCOMPARE(stateClass(gesture), QString("CorrectIcon"));
    QCOMPARE(gesture->state->toolTip(), QString());
}

void tst_ConfWidgetMouseAction::leftClickWithAModifierIsStored()
{
    Gesture *gesture = add("Zoom", 0, 1);
    gesture->modifiers->itemClicked(1);
    gesture->actions->setCurrentText("Left Click");
    QCOMPARE(gesture->value, 0x04000001);
    QCOMPARE(stateClass(gesture), QString("CorrectIcon"));
    // Without the modifier it is a left click alone.
    gesture->modifiers->itemClicked(1);
    QCOMPARE(gesture->value, 0x04000001);
    QCOMPARE(stateClass(gesture), QString("ErrorIcon"));
}

void tst_ConfWidgetMouseAction::wheelIsIgnored()
{
    Gesture *gesture = add("Zoom", 4, 1);
    QVERIFY(mFixture->show());
    gesture->actions->setFocus();
    for (QWidget *box :
         {static_cast<QWidget *>(gesture->actions), static_cast<QWidget *>(gesture->modifiers)}) {
        QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &wheel);
    }
    QCOMPARE(gesture->value, 4);
    QCOMPARE(action(gesture), QString("Right Click"));
}

void tst_ConfWidgetMouseAction::loadingStoresTheValueAgain()
{
    Gesture *gesture = add("Zoom", 4, 1);
    const Gesture *other = add("Pan", 0x0a000010, 1);
    QCOMPARE(stateClass(other), QString("CorrectIcon"));
    store(gesture, 0x0a000020);
    int last = 0;
    int calls = 0;
    gesture->item->setConfChangedCallback([&](const QString &, const ConfValue *value) {
        ++calls;
        last = value->get<int>();
    });
    gesture->editor->loadConf();
    QVERIFY(calls > 0);
    QCOMPARE(last, 0x0a000020);
    QCOMPARE(gesture->value, 0x0a000020);
    QCOMPARE(action(gesture), QString("Middle Double Click"));
    QCOMPARE(changedMark(gesture->editor), QString("1"));
    QCOMPARE(stateClass(gesture), QString("WarningIcon"));
    QCOMPARE(stateClass(other), QString("WarningIcon"));

    // If only the action changes, the callback runs once.
    store(gesture, 0x0a000008);
    calls = 0;
    gesture->editor->loadConf();
    QCOMPARE(calls, 1);
    QCOMPARE(stateClass(other), QString("CorrectIcon"));
}

void tst_ConfWidgetMouseAction::loadingTheShownValueStoresNothing()
{
    Gesture *gesture = add("Zoom", 0x02000004, 1);
    const Gesture *other = add("Pan", 8, 1);
    int calls = 0;
    gesture->item->setConfChangedCallback(
        [&calls](const QString &, const ConfValue *) { ++calls; });
    store(other, 0x02000004);
    gesture->editor->loadConf();
    QCOMPARE(calls, 0);
    // Conflicts are not checked either.
    QCOMPARE(stateClass(gesture), QString("CorrectIcon"));
    gesture->editor->refreshConflictState();
    QCOMPARE(stateClass(gesture), QString("WarningIcon"));
}

void tst_ConfWidgetMouseAction::loadingBitsThatNoControlShowsMarksTheCaption()
{
    Gesture *gesture = add("Zoom", 0x02000004, 1);
    store(gesture, 0x22000004); // with the modifier of the keypad
    gesture->editor->loadConf();
    QCOMPARE(gesture->value, 0x22000004);
    QCOMPARE(changedMark(gesture->editor), QString("1"));
}

void tst_ConfWidgetMouseAction::loadingAnActionOfAnotherKindStoresNone()
{
    Gesture *gesture = add("Zoom", 0x02000004, 1);
    store(gesture, 0x02000040);
    gesture->editor->loadConf();
    QCOMPARE(gesture->actions->currentIndex(), -1);
    QCOMPARE(gesture->value, 0x02000000);
    QCOMPARE(stateClass(gesture), QString("NoneIcon"));
}

void tst_ConfWidgetMouseAction::textsHaveTheirContexts()
{
    Prefixer translator;
    QCoreApplication::installTranslator(&translator);
    const auto remove = qScopeGuard(
        [&translator] { QCoreApplication::removeTranslator(&translator); });
    Gesture *gesture = add("Zoom", 0, 1);
    QCOMPARE(action(gesture), QString("MtConf::ConfWidgetMouseAction: None"));
    QCOMPARE(gesture->actions->itemText(1), QString("MtConf::ConfWidgetMouseAction: Left Click"));
    QCOMPARE(gesture->state->toolTip(), QString("QObject: No set"));
    gesture->actions->setCurrentIndex(1);
    QCOMPARE(gesture->state->toolTip(), QString("QObject: Cannot set left-click separately"));
    add("Other", 4, 1);
    gesture->actions->setCurrentIndex(4);
    QCOMPARE(gesture->state->toolTip(), QString("QObject: Conflict with QObject: Other"));
}

void tst_ConfWidgetMouseAction::actionsFollowTheLanguage()
{
    Gesture *gesture = add("Zoom", 64, 0);
    QVERIFY(mFixture->show());
    int calls = 0;
    gesture->item->setConfChangedCallback(
        [&calls](const QString &, const ConfValue *) { ++calls; });
    Prefixer translator;
    QCoreApplication::installTranslator(&translator);
    const auto remove = qScopeGuard(
        [&translator] { QCoreApplication::removeTranslator(&translator); });
    QTRY_COMPARE(action(gesture), QString("MtConf::ConfWidgetMouseAction: Wheel"));
    QCOMPARE(gesture->actions->itemText(0), QString("MtConf::ConfWidgetMouseAction: None"));
    QCOMPARE(calls, 0);
    QCOMPARE(gesture->value, 64);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetMouseAction>(argc, argv);
}

#include "tst_ConfWidgetMouseAction.moc"
