#include "MaltoConfiguration/widgets/EditorTexts_p.h"
#include "MouseActionFixture.h"
#include "support/TableTranslator.h"
#include "support/TestMain.h"

#include <QAbstractButton>

using MtConf::ConfWidgetMouseAction;

/// What a host or the window can ask of the editor of gestures.
class tst_ConfWidgetMouseActionOptions : public MouseActionFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup()
    {
        ConfWidgetMouseAction::sTellsBothSides = false;
        clear();
        ConfWidgetMouseAction::sNamesModifiers = false;
    }

    void bothSidesTellTheConflict();
    void goneEditorIsNotNamed();
    void toolTipNamesThePresentConflict();
    void modifiersHaveNames();
    void namesOfModifiersFollowTheLanguage();
    void textsOfGesturesNameTheModifiers();
    void filterDecidesWhatIsStored();
    void filterIsNotAskedForLoadedValues();
    void filterMayDeleteTheEditor();
    void conflictIsTheGivenOne();

private:
    static QStringList modifierTexts(const Gesture *gesture)
    {
        QStringList texts;
        auto *const list = qobject_cast<QListWidget *>(gesture->modifiers->view());
        for (int row = 0; row < 4; ++row)
            texts.append(
                qobject_cast<QAbstractButton *>(list->itemWidget(list->item(row)))->text());
        return texts;
    }
};

void tst_ConfWidgetMouseActionOptions::bothSidesTellTheConflict()
{
    ConfWidgetMouseAction::sTellsBothSides = true;
    const Gesture *const one = add("One", 4, 1);
    const Gesture *const two = add("Two", 8, 1);
    QCOMPARE(one->state->toolTip(), QString("Conflict with Two"));
    QCOMPARE(two->state->toolTip(), QString("Conflict with One"));
    QCOMPARE(stateClass(one), QString("WarningIcon"));
}

void tst_ConfWidgetMouseActionOptions::goneEditorIsNotNamed()
{
    ConfWidgetMouseAction::sTellsBothSides = true;
    const Gesture *const one = add("One", 4, 1);
    const Gesture *const two = add("Two", 8, 1);
    delete two->editor;
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
}

void tst_ConfWidgetMouseActionOptions::toolTipNamesThePresentConflict()
{
    ConfWidgetMouseAction::sTellsBothSides = true;
    Gesture *const one = add("One", 4, 1);
    add("Two", 8, 1);
    const Gesture *const three = add("Three", 4, 1);
    QCOMPARE(three->state->toolTip(), QString("Conflict with One"));
    show(one, 16);
    QCOMPARE(three->state->toolTip(), QString("Conflict with Two"));
}

void tst_ConfWidgetMouseActionOptions::modifiersHaveNames()
{
#ifdef Q_OS_MACOS
    QSKIP("macOS has the glyphs");
#endif
    QCOMPARE(modifierTexts(add("One", 4, 1)).first(), QString::fromUtf8("⇧"));
    ConfWidgetMouseAction::sNamesModifiers = true;
    const Gesture *const two = add("Two", sShift | sMeta | 4, 1);
    QCOMPARE(modifierTexts(two), (QStringList{"Shift", "Ctrl", "Alt", "Super"}));
    QCOMPARE(two->modifiers->currentText().join('|'), QString("Shift|Super"));
}

void tst_ConfWidgetMouseActionOptions::namesOfModifiersFollowTheLanguage()
{
#ifdef Q_OS_MACOS
    QSKIP("macOS has the glyphs");
#endif
    ConfWidgetMouseAction::sNamesModifiers = true;
    const Gesture *const one = add("One", sControl | 4, 1);
    const TableTranslator german({{"Shift", "Umschalt"}, {"Ctrl", "Strg"}});
    QCoreApplication::processEvents();
    QCOMPARE(modifierTexts(one).mid(0, 2), (QStringList{"Umschalt", "Strg"}));
    QCOMPARE(one->modifiers->currentText(), QStringList{"Strg"});
    QCOMPARE(one->value, sControl | 4);
}

void tst_ConfWidgetMouseActionOptions::textsOfGesturesNameTheModifiers()
{
#ifdef Q_OS_MACOS
    QSKIP("macOS has the glyphs");
#endif
    const int gesture = sShift | sControl | 4;
    QCOMPARE(MtConf::mouseActionText(gesture), QString::fromUtf8("⇧⌘ + Right Click"));
    ConfWidgetMouseAction::sNamesModifiers = true;
    QCOMPARE(MtConf::mouseActionText(gesture), QString("Shift + Ctrl + Right Click"));
    QCOMPARE(MtConf::mouseActionText(4), QString("Right Click"));
}

void tst_ConfWidgetMouseActionOptions::filterDecidesWhatIsStored()
{
    Gesture *const one = add("One", 4, 1);
    QList<int> asked;
    one->editor->gestureFilter = [&asked](int gesture) {
        asked.append(gesture);
        return gesture != 16;
    };
    show(one, 16);
    QCOMPARE(one->value, 4);
    QCOMPARE(action(one), QString("Middle Click"));
    show(one, 8);
    QCOMPARE(one->value, 8);
    QCOMPARE(asked, (QList<int>{16, 8}));
}

void tst_ConfWidgetMouseActionOptions::filterIsNotAskedForLoadedValues()
{
    const Gesture *const one = add("One", 4, 1);
    int count = 0;
    one->editor->gestureFilter = [&count](int) { return ++count == 0; };
    store(one, sShift | 16);
    one->editor->loadConf();
    QCOMPARE(count, 0);
    QCOMPARE(one->value, sShift | 16);
    QCOMPARE(action(one), QString("Middle Click"));
}

void tst_ConfWidgetMouseActionOptions::filterMayDeleteTheEditor()
{
    Gesture *const one = add("One", 4, 1);
    one->editor->gestureFilter = [one](int) {
        one->editor->deleteLater(); // its control is handling the choice
        return false;
    };
    show(one, 16);
    QTRY_VERIFY(!one->editor);
    QCOMPARE(one->value, 4);
}

void tst_ConfWidgetMouseActionOptions::conflictIsTheGivenOne()
{
    add("Other", 4, 1);
    Gesture *const one = add("One", 4, 1);
    one->editor->conflictName = [](int gesture) {
        return gesture == 16 ? QString("a menu") : QString();
    };
    one->editor->refreshConflictState();
    QCOMPARE(stateClass(one), QString("CorrectIcon"));
    show(one, 16);
    QCOMPARE(one->state->toolTip(), QString("Conflict with a menu"));
    QCOMPARE(one->editor->status().text, QString("Conflict with a menu"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetMouseActionOptions>(argc, argv);
}

#include "tst_ConfWidgetMouseActionOptions.moc"
