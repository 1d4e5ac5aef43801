#include "InputConflictsFixture.h"
#include "support/TestMain.h"
#include "support/XClient.h"
#include "support/XPointer.h"

#include <memory>
#include <utility>

/// A hotkey that is recorded over another one of the program, with the keyboard and the mouse of an
/// X server: what is asked, and which hotkey the system activates afterwards.
class tst_InputConflictsTyped : public QObject, public InputConflictsFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data() { addLooks(); }
    void init();
    void cleanup();

    void answerDecidesWhoIsActivated_data();
    void answerDecidesWhoIsActivated();

private:
    static QPoint centerOf(const QWidget *widget)
    {
        return widget->mapToGlobal(widget->rect().center());
    }
    void type(char letter) const { mKeyboard->type({sControl, static_cast<xcb_keysym_t>(letter)}); }
    /// Types Ctrl with each of "klm" in another program. Returns who is activated by which letter;
    /// m must be somebody's, so that it tells when all have arrived.
    QStringList typeElsewhere();

    static constexpr xcb_keysym_t sControl = 0xffe3;

    std::unique_ptr<XClient> mKeyboard;
    std::unique_ptr<XPointer> mMouse;
};

void tst_InputConflictsTyped::init()
{
    if (!QxtGlobalShortcut::isSupported())
        QSKIP("needs an X server");
    mKeyboard = std::make_unique<XClient>();
    mMouse = std::make_unique<XPointer>();
    create();
    mFarKeys = QKeySequence("Ctrl+M");
    mFarShortcut.setShortcut(mFarKeys);
}

void tst_InputConflictsTyped::cleanup()
{
    destroy();
    for (QxtGlobalShortcut *hotkey : {&mAreaShortcut, &mWindowShortcut, &mFarShortcut})
        hotkey->setShortcut(QKeySequence());
    mMouse.reset();
    mKeyboard.reset();
}

QStringList tst_InputConflictsTyped::typeElsewhere()
{
    QSignalSpy area(&mAreaShortcut, &QxtGlobalShortcut::activated);
    QSignalSpy window(&mWindowShortcut, &QxtGlobalShortcut::activated);
    QSignalSpy far(&mFarShortcut, &QxtGlobalShortcut::activated);
    XClient other;
    other.takeFocus();
    if (!QTest::qWaitFor([] { return !QApplication::activeWindow(); }))
        return {"the window keeps the focus"};
    QStringList activated;
    for (const char letter : {'k', 'l'}) {
        const auto before = far.count();
        type(letter);
        type('m');
        if (!QTest::qWaitFor([&] { return far.count() > before; }))
            return {"nothing is activated"};
        for (int i = 0; i < area.count(); ++i)
            activated.append(QString("%1: Area").arg(letter));
        for (int i = 0; i < window.count(); ++i)
            activated.append(QString("%1: Window").arg(letter));
        area.clear();
        window.clear();
    }
    return activated;
}

void tst_InputConflictsTyped::answerDecidesWhoIsActivated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("told");
    QTest::addColumn<QStringList>("activated");
    QTest::newRow("replace") << sReplace << QStringList() << QStringList{"k: Window"};
    QTest::newRow("swap") << sSwap << QStringList() << QStringList{"k: Window", "l: Area"};
    QTest::newRow("keep both") << sKeepBoth
                               << QStringList{"Also used by: Area", "Also used by: Window"}
                               << QStringList{"k: Area", "k: Window"};
    QTest::newRow("cancel") << sCancel << QStringList() << QStringList{"k: Area", "l: Window"};
}

void tst_InputConflictsTyped::answerDecidesWhoIsActivated()
{
    QFETCH(const QString, text);
    QFETCH(const QStringList, told);
    QFETCH(const QStringList, activated);
    open();
    mMouse->click(centerOf(recorder(mWindow)));
    QTRY_VERIFY(recorder(mWindow)->hasFocus());
    QSignalSpy area(&mAreaShortcut, &QxtGlobalShortcut::activated);
    type('k'); // a hotkey that the server would not give to the field
    QTRY_COMPARE(question(), QString("Ctrl+K is used by: Area"));
    QCOMPARE(area.count(), 0);
    QPoint place;
    const auto isAtRest = [&] { // after the layout, and after the page has scrolled
        const QPushButton *const found = button(text);
        const QPoint now = found && found->isVisible() ? centerOf(found) : QPoint();
        return !now.isNull() && std::exchange(place, now) == now;
    };
    QVERIFY(QTest::qWaitFor(isAtRest));
    mMouse->click(place);
    QTRY_VERIFY(!offer());
    QTRY_COMPARE(notes(), told);
    QCOMPARE(typeElsewhere(), activated);
    if (text == sCancel)
        return;
    undo();
    QTRY_COMPARE(notes(), QStringList());
    QCOMPARE(typeElsewhere(), (QStringList{"k: Area", "l: Window"}));
}

int main(int argc, char **argv)
{
    return runTest<tst_InputConflictsTyped>(argc, argv);
}

#include "tst_InputConflictsTyped.moc"
