#include "support/TestMain.h"
#include "support/WindowFixture.h"

#include <QHBoxLayout>
#include <QLineEdit>

using MtConf::ConfigItemWidget;
using MtConf::ConfItem;

namespace {

/// Edits a text, which is stored by commit() only.
class LateEditor : public ConfigItemWidget
{
public:
    LateEditor(ConfItem *item, QWidget *parent)
        : ConfigItemWidget(item, parent), line(new QLineEdit(this))
    {
        (new QHBoxLayout(this))->addWidget(line);
        loadConf();
    }
    void loadConf() override { line->setText(readValue<QString>()); }
    void commit() override
    {
        if (writeValue(line->text()))
            refreshLabelState();
    }

    QLineEdit *line;
};

} // namespace

/// The rows of the settings window: those that depend on others, messages under them, help texts,
/// and what is typed and not confirmed.
class tst_Rows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mFixture.reset(); }

    void rowFollowsAnotherSetting();
    void rowFollowsASettingOnAnotherPage();
    void rowWithTwoDependenciesNeedsBoth();
    void callbackMayCloseTheWindowOfADependentRow();
    void callbackMayDeleteARowThatIsDisabled();
    void callbackMayCloseTheWindowBeforeRestoring_data();
    void callbackMayCloseTheWindowBeforeRestoring();
    void constraintIsShownAfterAnEdit();
    void typedTextIsSavedBesideOtherChanges();
    void messageIsShownUnderTheRow();
    void validatorMayCloseTheWindow();
    void fieldsKeepTheirPlaceWhenACaptionBecomesBold_data();
    void fieldsKeepTheirPlaceWhenACaptionBecomesBold();
    void rowsWithoutOptionsHaveNeitherMessageNorToolTip();
    void helpIsToolTipAndDescription();
    void expertRowsAreShownOnRequest();
    void typedTextIsStored_data();
    void typedTextIsStored();
    void typedTextIsNotStoredAfterTheDefault();

private:
    ConfItem *addText(const char *name, const char *major = "General");
    LateEditor *editor() const { return static_cast<LateEditor *>(mItem->editor); }
    static bool isRowEnabled(const ConfItem *item)
    {
        return item->editor->isEnabled() && item->editor->label()->isEnabled();
    }

    std::unique_ptr<WindowFixture> mFixture;
    QString mText;
    ConfItem *mItem = nullptr; // of mText
};

void tst_Rows::init()
{
    mText.clear();
    mFixture = std::make_unique<WindowFixture>();
}

ConfItem *tst_Rows::addText(const char *name, const char *major)
{
    mItem = mFixture->manager->addConfQString(
        name, &mText, major, name, QString(),
        [](ConfItem *item, QWidget *parent) { return new LateEditor(item, parent); });
    return mItem;
}

void tst_Rows::rowFollowsAnotherSetting()
{
    ConfItem *other = mFixture->addBool("A");
    ConfItem *dependent = mFixture->addBool("B")->dependsOn(other, false);
    addText("C")->dependsOn(other, true);
    QVERIFY(mFixture->open());
    QVERIFY(!isRowEnabled(dependent));
    QVERIFY(isRowEnabled(mItem));
    mFixture->clickBox(mFixture->checkBox(other));
    QVERIFY(isRowEnabled(dependent));
    QVERIFY(!isRowEnabled(mItem));
    mFixture->store()->setToDefault("General.A", true);
    QVERIFY(!isRowEnabled(dependent));
}

void tst_Rows::rowFollowsASettingOnAnotherPage()
{
    ConfItem *other = mFixture->addBool("A", "", "Other");
    ConfItem *dependent = mFixture->addBool("B")->dependsOn(other, true);
    QVERIFY(mFixture->open("General"));
    QVERIFY(isRowEnabled(dependent));
    mFixture->store()->set("Other.A", false);
    QVERIFY(!isRowEnabled(dependent));
    mFixture->window()->switchToView("Other");
    mFixture->store()->set("Other.A", true); // nobody follows it now
    mFixture->window()->switchToView("General");
    QVERIFY(isRowEnabled(dependent));
}

void tst_Rows::rowWithTwoDependenciesNeedsBoth()
{
    ConfItem *a = mFixture->addBool("A");
    ConfItem *b = mFixture->addBool("B");
    ConfItem *dependent = mFixture->addBool("C")->dependsOn(a, true)->dependsOn(b, true);
    QVERIFY(mFixture->open());
    QVERIFY(isRowEnabled(dependent));
    mFixture->store()->set("General.B", false);
    QVERIFY(!isRowEnabled(dependent));
}

void tst_Rows::callbackMayCloseTheWindowOfADependentRow()
{
    ConfItem *other = mFixture->addBool("A");
    mFixture->addBool("B")->dependsOn(other, true);
    other->setConfChangedCallback(
        [this](const QString &, const ConfValue *) { mFixture->manager->closeConfigWindow(); });
    QVERIFY(mFixture->open());
    mFixture->clickBox(mFixture->checkBox(other));
    QTRY_VERIFY(!mFixture->window());
    mFixture->store()->set("General.A", true);
}

void tst_Rows::callbackMayDeleteARowThatIsDisabled()
{
    ConfItem *other = mFixture->addBool("A");
    const ConfItem *text = mFixture->manager->addConfText("B", &mText, "General", "B")
                               ->dependsOn(other, true);
    text->setConfChangedCallback(
        [text](const QString &, const ConfValue *) { delete text->editor; });
    QVERIFY(mFixture->open());
    auto *line = text->editor->findChild<QLineEdit *>();
    mFixture->window()->activateWindow();
    line->setFocus();
    QTRY_VERIFY(line->hasFocus());
    QTest::keyClicks(line, "typed");
    mFixture->store()->set("General.A", false);
    QVERIFY(!text->editor);
    QCOMPARE(mText, QStringLiteral("typed"));
}

void tst_Rows::callbackMayCloseTheWindowBeforeRestoring_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("page") << false;
    QTest::newRow("all") << true;
}

void tst_Rows::callbackMayCloseTheWindowBeforeRestoring()
{
    QFETCH(const bool, all);
    addText("A")->setConfChangedCallback(
        [this](const QString &, const ConfValue *) { delete mFixture->window(); });
    QVERIFY(mFixture->open());
    editor()->line->setText("typed");
    const QPointer<QWidget> window(mFixture->window());
    if (all)
        mFixture->window()->restoreAllDefault();
    else
        mFixture->window()->restorePageDefault();
    QVERIFY(!window);
    QCOMPARE(mText, QStringLiteral("typed"));
}

void tst_Rows::constraintIsShownAfterAnEdit()
{
    addText("A");
    mFixture->store()->setConfConstraint("General.A", [](const QJsonValue &value) {
        return std::optional<QJsonValue>(value.toString().left(3));
    });
    QVERIFY(mFixture->open());
    editor()->line->setText("too long");
    editor()->commit();
    QCOMPARE(mText, QStringLiteral("too"));
    QCOMPARE(editor()->line->text(), QStringLiteral("too"));
}

void tst_Rows::typedTextIsSavedBesideOtherChanges()
{
    addText("A");
    QVERIFY(mFixture->open());
    mFixture->store()->mChanged = true;
    editor()->line->setText("typed");
    QMetaObject::invokeMethod(qApp, "aboutToQuit");
    QVERIFY(QFile::exists(WindowFixture::localFile()));
    QVERIFY(!mFixture->store()->mChanged);
    mFixture->store()->mChanged = true; // of the host, which may not want to save it
    QMetaObject::invokeMethod(qApp, "aboutToQuit");
    QVERIFY(mFixture->store()->mChanged);
}

void tst_Rows::messageIsShownUnderTheRow()
{
    addText("A")->setValidator([](const QJsonValue &value) {
        return value.toString() == "bad" ? QStringLiteral("Not <b>this</b>.") : QString();
    });
    mFixture->addBool("B");
    QVERIFY(mFixture->open());
    QLabel *message = editor()->messageLabel();
    QVERIFY(!message->isVisible());
    editor()->line->setText("bad");
    editor()->commit();
    QVERIFY(message->isVisible());
    QCOMPARE(message->text(), QStringLiteral("Not <b>this</b>."));
    QCOMPARE(mText, QString());
    QVERIFY(!mFixture->store()->mChanged);
    const auto bottomOf = [](const QWidget *widget) {
        return widget->mapToGlobal(widget->rect().bottomLeft()).y();
    };
    QTRY_VERIFY(message->height() > 0
                && message->mapToGlobal(QPoint()).y() > bottomOf(editor()->line));
    editor()->line->setText("good");
    editor()->commit();
    QVERIFY(!message->isVisible());
    QCOMPARE(mText, QStringLiteral("good"));
    editor()->line->setText("bad");
    editor()->commit();
    editor()->line->setText("good"); // the stored value
    editor()->commit();
    QVERIFY(!message->isVisible());
}

void tst_Rows::validatorMayCloseTheWindow()
{
    addText("A")->setValidator([this](const QJsonValue &) {
        mFixture->manager->closeConfigWindow();
        return QStringLiteral("no");
    });
    QVERIFY(mFixture->open());
    editor()->line->setText("x");
    editor()->commit();
    QTRY_VERIFY(!mFixture->window());
    QCOMPARE(mText, QString());
}

void tst_Rows::fieldsKeepTheirPlaceWhenACaptionBecomesBold_data()
{
    QTest::addColumn<bool>("isCheckBox");
    QTest::addColumn<int>("windowWidth"); // 0 for the default size
    QTest::newRow("label") << false << 0;
    QTest::newRow("check box") << true << 0;
    QTest::newRow("label in a narrow window") << false << 500;
    QTest::newRow("check box in a narrow window") << true << 500;
}

void tst_Rows::fieldsKeepTheirPlaceWhenACaptionBecomesBold()
{
    QFETCH(const bool, isCheckBox);
    QFETCH(const int, windowWidth);
    const char *const longCaption = "The longest of all captions of this page by far";
    const ConfItem *flag = mFixture->addBool(isCheckBox ? longCaption : "Short");
    addText(isCheckBox ? "Short text" : longCaption);
    QVERIFY(mFixture->open());
    if (windowWidth > 0)
        mFixture->window()->resize(windowWidth, mFixture->window()->height());
    QWidget *const caption = isCheckBox ? flag->editor->label() : editor()->label();
    QTRY_VERIFY(caption->width() >= caption->minimumSizeHint().width());
    QVERIFY(!caption->font().bold());
    const int place = editor()->x();
    const QSize hint = caption->sizeHint();

    if (isCheckBox) {
        mFixture->clickBox(mFixture->checkBox(flag));
    } else {
        editor()->line->setText("typed");
        editor()->commit();
    }
    QVERIFY(caption->font().bold());
    QCOMPARE(caption->sizeHint(), hint);
    QCoreApplication::processEvents();
    QCOMPARE(editor()->x(), place);
}

void tst_Rows::rowsWithoutOptionsHaveNeitherMessageNorToolTip()
{
    const ConfItem *item = mFixture->addBool("A");
    QVERIFY(mFixture->open());
    QVERIFY(!item->editor->messageLabel());
    QVERIFY(item->editor->toolTip().isEmpty());
    QVERIFY(item->editor->label()->toolTip().isEmpty());
}

void tst_Rows::helpIsToolTipAndDescription()
{
    addText("A")->setHelp("Less < more.");
    mItem->setRange(1, 2.5)->setSuffix(" px");
    QVERIFY(mFixture->open());
    QCOMPARE(editor()->toolTip(), QStringLiteral("<p>Less &lt; more.<br>From 1 to 2.5 px</p>"));
    QCOMPARE(editor()->label()->toolTip(), editor()->toolTip());
    QCOMPARE(editor()->line->accessibleDescription(), QStringLiteral("Less < more."));
    const ConfItem *flag = mFixture->addBool("B")->setHelp("A switch.");
    mFixture->window()->switchToView("General");
    QCOMPARE(flag->editor->label()->toolTip(), QStringLiteral("<p>A switch.</p>"));
}

void tst_Rows::expertRowsAreShownOnRequest()
{
    const ConfItem *item = mFixture->addBool("A")->setExpert();
    mFixture->addBool("B");
    QVERIFY(mFixture->open());
    QVERIFY(!item->editor);
    mFixture->manager->showExpertItems = true;
    mFixture->window()->switchToView("General");
    QVERIFY(item->editor);
}

void tst_Rows::typedTextIsStored_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"close", "save", "other page", "same page", "quit", "destroy"})
        QTest::newRow(action) << QString(action);
}

void tst_Rows::typedTextIsStored()
{
    QFETCH(const QString, action);
    addText("A");
    mFixture->addBool("B", "", "Other");
    QVERIFY(mFixture->open("General"));
    QTest::keyClicks(editor()->line, "typed");
    if (action == "close")
        QVERIFY(mFixture->close());
    else if (action == "save")
        mFixture->manager->saveToFile();
    else if (action == "other page")
        mFixture->clickClass(1);
    else if (action == "same page")
        mFixture->window()->switchToView("General");
    else if (action == "quit")
        QMetaObject::invokeMethod(qApp, "aboutToQuit");
    else
        mFixture->manager.reset();
    QCOMPARE(mText, QStringLiteral("typed"));
    QFile file(WindowFixture::localFile());
    QCOMPARE(file.exists(), !action.contains("page"));
}

void tst_Rows::typedTextIsNotStoredAfterTheDefault()
{
    addText("A");
    QVERIFY(mFixture->open());
    for (QPushButton *button : {mFixture->restorePageButton(), mFixture->restoreAllButton()}) {
        QTest::keyClicks(editor()->line, "typed");
        QVERIFY(mFixture->clickAndAnswer(button, QMessageBox::Yes));
        QCOMPARE(mText, QString());
        QCOMPARE(editor()->line->text(), QString());
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_Rows>(argc, argv);
}

#include "tst_Rows.moc"
