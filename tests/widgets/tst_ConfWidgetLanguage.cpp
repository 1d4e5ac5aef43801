#include "LanguageFolder.h"

#include "support/EditorFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QListView>

using MtConf::ConfItem;
using MtConf::ConfWidgetLanguage;

/// The language editor.
class tst_ConfWidgetLanguage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mFolder = std::make_unique<LanguageFolder>(); }
    void cleanup();

    void boxFillsTheEditor();
    void rowsAreNamesInTheirOwnLanguage();
    void englishFileAddsASecondEnglishRow();
    void rowsAfterAnUnnamedLanguageStoreTheCodeBefore();
    void storedCodeIsShown_data();
    void storedCodeIsShown();
    void showingNeverWrites();
    void chosenLanguageIsStoredMarkedAndInstalled();
    void clickOnARowSelectsIt();
    void choosingTheStoredLanguageWritesNothing();
    void slotAlsoSelectsTheRow();
    void rowsOutsideTheListAreIgnored();
    void liveChangeRetranslatesTheEditor();
    void changeIsAnnouncedAfterItsTranslatorsAreInstalled();
    void restoredDefaultIsInstalledAndAnnounced();
    void loadInstallsTheLanguageWithoutAChange();
    void callbackMayDeleteTheEditor();

private:
    ConfWidgetLanguage *makeEditor(const QString &value)
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = "auto";
        mItem = mFixture->manager.addConfQString("Language", &mValue, "General", "Language", "",
                                                 ConfWidgetLanguage::CreatConfWidget);
        mFixture->store()->set(mItem->getFullName(), value);
        auto *editor = mFixture->edit<ConfWidgetLanguage>(mItem);
        mCombo = editor->findChild<QComboBox *>();
        return editor;
    }
    /// Creates a manager with the language setting "auto". Appends the translation of a text to
    /// `announced` each time that the manager announces a change.
    std::unique_ptr<MtConf::MtConfManage> declareLanguage(QStringList *announced)
    {
        clearStore();
        mValue = "auto";
        auto manager = std::make_unique<MtConf::MtConfManage>();
        manager->addConfLanguage("Language", &mValue, "General", "Language", "");
        connect(manager.get(), &MtConf::MtConfManage::sigLanguageChange, manager.get(),
                [announced] { announced->append(label()); });
        return manager;
    }
    QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < mCombo->count(); ++row)
            result.append(mCombo->itemText(row));
        return result;
    }
    /// Clicks into the open list. Returns false as long as the list ignores the click because it
    /// takes it for the one that opened it.
    static bool clickTaken(QAbstractItemView *view, const QPoint &position)
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, position);
        return !view->isVisible();
    }
    static QString label() { return QObject::tr("Language"); }

    std::unique_ptr<LanguageFolder> mFolder;
    std::unique_ptr<EditorFixture> mFixture;
    ConfItem *mItem = nullptr;
    QComboBox *mCombo = nullptr;
    QString mValue;
};

void tst_ConfWidgetLanguage::cleanup()
{
    mFixture.reset();
    clearStore();
    const LogCapture log;
    mFolder.reset();
}

void tst_ConfWidgetLanguage::boxFillsTheEditor()
{
    ConfWidgetLanguage *editor = makeEditor("auto");
    mFixture->parent.resize(400, 100);
    QVERIFY(mFixture->show());
    QCOMPARE(mCombo->x(), 0);
    QCOMPARE(mCombo->width(), editor->width());
    QCOMPARE(editor->layout()->contentsMargins(), QMargins());
}

void tst_ConfWidgetLanguage::rowsAreNamesInTheirOwnLanguage()
{
    mFolder->addFiles({"zh-cn.qm", "zh-cht.qm", "en-gb.qm", "fr-fr.qm", "es-es.qm", "de-de.qm",
                       "ja-jp.qm", "ko-kr.qm", "ru-ru.qm", "pt-br.qm", "it-it.qm", "ar-eg.qm",
                       "hi-in.qm", "nl-nl.qm", "tr-tr.qm", "pl-pl.qm", "sv-se.qm"});
    makeEditor("auto");
    QCOMPARE(rows(),
             QStringList({"Follow the system", "English (United States)", "العربية (مصر)",
                          "Deutsch (Deutschland)", "English (United Kingdom)", "Español (España)",
                          "Français (France)", "हिन्दी (भारत)", "Italiano (Italia)", "日本語",
                          "한국어", "Nederlands (Nederland)", "Polski (Polska)",
                          "Português (Brasil)", "Русский (Россия)", "Svenska (Sverige)",
                          "Türkçe (Türkiye)", "繁體中文", "简体中文"}));
    QVERIFY(qobject_cast<QListView *>(mCombo->view()));
}

void tst_ConfWidgetLanguage::englishFileAddsASecondEnglishRow()
{
    mFolder->addFiles({"en-us.qm"});
    makeEditor("en-us");
    QCOMPARE(rows(), QStringList({"Follow the system", "English (United States)",
                                  "English (United States)"}));
    QCOMPARE(mCombo->currentIndex(), 1);
    mCombo->setCurrentIndex(2);
    QCOMPARE(mValue, QString("en-us"));
}

void tst_ConfWidgetLanguage::rowsAfterAnUnnamedLanguageStoreTheCodeBefore()
{
    mFolder->addFiles({"de-de.qm", "ee-ee.qm", "fr-fr.qm", "sv-se.qm"});
    makeEditor("auto");
    QCOMPARE(rows(),
             QStringList({"Follow the system", "English (United States)", "Deutsch (Deutschland)",
                          "Français (France)", "Svenska (Sverige)"}));
    mCombo->setCurrentIndex(2);
    QCOMPARE(mValue, QString("de-de"));
    mCombo->setCurrentIndex(3);
    QCOMPARE(mValue, QString("ee-ee"));
    mCombo->setCurrentIndex(4);
    QCOMPARE(mValue, QString("fr-fr"));
}

void tst_ConfWidgetLanguage::storedCodeIsShown_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("row");
    QTest::newRow("auto") << "auto" << 0;
    QTest::newRow("english") << "en-us" << 1;
    QTest::newRow("firstFile") << "de-de" << 2;
    QTest::newRow("lastFile") << "fr-fr" << 3;
    QTest::newRow("missingFile") << "it-it" << 0;
    QTest::newRow("caseMatters") << "FR-FR" << 0;
    QTest::newRow("empty") << "" << 0;
}

void tst_ConfWidgetLanguage::storedCodeIsShown()
{
    QFETCH(QString, code);
    mFolder->addFiles({"de-de.qm", "fr-fr.qm"});
    ConfWidgetLanguage *editor = makeEditor(code);
    QTEST(mCombo->currentIndex(), "row");
    QCOMPARE(changedMark(editor), QString(code == "auto" ? "0" : "1"));
}

void tst_ConfWidgetLanguage::showingNeverWrites()
{
    mFolder->addFiles({"de-de.qm"});
    ConfWidgetLanguage *editor = makeEditor("de-de");
    QCOMPARE(mCombo->currentIndex(), 2);
    mFixture->store()->set(mItem->getFullName(), QString("it-it"));
    editor->loadConf();
    QCOMPARE(mCombo->currentIndex(), 0);
    QCOMPARE(mValue, QString("it-it"));
}

void tst_ConfWidgetLanguage::chosenLanguageIsStoredMarkedAndInstalled()
{
    mFolder->addFrenchAndGerman();
    ConfWidgetLanguage *editor = makeEditor("auto");
    mItem->setConfChangedCallback([](const QString &, const ConfValue *value) {
        ConfWidgetLanguage::installTranslator(value->get<QString>());
    });
    QVERIFY(mFixture->show());
    mCombo->setFocus();
    const LogCapture log;
    QTest::keyClick(mCombo, Qt::Key_End);
    QCOMPARE(mValue, QString("fr-fr"));
    QCOMPARE(label(), QString("Langue"));
    QCOMPARE(changedMark(editor), QString("1"));
    QTest::keyClick(mCombo, Qt::Key_Home);
    QCOMPARE(mValue, QString("auto"));
    QCOMPARE(label(), QString("Language"));
    QCOMPARE(changedMark(editor), QString("0"));
}

void tst_ConfWidgetLanguage::clickOnARowSelectsIt()
{
    mFolder->addFiles({"de-de.qm", "fr-fr.qm"});
    makeEditor("auto");
    QVERIFY(mFixture->show());
    mCombo->showPopup();
    QAbstractItemView *view = mCombo->view();
    QTRY_VERIFY(view->isVisible());
    const QRect row = view->visualRect(mCombo->model()->index(2, 0));
    // The list ignores a release before the mouse has moved in it.
    QTest::mouseMove(view->viewport(), row.center());
    QTRY_COMPARE(view->currentIndex().row(), 2);
    QTRY_VERIFY(clickTaken(view, row.center()));
    QCOMPARE(mValue, QString("de-de"));
}

void tst_ConfWidgetLanguage::choosingTheStoredLanguageWritesNothing()
{
    mFolder->addFiles({"fr-fr.qm"});
    ConfWidgetLanguage *editor = makeEditor("fr-fr");
    int calls = 0;
    mItem->setConfChangedCallback([&calls](const QString &, const ConfValue *) { ++calls; });
    editor->label()->setProperty("changed", "untouched");
    editor->onCurrentIndexChanged(2);
    QCOMPARE(calls, 0);
    QCOMPARE(changedMark(editor), QString("untouched"));
}

void tst_ConfWidgetLanguage::slotAlsoSelectsTheRow()
{
    mFolder->addFiles({"fr-fr.qm"});
    ConfWidgetLanguage *editor = makeEditor("auto");
    editor->onCurrentIndexChanged(2);
    QCOMPARE(mCombo->currentIndex(), 2);
    QCOMPARE(mValue, QString("fr-fr"));
    QCOMPARE(changedMark(editor), QString("1"));
}

void tst_ConfWidgetLanguage::rowsOutsideTheListAreIgnored()
{
    mFolder->addFiles({"fr-fr.qm"});
    ConfWidgetLanguage *editor = makeEditor("fr-fr");
    editor->onCurrentIndexChanged(-1);
    editor->onCurrentIndexChanged(3);
    mCombo->setCurrentIndex(-1);
    QCOMPARE(mValue, QString("fr-fr"));
}

void tst_ConfWidgetLanguage::liveChangeRetranslatesTheEditor()
{
    mFolder->addFrenchAndGerman();
    ConfWidgetLanguage *editor = makeEditor("de-de");
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("de-de");
    editor->retranslateUi();
    QCOMPARE(rows().first(), QString("Wie das System"));
    QCOMPARE(qobject_cast<QLabel *>(editor->label())->text(), QString("Sprache"));
    ConfWidgetLanguage::installTranslator("fr-fr");
    editor->retranslateUi();
    QCOMPARE(rows(), QStringList({"Suivre le système", "English (United States)",
                                  "Deutsch (Deutschland)", "Français (France)"}));
    QCOMPARE(mCombo->currentIndex(), 2);
    QCOMPARE(mValue, QString("de-de"));
}

void tst_ConfWidgetLanguage::changeIsAnnouncedAfterItsTranslatorsAreInstalled()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    QStringList announced;
    const auto manager = declareLanguage(&announced);
    ConfStorage::instance()->set<QString>("General.Language", "fr-fr");
    ConfStorage::instance()->set<QString>("General.Language", "de-de");
    QCOMPARE(announced, QStringList({"Langue", "Sprache"}));
    ConfStorage::instance()->set<QString>("General.Language", "de-de");
    QCOMPARE(announced, QStringList({"Langue", "Sprache", "Sprache"}));
}

void tst_ConfWidgetLanguage::restoredDefaultIsInstalledAndAnnounced()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    QStringList announced;
    const auto manager = declareLanguage(&announced);
    ConfStorage::instance()->set<QString>("General.Language", "fr-fr");
    manager->restoreAllDefault();
    QCOMPARE(mValue, QString("auto"));
    QCOMPARE(announced, QStringList({"Langue", "Language"}));
}

void tst_ConfWidgetLanguage::loadInstallsTheLanguageWithoutAChange()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    QStringList announced;
    const auto manager = declareLanguage(&announced);
    mValue = "fr-fr"; // a host may assign its variable before it loads
    manager->loadFromFile("missing.json");
    QCOMPARE(label(), QString("Langue"));
    QVERIFY(announced.isEmpty());
}

void tst_ConfWidgetLanguage::callbackMayDeleteTheEditor()
{
    mFolder->addFiles({"fr-fr.qm"});
    ConfWidgetLanguage *editor = makeEditor("auto");
    mFixture->store()->set(mItem->getFullName(), QString("fr-fr"));
    mItem->setConfChangedCallback([editor](const QString &, const ConfValue *) { delete editor; });
    editor->onCurrentIndexChanged(0);
    QCOMPARE(mValue, QString("auto"));
    QVERIFY(!mItem->editor);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetLanguage>(argc, argv);
}

#include "tst_ConfWidgetLanguage.moc"
