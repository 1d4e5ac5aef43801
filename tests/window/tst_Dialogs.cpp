#include "LifetimeFixture.h"
#include "support/TestMain.h"

#include <OrvUtils/OrvScreenManager.h>

#include <QIconfont/QIconfont.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyleOptionGroupBox>
#include <QTranslator>

/// The dialogs and lists that the settings window opens.
class tst_Dialogs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void questionHasTheTitleOfTheWindow();
    void titleOfADialogIsKept();
    void textsOfTheColourDialogHaveOneSize();
    void swatchesGrowWithTheTexts();
    void textsOfTheFontDialogHaveOneSize();
    void listsOfTheFontDialogShowWholeRows();
    void groupsOfTheFontDialogDoNotCoverTheirTitles();
    void iconFontIsNotOffered();
    void fontThatIsNotInstalledIsShownAsItIsDrawn();
    void lettersThatJoinHaveNoUnderline();
    void listsOfBoxesHaveRoundCorners();

private:
    QColorDialog *openColorDialog() const;
    void withFontDialog(const std::function<void(QFontDialog *)> &act) const;
    static double scale()
    {
        return OrvScreenManager::instance()->widgetScreen(WindowFixture::window()).dpi / 96;
    }

    std::unique_ptr<LifetimeFixture> mFixture;
};

namespace {

/// Qt's own texts in a language whose letters join.
class Joining : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *, const char *, int) const override
    {
        const bool isOfQt = *context == 'Q' && qstrcmp(context, "QObject") != 0;
        return isOfQt ? QString::fromUtf8("ا&لون") : QString();
    }
};

/// Returns the sizes of the fonts of the texts in `dialog`, in points.
QSet<int> sizesOfTexts(const QDialog *dialog)
{
    QSet<int> sizes;
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const bool isText = qobject_cast<const QLabel *>(widget)
                            || qobject_cast<const QListView *>(widget)
                            || qobject_cast<const QSpinBox *>(widget)
                            || qobject_cast<const QComboBox *>(widget)
                            || qobject_cast<const QCheckBox *>(widget)
                            || qobject_cast<const QGroupBox *>(widget);
        if (isText && widget->window() == dialog)
            sizes << widget->font().pointSize();
    }
    return sizes;
}

QList<QListView *> listsOf(const QFontDialog *dialog)
{
    QList<QListView *> lists;
    const QList<QListView *> views = dialog->findChildren<QListView *>();
    for (QListView *view : views) {
        if (view->window() == dialog)
            lists << view;
    }
    return lists;
}

QStringList rowsOf(const QAbstractItemView *view)
{
    QStringList rows;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        rows << view->model()->index(row, 0).data().toString();
    return rows;
}

} // namespace

void tst_Dialogs::initTestCase()
{
    // Loads the font.
    QIconfont::Icon(QChar(0xe800), Qt::black, 8, QMargins());
}

void tst_Dialogs::init()
{
    mFixture = std::make_unique<LifetimeFixture>();
    mFixture->font = QFont("DejaVu Serif");
    mFixture->font.setPixelSize(17);
    mFixture->declare();
    mFixture->manager->ShowWindow("Edit");
    WindowFixture::window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
}

void tst_Dialogs::cleanup()
{
    mFixture.reset();
}

QColorDialog *tst_Dialogs::openColorDialog() const
{
    mFixture->control<QPushButton>("Colour")->click();
    auto *dialog = mFixture->control<QColorDialog>("Colour");
    return QTest::qWaitForWindowExposed(dialog) ? dialog : nullptr;
}

/// Calls `act` with the font dialog while it is open.
void tst_Dialogs::withFontDialog(const std::function<void(QFontDialog *)> &act) const
{
    bool called = false;
    QTimer::singleShot(0, mFixture->manager.get(), [&] {
        auto *dialog = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCoreApplication::processEvents(); // lays it out
        called = true;
        act(dialog);
        dialog->reject();
    });
    mFixture->control<QPushButton>("Font")->click();
    QVERIFY(called);
}

void tst_Dialogs::questionHasTheTitleOfTheWindow()
{
    QString title;
    QVERIFY(
        WindowFixture::clickAndAnswer(WindowFixture::restorePageButton(), [&](QMessageBox *box) {
            title = box->windowTitle();
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        }));
    QCOMPARE(title, QString("Quorvi Configuration"));
}

void tst_Dialogs::titleOfADialogIsKept()
{
    withFontDialog(
        [](const QFontDialog *dialog) { QCOMPARE(dialog->windowTitle(), QString("Select font")); });
}

void tst_Dialogs::textsOfTheColourDialogHaveOneSize()
{
    const QColorDialog *dialog = openColorDialog();
    QVERIFY(dialog);
    QCOMPARE(sizesOfTexts(dialog), QSet<int>{14});
}

void tst_Dialogs::swatchesGrowWithTheTexts()
{
    if (scale() <= 1)
        QSKIP("Qt's swatches have the size of these texts");
    const QColorDialog *dialog = openColorDialog();
    QVERIFY(dialog);
    QVERIFY(!dialog->findChild<QWidget *>(QString())->inherits("QWellArray")
            || !dialog->findChild<QWidget *>(QString())->isVisible());
    QList<QWidget *> wells;
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("MtConf::MagnifiedWidget"))
            wells << widget;
    }
    QCOMPARE(wells.size(), 2); // basic colours and own colours
    QWidget *basic = wells.first()->height() > wells.last()->height() ? wells.first()
                                                                      : wells.last();
    // Eight columns and six rows, filled column by column.
    const QSizeF cell(basic->width() / 8.0, basic->height() / 6.0);
    QCOMPARE(cell, QSizeF(28, 24) * scale());
    QTest::mouseClick(basic, Qt::LeftButton, {},
                      QPoint(qRound(2.5 * cell.width()), qRound(1.5 * cell.height())));
    QCOMPARE(dialog->currentColor().rgb(), QColorDialog::standardColor(2 * 6 + 1).rgb());
    QTest::keyClick(basic, Qt::Key_Right);
    QTest::keyClick(basic, Qt::Key_Space);
    QCOMPARE(dialog->currentColor().rgb(), QColorDialog::standardColor(3 * 6 + 1).rgb());
    const QImage picture = basic->grab().toImage();
    const QPointF center(3.5 * cell.width(), 1.5 * cell.height());
    QCOMPARE(picture.pixelColor((center * picture.devicePixelRatio()).toPoint()).rgb(),
             QColorDialog::standardColor(3 * 6 + 1).rgb());
}

void tst_Dialogs::textsOfTheFontDialogHaveOneSize()
{
    withFontDialog(
        [](const QFontDialog *dialog) { QCOMPARE(sizesOfTexts(dialog), QSet<int>{14}); });
}

void tst_Dialogs::listsOfTheFontDialogShowWholeRows()
{
    withFontDialog([](const QFontDialog *dialog) {
        const QList<QListView *> lists = listsOf(dialog);
        QCOMPARE(lists.size(), 3);
        for (const QListView *list : lists) {
            const int rowHeight = list->sizeHintForRow(0);
            QVERIFY(list->viewport()->height() >= 8 * rowHeight);
            QVERIFY(list->viewport()->height() % rowHeight < 4);
        }
        const QListView *styles = lists.at(1);
        QVERIFY(styles->viewport()->width() >= styles->sizeHintForColumn(0));
        const QList<QLineEdit *> edits = dialog->findChildren<QLineEdit *>();
        for (const QLineEdit *edit : edits) {
            const int text = edit->fontMetrics().horizontalAdvance(edit->text());
            QVERIFY2(!edit->isVisible() || edit->width() > text, qPrintable(edit->text()));
        }
    });
}

void tst_Dialogs::groupsOfTheFontDialogDoNotCoverTheirTitles()
{
    withFontDialog([](const QFontDialog *dialog) {
        const QList<QGroupBox *> groups = dialog->findChildren<QGroupBox *>();
        QVERIFY(!groups.isEmpty());
        for (const QGroupBox *group : groups) {
            QStyleOptionGroupBox option;
            option.initFrom(group);
            option.text = group->title();
            option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
            const QRect title = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                               QStyle::SC_GroupBoxLabel, group);
            QVERIFY(title.height() > 0);
            const QList<QWidget *> children = group->findChildren<QWidget *>(
                QString(), Qt::FindDirectChildrenOnly);
            for (const QWidget *child : children)
                QVERIFY2(!child->geometry().intersects(title), qPrintable(group->title()));
        }
    });
}

void tst_Dialogs::iconFontIsNotOffered()
{
    withFontDialog([](const QFontDialog *dialog) {
        const QListView *families = listsOf(dialog).first();
        QVERIFY(families->model()->rowCount() > 0);
        QVERIFY(!rowsOf(families).contains(QIconfont::fontFamily()));
        // Another writing system, and back to any.
        auto *systems = dialog->findChild<QComboBox *>();
        for (const int index : {1, 0}) {
            systems->setCurrentIndex(index);
            Q_EMIT systems->activated(index);
            QVERIFY(!rowsOf(families).contains(QIconfont::fontFamily()));
        }
    });
}

void tst_Dialogs::fontThatIsNotInstalledIsShownAsItIsDrawn()
{
    const auto shownFamily = [this] {
        QString shown;
        withFontDialog([&](const QFontDialog *dialog) {
            shown = listsOf(dialog).first()->currentIndex().data().toString();
        });
        return shown;
    };
    QVERIFY(shownFamily().startsWith("DejaVu Serif"));
    QFont font("No Such Family");
    font.setPixelSize(17);
    mFixture->store()->set("Edit.Font", font);
    QVERIFY2(shownFamily().startsWith(QFontInfo(font).family()), qPrintable(shownFamily()));
}

void tst_Dialogs::lettersThatJoinHaveNoUnderline()
{
    Joining joining;
    QVERIFY(QCoreApplication::installTranslator(&joining));
    QCoreApplication::processEvents(); // the texts of a dialog that is open would be set again
    const QColorDialog *dialog = openColorDialog();
    QVERIFY(dialog);
    const QString text = QString::fromUtf8("الون");
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->buddy()) // shows "&" as it is
            continue;
        QCOMPARE(label->text(), text);
        QVERIFY(!label->isVisible() || label->width() >= label->sizeHint().width());
    }
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        QCOMPARE(button->text(), text);
        QCOMPARE(button->shortcut(), QKeySequence::mnemonic(QString::fromUtf8("ا&لون")));
    }
    QVERIFY(labels.size() > 4 && buttons.size() > 1);
    delete dialog;
    QCoreApplication::removeTranslator(&joining);
}

void tst_Dialogs::listsOfBoxesHaveRoundCorners()
{
    QCursor::setPos(0, 0); // Qt does not close a list that is under the cursor
    for (const char *name : {"Text", "Bits", "Mouse", "Language"}) {
        const QList<QComboBox *> boxes = mFixture->manager->getItemByName("Edit", name, "")
                                             ->editor->findChildren<QComboBox *>();
        QVERIFY(!boxes.isEmpty());
        for (QComboBox *box : boxes) {
            box->showPopup();
            const QWidget *list = box->view()->window();
            QTRY_VERIFY(list->isVisible());
            QVERIFY2(list->mask().contains(list->rect().center()), name);
            for (const QPoint &corner : {list->rect().topLeft(), list->rect().topRight(),
                                         list->rect().bottomLeft(), list->rect().bottomRight()})
                QVERIFY2(!list->mask().contains(corner), name);
            QTest::keyClick(box->view(), Qt::Key_Escape);
            QTRY_VERIFY(!list->isVisible());
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_Dialogs>(argc, argv);
}

#include "tst_Dialogs.moc"
