#include "DemoFixture.h"
#include "demo/declareSettings.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>

#include <QComboBox>
#include <QLabel>
#include <QScrollArea>

/// The pages of the demo in the modern look, with the longest texts of all languages.
class tst_ModernPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { MtConf::ConfWidgetLanguage::installTranslator("en-us"); }
    void noPageScrollsSideways_data() { addLanguages(); }
    void noPageScrollsSideways();
    void editorsOfAPageEndInOneColumn();
    void actionsOfGesturesBeginInOneColumn_data() { addLanguages(); }
    void actionsOfGesturesBeginInOneColumn();
    void pagesOfTheProgramHaveOneTitle();

private:
    static void addLanguages();
    static int px(double pixels)
    {
        return qRound(pixels * qEnvironmentVariableIntValue("QT_FONT_DPI") / 96);
    }
    static void settle()
    {
        // Layouts, and the sizes that depend on them.
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
    }

    DemoFixture mDemo;
};

void tst_ModernPages::initTestCase()
{
    MtConf::ConfWidgetLanguage::sLanguagePath = "/../../Resources/language/";
    MtConf::ConfWidgetLanguage::sLanguageQtPath = "/../../Resources/language_qt/";
}

void tst_ModernPages::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *code :
         {"en-us", "en-gb", "ar-eg", "de-de", "es-es", "fr-fr", "hi-in", "it-it", "ja-jp", "ko-kr",
          "nl-nl", "pl-pl", "pt-br", "ru-ru", "sv-se", "tr-tr", "zh-cht", "zh-cn"})
        QTest::newRow(code) << code;
}

void tst_ModernPages::noPageScrollsSideways()
{
    QFETCH(const QString, language);
    mDemo.start(QString(), DemoSession::Look::Modern);
    mDemo.session->chooseLanguage(language);
    const QStringList pages = pageNames();
    QVERIFY(mDemo.open(pages.first()));
    if (language == "de-de") // the catalogues are found
        QCOMPARE(DemoFixture::child<QLabel>("ModernPageTitle")->text(), QString("Allgemein"));
    for (const QString &page : pages) {
        QVERIFY(mDemo.open(page));
        for (const int width : {980, 760, 759, 680}) {
            mDemo.window()->resize(px(width), px(690));
            settle();
            const auto *area = DemoFixture::child<QScrollArea>("scrollArea");
            const int missing = area->widget()->width() - area->viewport()->width();
            QVERIFY2(
                missing <= 0,
                qPrintable(
                    QString("%1 at a width of %2: %3 pixels").arg(page).arg(width).arg(missing)));
        }
    }
}

void tst_ModernPages::editorsOfAPageEndInOneColumn()
{
    mDemo.start(QString(), DemoSession::Look::Modern);
    const QStringList pages = pageNames();
    for (const QString &page : pages) {
        QVERIFY(mDemo.open(page));
        mDemo.window()->resize(px(980), px(690));
        settle();
        QSet<int> ends;
        const QList<MtConf::ConfItem *> items = mDemo.session->manager().getConfItemList(page);
        for (const MtConf::ConfItem *item : items) {
            const QWidget *editor = item->editor;
            if (editor)
                ends.insert(editor->mapTo(editor->window(), QPoint(editor->width(), 0)).x());
        }
        QVERIFY2(ends.size() <= 1, qPrintable(page));
    }
}

void tst_ModernPages::actionsOfGesturesBeginInOneColumn()
{
    QFETCH(const QString, language);
    mDemo.start(QString(), DemoSession::Look::Modern);
    mDemo.session->chooseLanguage(language);
    QVERIFY(mDemo.open("Mouse"));
    mDemo.window()->resize(px(980), px(690));
    settle();
    QSet<int> begins;
    int count = 0;
    const QList<MtConf::ConfItem *> items = mDemo.session->manager().getConfItemList("Mouse");
    for (const MtConf::ConfItem *item : items) {
        if (!dynamic_cast<MtConf::ConfWidgetMouseAction *>(item->editor))
            continue;
        const QList<QComboBox *> boxes = item->editor->findChildren<QComboBox *>();
        QCOMPARE(boxes.size(), 2);
        const QComboBox *action = boxes.last();
        begins.insert(action->mapTo(mDemo.window(), QPoint()).x());
        ++count;
    }
    QVERIFY(count >= 8);
    QCOMPARE(begins.size(), 1);
}

void tst_ModernPages::pagesOfTheProgramHaveOneTitle()
{
    mDemo.start(QString(), DemoSession::Look::Modern);
    mDemo.session->chooseLanguage("en-us"); // not the saved one
    for (const char *page : {"Profiles", "Stored data", "System"}) {
        QVERIFY(mDemo.open(page));
        settle();
        int titles = 0;
        const QList<QLabel *> labels = mDemo.window()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            titles += label->isVisible() && label->text() == QLatin1String(page);
        QVERIFY2(titles == 1, page);
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_ModernPages>(argc, argv);
}

#include "tst_ModernPages.moc"
