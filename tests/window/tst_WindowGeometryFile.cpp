#include "support/LogCapture.h"
#include "support/TestMain.h"

#include "MaltoConfiguration/window/WindowGeometryFile_p.h"

#include <QSettings>

#include <sys/stat.h>

namespace {

const char sPath[] = "geometry.ini";
const QString sWarning = "ConfigurationWindow geometry file is not usable:  \"%1\"";

void writeFile(const QByteArray &content)
{
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray fileText()
{
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class tst_WindowGeometryFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QFile::remove(sPath); }

    void missingFileHasNoGeometry();
    void savedGeometryIsRead();
    void fileWithOtherKeysHasNoGeometry();
    void unusualFilesAreReadAndWritten_data();
    void unusualFilesAreReadAndWritten();
    void otherSectionsAreKept();
    void largestFileIsRead();
    void hugeFileIsUnusableAndReplaced();
    void lockedFileIsNotWritten();
    void targetOfALinkIsNotWritten();
    void pipesAndDevicesAreLeftAlone_data();
    void pipesAndDevicesAreLeftAlone();
};

void tst_WindowGeometryFile::missingFileHasNoGeometry()
{
    const LogCapture log;
    QVERIFY(!WindowGeometryFile(sPath).read().found);
    QVERIFY(log.messages().isEmpty());
    QVERIFY(!QFile::exists(sPath));
}

void tst_WindowGeometryFile::savedGeometryIsRead()
{
    WindowGeometryFile(sPath).write(QRect(576, 290, 1067, 694));
    QCOMPARE(fileText(), QByteArray("[General]\nGeometry=@Rect(576 290 1067 694)\n"));
    const WindowGeometryFile::Saved saved = WindowGeometryFile(sPath).read();
    QVERIFY(saved.found);
    QCOMPARE(saved.geometry, QRect(576, 290, 1067, 694));
}

void tst_WindowGeometryFile::fileWithOtherKeysHasNoGeometry()
{
    writeFile("[General]\nWidth=5\n[Other]\nGeometry=@Rect(1 2 3 4)\n");
    QVERIFY(!WindowGeometryFile(sPath).read().found);
}

void tst_WindowGeometryFile::unusualFilesAreReadAndWritten_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QRect>("geometry"); // invalid: the value is unusable
    QTest::addColumn<QByteArray>("written");
    const QRect saved(1, 2, 3, 4);
    const QByteArray line = "Geometry=@Rect(5 6 7 8)\n";
    const auto row = [](const char *name, const QByteArray &text, const QRect &geometry,
                        const QByteArray &written) {
        QTest::newRow(name) << text << geometry << written;
    };
    row("before a section", "Geometry=@Rect(1 2 3 4)\n[Other]\nx=1\n", saved,
        line + "[Other]\nx=1\n");
    row("second of two sections", "[Other]\nGeometry=1\n[General]\nGeometry=@Rect(1 2 3 4)\n",
        saved, "[Other]\nGeometry=1\n[General]\n" + line);
    row("last of two values", "Geometry=@Rect(9 9 9 9)\nGeometry=@Rect(1 2 3 4)\n", saved,
        "Geometry=@Rect(9 9 9 9)\n" + line);
    row("blanks and quotes", "[general]\r\nGeometry = \"@Rect(1 2 3 4)\"\r\n", saved,
        "[general]\r\n" + line);
    row("no line end", "Geometry=@Rect(1 2 3 4)", saved, line);
    row("negative", "Geometry=@Rect(-5 -6 3 4)\n", QRect(-5, -6, 3, 4), line);
    row("other value",
        "[General]\nx=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n"
        "Geometry=@Rect(1 2 3 4)\n",
        saved, "[General]\nx=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n" + line);
    row("variant", "Geometry=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n", QRect(), line);
    row("byte order marks in a variant",
        "\xef\xbb\xbfGeometry=@\"\xef\xbb\xbfVariant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\"\n",
        QRect(),
        "[General]\n" + line
            + "\n\xef\xbb\xbfGeometry=@\"\xef\xbb\xbfVariant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)"
              "\"\n");
    row("three numbers", "Geometry=@Rect(1 2 3)\n", QRect(), line);
    row("number out of range", "Geometry=@Rect(1 2 3 99999999999)\n", QRect(), line);
    row("largest numbers", "Geometry=@Rect(1 1 2147483647 2147483647)\n",
        QRect(QPoint(1, 1), QPoint(2147483647, 2147483647)), line);
    row("sum out of range", "Geometry=@Rect(2147483647 1 2 3)\n", QRect(), line);
    row("text behind", "Geometry=@Rect(1 2 3 4), 5\n", QRect(), line);
}

void tst_WindowGeometryFile::unusualFilesAreReadAndWritten()
{
    QFETCH(QByteArray, text);
    QFETCH(QRect, geometry);
    QFETCH(QByteArray, written);
    writeFile(text);
    const LogCapture log;
    QCOMPARE(WindowGeometryFile(sPath).read().geometry, geometry);
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(fileText(), written);
    QCOMPARE(WindowGeometryFile(sPath).read().geometry, QRect(5, 6, 7, 8));
    QVERIFY(log.messages().isEmpty());
}

void tst_WindowGeometryFile::otherSectionsAreKept()
{
    writeFile("[Other]\nPath=\"C:\\\\a, b\"\n");
    WindowGeometryFile(sPath).write(QRect(1, 2, 3, 4));
    QCOMPARE(fileText(), QByteArray("[General]\nGeometry=@Rect(1 2 3 4)\n\n"
                                    "[Other]\nPath=\"C:\\\\a, b\"\n"));
    const QSettings settings(sPath, QSettings::IniFormat);
    QCOMPARE(settings.value("Other/Path").toString(), QString("C:\\a, b"));
    QCOMPARE(settings.value("Geometry").toRect(), QRect(1, 2, 3, 4));
}

void tst_WindowGeometryFile::largestFileIsRead()
{
    const QByteArray line = "Geometry=@Rect(1 2 3 4)\n";
    for (const int size : {65535, 65536, 65537}) {
        writeFile(QByteArray(size - line.size(), '\n') + line);
        const bool isRead = size <= 65536;
        const LogCapture log;
        const WindowGeometryFile::Saved saved = WindowGeometryFile(sPath).read();
        QCOMPARE(saved.geometry, isRead ? QRect(1, 2, 3, 4) : QRect());
        QCOMPARE(log.messages().isEmpty(), isRead);
    }
}

void tst_WindowGeometryFile::hugeFileIsUnusableAndReplaced()
{
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 40));
    const LogCapture log;
    const WindowGeometryFile::Saved saved = WindowGeometryFile(sPath).read();
    QVERIFY(saved.found);
    QVERIFY(!saved.geometry.isValid());
    QCOMPARE(log.texts(QtWarningMsg), QStringList(sWarning.arg(sPath)));
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(fileText(), QByteArray("[General]\nGeometry=@Rect(5 6 7 8)\n"));
}

void tst_WindowGeometryFile::lockedFileIsNotWritten()
{
    // An empty lock file, as a program leaves it that is killed while it makes one.
    writeFile("Geometry=@Rect(1 2 3 4)\n");
    QFile lock(QString(sPath) + ".lock");
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.close();
    const LogCapture log;
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, sWarning.arg(sPath)}}));
    QCOMPARE(fileText(), QByteArray("Geometry=@Rect(1 2 3 4)\n"));
    QVERIFY(lock.remove());
}

void tst_WindowGeometryFile::targetOfALinkIsNotWritten()
{
    QFile::remove("target");
    QFile target("target");
    QVERIFY(target.open(QIODevice::WriteOnly) && target.write("mine") == 4);
    target.close();
    QVERIFY(QFile::link("target", sPath));
    const LogCapture log;
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(log.messages(), (QList<LoggedMessage>{{QtWarningMsg, sWarning.arg(sPath)}}));
    QCOMPARE(fileText(), QByteArray("mine"));
    QVERIFY(QFileInfo(sPath).isSymLink());
}

void tst_WindowGeometryFile::pipesAndDevicesAreLeftAlone_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("pipe without a writer") << "pipe";
    QTest::newRow("endless device") << "link";
    QTest::newRow("folder") << ".";
}

void tst_WindowGeometryFile::pipesAndDevicesAreLeftAlone()
{
    QFETCH(QString, path);
    ::mkfifo("pipe", 0600);
    QFile::link("/dev/zero", "link");
    const LogCapture log;
    QVERIFY(!WindowGeometryFile(path).read().found);
    WindowGeometryFile(path).write(QRect(5, 6, 7, 8));
    QVERIFY(QFileInfo::exists(path) && !QFileInfo(path).isFile());
    QCOMPARE(log.texts(QtWarningMsg), QStringList({sWarning.arg(path), sWarning.arg(path)}));
}

int main(int argc, char **argv)
{
    return runTest<tst_WindowGeometryFile>(argc, argv);
}

#include "tst_WindowGeometryFile.moc"
