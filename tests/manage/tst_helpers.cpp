#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/helpers.h>

#include <QJsonArray>
#include <QJsonObject>

#include <sys/stat.h>

namespace {

QString writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? name
                                                                                    : QString();
}

} // namespace

class tst_helpers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void getIndexName_data();
    void getIndexName();
    void setAppAutoRun_doesNothing();
    void missingFileReturnsANullDocumentSilently();
    void unreadableFileIsLogged();
    void fileThatMightNeverEndIsUnreadable_data();
    void fileThatMightNeverEndIsUnreadable();
    void fileTooLargeForMemoryIsUnreadable();
    void invalidFileIsIgnoredSilently_data();
    void invalidFileIsIgnoredSilently();
    void fileIsReadAsUtf8();
    void lineEndingsOfAnotherSystemAreRead();
    void arrayIsReturnedUnchanged();
};

void tst_helpers::getIndexName_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("c");
    QTest::addColumn<QString>("name");
    QTest::newRow("three components") << "General"
                                      << "Hotkey"
                                      << "Left"
                                      << "General.Hotkey.Left";
    QTest::newRow("two components") << "General"
                                    << "Hotkey"
                                    << ""
                                    << "General.Hotkey";
    QTest::newRow("one component has no full stop") << "General"
                                                    << ""
                                                    << ""
                                                    << "General";
    QTest::newRow("empty middle keeps its full stop") << "General"
                                                      << ""
                                                      << "Left"
                                                      << "General..Left";
    QTest::newRow("nothing") << ""
                             << ""
                             << ""
                             << "";
    QTest::newRow("only the last") << ""
                                   << ""
                                   << "c"
                                   << "..c";
    QTest::newRow("only the middle") << ""
                                     << "b"
                                     << ""
                                     << ".b";
    QTest::newRow("full stops are not escaped") << "a.b"
                                                << "c"
                                                << ""
                                                << "a.b.c";
}

void tst_helpers::getIndexName()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(QString, c);
    QTEST(::getIndexName(a, b, c), "name");
}

void tst_helpers::setAppAutoRun_doesNothing()
{
    const LogCapture log;
    ::setAppAutoRun(true);
    ::setAppAutoRun(false);
    QVERIFY(log.messages().isEmpty());
    QVERIFY(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

void tst_helpers::missingFileReturnsANullDocumentSilently()
{
    const LogCapture log;
    QVERIFY(readJsonFromFile(QStringLiteral("missing.json")).isNull());
    QVERIFY(readJsonFromFile(QString()).isNull());
    QVERIFY(log.messages().isEmpty());
}

void tst_helpers::unreadableFileIsLogged()
{
    QVERIFY(QDir().mkdir(QStringLiteral("folder")));
    const LogCapture log;
    QVERIFY(readJsonFromFile(QStringLiteral("folder")).isNull());
    QCOMPARE(log.messages().size(), 1);
    QCOMPARE(log.messages().first().level, QtCriticalMsg);
    QCOMPARE(log.messages().first().text, QStringLiteral("can't open config file \"folder\""));
}

void tst_helpers::fileThatMightNeverEndIsUnreadable_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("pipe without a writer") << "pipe";
    QTest::newRow("endless device") << "/dev/zero";
    QTest::newRow("link to a device") << "link";
}

void tst_helpers::fileThatMightNeverEndIsUnreadable()
{
    QFETCH(QString, path);
    ::mkfifo("pipe", 0600);
    QFile::link("/dev/zero", "link");
    const LogCapture log;
    QVERIFY(readJsonFromFile(path).isNull());
    QCOMPARE(log.messages(),
             QList<LoggedMessage>(
                 {{QtCriticalMsg, QString("can't open config file \"%1\"").arg(path)}}));
}

void tst_helpers::fileTooLargeForMemoryIsUnreadable()
{
    QFile file("huge.json");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 40));
    const LogCapture log;
    QVERIFY(readJsonFromFile("huge.json").isNull());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("can't open config file \"huge.json\""));
}

void tst_helpers::invalidFileIsIgnoredSilently_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not JSON") << QByteArray("hello");
    QTest::newRow("cut off") << QByteArray("{\"a\": 1");
    QTest::newRow("text after the object") << QByteArray("{\"a\": 1} x");
    QTest::newRow("bare value") << QByteArray("42");
    QTest::newRow("zero bytes") << QByteArray(1000, '\0');
    QTest::newRow("nested too deeply") << QByteArray(100000, '[');
}

void tst_helpers::invalidFileIsIgnoredSilently()
{
    QFETCH(QByteArray, content);
    const LogCapture log;
    QVERIFY(readJsonFromFile(writeFile(QStringLiteral("broken.json"), content)).isNull());
    QVERIFY(log.messages().isEmpty());
}

void tst_helpers::fileIsReadAsUtf8()
{
    const QString path = writeFile(QStringLiteral("utf8.json"),
                                   "{\"\xe9\x94\xae\": \"\xc3\xa9\xf0\x9f\x98\x80\"}");
    const QJsonObject object = readJsonFromFile(path).object();
    QCOMPARE(object.value(QString(QChar(0x952e))).toString(),
             QString::fromUtf8("\xc3\xa9\xf0\x9f\x98\x80"));
}

void tst_helpers::lineEndingsOfAnotherSystemAreRead()
{
    const QString path = writeFile(QStringLiteral("crlf.json"),
                                   "\xef\xbb\xbf{\r\n\"a\": 1\r\n}\r\n");
    QCOMPARE(readJsonFromFile(path).object().value(QLatin1String("a")).toInt(), 1);
}

void tst_helpers::arrayIsReturnedUnchanged()
{
    const QString path = writeFile(QStringLiteral("array.json"), "[1, 2]");
    QCOMPARE(readJsonFromFile(path).array().size(), 2);
}

int main(int argc, char **argv)
{
    return runTest<tst_helpers>(argc, argv);
}

#include "tst_helpers.moc"
