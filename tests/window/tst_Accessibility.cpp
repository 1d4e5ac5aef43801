#include "LifetimeFixture.h"
#include "support/TestMain.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QTranslator>

#include <utility>

using MtConf::ConfItem;

namespace {

QString spoken(QWidget *widget, QAccessible::Text text)
{
    return QAccessible::queryAccessibleInterface(widget)->text(text);
}

/// Returns the name that a screen reader announces for a control. On some systems Qt's combo boxes
/// announce their value instead of a name; screen readers then use the name of the editor around
/// them.
QString nameOf(QWidget *control)
{
    return spoken(qobject_cast<QComboBox *>(control) ? control->parentWidget() : control,
                  QAccessible::Name);
}

/// Returns a picture of the control with what is close to it.
QImage surroundings(const QWidget *control)
{
    QWidget *window = control->window();
    const QRect rect(control->mapTo(window, QPoint()), control->size());
    return window->grab(rect.adjusted(-4, -4, 4, 4)).toImage();
}

/// A language in which every text of the host ends with "!".
class Shouting : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QString::fromUtf8(text) + '!' : QString();
    }
};

} // namespace

/// The window for users of a keyboard without a mouse, or of a screen reader.
class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<LifetimeFixture>();
        auto *window = mFixture->manager->ShowWindow("Edit");
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    void cleanup() { mFixture.reset(); }

    void controlIsNamedByItsCaptionAndDescribedByItsGroup_data();
    void controlIsNamedByItsCaptionAndDescribedByItsGroup();
    void colourAndFontButtonsHaveTheirValueAsDescription();
    void partsOfTheWindowAreNamed();
    void captionIsTheBuddyOfItsControl();
    void captionWithAnAmpersandHasNoBuddyAndKeepsItsText();
    void namesFollowTheLanguage();
    void namesSetByTheHostAreKept();
    void tabVisitsThePageAndThenTheRestoreButtons();
    void everySimpleEditorWorksByKeyboard();
    void everyEditorWorksByKeyboardWithFullKeyboardAccess();
    void focusIsVisible_data();
    void focusIsVisible();

private:
    ConfItem *item(const QString &name) const
    {
        return mFixture->manager->getItemByName("Edit", name, "");
    }
    /// Returns the control of an editor that gets the focus first.
    QWidget *firstControl(const QString &name) const
    {
        auto *label = qobject_cast<QLabel *>(item(name)->editor->label());
        return label ? label->buddy() : item(name)->editor->label();
    }

    std::unique_ptr<LifetimeFixture> mFixture;
};

void tst_Accessibility::controlIsNamedByItsCaptionAndDescribedByItsGroup_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::newRow("check box, which is its own caption") << "Flag"
                                                         << "Flag";
    QTest::newRow("spin box") << "Number"
                              << "Number";
    QTest::newRow("combo box") << "Text"
                               << "Text";
    QTest::newRow("multi-select box") << "Bits"
                                      << "Bits";
    QTest::newRow("hotkey") << "Key"
                            << "Key";
    QTest::newRow("mouse action") << "Mouse"
                                  << "Mouse";
    QTest::newRow("language") << "Language"
                              << "Language";
    QTest::newRow("editor of the host") << "Host"
                                        << "Host";
}

void tst_Accessibility::controlIsNamedByItsCaptionAndDescribedByItsGroup()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QCOMPARE(nameOf(firstControl(name)), caption);
    QCOMPARE(firstControl(name)->accessibleName(), name == "Flag" ? QString() : caption);
    QCOMPARE(spoken(firstControl(name), QAccessible::Description), QString("Edit"));
}

void tst_Accessibility::colourAndFontButtonsHaveTheirValueAsDescription()
{
    QCOMPARE(spoken(firstControl("Colour"), QAccessible::Name), QString("Colour"));
    QCOMPARE(spoken(firstControl("Colour"), QAccessible::Description), QString("#ff0000"));
    QFont font("Some Family");
    font.setPixelSize(17);
    mFixture->store()->set<QFont>("Edit.Font", font);
    item("Font")->editor->loadConf();
    QCOMPARE(spoken(firstControl("Font"), QAccessible::Name), QString("Font"));
    QCOMPARE(spoken(firstControl("Font"), QAccessible::Description), QString("Some Family, 17"));
}

void tst_Accessibility::partsOfTheWindowAreNamed()
{
    QCOMPARE(spoken(WindowFixture::classList(), QAccessible::Name),
             QString("Quorvi Configuration"));
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    QCOMPARE(spoken(area, QAccessible::Name), QString("Edit"));
    mFixture->window()->switchToView("Other");
    QCOMPARE(spoken(area, QAccessible::Name), QString("Other"));
    QCOMPARE(spoken(WindowFixture::groups().first(), QAccessible::Name), QString("Other"));
}

void tst_Accessibility::captionIsTheBuddyOfItsControl()
{
    const auto *caption = qobject_cast<QLabel *>(item("Number")->editor->label());
    QCOMPARE(caption->buddy(), static_cast<QWidget *>(mFixture->control<QSpinBox>("Number")));
}

void tst_Accessibility::captionWithAnAmpersandHasNoBuddyAndKeepsItsText()
{
    item("Number")->displayText = "Cut & paste";
    mFixture->window()->switchToView("Edit");
    const auto *caption = qobject_cast<QLabel *>(item("Number")->editor->label());
    QVERIFY(!caption->buddy());
    QCOMPARE(caption->text(), QString("Cut & paste"));
    QCOMPARE(spoken(mFixture->control<QSpinBox>("Number"), QAccessible::Name),
             QString("Cut & paste"));
}

void tst_Accessibility::namesFollowTheLanguage()
{
    Shouting translator;
    QCoreApplication::installTranslator(&translator);
    Q_EMIT mFixture->manager->sigLanguageChange();
    for (const char *name :
         {"Flag", "Number", "Text", "Bits", "Colour", "Font", "Mouse", "Language", "Host"})
        QCOMPARE(nameOf(firstControl(name)), QString(name) + '!');
    QCOMPARE(firstControl("Text")->accessibleName(), QString("Text!"));
    // The name of the hotkey editor is updated by the event that the application sends.
    QTRY_COMPARE(spoken(firstControl("Key"), QAccessible::Name), QString("Key!"));
}

void tst_Accessibility::namesSetByTheHostAreKept()
{
    QWidget *box = firstControl("Number");
    box->setProperty("NamedByPage", QVariant());
    box->setProperty("DescribedByPage", QVariant());
    box->setAccessibleName("own name");
    box->setAccessibleDescription("own description");
    Q_EMIT mFixture->manager->sigLanguageChange();
    QCOMPARE(spoken(box, QAccessible::Name), QString("own name"));
    QCOMPARE(spoken(box, QAccessible::Description), QString("own description"));
}

void tst_Accessibility::tabVisitsThePageAndThenTheRestoreButtons()
{
    WindowFixture::classList()->setFocus();
    QStringList visited;
    for (int i = 0; i < 20 && visited.count("Restore All Default") == 0; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget *focus = QApplication::focusWidget();
        visited << (focus->accessibleName().isEmpty() ? spoken(focus, QAccessible::Name)
                                                      : focus->accessibleName());
    }
    // The scroll area is in the tab order because the arrow keys scroll it. "Mouse" has two boxes.
    QCOMPARE(visited,
             (QStringList{"Edit", "Flag", "Number", "Text", "Bits", "Colour", "Font", "Key",
                          "Setup failed, the hotkey may be occupied. Click to try setup "
                          "again.",
                          "Mouse", "Mouse", "Language", "Host", "Restore Default",
                          "Restore All Default"}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(WindowFixture::classList()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(),
             static_cast<QWidget *>(WindowFixture::restoreAllButton()));
}

void tst_Accessibility::everySimpleEditorWorksByKeyboard()
{
    QTest::keyClick(firstControl("Flag"), Qt::Key_Space);
    QCOMPARE(mFixture->flag, false);
    QTest::keyClick(firstControl("Number"), Qt::Key_Up);
    QCOMPARE(mFixture->number, 6);
    QTest::keyClick(firstControl("Text"), Qt::Key_Down);
    QCOMPARE(mFixture->text, QString("two"));
    QTest::keyClick(firstControl("Colour"), Qt::Key_Space);
    QTRY_VERIFY(mFixture->control<QColorDialog>("Colour"));
    delete mFixture->control<QColorDialog>("Colour");
    WindowFixture::classList()->setFocus();
    QTest::keyClick(WindowFixture::classList(), Qt::Key_Up);
    QTRY_VERIFY(mFixture->other->editor);
}

void tst_Accessibility::everyEditorWorksByKeyboardWithFullKeyboardAccess()
{
    QVERIFY(!MtConf::ConfigItemWidget::sFullKeyboardAccess);
    MtConf::ConfigItemWidget::sFullKeyboardAccess = true;
    mFixture->window()->switchToView("Other");
    mFixture->window()->switchToView("Edit");
    MtConf::ConfigItemWidget::sFullKeyboardAccess = false;
    QCursor::setPos(0, 0); // Qt does not close a list that is under the cursor

    const auto stored = [this](const QString &name) {
        return mFixture->store()->get<int>("Edit." + name);
    };
    for (const char *name : {"Bits", "Mouse"}) {
        auto *box = qobject_cast<QComboBox *>(firstControl(name));
        const int before = stored(name);
        for (const auto &[key, modifier] :
             {std::pair(Qt::Key_Space, Qt::NoModifier), std::pair(Qt::Key_F4, Qt::NoModifier),
              std::pair(Qt::Key_Down, Qt::AltModifier)}) {
            box->setFocus();
            QTest::keyClick(box, key, modifier);
            QVERIFY(box->view()->isVisible());
            QTest::keyClick(box->view(), Qt::Key_Escape);
            QTRY_VERIFY(!box->view()->isVisible());
        }
        QTest::keyClick(box, Qt::Key_F4, Qt::AltModifier);
        QVERIFY(!box->view()->isVisible());
        QTest::keyClick(box, Qt::Key_Space);
        QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(stored(name) != before);
    }

    auto *hotkey = firstControl("Key");
    hotkey->setFocus();
    QTest::keyClick(hotkey, Qt::Key_F7, Qt::ControlModifier);
    QCOMPARE(mFixture->key, QKeySequence(Qt::CTRL | Qt::Key_F7));
    QTest::keyClick(hotkey, Qt::Key_Backspace);
    QVERIFY(mFixture->key.isEmpty());
    QTest::keyClick(hotkey, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(mFixture->key, QKeySequence(Qt::CTRL | Qt::Key_Delete));
}

void tst_Accessibility::focusIsVisible_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(QThemeCtrl::Theme::Light);
    QTest::newRow("dark") << int(QThemeCtrl::Theme::Dark);
}

void tst_Accessibility::focusIsVisible()
{
    QFETCH(int, theme);
    QThemeCtrl::instance()->setTheme(static_cast<QThemeCtrl::Theme>(theme));
    QList<QWidget *> controls{WindowFixture::classList(), WindowFixture::restorePageButton(),
                              WindowFixture::restoreAllButton()};
    for (const char *name :
         {"Flag", "Number", "Text", "Bits", "Colour", "Font", "Key", "Mouse", "Language", "Host"})
        controls << firstControl(name);
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    for (QWidget *control : std::as_const(controls)) {
        if (area->isAncestorOf(control))
            area->ensureWidgetVisible(control);
        area->setFocus();
        const QImage without = surroundings(control);
        control->setFocus(Qt::TabFocusReason);
        QVERIFY2(control->hasFocus(), qPrintable(spoken(control, QAccessible::Name)));
        // A blinking text cursor alone is not enough; neither is the selection.
        if (auto *edit = qobject_cast<QLineEdit *>(control))
            edit->deselect();
        QVERIFY2(surroundings(control) != without, qPrintable(spoken(control, QAccessible::Name)));
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_Accessibility>(argc, argv);
}

#include "tst_Accessibility.moc"
