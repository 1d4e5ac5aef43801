#include "ComboboxFixture.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTranslator>

using MtConf::ConfItem;
using MtConf::ConfWidgetCombobox;

namespace {

/// Translates every text of the context "QObject", and no other, by prefixing it with "de ".
class Prefixer : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QString("de ") + text : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// The texts of the list and their translation.
class tst_ConfWidgetComboboxTexts : public QObject, private ComboboxFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void textsAreNotTranslated();
    void labelsAreRetranslated_data();
    void labelsAreRetranslated();
    void plainTextsAreNotRetranslated();
    void nullLabelIsAnEmptyText_data();
    void nullLabelIsAnEmptyText();
    void secondListIsAppended();
};

void tst_ConfWidgetComboboxTexts::textsAreNotTranslated()
{
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    edit(stringItem())->setSelectItem({"A"});
    QCOMPARE(mBox->itemText(0), QString("A"));
}

void tst_ConfWidgetComboboxTexts::labelsAreRetranslated_data()
{
    QTest::addColumn<bool>("multi");
    QTest::newRow("in a single selection") << false;
    QTest::newRow("in a multi-selection") << true;
}

void tst_ConfWidgetComboboxTexts::labelsAreRetranslated()
{
    QFETCH(bool, multi);
    mInt = 1;
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", "B"}, {2, 1});
    const auto text = [this](int i) { return mMulti ? checkBox(i)->text() : mBox->itemText(i); };
    const auto shown = [this] { return mMulti ? mMulti->lineEdit()->text() : mBox->currentText(); };
    QCOMPARE(shown(), QString("B"));

    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(text(0), QString("de A"));
    QCOMPARE(text(1), QString("de B"));
    QCOMPARE(shown(), QString("de B"));
    QCOMPARE(qobject_cast<QLabel *>(editor->label())->text(), QString("de Mode"));
    QCOMPARE(mBox->accessibleName(), QString("de Mode"));
    QVERIFY(!mFixture->store()->mChanged);

    qApp->removeTranslator(&german);
    editor->retranslateUi();
    QCOMPARE(shown(), QString("B"));
}

void tst_ConfWidgetComboboxTexts::plainTextsAreNotRetranslated()
{
    ConfWidgetCombobox *editor = edit(stringItem());
    editor->setSelectItem({"A", "B"});
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(mBox->itemText(0), QString("A"));
    QCOMPARE(mBox->itemText(1), QString("B"));
}

void tst_ConfWidgetComboboxTexts::nullLabelIsAnEmptyText_data()
{
    labelsAreRetranslated_data();
}

void tst_ConfWidgetComboboxTexts::nullLabelIsAnEmptyText()
{
    QFETCH(bool, multi);
    mInt = 2;
    ConfWidgetCombobox *editor = edit(intItem(), multi);
    editor->setSelectItem({"A", nullptr}, {1, 2});
    editor->retranslateUi();
    QCOMPARE(multi ? mMulti->count() : mBox->count(), 2);
    QCOMPARE(multi ? checkBox(1)->text() : mBox->itemText(1), QString());
    QCOMPARE(multi ? checkedRows() : QList<int>{mBox->currentIndex()}, QList<int>{1});
}

void tst_ConfWidgetComboboxTexts::secondListIsAppended()
{
    mInt = 7;
    ConfWidgetCombobox *editor = edit(intItem());
    editor->setSelectItem({"plain"});
    editor->setSelectItem({"A", "B"}, {6, 7});
    editor->setSelectItem({"C"}, {8});
    QCOMPARE(mBox->count(), 4);
    QCOMPARE(mBox->currentIndex(), 2);
    Prefixer german;
    qApp->installTranslator(&german);
    const auto remove = qScopeGuard([&german] { qApp->removeTranslator(&german); });
    editor->retranslateUi();
    QCOMPARE(mBox->itemText(0), QString("plain"));
    QCOMPARE(mBox->itemText(1), QString("de A"));
    QCOMPARE(mBox->itemText(2), QString("de B"));
    QCOMPARE(mBox->itemText(3), QString("de C"));
    QCOMPARE(mInt, 7);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetComboboxTexts>(argc, argv);
}

#include "tst_ConfWidgetComboboxTexts.moc"
