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
    QString translation;
    bool isFinished = false;
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
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute("type");
            message.translation = xml.readElementText();
            messages.append(message);
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

/// The parts of a text that every translation keeps, however it orders them.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression part("%[0-9]+|\n|\\[|\\]");
    QStringList parts;
    for (auto match = part.globalMatch(text); match.hasNext();)
        parts.append(match.next().captured());
    parts.sort();
    return parts;
}

/// Whether a text may read as the English one does.
bool isTrulyIdentical(const QString &file, const Message &message)
{
    static const QSet<QString> identical{
        "qt_sv-se.ts OK",
        "qt_sv-se.ts &HTML:",
    };
    return file == QLatin1String("malto_en-gb.ts")
        || identical.contains(file + ' ' + message.source);
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
    void translationsKeepTheFormOfTheirSource_data() { everyFile("*.ts"); }
    void translationsKeepTheFormOfTheirSource();
    void nothingIsLeftInEnglish_data() { everyFile("*.ts"); }
    void nothingIsLeftInEnglish();
    void languagesWithoutQtTextsHaveTheSameOnes();

private:
    void everyFile(const QString &pattern) const
    {
        QTest::addColumn<QString>("file");
        const QStringList files = mFolder.entryList({pattern});
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file;
    }
    QList<Message> read(const QString &file) const { return readMessages(mFolder.filePath(file)); }

    const QDir mFolder = QDir(MALTO_SOURCE_DIR "/translations");
    QList<Message> mSources;
};

void tst_Translations::initTestCase()
{
    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LUPDATE", MALTO_LUPDATE);
    update.setProcessEnvironment(environment);
    const QString fresh = QDir::current().filePath("fresh.ts");
    update.start(mFolder.filePath("update.sh"), {fresh});
    QVERIFY(update.waitForFinished(-1));
    QCOMPARE(update.exitCode(), 0);
    mSources = readMessages(fresh);
    // The window's form, its questions and the editors.
    QVERIFY(mSources.size() >= 8);
}

void tst_Translations::everyOfferedLanguageHasAFile()
{
    QCOMPARE(mFolder.entryList({"malto_*.ts"}, QDir::Files, QDir::Name), QStringList({
        "malto_ar-eg.ts", "malto_de-de.ts", "malto_en-gb.ts", "malto_es-es.ts", "malto_fr-fr.ts",
        "malto_hi-in.ts", "malto_it-it.ts", "malto_ja-jp.ts", "malto_ko-kr.ts", "malto_nl-nl.ts",
        "malto_pl-pl.ts", "malto_pt-br.ts", "malto_ru-ru.ts", "malto_sv-se.ts", "malto_tr-tr.ts",
        "malto_zh-cht.ts", "malto_zh-cn.ts"}));
}

void tst_Translations::everyTextOfTheSourcesIsTranslated()
{
    QFETCH(QString, file);
    QSet<QString> translated;
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        if (message.isFinished && !message.translation.isEmpty())
            translated.insert(message.context + '|' + message.source);
    }
    for (const Message &message : qAsConst(mSources)) {
        const QString text = message.context + '|' + message.source;
        QVERIFY2(translated.contains(text), qPrintable("run translations/update.sh: " + text));
    }
}

void tst_Translations::translationsKeepTheFormOfTheirSource()
{
    QFETCH(QString, file);
    const QList<Message> messages = read(file);
    QVERIFY(!messages.isEmpty());
    for (const Message &message : messages) {
        const QByteArray where = message.source.toUtf8();
        QVERIFY2(fixedParts(message.translation) == fixedParts(message.source), where.constData());
        QVERIFY2(message.translation == message.translation.trimmed(), where.constData());
    }
}

void tst_Translations::nothingIsLeftInEnglish()
{
    QFETCH(QString, file);
    const QList<Message> messages = read(file);
    for (const Message &message : messages) {
        QVERIFY2(message.translation != message.source || isTrulyIdentical(file, message),
                 message.source.toUtf8().constData());
    }
}

void tst_Translations::languagesWithoutQtTextsHaveTheSameOnes()
{
    QStringList hindi;
    QStringList swedish;
    for (const Message &message : read("qt_hi-in.ts"))
        hindi.append(message.context + '|' + message.source);
    for (const Message &message : read("qt_sv-se.ts"))
        swedish.append(message.context + '|' + message.source);
    QCOMPARE(hindi, swedish);
    QVERIFY(hindi.contains("QPlatformTheme|&Yes"));
}

int main(int argc, char **argv)
{
    return runTest<tst_Translations>(argc, argv);
}

#include "tst_Translations.moc"
