#include "LifetimeFixture.h"
#include "support/TableTranslator.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>

namespace {

constexpr char sWarning[] = "RowWarning";
constexpr char sReason[] = "RowReason";

} // namespace

/// A hotkey that another program has registered, on every platform.
class TakenHotkey : public QxtGlobalShortcut
{
    Q_OBJECT
    Q_PROPERTY(QxtGlobalShortcut::Failure failure READ failure)
public:
    Failure failure() const { return Taken; }
};

/// What pages of the modern look say and ask.
class tst_ModernPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void failedHotkeyIsSaidInWordsAndRegisteredAgain();
    void hotkeyThatCannotBeRegisteredAgainHasNoLink();
    void emptyHotkeyNeedsNoWords();
    void conflictOfGesturesIsSaidInWords();
    void dependentRowSaysWhatItNeeds();
    void chosenEntriesAreListedAsAText();
    void restoringAPageNamesWhatGoes();
    void restoringAllCountsAllPages();
    void questionWithoutChangesHasNoCount();
    void questionShowsItsWholeText();
    void customPageHasATitleAndIsResetByTheHost();
    void customPageWithoutAResetHasNoButton();
    void classWithoutARestoreButtonHasNone();
    void ownCaptionOfACustomPageIsHidden();
    void narrowWindowShowsIconsWithToolTips();
    void rightToLeftIsMirrored();
    void pageStaysInTheWindow();

private:
    void open(const QString &page);
    MtConf::ConfItem *item(const char *name) const
    {
        return mHost->manager->getItemByName("Edit", name, "");
    }
    /// Returns the visible text with this style class in the row of `name`; null if there is none.
    QLabel *note(const char *name, const char *styleClass) const
    {
        const QList<QLabel *> labels = item(name)->editor->parentWidget()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->property("class") == QLatin1String(styleClass) && label->isVisible())
                return label;
        }
        return nullptr;
    }
    static QRect inWindow(const QWidget *widget)
    {
        return {widget->mapTo(widget->window(), QPoint()), widget->size()};
    }
    static QPushButton *button(QMessageBox *box, const QString &text)
    {
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *one : buttons) {
            if (one->text() == text)
                return qobject_cast<QPushButton *>(one);
        }
        return nullptr;
    }

    std::unique_ptr<LifetimeFixture> mHost;
};

void tst_ModernPage::init()
{
    mHost = std::make_unique<LifetimeFixture>();
    mHost->manager->windowLook = MtConf::ModernLook;
    MtConf::ConfigurationWindow::mIconMap.clear();
}

void tst_ModernPage::cleanup()
{
    mHost.reset();
}

void tst_ModernPage::open(const QString &page)
{
    QVERIFY(QTest::qWaitForWindowExposed(mHost->manager->ShowWindow(page)));
    QCoreApplication::processEvents();
}

void tst_ModernPage::failedHotkeyIsSaidInWordsAndRegisteredAgain()
{
    TakenHotkey hotkey;
    item("Key")->properties["Shortcut"] = QVariant::fromValue<QxtGlobalShortcut *>(&hotkey);
    mHost->key = QKeySequence("Ctrl+K, Ctrl+L"); // no system registers two chords
    hotkey.setShortcut(mHost->key);
    open("Edit");
    QLabel *words = note("Key", sWarning);
    QVERIFY(words);
    QVERIFY(words->text().startsWith("Another program uses this hotkey. <a href"));
    QCOMPARE(words->accessibleName(), QString("Another program uses this hotkey. Try again"));
    QVERIFY(!mHost->control<QPushButton>("Key")->isVisible());
    QVERIFY(words->focusPolicy() & Qt::TabFocus);

    hotkey.setEnabled(false);
    QCOMPARE(note("Key", sWarning)->text(), QString("Disabled."));
    hotkey.setEnabled(true);
    hotkey.setShortcut(QKeySequence());
    QTest::keyClick(words, Qt::Key_Tab); // selects the link
    words->setFocus();
    Q_EMIT words->linkActivated("#");
    QCOMPARE(hotkey.shortcut(), mHost->key);
}

void tst_ModernPage::hotkeyThatCannotBeRegisteredAgainHasNoLink()
{
    mHost->key = QKeySequence("Ctrl+K, Ctrl+L");
    mHost->shortcut.setShortcut(mHost->key);
    open("Edit");
    QLabel *words = note("Key", sWarning);
    QVERIFY(words);
    QCOMPARE(words->text(), QString("A global hotkey is one key, alone or with modifiers."));
    QCOMPARE(words->focusPolicy(), Qt::NoFocus);
}

void tst_ModernPage::emptyHotkeyNeedsNoWords()
{
    mHost->key = QKeySequence();
    open("Edit");
    QVERIFY(!note("Key", sWarning));
    QVERIFY(!mHost->control<QPushButton>("Key")->isVisible());
}

void tst_ModernPage::conflictOfGesturesIsSaidInWords()
{
    int other = 8;
    mHost->manager->addConfMouseAction("Rival", &other, 1, "Edit", "Rival");
    open("Edit");
    QVERIFY(!note("Mouse", sWarning));
    ConfStorage::instance()->set("Edit.Rival", 2);
    item("Rival")->editor->loadConf();
    auto *words = note("Mouse", sWarning);
    QVERIFY(words);
    QCOMPARE(words->text(), QString("Conflict with Rival"));
    QCOMPARE(words->focusPolicy(), Qt::NoFocus);
    mHost.reset(); // before the variable
}

void tst_ModernPage::dependentRowSaysWhatItNeeds()
{
    int number = 0;
    int level = 0;
    QString text;
    MtConf::ConfItem *needs = item("Flag");
    mHost->flag = false;
    mHost->manager->addConfInt32("Distance", &number, "Edit", "Distance")->dependsOn(needs, true);
    mHost->manager->addConfText("Words", &text, "Edit", "Words")->dependsOn(needs, false);
    mHost->manager->addConfInt32("Level", &level, "Edit", "Level")->dependsOn(item("Number"), 7);
    open("Edit");
    QCOMPARE(note("Distance", sReason)->text(), QString("Needs “Flag”"));
    QVERIFY(!note("Words", sReason));
    QCOMPARE(note("Level", sReason)->text(), QString("Needs “Number”: 7"));
    QTest::mouseClick(mHost->control<QCheckBox>("Flag"), Qt::LeftButton, {}, QPoint(10, 10));
    QVERIFY(!note("Distance", sReason));
    QCOMPARE(note("Words", sReason)->text(), QString("Not with “Flag”"));
    mHost.reset(); // before the variables
}

void tst_ModernPage::chosenEntriesAreListedAsAText()
{
    mHost->bits = 6;
    open("Edit");
    auto *box = mHost->control<QComboBox>("Bits");
    QCOMPARE(box->lineEdit()->text(), QString("2, 4"));
    QCOMPARE(mHost->bits, 6);
}

void tst_ModernPage::restoringAPageNamesWhatGoes()
{
    open("Edit");
    const QString path = LifetimeFixture::configuration();
    mHost->manager->restoreAllDefault();
    mHost->window()->switchToView("Edit");
    ConfStorage::instance()->set("Edit.Number", 11);
    ConfStorage::instance()->set("Edit.Text", QString("three"));
    QVERIFY(QFile::remove(path));
    QPushButton *reset = WindowFixture::restorePageButton();
    QCOMPARE(reset->text(), QString("Reset this page…"));
    QString question;
    QString details;
    QVERIFY(WindowFixture::clickAndAnswer(reset, [&](QMessageBox *box) {
        question = box->text();
        details = box->informativeText();
        QCOMPARE(box->defaultButton(), button(box, "Cancel"));
        const QImage drawn = button(box, "Reset")->grab().toImage();
        QCOMPARE(drawn.pixelColor(drawn.width() / 2, drawn.height() - 4),
                 QThemeCtrl::instance()->color("ModernError"));
        QTest::keyClick(box, Qt::Key_Return); // the safe answer
    }));
    QCOMPARE(question, QString("Reset 2 settings on this page?"));
    QCOMPARE(details, QString("Number\nText"));
    QCOMPARE(mHost->number, 11);
    QVERIFY(WindowFixture::clickAndAnswer(
        reset, [](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); }));
    QCOMPARE(mHost->number, 11);
    QVERIFY(WindowFixture::clickAndAnswer(
        reset, [](QMessageBox *box) { QTest::mouseClick(button(box, "Reset"), Qt::LeftButton); }));
    QVERIFY(mHost->number != 11);
}

void tst_ModernPage::restoringAllCountsAllPages()
{
    open("Edit");
    mHost->manager->restoreAllDefault();
    ConfStorage::instance()->set("Other.Flag", !mHost->otherValue);
    const bool changed = mHost->otherValue;
    QPushButton *reset = WindowFixture::restoreAllButton();
    QCOMPARE(reset->accessibleName(), QString("Reset all settings…"));
    QString question;
    QVERIFY(WindowFixture::clickAndAnswer(reset, [&](QMessageBox *box) {
        question = box->text();
        QTest::mouseClick(button(box, "Reset"), Qt::LeftButton);
    }));
    QCOMPARE(question, QString("Reset 1 setting on all pages?"));
    QCOMPARE(mHost->otherValue, !changed);
}

void tst_ModernPage::questionWithoutChangesHasNoCount()
{
    open("Other");
    mHost->manager->restoreAllDefault();
    QString question;
    QVERIFY(
        WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), [&](QMessageBox *box) {
            question = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        }));
    QCOMPARE(question, QString("Reset this page?"));
}

void tst_ModernPage::questionShowsItsWholeText()
{
    // As long as in German.
    const TableTranslator translator(
        {{"Reset this page?", "4 Einstellungen auf allen Seiten zurücksetzen?"}});
    open("Other");
    mHost->manager->restoreAllDefault();
    int missing = 0;
    QVERIFY(
        WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), [&](QMessageBox *box) {
            const auto *label = box->findChild<QLabel *>("qt_msgbox_label");
            const int width = label->wordWrap() ? label->minimumSizeHint().width()
                                                : label->sizeHint().width();
            missing = width - label->width();
            QTest::keyClick(box, Qt::Key_Return);
        }));
    QVERIFY2(missing <= 0, qPrintable(QString::number(missing)));
}

void tst_ModernPage::customPageHasATitleAndIsResetByTheHost()
{
    int resets = 0;
    mHost->manager->getMajorConfItemByName("Custom")->restoreDefault = [&] { ++resets; };
    open("Custom");
    QCOMPARE(WindowFixture::child<QLabel>("ModernPageTitle")->text(), QString("Custom"));
    QPushButton *reset = WindowFixture::restorePageButton();
    QVERIFY(reset->isVisible());
    QVERIFY(WindowFixture::clickAndAnswer(
        reset, [](QMessageBox *box) { QTest::mouseClick(button(box, "Reset"), Qt::LeftButton); }));
    QCOMPARE(resets, 1);
}

void tst_ModernPage::customPageWithoutAResetHasNoButton()
{
    open("Custom");
    QVERIFY(!WindowFixture::restorePageButton()->isVisible());
    mHost->window()->switchToView("Edit");
    QVERIFY(WindowFixture::restorePageButton()->isVisible());
}

void tst_ModernPage::classWithoutARestoreButtonHasNone()
{
    mHost->manager->setConfigClassFlag("Edit", MtConf::ClassWithoutRestoreButton);
    open("Edit");
    QVERIFY(!WindowFixture::restorePageButton()->isVisible());
}

void tst_ModernPage::ownCaptionOfACustomPageIsHidden()
{
    QPointer<QLabel> caption;
    mHost->manager->setMajorWidget("Custom", [&](QWidget *parent) {
        auto *page = new QWidget(parent);
        caption = new QLabel("Custom", page);
        caption->setProperty("ClassLabel", "normal");
        return page;
    });
    open("Custom");
    QVERIFY(caption && caption->isHidden());
}

void tst_ModernPage::narrowWindowShowsIconsWithToolTips()
{
    mHost->manager->windowFeatures = MtConf::AllWindowFeatures;
    open("Edit");
    QListView *list = WindowFixture::classList();
    const int dpi = qEnvironmentVariableIntValue("QT_FONT_DPI");
    mHost->window()->resize(760 * dpi / 96, 600);
    QCoreApplication::processEvents();
    QVERIFY(list->width() > 100 * dpi / 96);
    QVERIFY(list->model()->index(0, 0).data(Qt::ToolTipRole).toString().isEmpty());
    mHost->window()->resize(759 * dpi / 96 - 1, 600);
    QCoreApplication::processEvents();
    QCOMPARE(list->width(), qRound(36. * dpi / 96));
    QCOMPARE(list->model()->index(0, 0).data(Qt::ToolTipRole).toString(),
             list->model()->index(0, 0).data().toString());
    auto *line = WindowFixture::child<QFrame>("ModernColumnLine");
    QTRY_VERIFY(line->x() < 72. * dpi / 96); // no text widens the column
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    QTRY_VERIFY(area->widget()->width() <= area->viewport()->width());
}

void tst_ModernPage::rightToLeftIsMirrored()
{
    open("Edit");
    const QRect flag = inWindow(item("Flag")->editor);
    const QRect number = inWindow(item("Number")->editor);
    const QRect list = inWindow(WindowFixture::classList());
    const int width = mHost->window()->width();
    mHost->window()->setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    const auto mirrored = [width](const QRect &rect) {
        return QRect(width - rect.left() - rect.width(), rect.top(), rect.width(), rect.height());
    };
    QCOMPARE(inWindow(WindowFixture::classList()), mirrored(list));
    QCOMPARE(inWindow(item("Flag")->editor), mirrored(flag));
    QCOMPARE(inWindow(item("Number")->editor), mirrored(number));
}

void tst_ModernPage::pageStaysInTheWindow()
{
    open("Edit");
    const int dpi = qEnvironmentVariableIntValue("QT_FONT_DPI");
    mHost->window()->resize(680 * dpi / 96, 400 * dpi / 96); // the least size
    auto *area = WindowFixture::child<QScrollArea>("scrollArea");
    QTRY_VERIFY2(area->widget()->width() <= area->viewport()->width(),
                 QByteArray::number(area->widget()->width() - area->viewport()->width()));
}

int main(int argc, char **argv)
{
    return runTest<tst_ModernPage>(argc, argv);
}

#include "tst_ModernPage.moc"
