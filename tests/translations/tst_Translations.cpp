#include "support/TestMain.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

/// One text of a .ts file.
struct Message
{
    QString context;
    QString source;
    QStringList forms; ///< the translation, or that of each plural form of the language
    bool isPlural = false;
    bool isFinished = false;

    QString translation() const { return forms.value(0); }
};

QList<Message> readMessages(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    Message message;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            message.context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            message.isPlural = xml.attributes().hasAttribute("numerus");
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute("type");
            message.forms = message.isPlural ? QStringList() : QStringList(xml.readElementText());
            messages.append(message);
        } else if (xml.name() == QLatin1String("numerusform")) {
            messages.last().forms.append(xml.readElementText());
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

/// Returns the parts of a text that every translation must keep, in any order.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression part("%[0-9n]+|\n|\\[|\\]");
    QStringList parts;
    for (auto match = part.globalMatch(text); match.hasNext();)
        parts.append(match.next().captured());
    parts.sort();
    return parts;
}

QString languageOf(const QString &file)
{
    return file.section('_', -1).section('/', -1).left(2);
}

/// Returns the number of plural forms of a language.
int formCount(const QString &language)
{
    static const QHash<QString, int> counts{{"ar", 6}, {"ja", 1}, {"ko", 1}, {"pl", 3},
                                            {"ru", 3}, {"tr", 1}, {"zh", 1}};
    return counts.value(language, 2);
}

/// Returns whether a form is for a single number, which it can say in words: in Arabic those for
/// 0, 1 and 2. The first form of Russian is for 21, too.
bool isForOneNumber(const QString &language, int form)
{
    return language == "ar" && form <= 2;
}

/// Returns whether a translation may equal the English text: names, units, and words that other
/// languages share with English.
bool isTrulyIdentical(const QString &file, const Message &message)
{
    static const QSet<QString> identical{
        " d",      " h",         " min",      " ms",
        " px",     " s",         "%1, %2 px", "%1 pt",
        "%1 px",   "&File",      "&HTML:",    ", ",
        "Alt",     "Cache (MB)", "Capture",   "Color",
        "Ctrl",    "Distance",   "Font",      "Format",
        "General", "Host",       "Image",     "Logo",
        "Mouse",   "Name",       "No",        "OK",
        "Output",  "Port",       "Position",  "Quorvi Capture",
        "Shift",   "Super",      "System",    "Updates",
        "Zoom",    "page",
    };
    return file.endsWith(QLatin1String("en-gb.ts")) || identical.contains(message.source);
}

/// Returns the texts that lupdate finds.
QList<Message> update(const QStringList &arguments, const QString &fresh)
{
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LUPDATE", MALTO_LUPDATE);
    script.setProcessEnvironment(environment);
    script.start(MALTO_SOURCE_DIR "/translations/update.sh", arguments);
    const bool isDone = script.waitForFinished(-1) && script.exitCode() == 0;
    return isDone ? readMessages(fresh) : QList<Message>();
}

QStringList fullTexts(const QList<Message> &messages)
{
    QStringList texts;
    for (const Message &message : messages)
        texts.append(message.context + '|' + message.source);
    return texts;
}

/// Returns the mnemonic of a text.
QString mnemonic(const QString &text)
{
    static const QRegularExpression marked("&(\\w)",
                                           QRegularExpression::UseUnicodePropertiesOption);
    return marked.match(text).captured(1).toUpper();
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();

    void everyOfferedLanguageHasAFile();
    void everyTextOfTheSourcesIsTranslated_data() { everyFile("malto_*.ts"); }
    void everyTextOfTheSourcesIsTranslated();
    void translationsKeepPlaceholdersLineBreaksAndMnemonics_data() { everyFile("*.ts"); }
    void translationsKeepPlaceholdersLineBreaksAndMnemonics();
    void pluralTextsHaveEachFormOfTheLanguage_data() { everyFile("*.ts"); }
    void pluralTextsHaveEachFormOfTheLanguage();
    void noTextIsLeftInEnglish_data() { everyFile("*.ts"); }
    void noTextIsLeftInEnglish();
    void adviceUsesTheTextsOfTheDemo_data() { everyFile("malto_*.ts"); }
    void adviceUsesTheTextsOfTheDemo();
    void languagesThatQtLacksTranslateTheSameQtTexts();
    void mnemonicsOfADialogAreUnique_data();
    void mnemonicsOfADialogAreUnique();
    void hostGetsAFileForEveryLanguageAndKeepsItsTranslations();

private:
    /// Adds a row for each file of the library that matches `pattern`, and for each of the demo.
    void everyFile(const QString &pattern) const
    {
        QTest::addColumn<QString>("file");
        const QStringList files = mFolder.entryList({pattern});
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << "translations/" + file;
        const QStringList demoFiles = mDemoFolder.entryList({"*.ts"});
        for (const QString &file : demoFiles)
            QTest::newRow(qPrintable("demo: " + file)) << "demo/translations/" + file;
    }
    static QList<Message> read(const QString &file)
    {
        return readMessages(MALTO_SOURCE_DIR "/" + file);
    }
    /// Returns the translation of `source` in a file.
    static QString find(const QString &file, const QString &source)
    {
        const QList<Message> messages = read(file);
        for (const Message &message : messages) {
            if (message.source.startsWith(source))
                return message.translation();
        }
        return QString();
    }

    const QDir mFolder = QDir(MALTO_SOURCE_DIR "/translations");
    const QDir mDemoFolder = QDir(MALTO_SOURCE_DIR "/demo/translations");
    QList<Message> mSources;
    QList<Message> mDemoSources;
};

void tst_Translations::initTestCase()
{
    const QString fresh = QDir::current().filePath("fresh.ts");
    mSources = update({fresh}, fresh);
    mDemoSources = update({"--host", MALTO_SOURCE_DIR "/demo", "fresh"}, "fresh/de-de.ts");
    QVERIFY(mDemoSources.size() >= 100);
    // The texts of the window's form, its questions and the editors.
    QVERIFY(mSources.size() >= 8);
}

void tst_Translations::everyOfferedLanguageHasAFile()
{
    QCOMPARE(mFolder.entryList({"malto_*.ts"}, QDir::Files, QDir::Name),
             QStringList({"malto_ar-eg.ts", "malto_de-de.ts", "malto_en-gb.ts", "malto_es-es.ts",
                          "malto_fr-fr.ts", "malto_hi-in.ts", "malto_it-it.ts", "malto_ja-jp.ts",
                          "malto_ko-kr.ts", "malto_nl-nl.ts", "malto_pl-pl.ts", "malto_pt-br.ts",
                          "malto_ru-ru.ts", "malto_sv-se.ts", "malto_tr-tr.ts", "malto_zh-cht.ts",
                          "malto_zh-cn.ts"}));
    QCOMPARE(mDemoFolder.entryList({"*.ts"}, QDir::Files, QDir::Name),
             QStringList({"ar-eg.ts", "de-de.ts", "en-gb.ts", "es-es.ts", "fr-fr.ts", "hi-in.ts",
                          "it-it.ts", "ja-jp.ts", "ko-kr.ts", "nl-nl.ts", "pl-pl.ts", "pt-br.ts",
                          "ru-ru.ts", "sv-se.ts", "tr-tr.ts", "zh-cht.ts", "zh-cn.ts"}));
}

void tst_Translations::everyTextOfTheSourcesIsTranslated()
{
    QFETCH(QString, file);
    QSet<QString> translated;
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        if (message.isFinished && !message.forms.contains(QString()))
            translated.insert(message.context + '|' + message.source);
    }
    const bool isDemo = file.startsWith("demo/");
    const QStringList texts = fullTexts(isDemo ? mDemoSources : mSources);
    const QString script = isDemo ? "demo/translations/update.sh" : "translations/update.sh";
    for (const QString &text : texts)
        QVERIFY2(translated.contains(text), qPrintable("run " + script + ": " + text));
}

void tst_Translations::translationsKeepPlaceholdersLineBreaksAndMnemonics()
{
    QFETCH(QString, file);
    const QList<Message> messages = read(file);
    QVERIFY(!messages.isEmpty());
    for (const Message &message : messages) {
        const QByteArray where = message.source.toUtf8();
        // Units follow their numbers and commas precede the next entry, in most languages with a
        // blank between them.
        const bool isTrimmed = message.source == message.source.trimmed();
        for (int form = 0; form < message.forms.size(); ++form) {
            const QString &text = message.forms.at(form);
            QStringList parts = fixedParts(message.source);
            if (isForOneNumber(languageOf(file), form) && !text.contains("%n"))
                parts.removeAll("%n");
            QVERIFY2(fixedParts(text) == parts, where.constData());
            QVERIFY2(!isTrimmed || text == text.trimmed(), where.constData());
            QVERIFY2(mnemonic(text).isEmpty() == mnemonic(message.source).isEmpty(),
                     where.constData());
        }
    }
}

void tst_Translations::pluralTextsHaveEachFormOfTheLanguage()
{
    QFETCH(QString, file);
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        const QByteArray where = message.source.toUtf8();
        QVERIFY2(message.isPlural == message.source.contains("%n"), where.constData());
        const int count = message.isPlural ? formCount(languageOf(file)) : 1;
        QVERIFY2(message.forms.size() == count, where.constData());
    }
}

void tst_Translations::noTextIsLeftInEnglish()
{
    QFETCH(QString, file);
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        QVERIFY2(!message.forms.contains(message.source) || isTrulyIdentical(file, message),
                 message.source.toUtf8().constData());
    }
}

void tst_Translations::adviceUsesTheTextsOfTheDemo()
{
    QFETCH(QString, file);
    const QString code = file.section('_', -1).section('/', -1);
    const QString advice = find("translations/malto_" + code, "Shortkey [%1]");
    const QString demo = "demo/translations/" + code;
    QVERIFY(advice.contains('[' + find(demo, "System") + ']'));
    QVERIFY(advice.contains('[' + find(demo, "Allow simple global hotkeys") + ']'));
}

void tst_Translations::languagesThatQtLacksTranslateTheSameQtTexts()
{
    const QStringList hindi = fullTexts(read("translations/qt_hi-in.ts"));
    QCOMPARE(fullTexts(read("translations/qt_sv-se.ts")), hindi);
    QVERIFY(hindi.contains("QPlatformTheme|&Yes"));
}

void tst_Translations::mnemonicsOfADialogAreUnique_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("context");
    for (const char *file : {"qt_en-gb.ts", "qt_hi-in.ts", "qt_sv-se.ts"}) {
        for (const char *context : {"QColorDialog", "QFontDialog", "QLineEdit", "QPlatformTheme"})
            QTest::addRow("%s %s", file, context) << QString("translations/") + file << context;
    }
}

void tst_Translations::mnemonicsOfADialogAreUnique()
{
    QFETCH(QString, file);
    QFETCH(QString, context);
    QSet<QString> keys;
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        const QString key = message.context == context ? mnemonic(message.translation())
                                                       : QString();
        QVERIFY2(!keys.contains(key), qPrintable(message.translation()));
        if (!key.isEmpty())
            keys.insert(key);
    }
}

void tst_Translations::hostGetsAFileForEveryLanguageAndKeepsItsTranslations()
{
    QVERIFY(QDir().mkpath("host"));
    QFile source("host/main.cpp");
    QVERIFY(source.open(QIODevice::WriteOnly));
    source.write("const char *label = QT_TRANSLATE_NOOP(\"QObject\", \"Show grid\");\n");
    source.close();
    const QStringList arguments{"--host", "host", "host/texts"};
    QCOMPARE(fullTexts(update(arguments, "host/texts/zh-cht.ts")),
             QStringList("QObject|Show grid"));
    QCOMPARE(QDir("host/texts").entryList(QDir::Files), mDemoFolder.entryList({"*.ts"}));
    QFile file("host/texts/zh-cht.ts");
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray content = file.readAll();
    QVERIFY(content.contains("language=\"zh_TW\""));

    // Existing translations are kept, and files that the host has deleted are not created again.
    QVERIFY(QFile::remove("host/texts/fr-fr.ts"));
    content.replace("<translation type=\"unfinished\"></translation>",
                    "<translation>顯示格線</translation>");
    QVERIFY(file.resize(0) && file.seek(0) && file.write(content) == content.size());
    file.close();
    const QList<Message> again = update(arguments, "host/texts/zh-cht.ts");
    QCOMPARE(again.value(0).translation(), QString("顯示格線"));
    QVERIFY(again.value(0).isFinished);
    QVERIFY(!QFile::exists("host/texts/fr-fr.ts"));
}

int main(int argc, char **argv)
{
    return runTest<tst_Translations>(argc, argv);
}

#include "tst_Translations.moc"
