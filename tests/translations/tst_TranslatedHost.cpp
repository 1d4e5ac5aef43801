#include "support/CleanStore.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>

#include <QAbstractButton>
#include <QListView>
#include <QScrollArea>

using MtConf::ConfWidgetLanguage;

/// A host whose build merges its own translations with those of the library and of Qt.
class tst_TranslatedHost : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { clearStore(); }
    void cleanup();

    void everyMergedLanguageIsOffered();
    void libraryAndQtAreTranslated_data();
    void libraryAndQtAreTranslated();
    void britishEnglishSpellsQtsColours();
    void hostIsTranslated();
    void translationOfTheHostTakesPrecedence();
    void arabicUsesARightToLeftLayout();
};

namespace {

QString translate(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

/// Returns whether `left` is on the left of `right` on the screen.
bool isLeftOf(const QWidget *left, const QWidget *right)
{
    return left->mapToGlobal(left->rect().center()).x()
           < right->mapToGlobal(right->rect().center()).x();
}

} // namespace

void tst_TranslatedHost::cleanup()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("en-us");
    clearStore();
}

void tst_TranslatedHost::everyMergedLanguageIsOffered()
{
    QCOMPARE(ConfWidgetLanguage::loadSupportLanguageCode(),
             QStringList({"auto", "en-us", "ar-eg", "de-de", "en-gb", "es-es", "fr-fr", "hi-in",
                          "it-it", "ja-jp", "ko-kr", "nl-nl", "pl-pl", "pt-br", "ru-ru", "sv-se",
                          "tr-tr", "zh-cht", "zh-cn"}));
}

void tst_TranslatedHost::libraryAndQtAreTranslated_data()
{
    QTest::addColumn<QString>("restore");
    QTest::addColumn<QString>("yes");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const auto row = [](const char *code, const char *restore, const char *yes,
                        Qt::LayoutDirection direction = Qt::LeftToRight) {
        QTest::newRow(code) << QString(restore) << QString(yes) << direction;
    };
    row("ar-eg", "استعادة الإعدادات الافتراضية", "&نعم", Qt::RightToLeft);
    row("de-de", "Auf Standard zurücksetzen", "&Ja");
    row("en-gb", "Restore Defaults", "&Yes");
    row("es-es", "Restaurar valores predeterminados", "&Sí");
    row("fr-fr", "Rétablir par défaut", "&Oui");
    row("hi-in", "डिफ़ॉल्ट पुनर्स्थापित करें", "हाँ (&Y)");
    row("it-it", "Ripristina valori predefiniti", "&Sì");
    row("ja-jp", "デフォルトに戻す", "はい(&Y)");
    row("ko-kr", "기본값으로 복원", "예(&Y)");
    row("nl-nl", "Standaardwaarden herstellen", "&Ja");
    row("pl-pl", "Przywróć domyślne", "&Tak");
    row("pt-br", "Restaurar padrões", "&Sim");
    row("ru-ru", "Вернуть значения по умолчанию", "&Да");
    row("sv-se", "Återställ standardvärden", "&Ja");
    row("tr-tr", "Varsayılanları Geri Yükle", "&Evet");
    row("zh-cht", "還原為預設值", "是(&Y)");
    row("zh-cn", "恢复默认", "是(&Y)");
}

void tst_TranslatedHost::libraryAndQtAreTranslated()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator(QTest::currentDataTag());
    QVERIFY2(log.texts(QtWarningMsg).isEmpty(), "a file could not be loaded");
    QTEST(translate("ConfigurationWindow", "Restore Default"), "restore");
    QTEST(translate("QPlatformTheme", "&Yes"), "yes");
    QTEST(QGuiApplication::layoutDirection(), "direction");
}

void tst_TranslatedHost::britishEnglishSpellsQtsColours()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("en-gb");
    QCOMPARE(translate("QColorDialog", "Select Color"), QString("Select Colour"));
    QCOMPARE(translate("QColorDialog", "&Red:"), QString("&Red:"));
    ConfWidgetLanguage::installTranslator("en-us");
    QCOMPARE(translate("QColorDialog", "Select Color"), QString("Select Color"));
}

void tst_TranslatedHost::hostIsTranslated()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(translate("QObject", "Mirror the page"), QString("Refléter la page"));
    ConfWidgetLanguage::installTranslator("de-de");
    QCOMPARE(translate("QObject", "Mirror the page"), QString("Mirror the page"));
}

void tst_TranslatedHost::translationOfTheHostTakesPrecedence()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(translate("ConfigurationWindow", "Quorvi Configuration"),
             QString("Réglages de l’hôte"));
}

void tst_TranslatedHost::arabicUsesARightToLeftLayout()
{
    bool mirror = false;
    MtConf::MtConfManage manager;
    manager.addConfBool("Mirror the page", &mirror, "General", "Mirror", "");
    const QPointer<MtConf::ConfigurationWindow> window = manager.ShowWindow();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    const auto *classes = window->findChild<QListView *>("configList");
    const auto *page = window->findChild<QScrollArea *>("scrollArea");
    QVERIFY(isLeftOf(classes, page));

    const LogCapture log;
    const auto choose = [&manager](const QString &code) {
        ConfWidgetLanguage::installTranslator(code);
        Q_EMIT manager.sigLanguageChange();
    };
    choose("ar-eg");
    QTRY_VERIFY(isLeftOf(page, classes));
    QCOMPARE(window->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(window->windowTitle(), QString("إعدادات Quorvi"));
    QCOMPARE(classes->model()->index(0, 0).data().toString(), QString("عام"));
    QCOMPARE(window->findChild<QAbstractButton *>("btnRestoreDefault")->text(),
             QString("استعادة الإعدادات الافتراضية"));
    choose("hi-in");
    QTRY_VERIFY(isLeftOf(classes, page));
    choose("ar-eg");
    QTRY_VERIFY(isLeftOf(page, classes));
    choose("en-us");
    QTRY_VERIFY(isLeftOf(classes, page));
    QCOMPARE(window->windowTitle(), QString("Quorvi Configuration"));

    window->close();
    QTRY_VERIFY(!window);
}

int main(int argc, char **argv)
{
    return runTest<tst_TranslatedHost>(argc, argv);
}

#include "tst_TranslatedHost.moc"
