#include "support/EditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include <QLabel>
#include <QProxyStyle>
#include <QPushButton>
#include <QTranslator>

using MtConf::ConfigItemWidget;
using MtConf::ConfItem;

using Factory = ConfigItemWidget *(*)(ConfItem *, QWidget *);
Q_DECLARE_METATYPE(Factory)

namespace {

/// A minimal editor that counts how often it is loaded and makes protected functions public.
class PlainEditor : public ConfigItemWidget
{
public:
    using ConfigItemWidget::ConfigItemWidget;
    void loadConf() override { ++loads; }
    void useAsLabel(QWidget *widget) { mLabel = widget; }
    bool write(int value) { return writeValue(value); }
    bool store(int value) { return storeValue(value); }
    int loads = 0;
};

/// Translates every text by putting it in brackets.
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QString("[%1]").arg(source) : QString();
    }
    bool isEmpty() const override { return false; }
};

/// Records how often widgets with this style are polished and unpolished.
class RecordingStyle : public QProxyStyle
{
public:
    void polish(QWidget *widget) override
    {
        notes << "polish " + changed(widget);
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget *widget) override
    {
        notes << "unpolish " + changed(widget);
        QProxyStyle::unpolish(widget);
    }
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    QStringList notes;

private:
    static QString changed(QWidget *widget) { return widget->property("changed").toString(); }
};

} // namespace

class tst_ConfigItemWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = 1;
        mItem = mFixture->manager.addConfInt32("Size", &mValue, "General", "Size");
        mItem->widgetCreator = [](ConfItem *item, QWidget *parent) {
            return new PlainEditor(item, parent);
        };
    }
    void cleanup() { mFixture.reset(); }

    void itemPointsToItsEditor();
    void deletingAnOlderEditorKeepsTheNewerOne();
    void styleSheetPropertyIsSet();
    void labelIsCreatedOnceWithTheEditorsParent();
    void labelOfAnEditorWithoutParentHasNoParent();
    void nullTextGivesAnEmptyLabel();
    void changedMarkFollowsTheValue();
    void captionIsPolishedAgainWhenItsMarkChanges();
    void refreshWithoutLabelDoesNothing();
    void restoreDefaultDoesNotChangeTheControl();
    void retranslationUpdatesLabelsAndButtons();
    void auxCallbackIsNeverCalled();
    void writingTheStoredValueWritesNothing();
    void storeValueWritesEvenTheStoredValue();
    void isWritingIsTrueWhileCallbacksRun();
    void editorDeletedByACallbackIsNotAccessed();
    void controlsOfADeletedEditorLiveUntilItsWriteReturns();
    void factoryWithoutAnItemReturnsNull_data();
    void factoryWithoutAnItemReturnsNull();

private:
    PlainEditor *editor() { return mFixture->edit<PlainEditor>(mItem); }

    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    int mValue = 0;
};

void tst_ConfigItemWidget::itemPointsToItsEditor()
{
    QVERIFY(!mItem->editor);
    PlainEditor *made = editor();
    QCOMPARE(mItem->editor, made);
    delete made;
    QVERIFY(!mItem->editor);
}

void tst_ConfigItemWidget::deletingAnOlderEditorKeepsTheNewerOne()
{
    PlainEditor *older = editor();
    PlainEditor *newer = editor();
    delete older;
    QCOMPARE(mItem->editor, newer);
}

void tst_ConfigItemWidget::styleSheetPropertyIsSet()
{
    QCOMPARE(editor()->property("ConfigItemQFrame"), QVariant("1"));
}

void tst_ConfigItemWidget::labelIsCreatedOnceWithTheEditorsParent()
{
    PlainEditor *made = editor();
    auto *label = qobject_cast<QLabel *>(made->label());
    QVERIFY(label);
    QCOMPARE(label->text(), QString("Size"));
    QCOMPARE(label->parentWidget(), &mFixture->parent);
    QCOMPARE(label->property("ConfigItemWidgetLabel"), QVariant("1"));
    QCOMPARE(label->property("changed"), QVariant("0"));
    QCOMPARE(made->label(), label);
    QCOMPARE(mFixture->parent.findChildren<QLabel *>().size(), 1);
}

void tst_ConfigItemWidget::labelOfAnEditorWithoutParentHasNoParent()
{
    PlainEditor made(mItem, nullptr);
    const std::unique_ptr<QWidget> label(made.label());
    QVERIFY(!label->parentWidget());
}

void tst_ConfigItemWidget::nullTextGivesAnEmptyLabel()
{
    mItem->displayText = nullptr;
    QCOMPARE(qobject_cast<QLabel *>(editor()->label())->text(), QString());
}

void tst_ConfigItemWidget::changedMarkFollowsTheValue()
{
    PlainEditor *made = editor();
    mFixture->store()->set<int>("General.Size", 5);
    QCOMPARE(changedMark(made), QString("0"));
    made->refreshLabelState();
    QCOMPARE(changedMark(made), QString("1"));
    made->restoreDefault();
    QCOMPARE(changedMark(made), QString("1"));
    made->refreshLabelState();
    QCOMPARE(changedMark(made), QString("0"));
}

void tst_ConfigItemWidget::captionIsPolishedAgainWhenItsMarkChanges()
{
    PlainEditor *made = editor();
    RecordingStyle style;
    made->label()->setStyle(&style);
    mFixture->store()->set<int>("General.Size", 5);
    style.notes.clear();
    made->refreshLabelState();
    QCOMPARE(style.notes, (QStringList{"unpolish 1", "polish 1"}));
    made->label()->setStyle(nullptr);
}

void tst_ConfigItemWidget::refreshWithoutLabelDoesNothing()
{
    PlainEditor made(mItem, &mFixture->parent);
    made.refreshLabelState();
    made.retranslateUi();
    QVERIFY(mFixture->parent.findChildren<QLabel *>().isEmpty());
}

void tst_ConfigItemWidget::restoreDefaultDoesNotChangeTheControl()
{
    PlainEditor *made = editor();
    mFixture->store()->set<int>("General.Size", 5);
    made->restoreDefault();
    QCOMPARE(mValue, 1);
    QCOMPARE(made->loads, 0);
}

void tst_ConfigItemWidget::retranslationUpdatesLabelsAndButtons()
{
    PlainEditor *made = editor();
    auto *label = qobject_cast<QLabel *>(made->label());
    QPushButton button;
    QFrame frame;
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    made->retranslateUi();
    QCOMPARE(label->text(), QString("[Size]"));
    made->useAsLabel(&button);
    made->retranslateUi();
    QCOMPARE(button.text(), QString("[Size]"));
    made->useAsLabel(&frame);
    made->retranslateUi();
    QCoreApplication::removeTranslator(&translator);
    made->useAsLabel(label);
    made->retranslateUi();
    QCOMPARE(label->text(), QString("Size"));
}

void tst_ConfigItemWidget::auxCallbackIsNeverCalled()
{
    int calls = 0;
    mItem->auxCallback = [&](QJsonValue, ConfItem *) { ++calls; };
    PlainEditor *made = editor();
    mFixture->store()->set<int>("General.Size", 5);
    delete made;
    QCOMPARE(calls, 0);
}

void tst_ConfigItemWidget::writingTheStoredValueWritesNothing()
{
    PlainEditor *made = editor();
    QVERIFY(!made->write(1));
    QVERIFY(!mFixture->store()->mChanged);
    QVERIFY(made->write(2));
    QCOMPARE(mValue, 2);
}

void tst_ConfigItemWidget::storeValueWritesEvenTheStoredValue()
{
    QVERIFY(editor()->store(1));
    QVERIFY(mFixture->store()->mChanged);
}

void tst_ConfigItemWidget::isWritingIsTrueWhileCallbacksRun()
{
    PlainEditor *made = editor();
    bool during = false;
    mItem->setConfChangedCallback(
        [&](const QString &, const ConfValue *) { during = made->isWriting(); });
    QVERIFY(!made->isWriting());
    made->write(2);
    QVERIFY(during);
    QVERIFY(!made->isWriting());
}

void tst_ConfigItemWidget::editorDeletedByACallbackIsNotAccessed()
{
    PlainEditor *made = editor();
    mItem->setConfChangedCallback([&](const QString &, const ConfValue *) { delete made; });
    QVERIFY(!made->write(2));
    QVERIFY(!mItem->editor);
    QCOMPARE(mValue, 2);
}

void tst_ConfigItemWidget::controlsOfADeletedEditorLiveUntilItsWriteReturns()
{
    PlainEditor *made = editor();
    const QPointer<QWidget> control = new QPushButton(made);
    const QPointer<QWidget> caption = new QPushButton(&mFixture->parent);
    made->useAsLabel(caption);
    QVERIFY(mFixture->show());
    bool areThere = false;
    mItem->setConfChangedCallback([&](const QString &, const ConfValue *) {
        delete made;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        areThere = control && !control->isVisible() && caption && !caption->isVisible();
    });
    QVERIFY(!made->write(2));
    QVERIFY(areThere);
    QTRY_VERIFY(!control);
    QVERIFY(!caption);
}

void tst_ConfigItemWidget::factoryWithoutAnItemReturnsNull_data()
{
    QTest::addColumn<Factory>("factory");
    QTest::newRow("ConfDefWidgetBool") << Factory(&MtConf::ConfDefWidgetBool::CreatConfWidget);
    QTest::newRow("ConfDefWidgetInt32") << Factory(&MtConf::ConfDefWidgetInt32::CreatConfWidget);
    QTest::newRow("ConfDefWidgetQColor") << Factory(&MtConf::ConfDefWidgetQColor::CreatConfWidget);
    QTest::newRow("ConfDefWidgetQFont") << Factory(&MtConf::ConfDefWidgetQFont::CreatConfWidget);
    QTest::newRow("ConfDefWidgetQKeySequence")
        << Factory(&MtConf::ConfDefWidgetQKeySequence::CreatConfWidget);
    QTest::newRow("ConfWidgetCombobox") << Factory(&MtConf::ConfWidgetCombobox::CreatConfWidget);
    QTest::newRow("ConfWidgetLanguage") << Factory(&MtConf::ConfWidgetLanguage::CreatConfWidget);
    QTest::newRow("ConfWidgetMouseAction")
        << Factory(&MtConf::ConfWidgetMouseAction::CreatConfWidget);
}

void tst_ConfigItemWidget::factoryWithoutAnItemReturnsNull()
{
    QFETCH(Factory, factory);
    const LogCapture log;
    QVERIFY(!factory(nullptr, nullptr));
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("ConfigItemWidget without an item"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfigItemWidget>(argc, argv);
}

#include "tst_ConfigItemWidget.moc"
