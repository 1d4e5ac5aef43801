#include "DemoArguments.h"

#include "KeyHolder.h"
#include "Settings.h"
#include "declareSettings.h"

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

/// Returns why `path` cannot be read as a JSON object, or an empty text.
QString jsonError(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir())
        return QStringLiteral("%1 is a folder.").arg(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("Cannot read %1: %2").arg(path, file.errorString());
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (document.isNull())
        return QStringLiteral("%1 is no JSON file: %2 (at byte %3)")
            .arg(path, error.errorString())
            .arg(error.offset);
    return document.isObject() ? QString() : QStringLiteral("%1 holds no JSON object.").arg(path);
}

/// Returns why the settings cannot be saved in `path`, or an empty text.
QString localFileError(const QString &path)
{
    const QFileInfo file(path);
    if (!QDir().mkpath(file.path()))
        return QStringLiteral("Cannot make the folder %1").arg(file.path());
    // The library treats a damaged file as an empty one, and would overwrite it.
    return file.exists() && (file.isDir() || file.size() > 0) ? jsonError(path) : QString();
}

/// Returns why no pictures can be saved in `folder`, or an empty text.
QString picturesError(const QString &folder)
{
    const bool made = QDir().mkpath(folder);
    QTemporaryFile probe(folder + QStringLiteral("/XXXXXX"));
    return made && probe.open() ? QString() : QStringLiteral("Cannot write into %1").arg(folder);
}

/// Returns the first text of `errors` that is not empty, or an empty text.
QString firstOf(const QStringList &errors)
{
    for (const QString &error : errors) {
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

QString choiceError(const QString &option, const QString &value, const QStringList &choices)
{
    if (choices.contains(value))
        return QString();
    return QStringLiteral("Unknown %1 \"%2\"; there are: %3")
        .arg(option, value, choices.join(QStringLiteral(", ")));
}

QString absolute(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Shows the settings of a screen-capture tool, and how its variables follow them."));
    const QString file = QStringLiteral("file");
    parser->addOptions({
        {QStringLiteral("local-file"), QStringLiteral("Keep the settings in <file>."), file},
        {QStringLiteral("config"),
         QStringLiteral("Take over the settings in <file>, a JSON object by names."), file},
        {QStringLiteral("page"),
         QStringLiteral("Open the page <name>: %1.").arg(pageNames().join(QStringLiteral(", "))),
         QStringLiteral("name")},
        {QStringLiteral("theme"),
         QStringLiteral("Choose and keep the theme <name>: light, dark or system."),
         QStringLiteral("name")},
        {QStringLiteral("high-contrast"),
         QStringLiteral("Show the settings window in the colours of high contrast.")},
        {QStringLiteral("language"),
         QStringLiteral("Choose and keep the language <code>, such as de-de."),
         QStringLiteral("code")},
        {QStringLiteral("scale"),
         QStringLiteral("Multiply the screen's dots per inch by <factor>, 0.5 to 4."),
         QStringLiteral("factor")},
        {QStringLiteral("classic"),
         QStringLiteral("Show the classic settings window, without additional features.")},
        {QStringLiteral("pictures"),
         QStringLiteral("Draw every page in both themes into <folder>, and quit."),
         QStringLiteral("folder")},
        {QStringLiteral("occupied"), QStringLiteral("Let another program take the hotkey %1 first.")
                                         .arg(DemoArguments::occupiedKey().toString())},
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")},
    });
    QCommandLineOption holdKey(KeyHolder::option(), QString(), QStringLiteral("keys"));
    holdKey.setFlags(QCommandLineOption::HiddenFromHelp);
    parser->addOption(holdKey);
}

} // namespace

QKeySequence DemoArguments::occupiedKey()
{
    return Settings().captureWindow;
}

DemoArguments::Outcome DemoArguments::parse(const QStringList &commandLine)
{
    QCommandLineParser parser;
    addOptions(&parser);
    if (!parser.parse(commandLine)) {
        message = parser.errorText();
        return Outcome::Failed;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        message = parser.helpText();
        return Outcome::ShowHelp;
    }
    const auto value = [&parser](const char *option) {
        return parser.value(QLatin1String(option));
    };
    const auto given = [&parser](const char *option) {
        return parser.isSet(QLatin1String(option));
    };
    const QStringList themes{QStringLiteral("system"), QStringLiteral("light"),
                             QStringLiteral("dark")}; // in the order of QThemeCtrl::Theme
    bool isNumber = true;
    const double factor = given("scale") ? value("scale").toDouble(&isNumber) : 1;
    const QStringList unexpected = parser.positionalArguments();
    message = firstOf({
        unexpected.isEmpty() ? QString()
                             : QStringLiteral("Unexpected argument \"%1\"").arg(unexpected.first()),
        given("page") ? choiceError(QStringLiteral("page"), value("page"), pageNames()) : QString(),
        given("theme") ? choiceError(QStringLiteral("theme"), value("theme"), themes) : QString(),
        given("language") ? choiceError(QStringLiteral("language"), value("language"),
                                        MtConf::ConfWidgetLanguage::loadSupportLanguageCode())
                          : QString(),
        isNumber && factor >= 0.5 && factor <= 4
            ? QString()
            : QStringLiteral("Not a scale from 0.5 to 4: \"%1\"").arg(value("scale")),
    });
    if (!message.isEmpty())
        return Outcome::Failed;

    isClassic = given("classic");
    hasHighContrast = given("high-contrast");
    occupied = given("occupied");
    keyToHold = parser.value(KeyHolder::option());
    if (!keyToHold.isEmpty())
        return Outcome::HoldKey;
    page = value("page");
    language = value("language");
    if (given("theme"))
        theme = themes.indexOf(value("theme"));
    if (given("scale"))
        scale = factor;
    configFile = absolute(value("config"));
    picturesFolder = absolute(value("pictures"));
    localFile = absolute(value("local-file"));
    if (localFile.isEmpty() && !given("pictures"))
        localFile = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                    + QStringLiteral("/settings.json");
    message = firstOf({
        localFile.isEmpty() ? QString() : localFileError(localFile),
        given("config") ? jsonError(configFile) : QString(),
        given("pictures") ? picturesError(picturesFolder) : QString(),
    });
    return message.isEmpty() ? Outcome::Run : Outcome::Failed;
}
