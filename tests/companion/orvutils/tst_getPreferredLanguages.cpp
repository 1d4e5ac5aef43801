#include <OrvUtils/getPreferredLanguages.h>

#include "support/TestMain.h"

#include <QProcess>
#include <QRegularExpression>

#include <cstdio>
#include <cstring>

namespace {

const char *const PrintSwitch = "--print-preferred-languages";

/// What a program started with these environment variables is told.
QStringList languagesWith(const QString &language, const QString &locale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LANG"), locale);
    environment.insert(QStringLiteral("LANGUAGE"), language);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(PrintSwitch)});
    program.waitForFinished();
    return QString::fromUtf8(program.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class tst_getPreferredLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mostPreferredComesFirst();
    void languageOfTheLocaleIsKnown();
    void noneComesTwice();
    void thereIsAlwaysOne();
};

void tst_getPreferredLanguages::mostPreferredComesFirst()
{
    const QStringList languages = languagesWith(QStringLiteral("fr:de"),
                                                QStringLiteral("en_US.UTF-8"));
    // Each may come in several forms: "fr", "fr-FR", "fr-Latn-FR".
    const int firstGerman = languages.indexOf(QRegularExpression(QStringLiteral("^de.*")));
    QVERIFY(firstGerman > 0);
    for (int i = 0; i < firstGerman; ++i)
        QCOMPARE(languages.at(i).left(2), QStringLiteral("fr"));
}

void tst_getPreferredLanguages::languageOfTheLocaleIsKnown()
{
    const QStringList languages = languagesWith(QString(), QStringLiteral("zh_CN.UTF-8"));
    QVERIFY(!languages.isEmpty());
    QVERIFY2(languages.first().startsWith(QStringLiteral("zh")), qPrintable(languages.first()));
}

void tst_getPreferredLanguages::noneComesTwice()
{
    QStringList languages = languagesWith(QStringLiteral("de:de:en:de"),
                                          QStringLiteral("de_DE.UTF-8"));
    QVERIFY(!languages.isEmpty());
    QCOMPARE(languages.removeDuplicates(), 0);
}

void tst_getPreferredLanguages::thereIsAlwaysOne()
{
    QVERIFY(!getPreferredLanguages().isEmpty());
}

int main(int argc, char **argv)
{
    // The system's languages are read once in a program: each setting needs one of its own.
    if (argc > 1 && std::strcmp(argv[1], PrintSwitch) == 0) {
        const QStringList languages = getPreferredLanguages();
        for (const QString &language : languages)
            std::puts(qPrintable(language));
        return 0;
    }
    return runTest<tst_getPreferredLanguages>(argc, argv);
}

#include "tst_getPreferredLanguages.moc"
