#include <OrvUtils/getPreferredLanguages.h>

#include "support/TestMain.h"

#include <QProcess>
#include <QRegularExpression>

#include <cstdio>
#include <cstring>

namespace {

constexpr char sPrintSwitch[] = "--print-preferred-languages";

/// Returns the preferred languages in a program started with these environment variables.
QStringList languagesWith(const QString &language, const QString &locale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LANG"), locale);
    environment.insert(QStringLiteral("LANGUAGE"), language);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(sPrintSwitch)});
    program.waitForFinished();
    return QString::fromUtf8(program.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class tst_getPreferredLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mostPreferredLanguageIsFirst();
    void languageOfTheLocaleIsFirst();
    void noLanguageIsListedTwice();
    void listIsNeverEmpty();
};

void tst_getPreferredLanguages::mostPreferredLanguageIsFirst()
{
    const QStringList languages = languagesWith(QStringLiteral("fr:de"),
                                                QStringLiteral("en_US.UTF-8"));
    // Each language may be listed in several forms: "fr", "fr-FR", "fr-Latn-FR".
    const auto firstGerman = languages.indexOf(QRegularExpression(QStringLiteral("^de.*")));
    QVERIFY(firstGerman > 0);
    for (QStringList::size_type i = 0; i < firstGerman; ++i)
        QCOMPARE(languages.at(i).left(2), QStringLiteral("fr"));
}

void tst_getPreferredLanguages::languageOfTheLocaleIsFirst()
{
    const QStringList languages = languagesWith(QString(), QStringLiteral("zh_CN.UTF-8"));
    QVERIFY(!languages.isEmpty());
    QVERIFY2(languages.first().startsWith(QStringLiteral("zh")), qPrintable(languages.first()));
}

void tst_getPreferredLanguages::noLanguageIsListedTwice()
{
    QStringList languages = languagesWith(QStringLiteral("de:de:en:de"),
                                          QStringLiteral("de_DE.UTF-8"));
    QVERIFY(!languages.isEmpty());
    QCOMPARE(languages.removeDuplicates(), 0);
}

void tst_getPreferredLanguages::listIsNeverEmpty()
{
    QVERIFY(!getPreferredLanguages().isEmpty());
}

int main(int argc, char **argv)
{
    // A program reads the system's languages once, so each environment needs its own process.
    if (argc > 1 && std::strcmp(argv[1], sPrintSwitch) == 0) {
        const QStringList languages = getPreferredLanguages();
        for (const QString &language : languages)
            std::puts(qPrintable(language));
        return 0;
    }
    return runTest<tst_getPreferredLanguages>(argc, argv);
}

#include "tst_getPreferredLanguages.moc"
