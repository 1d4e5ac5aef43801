#include "KeySequenceEditFixture.h"
#include "support/TestMain.h"

#include "QtCompat_p.h"

#include <QDialog>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalSpy>

class tst_KeySequenceEditShortcuts : public KeySequenceEditFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { reset(); }
    void cleanup() { mParent.reset(); }

    void shortcutOfTheWindowIsRecorded();
    void shortcutIsRecordedInEveryContext_data();
    void shortcutIsRecordedInEveryContext();
    void ambiguousShortcutsAreNotActivated();
    void mnemonicIsRecorded_data();
    void mnemonicIsRecorded();
    void altAloneDoesNotActivateTheMenuBar();
    void editingKeysOfTheSystemAreRecorded();
    void dialogStaysOpenOnEscapeAndReturn();

    void tabMovesTheFocusOutOfTheField();
    void tabWithAModifierIsRecorded_data();
    void tabWithAModifierIsRecorded();
    void tabIsRecordedIfNothingElseTakesTheFocus();
};

void tst_KeySequenceEditShortcuts::shortcutOfTheWindowIsRecorded()
{
    field();
    auto *save = new QAction(mParent.get());
    save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    mParent->addAction(save);
    QSignalSpy saved(save, &QAction::triggered);
    QTest::keyClick(mBefore, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);
    QTest::keyClick(mField, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(saved.count(), 1);
    QCOMPARE(mField->text(), QString("Ctrl+S"));
}

void tst_KeySequenceEditShortcuts::shortcutIsRecordedInEveryContext_data()
{
    QTest::addColumn<int>("context");
    QTest::addColumn<QString>("keys");
    const QList<QPair<const char *, int>> contexts = {{"widget", Qt::WidgetShortcut},
                                                      {"children", Qt::WidgetWithChildrenShortcut},
                                                      {"window", Qt::WindowShortcut},
                                                      {"application", Qt::ApplicationShortcut}};
    for (const auto &context : contexts) {
        for (const char *keys : {"K", "F5", "Esc", "Del", "Ctrl+C", "Ctrl+Alt+K", "Shift+Home"})
            QTest::addRow("%s, %s", context.first, keys) << context.second << keys;
    }
}

void tst_KeySequenceEditShortcuts::shortcutIsRecordedInEveryContext()
{
    QFETCH(int, context);
    QFETCH(QString, keys);
    field();
    // For Qt::WidgetShortcut the shortcut must belong to the field itself.
    QWidget *owner = context == Qt::WidgetShortcut ? mField : mParent.get();
    auto *shortcut = new QShortcut(QKeySequence(keys), owner);
    shortcut->setContext(Qt::ShortcutContext(context));
    QSignalSpy activations(shortcut, &QShortcut::activated);
    const int chord = QtCompat::chordAt(QKeySequence(keys), 0);
    QTest::keyClick(mParent->windowHandle(), Qt::Key(chord & 0x01ffffff),
                    Qt::KeyboardModifiers(chord & ~0x01ffffff));
    QCOMPARE(mField->text(), keys);
    QCOMPARE(activations.count(), 0);
}

void tst_KeySequenceEditShortcuts::ambiguousShortcutsAreNotActivated()
{
    field();
    QShortcut first(QKeySequence("Ctrl+S"), mParent.get());
    QShortcut second(QKeySequence("Ctrl+S"), mParent.get());
    QSignalSpy ambiguous(&first, &QShortcut::activatedAmbiguously);
    QTest::keyClick(mParent->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(mField->text(), QString("Ctrl+S"));
    QCOMPARE(ambiguous.count(), 0);
}

void tst_KeySequenceEditShortcuts::mnemonicIsRecorded_data()
{
    QTest::addColumn<QString>("owner");
    QTest::newRow("button") << "button";
    QTest::newRow("label of another field") << "label";
    QTest::newRow("menu") << "menu";
}

void tst_KeySequenceEditShortcuts::mnemonicIsRecorded()
{
    QFETCH(QString, owner);
    field();
    QPushButton button("&Open");
    QSignalSpy clicks(&button, &QPushButton::clicked);
    QMenu *menu = nullptr;
    if (owner == "button") {
        mParent->layout()->addWidget(&button);
        button.show();
    } else if (owner == "label") {
        auto *label = new QLabel("&Other", mParent.get());
        label->setBuddy(mAfter);
        mParent->layout()->addWidget(label);
        label->show();
    } else {
        auto *bar = new QMenuBar(mParent.get());
        menu = bar->addMenu("&Options");
        menu->addAction("One");
        mParent->layout()->setMenuBar(bar);
    }
    // In another field the mnemonic works.
    mBefore->setFocus();
    QTest::keyClick(mParent->windowHandle(), Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(clicks.count() == 1 || mAfter->hasFocus() || (menu && menu->isVisible()));
    QSignalSpy presses(&button, &QPushButton::pressed);
    if (menu)
        menu->close();
    mField->setFocus();
    QTest::keyClick(mParent->windowHandle(), Qt::Key_O, Qt::AltModifier);
    QCOMPARE(mField->text(), QString("Alt+O"));
    QVERIFY(mField->hasFocus());
    QCOMPARE(presses.count(), 0);
    QVERIFY(!menu || !menu->isVisible());
}

void tst_KeySequenceEditShortcuts::altAloneDoesNotActivateTheMenuBar()
{
    field();
    auto *bar = new QMenuBar(mParent.get());
    bar->addMenu("&Options")->addAction("One");
    mParent->layout()->setMenuBar(bar);
    mField->allowSingleModifier = true;
    QTest::keyPress(mParent->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(mParent->windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    QVERIFY(mField->hasFocus());
    QVERIFY(!bar->activeAction());
}

void tst_KeySequenceEditShortcuts::editingKeysOfTheSystemAreRecorded()
{
    field();
    for (int standard = QKeySequence::Open; standard <= QKeySequence::Cancel; ++standard) {
        const auto bindings = QKeySequence::keyBindings(
            static_cast<QKeySequence::StandardKey>(standard));
        for (const QKeySequence &keys : bindings) {
            const int chord = QtCompat::chordAt(keys, 0);
            const int key = chord & 0x01ffffff;
            if (keys.count() != 1 || key == Qt::Key_Backtab)
                continue;
            QTest::keyClick(mParent->windowHandle(), Qt::Key(key),
                            Qt::KeyboardModifiers(chord & ~0x01ffffff));
            QCOMPARE(mField->keySequence(), keys);
        }
    }
}

void tst_KeySequenceEditShortcuts::dialogStaysOpenOnEscapeAndReturn()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *edit = new KeySequenceEdit(QKeySequence(), &dialog);
    auto *button = new QPushButton("OK", &dialog);
    button->setDefault(true);
    QSignalSpy clicks(button, &QPushButton::clicked);
    layout->addWidget(edit);
    layout->addWidget(button);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString("Esc"));
    QVERIFY(dialog.isVisible());
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(edit->text(), QString("Return"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(clicks.count(), 0);
}

void tst_KeySequenceEditShortcuts::tabMovesTheFocusOutOfTheField()
{
    field();
    QTest::keyClick(mField, Qt::Key_Tab);
    QVERIFY(mAfter->hasFocus());
    mField->setFocus();
    QTest::keyClick(mField, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(mBefore->hasFocus());
    QCOMPARE(mField->text(), QString());
}

void tst_KeySequenceEditShortcuts::tabWithAModifierIsRecorded_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("Control") << int(Qt::Key_Tab) << int(Qt::ControlModifier) << "Ctrl+Tab";
    QTest::newRow("Alt") << int(Qt::Key_Tab) << int(Qt::AltModifier) << "Alt+Tab";
    QTest::newRow("Meta") << int(Qt::Key_Tab) << int(Qt::MetaModifier) << "Meta+Tab";
    QTest::newRow("Control and Shift")
        << int(Qt::Key_Backtab) << int(Qt::ControlModifier | Qt::ShiftModifier) << "Ctrl+Shift+Tab";
    QTest::newRow("Meta and Shift")
        << int(Qt::Key_Backtab) << int(Qt::MetaModifier | Qt::ShiftModifier) << "Meta+Shift+Tab";
}

void tst_KeySequenceEditShortcuts::tabWithAModifierIsRecorded()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    field();
    QTest::keyClick(mField, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(mField->text(), "text");
    QVERIFY(mField->hasFocus());
}

void tst_KeySequenceEditShortcuts::tabIsRecordedIfNothingElseTakesTheFocus()
{
    field();
    mBefore->setEnabled(false);
    mAfter->setEnabled(false);
    QTest::keyClick(mField, Qt::Key_Tab);
    QCOMPARE(mField->text(), QString("Tab"));
}

int main(int argc, char **argv)
{
    return runTest<tst_KeySequenceEditShortcuts>(argc, argv);
}

#include "tst_KeySequenceEditShortcuts.moc"
