#include "MaltoConfiguration/window/rows/ValueInWords_p.h"
#include "MaltoConfiguration/window/transfer/ImportDialog_p.h"
#include "support/CleanStore.h"
#include "support/Entries.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

#include <memory>

using MtConf::ConfItem;
using MtConf::ImportDialog;
using MtConf::importNotes;
using MtConf::ImportRow;
using MtConf::importRows;
using MtConf::MtConfManage;
using MtConf::SettingsImport;

namespace {

const QVector<ImportRow> sRows = {
    {"Capture.Delay", "Capture", "Delay", "3 s", "8 s", {}, {}},
    {"Capture.Color", "Capture", "Frame colour", "#ff0000", "#00ff00", Qt::red, Qt::green},
    {"General.Sound", "General", "Sound", "Yes", "No", {}, {}}};

} // namespace

class tst_ImportDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        mManager = std::make_unique<MtConfManage>();
    }
    void cleanup()
    {
        mDialog.reset();
        mManager.reset();
        clearStore();
    }

    void rowsAreInTheOrderOfThePages();
    void subItemsAreInTheirGroup();
    void entriesWithoutADeclarationHaveTheirKey();
    void valuesAreInWords();
    void notesTellWhatIsLeftOut();
    void everythingIsCheckedAtFirst();
    void clickOnABoxUnchecksTheRow();
    void clickOnAValueUnchecksTheRow();
    void groupChecksItsRows();
    void buttonsCheckAllAndNone();
    void keyboardIsEnough();
    void escapeCancels();
    void coloursHaveASwatch();
    void longValuesAreShortened();
    void textsAreNotMarkup();
    void screenReadersGetWholeRows();
    void captionsHaveTheRoomThatValuesLeave();
    void layoutFollowsTheDirection();
    void valuesKeepTheirOwnDirection();

private:
    ImportDialog *open(const QVector<ImportRow> &rows = sRows,
                       const QStringList &notes = QStringList())
    {
        mDialog = std::make_unique<ImportDialog>("a.json", rows, notes, nullptr);
        mDialog->resize(700, 400);
        mDialog->show();
        mDialog->activateWindow();
        return QTest::qWaitForWindowActive(mDialog.get()) ? mDialog.get() : nullptr;
    }
    QTreeWidget *tree() const { return mDialog->findChild<QTreeWidget *>("ImportTree"); }
    QPushButton *button(const char *name) const { return mDialog->findChild<QPushButton *>(name); }
    QPushButton *importButton() const { return button("btnImportChecked"); }
    QTreeWidgetItem *row(int group, int child) const
    {
        return tree()->topLevelItem(group)->child(child);
    }
    QRect cell(QTreeWidgetItem *item, int column) const
    {
        const QRect row = tree()->visualItemRect(item);
        const QHeaderView *header = tree()->header();
        return row.intersected(QRect(header->sectionViewportPosition(column), row.y(),
                                     header->sectionSize(column), row.height()));
    }
    void clickCell(QTreeWidgetItem *item, int column) const
    {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, cell(item, column).center());
    }
    QVector<ImportRow> rowsOf(const QJsonObject &dump) const
    {
        return importRows(*mManager, SettingsImport(*ConfStorage::instance(), dump).changes());
    }

    std::unique_ptr<MtConfManage> mManager;
    std::unique_ptr<ImportDialog> mDialog;
};

void tst_ImportDialog::rowsAreInTheOrderOfThePages()
{
    int values[7] = {};
    mManager->addConfInt32("Zoom", &values[0], "View", "Zoom");
    mManager->addConfInt32("Delay", &values[1], "Capture", "Delay");
    mManager->addConfInt32("Area", &values[2], "View", "Area");
    mManager->addConfInt32("Edge", &values[3], "Capture", "Snapping", "Edge");
    mManager->addConfInt32("Format", &values[4], "Capture", "Format");
    mManager->addConfInt32("Width", &values[5], "Capture", "Frame", "Width");
    mManager->addConfInt32("Reach", &values[6], "Capture", "Snapping", "Reach");
    const QVector<ImportRow> rows = rowsOf({{"Capture.Delay", entry(100, 1)},
                                            {"Capture.Format", entry(100, 1)},
                                            {"Capture.Frame.Width", entry(100, 1)},
                                            {"Capture.Snapping.Reach", entry(100, 1)},
                                            {"Capture.Snapping.Edge", entry(100, 1)},
                                            {"View.Area", entry(100, 1)},
                                            {"View.Zoom", entry(100, 1)}});
    QStringList texts;
    for (const ImportRow &row : rows)
        texts.append(row.group + ": " + row.caption);
    QCOMPARE(texts, QStringList({"View: Zoom", "View: Area", "Capture: Delay", "Capture: Format",
                                 QString::fromUtf8("Capture › Snapping: Edge"),
                                 QString::fromUtf8("Capture › Snapping: Reach"),
                                 QString::fromUtf8("Capture › Frame: Width")}));
}

void tst_ImportDialog::subItemsAreInTheirGroup()
{
    bool frame = false;
    int width = 1;
    ConfItem *item = mManager->addConfBool("Frame", &frame, "Capture", "Frame");
    item->subConfs.insert("Width", ConfItem(&width, "Capture", "Frame", "Width"));
    const QVector<ImportRow> rows = rowsOf({{"Capture.Frame.Width", entry(100, 5)}});
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().group, QString("Capture"));
    QCOMPARE(rows.first().caption, QString("Capture.Frame.Width"));
    QCOMPARE(rows.first().inFile, QString("5"));
}

void tst_ImportDialog::entriesWithoutADeclarationHaveTheirKey()
{
    int delay = 3;
    QString text;
    mManager->addConfInt32("Delay", &delay, "Capture", "Delay");
    ConfStorage::DynamicConfClass profiles;
    profiles.prefix = "Profile.";
    profiles.creator = [&](const QString &key, const QJsonValue *value) {
        text = value->toString();
        ConfStorage::instance()->reserveConf(key, &text);
    };
    profiles.remover = [](const QString &) {};
    ConfStorage::instance()->mDynamicConfClasses.append(&profiles);
    ConfStorage::instance()->createDynamicConf("Profile.Old", "x", nullptr);
    const QVector<ImportRow> rows = rowsOf({{"Profile.New", entry(100, "news")},
                                            {"Profile.Old", QJsonObject{{"d", 100}}},
                                            {"Capture.Delay", entry(100, 5)}});
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0).key, QString("Capture.Delay"));
    QCOMPARE(rows.at(1).group, QString("Other settings"));
    QCOMPARE(rows.at(1).caption, QString("Profile.New"));
    QCOMPARE(rows.at(1).here, QString("Does not exist"));
    QCOMPARE(rows.at(1).inFile, QString("news"));
    QCOMPARE(rows.at(2).here, QString("x"));
    QCOMPARE(rows.at(2).inFile, QString("Removed"));
}

void tst_ImportDialog::valuesAreInWords()
{
    bool sound = true;
    QColor color(Qt::red);
    mManager->addConfBool("Sound", &sound, "General", "Sound");
    mManager->addConfQColor("Colour", &color, "General", "Color");
    ConfStorage::instance()->set("General.Sound", false);
    const QVector<ImportRow> rows = rowsOf(
        {{"General.Color", entry(100, "ff00ff00")}, {"General.Sound", QJsonObject{{"t", 100}}}});
    QCOMPARE(rows.at(0).here, QString("No"));
    QCOMPARE(rows.at(0).inFile, QString("Yes (default)"));
    QCOMPARE(rows.at(1).here, QString("#ff0000 (default)"));
    QCOMPARE(rows.at(1).hereColor, QColor(Qt::red));
    QCOMPARE(rows.at(1).inFileColor, QColor(Qt::green));
}

void tst_ImportDialog::notesTellWhatIsLeftOut()
{
    int delay = 3;
    mManager->addConfInt32("Delay", &delay, "Capture", "Delay");
    SettingsImport::LeftOut leftOut;
    QVERIFY(importNotes(*mManager, leftOut).isEmpty());
    leftOut.unknown = 12;
    leftOut.unreadable = 3;
    leftOut.local = 4;
    leftOut.locked = 5;
    leftOut.refused = QStringList({"Capture.Delay", "A", "B", "C", "D", "E"});
    QCOMPARE(importNotes(*mManager, leftOut),
             QStringList({"Entries of other versions, which are left out: 12",
                          "Entries that cannot be read, which are left out: 3",
                          "Settings that stay on each computer, which are left out: 4",
                          "Locked settings, which are left out: 5",
                          QString::fromUtf8("Settings whose value is not accepted here: "
                                            "Delay, A, B, C, D, …")}));
}

void tst_ImportDialog::everythingIsCheckedAtFirst()
{
    QVERIFY(open(sRows, {"12 entries", "3 others"}));
    QCOMPARE(tree()->topLevelItemCount(), 2);
    QCOMPARE(tree()->topLevelItem(0)->text(0), QString("Capture"));
    QCOMPARE(tree()->topLevelItem(0)->childCount(), 2);
    QCOMPARE(row(0, 0)->text(0), QString("Delay"));
    QCOMPARE(row(0, 0)->text(1), QString("3 s"));
    QCOMPARE(row(0, 0)->text(2), QString("8 s"));
    QVERIFY(tree()->topLevelItem(1)->isExpanded());
    QCOMPARE(mDialog->checkedKeys(),
             QStringList({"Capture.Delay", "Capture.Color", "General.Sound"}));
    QCOMPARE(importButton()->text(), QString("Import (3)"));
    QCOMPARE(mDialog->findChild<QLabel *>("ImportNotes")->text(), QString("12 entries\n3 others"));
    QVERIFY(mDialog->findChild<QLabel *>("ImportText")->text().contains("\"a.json\""));
}

void tst_ImportDialog::clickOnABoxUnchecksTheRow()
{
    QVERIFY(open());
    QTreeWidgetItem *item = row(0, 1);
    QStyleOptionViewItem option;
    option.initFrom(tree());
    option.rect = cell(item, 0);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = tree()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                      &option, tree());
    QVERIFY(option.rect.contains(box.center()));
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, box.center());
    QCOMPARE(mDialog->checkedKeys(), QStringList({"Capture.Delay", "General.Sound"}));
    QCOMPARE(importButton()->text(), QString("Import (2)"));
    QCOMPARE(tree()->topLevelItem(0)->checkState(0), Qt::PartiallyChecked);
}

void tst_ImportDialog::clickOnAValueUnchecksTheRow()
{
    QVERIFY(open());
    clickCell(row(0, 1), 2);
    QCOMPARE(mDialog->checkedKeys(), QStringList({"Capture.Delay", "General.Sound"}));
    QTest::keyClick(tree(), Qt::Key_Space);
    QCOMPARE(mDialog->checkedKeys().size(), 3);
    clickCell(row(0, 1), 0); // the caption, which only selects the row
    QCOMPARE(mDialog->checkedKeys().size(), 3);
}

void tst_ImportDialog::groupChecksItsRows()
{
    QVERIFY(open());
    tree()->setCurrentItem(tree()->topLevelItem(0));
    QTest::keyClick(tree(), Qt::Key_Space);
    QCOMPARE(mDialog->checkedKeys(), QStringList("General.Sound"));
    QCOMPARE(importButton()->text(), QString("Import (1)"));
    row(0, 0)->setCheckState(0, Qt::Checked);
    row(0, 1)->setCheckState(0, Qt::Checked);
    QCOMPARE(tree()->topLevelItem(0)->checkState(0), Qt::Checked);
}

void tst_ImportDialog::buttonsCheckAllAndNone()
{
    QVERIFY(open());
    QTest::mouseClick(button("btnSelectNone"), Qt::LeftButton);
    QVERIFY(mDialog->checkedKeys().isEmpty());
    QCOMPARE(importButton()->text(), QString("Import (0)"));
    QVERIFY(!importButton()->isEnabled());
    QTest::mouseClick(button("btnSelectAll"), Qt::LeftButton);
    QCOMPARE(mDialog->checkedKeys().size(), 3);
    QVERIFY(importButton()->isEnabled());
}

void tst_ImportDialog::keyboardIsEnough()
{
    QVERIFY(open());
    QVERIFY(tree()->hasFocus());
    QTest::keyClick(tree(), Qt::Key_Down);
    QTest::keyClick(tree(), Qt::Key_Space);
    QCOMPARE(mDialog->checkedKeys(), QStringList({"Capture.Color", "General.Sound"}));
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(mDialog->focusWidget(), Qt::Key_Tab);
        visited.append(qobject_cast<QPushButton *>(mDialog->focusWidget())->text());
    }
    visited.sort();
    QCOMPARE(visited, QStringList({"Cancel", "Import (2)", "Select all", "Select none"}));
    tree()->setFocus();
    QTest::keyClick(tree(), Qt::Key_Return);
    QCOMPARE(mDialog->result(), int(QDialog::Accepted));
    QVERIFY(!mDialog->isVisible());
}

void tst_ImportDialog::escapeCancels()
{
    QVERIFY(open());
    QTest::keyClick(tree(), Qt::Key_Escape);
    QVERIFY(!mDialog->isVisible());
    QCOMPARE(mDialog->result(), int(QDialog::Rejected));
}

void tst_ImportDialog::coloursHaveASwatch()
{
    QVERIFY(open());
    QVERIFY(!row(0, 0)->data(1, Qt::DecorationRole).isValid());
    QCOMPARE(row(0, 1)->data(1, Qt::DecorationRole).value<QColor>(), QColor(Qt::red));
    const QImage picture = tree()->viewport()->grab().toImage();
    const QRect value = cell(row(0, 1), 2);
    const QPoint inside(value.left() + tree()->fontMetrics().ascent(), value.center().y());
    QCOMPARE(picture.pixelColor(inside), QColor(Qt::green));
}

void tst_ImportDialog::longValuesAreShortened()
{
    QVERIFY(open({{"A.B", "A", "B", "", QString(100000, 'x'), {}, {}}}));
    QCOMPARE(row(0, 0)->text(2), QString(200, 'x') + QChar(0x2026));
    QCOMPARE(row(0, 0)->toolTip(2), "<p>" + QString(2000, 'x') + QChar(0x2026) + "</p>");
}

void tst_ImportDialog::textsAreNotMarkup()
{
    mDialog = std::make_unique<ImportDialog>(
        "<b>x</b>", QVector<ImportRow>{{"A.B", "A", "<i>B</i>", "", "<u>1</u>", {}, {}}},
        QStringList("<b>y</b>"), nullptr);
    for (const QLabel *label : mDialog->findChildren<QLabel *>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(row(0, 0)->toolTip(2), QString("<p>&lt;u&gt;1&lt;/u&gt;</p>"));
}

void tst_ImportDialog::screenReadersGetWholeRows()
{
    QVERIFY(open());
    QCOMPARE(tree()->accessibleName(), QString("Settings in the file"));
    QAccessibleInterface *view = QAccessible::queryAccessibleInterface(tree());
    QStringList names;
    for (int i = 0; i < view->childCount(); ++i)
        names.append(view->child(i)->text(QAccessible::Name));
    QVERIFY2(names.contains("Delay, here: 3 s, in the file: 8 s"), qPrintable(names.join('|')));
}

void tst_ImportDialog::captionsHaveTheRoomThatValuesLeave()
{
    const QString caption = QString("Long caption ").repeated(4);
    const QString value(500, 'x');
    QVERIFY(open({{"A", "Page", caption, "1", "2", {}, {}}}));
    const QHeaderView *header = tree()->header();
    QVERIFY(tree()->fontMetrics().horizontalAdvance(caption) < header->sectionSize(0) - 40);
    QCOMPARE(header->length(), tree()->viewport()->width());
    QVERIFY(open({{"A", "Page", caption, value, value, {}, {}}}));
    QVERIFY(tree()->header()->sectionSize(0) > 200);
    QCOMPARE(tree()->header()->length(), tree()->viewport()->width());
}

void tst_ImportDialog::layoutFollowsTheDirection()
{
    QVERIFY(open());
    const auto x = [this](int column) { return cell(row(0, 0), column).center().x(); };
    QVERIFY(x(0) < x(2));
    mDialog->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(x(0) > x(2));
    QVERIFY(importButton()->x() < button("btnSelectAll")->mapTo(mDialog.get(), QPoint()).x());
}

void tst_ImportDialog::valuesKeepTheirOwnDirection()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QString isolatedText = MtConf::isolated("#ff0000");
    QVERIFY(open());
    const QString shown = row(0, 1)->text(1);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(isolatedText, QChar(0x2068) + QString("#ff0000") + QChar(0x2069));
    QCOMPARE(shown, isolatedText);
    QCOMPARE(MtConf::isolated("#ff0000"), QString("#ff0000"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ImportDialog>(argc, argv);
}

#include "tst_ImportDialog.moc"
