#include "LanguageFolder.h"

#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <OrvUtils/getPreferredLanguages.h>

#include <fstream>
#include <memory>

using MtConf::ConfWidgetLanguage;

namespace {

// On macOS a library is bound to the library that defines each symbol, so the function of the test
// program cannot replace the companion's.
#ifdef Q_OS_MACOS
constexpr bool sCanBePreferred = false;
#else
constexpr bool sCanBePreferred = true;
#endif

QStringList sPreferred;

} // namespace

/// Replaces the companion's function of the same name, so that the test sets the user's preferred
/// languages: except on macOS, symbols of the program take precedence.
QStringList getPreferredLanguages()
{
    return sPreferred;
}

/// The supported languages and their translators.
class tst_ConfWidgetLanguageTranslators : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void filesAreInTheResourcesFolderBesideTheExecutable();
    void supportedCodes_data();
    void supportedCodes();
    void unusualFileNames_data();
    void unusualFileNames();
    void onlyReadableFilesAreListed();
    void filesAreLookedUpOnce();
    void usableCode_data();
    void usableCode();
    void fixedLanguageIgnoresTheSystem();
    void autoIsNeverReturned();
    void bothTranslatorsAreInstalled();
    void autoInstallsThePreferredLanguage();
    void englishRemovesBothTranslators();
    void anotherLanguageReplacesTheCurrentOne();
    void sameRequestDoesNothing();
    void missingQtFileLeavesTheApplicationTranslated();
    void invalidFileLeavesQtTranslated();
    void failedLanguageIsLoadedAgainAfterAnotherOne();
    void codeCannotLeaveTheFolder_data();
    void codeCannotLeaveTheFolder();
    void onlyTheFileOfTheCodeIsLoaded();
    void everyTruncatedFileIsRejectedOrReadSafely();
    void listWithoutEnglishFallsBackToItsFirstCode();

private:
    static QString label() { return QObject::tr("Language"); }
    static QString cancel() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

    QString mDefaultPath;
    QString mDefaultQtPath;
    std::unique_ptr<LanguageFolder> mFolder;
};

void tst_ConfWidgetLanguageTranslators::initTestCase()
{
    mDefaultPath = ConfWidgetLanguage::sLanguagePath;
    mDefaultQtPath = ConfWidgetLanguage::sLanguageQtPath;
}

void tst_ConfWidgetLanguageTranslators::init()
{
    sPreferred = QStringList("C");
    mFolder = std::make_unique<LanguageFolder>();
}

void tst_ConfWidgetLanguageTranslators::cleanup()
{
    const LogCapture log;
    mFolder.reset();
}

void tst_ConfWidgetLanguageTranslators::filesAreInTheResourcesFolderBesideTheExecutable()
{
    QCOMPARE(mDefaultPath, QString("/../Resources/language/"));
    QCOMPARE(mDefaultQtPath, QString("/../Resources/language_qt/"));
}

void tst_ConfWidgetLanguageTranslators::supportedCodes_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("codes");
    const auto row = [](const char *name, const QStringList &files, const QStringList &codes) {
        QTest::newRow(name) << files << (QStringList{"auto", "en-us"} + codes);
    };
    row("onlyEnglishWithoutFiles", {}, {});
    row("filesAreSortedByName", {"sv-se.qm", "ar-eg.qm", "fr-fr.qm"}, {"ar-eg", "fr-fr", "sv-se"});
    row("codesAreLowerCase", {"DE-DE.qm", "zh-CN.qm"}, {"de-de", "zh-cn"});
    row("codeEndsAtTheFirstFullStop", {"it-it.host.qm"}, {"it-it"});
    row("englishFileAddsEnglishAgain", {"en-us.qm"}, {"en-us"});
    row("unknownLanguagesAreListed", {"xx-yy.qm"}, {"xx-yy"});
    row("otherFilesAreIgnored", {"fr-fr.ts", "readme", "de-de.qm.bak"}, {});
    row("foldersAreIgnored", {"fr-fr.qm/file"}, {});
}

void tst_ConfWidgetLanguageTranslators::supportedCodes()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, codes);
    mFolder->addFiles(files);
    QCOMPARE(ConfWidgetLanguage::loadSupportLanguageCode(), codes);
    QCOMPARE(ConfWidgetLanguage::mSupportLangCodes, codes);
}

void tst_ConfWidgetLanguageTranslators::unusualFileNames_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("code"); // null if the file is ignored
    QTest::newRow("suffixAlone") << QByteArray(".qm") << QString();
    QTest::newRow("twoFullStopsWithoutName") << QByteArray("..qm") << QString();
    QTest::newRow("parentFolderAndSuffix") << QByteArray("...qm") << QString();
    QTest::newRow("hidden") << QByteArray(".fr-fr.qm") << QString();
    QTest::newRow("severalFullStops") << QByteArray("a.b.c.qm") << QString("a");
    QTest::newRow("blanks") << QByteArray(" fr-fr .qm") << QString(" fr-fr ");
    QTest::newRow("lineBreak") << QByteArray("fr\nfr.qm") << QString("fr\nfr");
    QTest::newRow("backslashes") << QByteArray("..\\..\\x.qm") << QString();
    QTest::newRow("percentSign") << QByteArray("%1%2.qm") << QString("%1%2");
    QTest::newRow("maximumLength") << QByteArray(252, 'x') + ".qm" << QString(252, 'x');
    QTest::newRow("suffixInCapitals") << QByteArray("fr-fr.QM") << QString("fr-fr");
#ifdef Q_OS_LINUX
    QTest::newRow("notUtf8") << QByteArray("fr\xff\xfe.qm") << QString();
#endif
}

void tst_ConfWidgetLanguageTranslators::unusualFileNames()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, code);
    mFolder->addFiles({"plain.qm"});
    std::ofstream(QFile::encodeName(mFolder->filePath({})).toStdString() + file.toStdString());
    QStringList codes{"auto", "en-us", "plain"};
    if (!code.isNull())
        codes.append(code);
    codes.sort();
    QStringList found = ConfWidgetLanguage::loadSupportLanguageCode();
    found.sort();
    QCOMPARE(found, codes);
    if (code.isNull())
        return;
    const LogCapture log;
    ConfWidgetLanguage::installTranslator(code);
    QCOMPARE(log.texts(QtWarningMsg).value(0), QString("Unable to load QTranslator"));
    QCOMPARE(label(), QString("Language"));
}

void tst_ConfWidgetLanguageTranslators::onlyReadableFilesAreListed()
{
    mFolder->addFiles({"de-de.qm", "fr-fr.qm", "it-it.qm/file"});
    QVERIFY(QFile::link("nowhere", mFolder->filePath("es-es.qm")));
    QVERIFY(QFile::link(mFolder->filePath("de-de.qm"), mFolder->filePath("nl-nl.qm")));
    QVERIFY(QFile::setPermissions(mFolder->filePath("fr-fr.qm"), {}));
    QStringList codes{"auto", "en-us", "de-de", "nl-nl"};
    if (QFileInfo(mFolder->filePath("fr-fr.qm")).isReadable()) // root can read every file
        codes.insert(3, "fr-fr");
    QCOMPARE(ConfWidgetLanguage::loadSupportLanguageCode(), codes);
}

void tst_ConfWidgetLanguageTranslators::filesAreLookedUpOnce()
{
    ConfWidgetLanguage::loadSupportLanguageCode();
    mFolder->addFiles({"fr-fr.qm"});
    QCOMPARE(ConfWidgetLanguage::loadSupportLanguageCode(), QStringList({"auto", "en-us"}));
}

void tst_ConfWidgetLanguageTranslators::usableCode_data()
{
    QTest::addColumn<QStringList>("preferred");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("code");

    const QStringList fileSets[] = {{},
                                    {"zh-cn.qm"},
                                    {"en-gb.qm", "fr-fr.qm"},
                                    {"de-de.qm", "fr-fr.qm", "zh-cn.qm", "zh-cht.qm"}};
    // One code for each set of files.
    const struct
    {
        QStringList preferred;
        const char *codes[4];
    } table[] = {
        {{}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"C"}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"zh-Hans-CN"}, {"en-us", "zh-cn", "en-us", "zh-cn"}},
        {{"zh_CN"}, {"en-us", "zh-cn", "en-us", "zh-cn"}},
        {{"zh-hans-cn"}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"zh-Hant-TW"}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"en_GB"}, {"en-us", "en-us", "en-gb", "en-us"}},
        {{"en_GB", "de-DE"}, {"en-us", "en-us", "en-gb", "de-de"}},
        {{"FR_fr", "de_DE"}, {"en-us", "en-us", "fr-fr", "fr-fr"}},
        {{"de_DE", "FR_fr"}, {"en-us", "en-us", "fr-fr", "de-de"}},
        {{"fr"}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"en_US", "fr_FR"}, {"en-us", "en-us", "en-us", "en-us"}},
        {{"auto", "zh_CN"}, {"en-us", "zh-cn", "en-us", "zh-cn"}},
        {{"", "xx", "zh-Hans-CN"}, {"en-us", "zh-cn", "en-us", "zh-cn"}},
    };
    for (const auto &line : table) {
        for (int set = 0; set < 4; ++set) {
            QTest::addRow("%s with %s", qPrintable(line.preferred.join('>')),
                          qPrintable(fileSets[set].join('+')))
                << line.preferred << fileSets[set] << line.codes[set];
        }
    }
}

void tst_ConfWidgetLanguageTranslators::usableCode()
{
    if (!sCanBePreferred)
        QSKIP("the test cannot replace the system's languages on this platform");
    QFETCH(QStringList, preferred);
    QFETCH(QStringList, files);
    sPreferred = preferred;
    mFolder->addFiles(files);
    QTEST(ConfWidgetLanguage::getVaildLanguageCode("auto"), "code");
    QTEST(ConfWidgetLanguage::getVaildLanguageCode("xx-yy"), "code");
    QTEST(ConfWidgetLanguage::getVaildLanguageCode("FR-FR"), "code");
    QTEST(ConfWidgetLanguage::getVaildLanguageCode(QString()), "code");
}

void tst_ConfWidgetLanguageTranslators::fixedLanguageIgnoresTheSystem()
{
    sPreferred = QStringList{"zh-Hans-CN"};
    mFolder->addFiles({"fr-fr.qm", "xx-yy.qm", "zh-cn.qm"});
    QCOMPARE(ConfWidgetLanguage::getVaildLanguageCode("fr-fr"), QString("fr-fr"));
    QCOMPARE(ConfWidgetLanguage::getVaildLanguageCode("xx-yy"), QString("xx-yy"));
    QCOMPARE(ConfWidgetLanguage::getVaildLanguageCode("en-us"), QString("en-us"));
}

void tst_ConfWidgetLanguageTranslators::autoIsNeverReturned()
{
    mFolder->addFiles({"auto.qm"});
    sPreferred = QStringList{"auto"};
    QCOMPARE(ConfWidgetLanguage::getVaildLanguageCode("auto"), QString("en-us"));
}

void tst_ConfWidgetLanguageTranslators::bothTranslatorsAreInstalled()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Langue"));
    QCOMPARE(cancel(), QString("Annuler"));
    QCOMPARE(log.messages(), QList<LoggedMessage>({{QtDebugMsg, "installTranslator:  \"fr-fr\""}}));
}

void tst_ConfWidgetLanguageTranslators::autoInstallsThePreferredLanguage()
{
    if (!sCanBePreferred)
        QSKIP("the test cannot replace the system's languages on this platform");
    mFolder->addFrenchAndGerman();
    sPreferred = QStringList{"it_IT", "fr_FR", "de_DE"};
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("auto");
    QCOMPARE(label(), QString("Langue"));
    QCOMPARE(log.texts(QtDebugMsg), QStringList("installTranslator:  \"fr-fr\""));
}

void tst_ConfWidgetLanguageTranslators::englishRemovesBothTranslators()
{
    mFolder->addFrenchAndGerman();
    ConfWidgetLanguage::installTranslator("fr-fr");
    ConfWidgetLanguage::installTranslator("en-us");
    QCOMPARE(label(), QString("Language"));
    QCOMPARE(cancel(), QString("Cancel"));
}

void tst_ConfWidgetLanguageTranslators::anotherLanguageReplacesTheCurrentOne()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    ConfWidgetLanguage::installTranslator("de-de");
    QCOMPARE(label(), QString("Sprache"));
    QCOMPARE(cancel(), QString("Cancel"));
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Langue"));
    QCOMPARE(cancel(), QString("Annuler"));
}

void tst_ConfWidgetLanguageTranslators::sameRequestDoesNothing()
{
    mFolder->addFrenchAndGerman();
    sPreferred = QStringList{"fr_FR"};
    ConfWidgetLanguage::installTranslator("auto");
    const QString before = label();
    sPreferred = QStringList{"de_DE"};
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("auto");
    QCOMPARE(label(), before);
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfWidgetLanguageTranslators::missingQtFileLeavesTheApplicationTranslated()
{
    mFolder->addFrenchAndGerman();
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("de-de");
    QCOMPARE(label(), QString("Sprache"));
    const QString path = QCoreApplication::applicationDirPath()
                         + ConfWidgetLanguage::sLanguageQtPath + "qt_de-de.qm";
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("Unable to load Qt office QTranslator :  \"" + path + '"'));
}

void tst_ConfWidgetLanguageTranslators::invalidFileLeavesQtTranslated()
{
    mFolder->addFiles({"fr-fr.qm"});
    mFolder->addCatalogue("qt_fr-fr.qm");
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Language"));
    QCOMPARE(cancel(), QString("Annuler"));
    QCOMPARE(log.texts(QtWarningMsg), QStringList("Unable to load QTranslator"));
}

void tst_ConfWidgetLanguageTranslators::failedLanguageIsLoadedAgainAfterAnotherOne()
{
    mFolder->addFiles({"fr-fr.qm"});
    mFolder->addCatalogue("qt_fr-fr.qm");
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    mFolder->addCatalogue("fr-fr.qm");
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Language"));
    ConfWidgetLanguage::installTranslator("en-us");
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Langue"));
}

void tst_ConfWidgetLanguageTranslators::codeCannotLeaveTheFolder_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("otherFolder") << "../other/fr-fr";
    QTest::newRow("parentFolder") << "../x";
    QTest::newRow("twoFoldersUp") << "../../x";
    QTest::newRow("folderItself") << "./fr-fr";
    QTest::newRow("subfolder") << "sub/fr-fr";
    QTest::newRow("absolute") << "/fr-fr";
    QTest::newRow("withSuffix") << "fr-fr.qm";
    QTest::newRow("otherCase") << "FR-FR";
    QTest::newRow("trailingBlank") << "fr-fr ";
    QTest::newRow("nullCharacter") << QString("fr-fr") + QChar(u'\0') + "x";
    QTest::newRow("resource") << ":/fr-fr";
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " ";
    QTest::newRow("autoAndBlank") << "auto ";
    QTest::newRow("autoInCapitals") << "AUTO";
    QTest::newRow("long") << QString(100000, 'x');
}

void tst_ConfWidgetLanguageTranslators::codeCannotLeaveTheFolder()
{
    mFolder->addFrenchAndGerman();
    for (const char *path : {"other/fr-fr.qm", "language/sub/fr-fr.qm", "x.qm"})
        mFolder->copyCatalogue("fr-fr.qm", path);
    QFETCH(QString, code);
    QCOMPARE(ConfWidgetLanguage::getVaildLanguageCode(code), QString("en-us"));
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("de-de");
    ConfWidgetLanguage::installTranslator(code);
    QCOMPARE(log.texts(QtDebugMsg).last(), QString("installTranslator:  \"en-us\""));
    QCOMPARE(label(), QString("Language"));
}

void tst_ConfWidgetLanguageTranslators::onlyTheFileOfTheCodeIsLoaded()
{
    // If the file is missing, Qt would also try these names.
    mFolder->addFiles({"fr-fr.host.qm"});
    mFolder->copyCatalogue("fr-fr.qm", "language/fr-fr");
    mFolder->copyCatalogue("fr-fr.qm", "language/fr-fr.qm.qm");
    mFolder->copyCatalogue("qt_fr-fr.qm", "language_qt/qt.qm");
    mFolder->copyCatalogue("qt_fr-fr.qm", "language.qm");
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Language"));
    QCOMPARE(cancel(), QString("Cancel"));
    QCOMPARE(log.texts(QtWarningMsg).size(), 2);
}

void tst_ConfWidgetLanguageTranslators::everyTruncatedFileIsRejectedOrReadSafely()
{
    mFolder->addCatalogue("fr-fr.qm");
    QFile file(mFolder->filePath("fr-fr.qm"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    int refused = 0;
    for (qint64 size = file.size() - 1; size >= 0; --size) {
        QVERIFY(file.resize(size));
        const LogCapture log;
        ConfWidgetLanguage::installTranslator("en-us");
        ConfWidgetLanguage::installTranslator("fr-fr");
        const QString text = label();
        QVERIFY2(text == "Langue" || text == "Language", qPrintable(text));
        if (log.texts(QtWarningMsg).contains("Unable to load QTranslator")) {
            ++refused;
            QCOMPARE(text, QString("Language"));
        }
    }
    QVERIFY(refused > 0);
}

void tst_ConfWidgetLanguageTranslators::listWithoutEnglishFallsBackToItsFirstCode()
{
    mFolder->addFrenchAndGerman();
    ConfWidgetLanguage::mSupportLangCodes = QStringList{"de-de", "fr-fr"};
    sPreferred.clear();
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("it-it");
    QCOMPARE(label(), QString("Sprache"));
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfWidgetLanguageTranslators>(argc, argv);
}

#include "tst_ConfWidgetLanguageTranslators.moc"
