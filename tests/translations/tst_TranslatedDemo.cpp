#include "demo/DemoSession.h"
#include "demo/declareSettings.h"
#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

#include <algorithm>
#include <utility>

using MtConf::ConfWidgetLanguage;

/// The demo's settings window in every language, in the size that it has when it first opens.
class tst_TranslatedDemo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyDeclaredTextIsTranslated();
    void everyTextFitsItsPage_data();
    void everyTextFitsItsPage();
};

namespace {

/// The width in pixels that `box` leaves for the text of the current entry.
int textWidth(const QComboBox *box)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = box->isEditable();
    return box->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
        .width();
}

/// The width in pixels that `edit` leaves for its text.
int textWidth(const QLineEdit *edit)
{
    constexpr int sMargin = 2; // QLineEdit keeps it free on both sides.
    QStyleOptionFrame option;
    option.initFrom(edit);
    return edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width()
           - 2 * sMargin;
}

bool hasVisibleContent(const QScrollArea *area)
{
    const auto widgets = area->widget()->findChildren<QWidget *>();
    return std::any_of(widgets.cbegin(), widgets.cend(),
                       [](const QWidget *widget) { return widget->isVisible(); });
}

/// Collects the texts that are wider than their place.
class CutTexts
{
public:
    explicit CutTexts(const QWidget *window)
    {
        const auto boxes = window->findChildren<QComboBox *>();
        for (const QComboBox *box : boxes)
            addEntries(box);
        const auto edits = window->findChildren<QLineEdit *>();
        for (const QLineEdit *edit : edits) {
            const QString text = edit->placeholderText();
            // QLineEdit elides by the advance.
            add(edit, text, edit->fontMetrics().horizontalAdvance(text), textWidth(edit));
        }
        const auto buttons = window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            addText(button, button->text());
        const auto labels = window->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            addText(label, label->text());
        addRows(window->findChild<QListView *>("configList"));
    }

    QString text() const { return mTexts.join('\n'); }

private:
    void add(const QWidget *widget, const QString &text, int needed, int available)
    {
        const bool isIcon = text.size() < 2;
        if (widget->isVisible() && !isIcon && needed > available)
            mTexts += QString("%1 (needs %2 of %3 pixels)").arg(text).arg(needed).arg(available);
    }
    void addText(const QWidget *widget, const QString &text)
    {
        if (!widget->hasHeightForWidth()) {
            add(widget, text, widget->sizeHint().width(), widget->width());
            return;
        }
        // The text may have several lines.
        add(widget, text, widget->minimumSizeHint().width(), widget->width());
        add(widget, text, widget->heightForWidth(widget->width()), widget->height());
    }
    void addEntries(const QComboBox *box)
    {
        for (int i = 0; i < box->count(); ++i) {
            const QString text = box->itemText(i);
            // QComboBox clips what is drawn, which may be narrower than the advance. One pixel is
            // the edge of the last letter, and less than what style sheets round.
            const int drawn = box->fontMetrics().boundingRect(text).right();
            add(box, text, drawn, textWidth(box));
        }
    }
    void addRows(const QListView *list)
    {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            add(list, index.data().toString(), list->sizeHintForIndex(index).width(),
                list->viewport()->width());
        }
    }

    QStringList mTexts;
};

} // namespace

void tst_TranslatedDemo::initTestCase()
{
    // The catalogues of malto-demo; this program is in build/tests/bin.
    ConfWidgetLanguage::sLanguagePath = "/../../Resources/language/";
    ConfWidgetLanguage::sLanguageQtPath = "/../../Resources/language_qt/";
}

void tst_TranslatedDemo::init()
{
    clearStore();
    // The files of the previous row, among them the geometry of its window.
    const QStringList files = QDir().entryList(QDir::Files);
    for (const QString &file : files)
        QVERIFY(QFile::remove(file));
}

void tst_TranslatedDemo::cleanup()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("en-us");
    clearStore();
}

void tst_TranslatedDemo::everyDeclaredTextIsTranslated()
{
    const LogCapture log;
    DemoSession session("settings.json", DemoSession::Look::Classic);
    session.load(QString());
    // No text of the demo's settings is the same in Russian.
    ConfWidgetLanguage::installTranslator("ru-ru");
    const auto isTranslated = [](const char *context, const QString &text) {
        return QCoreApplication::translate(context, text.toUtf8().constData()) != text;
    };
    const QStringList pages = pageNames();
    for (const QString &page : pages)
        QVERIFY2(isTranslated("MtConf::ConfigurationWindow", page), qPrintable(page));
    for (const MtConf::ConfItem &item : std::as_const(session.manager().items)) {
        QVERIFY2(isTranslated("QObject", item.displayText), item.displayText);
        QVERIFY2(pages.contains(item.majorName), qPrintable(item.majorName));
        QVERIFY2(item.subName.isEmpty() || isTranslated("MtConf::ConfigurationWindow", item.name),
                 qPrintable(item.name));
    }
}

void tst_TranslatedDemo::everyTextFitsItsPage_data()
{
    QTest::addColumn<QString>("code");
    QStringList codes = ConfWidgetLanguage::loadSupportLanguageCode();
    codes.removeOne("auto");
    QCOMPARE(codes.size(), 18);
    for (const QString &code : std::as_const(codes))
        QTest::newRow(qPrintable(code)) << code;
}

void tst_TranslatedDemo::everyTextFitsItsPage()
{
    QFETCH(QString, code);
    const LogCapture log;
    DemoSession session("settings.json", DemoSession::Look::Classic);
    QFile config("config.json");
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write(R"({"System.ShowExpert": true})");
    config.close();
    session.load(config.fileName());
    QVERIFY(session.settings().showExpert);
    session.chooseLanguage(code);
    MtConf::ConfigurationWindow *window = session.manager().ShowWindow();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const auto *area = window->findChild<QScrollArea *>("scrollArea");
    const QScrollBar *sideways = area->horizontalScrollBar();
    const QStringList pages = pageNames();
    for (const QString &page : pages) {
        window->switchToView(page);
        // The layouts show new widgets in the next round of the event loop, and place them then.
        QTRY_VERIFY2(hasVisibleContent(area), qPrintable(page));
        QCoreApplication::processEvents();
        QTRY_COMPARE(CutTexts(window).text(), QString());
        QTRY_COMPARE(QString("%1 +%2 pixels").arg(page).arg(sideways->maximum()),
                     QString("%1 +0 pixels").arg(page));
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_TranslatedDemo>(argc, argv);
}

#include "tst_TranslatedDemo.moc"
