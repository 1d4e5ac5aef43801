#include "support/TestMain.h"

#include <QFile>
#include <QImage>
#include <QProcess>

/// Runs the demo program with valid and invalid arguments.
class tst_DemoArguments : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void helpListsEveryOption();
    void invalidArgumentsOnlyPrintAMessage_data();
    void invalidArgumentsOnlyPrintAMessage();
    void unknownLanguagePrintsTheListOfLanguages();
    void picturesShowEveryPageInBothThemes();
    void picturesWriteNothingButPictures();
    void picturesAreScaled();
    void classicWindowIsShownOnRequest();
    void highContrastIsShownOnRequest();
    void picturesShowTheConfiguration();
    void picturesShowTheLanguage();
    void occupiedFailsOnAPlatformWithoutHotkeys();

private:
    struct Run
    {
        int exitCode;
        QString output;
        QString errors;
    };
    static Run run(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.remove(QStringLiteral("QT_FONT_DPI"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), QDir::currentPath() + "/home");
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(DEMO_PROGRAM), arguments);
        const bool ended = process.waitForFinished(-1)
                           && process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1,
                QString::fromLocal8Bit(process.readAllStandardOutput()),
                QString::fromLocal8Bit(process.readAllStandardError())};
    }
    static bool write(const QString &path, const QByteArray &text)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }
};

void tst_DemoArguments::helpListsEveryOption()
{
    const Run help = run({"--help"});
    QCOMPARE(help.exitCode, 0);
    QCOMPARE(help.errors, QString());
    for (const char *option :
         {"--local-file", "--config", "--page", "--theme", "--language", "--scale", "--classic",
          "--high-contrast", "--pictures", "--occupied", "--help"})
        QVERIFY2(help.output.contains(QLatin1String(option)), option);
    QVERIFY(!help.output.contains("--hold-key"));
}

void tst_DemoArguments::invalidArgumentsOnlyPrintAMessage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QStringList &arguments, const QString &message) {
        QTest::newRow(name) << arguments << "malto-demo: " + message + "\n";
    };
    const QString here = QDir::currentPath();
    QVERIFY(write("array.json", "[1]"));
    QVERIFY(write("broken.json", "{\"a\": "));
    QVERIFY(write("file", "x"));
    row("unknown option", {"--colour"}, "Unknown option 'colour'.");
    row("option without its value", {"--page"}, "Missing value after '--page'.");
    row("unexpected argument", {"more"}, "Unexpected argument \"more\"");
    row("unknown page", {"--page", "Sound"},
        "Unknown page \"Sound\"; there are: General, Appearance, Capture, Hotkeys, Mouse, Output, "
        "Texts, Numbers, Choices, Profiles, System, Stored data");
    row("unknown theme", {"--theme", "pink"},
        "Unknown theme \"pink\"; there are: system, light, dark");
    row("scale that is a word", {"--scale", "big"}, "Not a scale from 0.5 to 4: \"big\"");
    row("scale too small", {"--scale", "0.4"}, "Not a scale from 0.5 to 4: \"0.4\"");
    row("scale too large", {"--scale=4.1"}, "Not a scale from 0.5 to 4: \"4.1\"");
    row("scale that is not a number", {"--scale", "nan"}, "Not a scale from 0.5 to 4: \"nan\"");
    row("empty scale", {"--scale", ""}, "Not a scale from 0.5 to 4: \"\"");
    row("missing configuration", {"--config", "none.json"},
        "Cannot read " + here + "/none.json: No such file or directory");
    row("folder as configuration", {"--config", "."}, here + " is a folder.");
    row("array as configuration", {"--config", "array.json"},
        here + "/array.json holds no JSON object.");
    row("broken configuration", {"--config", "broken.json"},
        here + "/broken.json is no JSON file: unterminated object (at byte 6)");
    row("folder as local file", {"--local-file", "."}, here + " is a folder.");
    row("broken local file", {"--local-file", "array.json"},
        here + "/array.json holds no JSON object.");
    row("local file below a file", {"--local-file", "file/a.json"},
        "Cannot make the folder " + here + "/file");
    row("pictures into a file", {"--pictures", "file"}, "Cannot write into " + here + "/file");
}

void tst_DemoArguments::invalidArgumentsOnlyPrintAMessage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Run result = run(arguments);
    QCOMPARE(result.errors, message);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void tst_DemoArguments::unknownLanguagePrintsTheListOfLanguages()
{
    const Run result = run({"--language", "xx-yy"});
    QCOMPARE(result.exitCode, 2);
    QVERIFY(result.errors.startsWith(
        "malto-demo: Unknown language \"xx-yy\"; there are: auto, en-us, ar-eg, de-de,"));
}

void tst_DemoArguments::picturesShowEveryPageInBothThemes()
{
    const Run result = run({"--pictures", "pictures/new"});
    QCOMPARE(result.exitCode, 0);
    const QStringList paths = result.output.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(paths.size(), 26);
    const QStringList files = QDir("pictures/new").entryList(QDir::Files, QDir::Name);
    QCOMPARE(files,
             QStringList({"appearance-dark.png",   "appearance-light.png", "capture-dark.png",
                          "capture-light.png",     "choices-dark.png",     "choices-light.png",
                          "general-dark.png",      "general-light.png",    "hotkeys-dark.png",
                          "hotkeys-light.png",     "main-dark.png",        "main-light.png",
                          "mouse-dark.png",        "mouse-light.png",      "numbers-dark.png",
                          "numbers-light.png",     "output-dark.png",      "output-light.png",
                          "profiles-dark.png",     "profiles-light.png",   "stored-data-dark.png",
                          "stored-data-light.png", "system-dark.png",      "system-light.png",
                          "texts-dark.png",        "texts-light.png"}));
    for (const QString &path : paths) {
        const QImage picture(path);
        QVERIFY2(picture.width() > 400 && picture.height() > 400, qPrintable(path));
        const QColor corner = picture.pixelColor(picture.width() - 2, picture.height() - 2);
        const bool isDark = path.endsWith("-dark.png");
        if (path.contains("/main-"))
            QCOMPARE(corner.name(), QString(isDark ? "#1e1f22" : "#f2f3f5"));
        else
            QCOMPARE(corner.name(), QString(isDark ? "#1c1d20" : "#f3f4f6"));
    }
}

void tst_DemoArguments::picturesWriteNothingButPictures()
{
    QVERIFY(QDir().mkpath("mine"));
    QVERIFY(write("recent.json", R"({"General.Recent": 3})"));
    QCOMPARE(run({"--pictures", "other", "--local-file", "mine/settings.json", "--config",
                  "recent.json"})
                 .exitCode,
             0);
    QCOMPARE(QDir("mine").entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    QVERIFY(!QFile::exists("home/malto-demo/settings.json"));
    QVERIFY(!QFile::exists("ConfigurationWindowConfig.ini"));
}

void tst_DemoArguments::picturesAreScaled()
{
    QCOMPARE(run({"--pictures", "one", "--scale", "1"}).exitCode, 0);
    QCOMPARE(run({"--pictures", "two", "--scale", "2"}).exitCode, 0);
    QCOMPARE(QImage("one/mouse-light.png").width(), 980);
    QCOMPARE(QImage("two/mouse-light.png").width(), 1960);
}

void tst_DemoArguments::classicWindowIsShownOnRequest()
{
    QCOMPARE(run({"--pictures", "classic", "--classic"}).exitCode, 0);
    const QImage picture("classic/mouse-light.png");
    QVERIFY(picture.width() >= 1024); // 768 points, at 96 dots per inch or 100 with Qt 5
    QCOMPARE(picture.pixelColor(picture.width() - 2, 2).name(), QString("#f2f3f5"));
}

void tst_DemoArguments::highContrastIsShownOnRequest()
{
    QCOMPARE(run({"--pictures", "contrast", "--high-contrast"}).exitCode, 0);
    const auto ground = [](const QString &file) {
        const QImage picture(file);
        return picture.pixelColor(picture.width() - 2, 2).name();
    };
    QCOMPARE(ground("contrast/mouse-light.png"), QString("#ffffff"));
    QCOMPARE(ground("contrast/mouse-dark.png"), QString("#000000"));
}

void tst_DemoArguments::picturesShowTheConfiguration()
{
    QVERIFY(write("tips.json", R"({"General.Tips": false})"));
    // The modern window marks the changed page on all pages.
    QCOMPARE(run({"--pictures", "before", "--classic"}).exitCode, 0);
    QCOMPARE(run({"--pictures", "after", "--config", "tips.json", "--classic"}).exitCode, 0);
    QVERIFY(QImage("before/general-light.png") != QImage("after/general-light.png"));
    QCOMPARE(QImage("before/mouse-light.png"), QImage("after/mouse-light.png"));
}

void tst_DemoArguments::picturesShowTheLanguage()
{
    QCOMPARE(run({"--pictures", "english", "--language", "en-us"}).exitCode, 0);
    QCOMPARE(run({"--pictures", "german", "--language", "de-de"}).exitCode, 0);
    QVERIFY(QImage("english/mouse-light.png") != QImage("german/mouse-light.png"));
}

void tst_DemoArguments::occupiedFailsOnAPlatformWithoutHotkeys()
{
    const Run result = run({"--pictures", "occupied", "--occupied"});
    QVERIFY(result.errors.endsWith("malto-demo: No program can hold Ctrl+Alt+W here\n"));
    QCOMPARE(result.exitCode, 2);
}

int main(int argc, char **argv)
{
    return runTest<tst_DemoArguments>(argc, argv);
}
#include "tst_DemoArguments.moc"
