#include "support/LogCapture.h"
#include "support/TestMain.h"

#include "MaltoConfiguration/window/WindowGeometryFile_p.h"

#include <QSettings>

#include <sys/stat.h>

namespace {

const char sPath[] = "geometry.ini";

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
    void otherKeysAreKept();
    void otherValuesAreEscapedAsInQt5_data();
    void otherValuesAreEscapedAsInQt5();
    void hiddenVariantIsDetected_data();
    void hiddenVariantIsDetected();
    void ordinaryTextIsHarmless_data();
    void ordinaryTextIsHarmless();
    void dangerousFileIsUnusableAndReplaced();
    void hugeFileIsUnusable();
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

void tst_WindowGeometryFile::otherKeysAreKept()
{
    writeFile("[Other]\nPath=\"C:\\\\a, b\"\n");
    WindowGeometryFile(sPath).write(QRect(1, 2, 3, 4));
    const QSettings settings(sPath, QSettings::IniFormat);
    QCOMPARE(settings.value("Other/Path").toString(), QString("C:\\a, b"));
    QCOMPARE(settings.value("Geometry").toRect(), QRect(1, 2, 3, 4));
}

void tst_WindowGeometryFile::otherValuesAreEscapedAsInQt5_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("letters") << QString::fromUtf8("né à") << QByteArray("n\\xe9 \\xe0");
    QTest::newRow("digits behind a letter")
        << QString::fromUtf8("é12fg") << QByteArray("\\xe9\\x31\\x32\\x66g");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("日本; \U0001f600")
                                    << QByteArray("\"\\x65e5\\x672c; \\xd83d\\xde00\"");
    QTest::newRow("control characters")
        << QString::fromUtf8("\x7f\x01éa\n") << QByteArray("\\x7f\\x1\\xe9\\x61\\n");
    QTest::newRow("ASCII") << QString("C:\\a, b") << QByteArray("\"C:\\\\a, b\"");
}

void tst_WindowGeometryFile::otherValuesAreEscapedAsInQt5()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, text);
    QSettings(sPath, QSettings::IniFormat).setValue("Other/Text", value);
    WindowGeometryFile(sPath).write(QRect(1, 2, 3, 4));
    const QByteArray written = "[General]\nGeometry=@Rect(1 2 3 4)\n\n[Other]\nText=" + text + '\n';
    QCOMPARE(fileText(), written);
    QCOMPARE(QSettings(sPath, QSettings::IniFormat).value("Other/Text").toString(), value);
    WindowGeometryFile(sPath).write(QRect(1, 2, 3, 4));
    QCOMPARE(fileText(), written);
}

void tst_WindowGeometryFile::hiddenVariantIsDetected_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("plain") << QByteArray("x=@Variant(1)");
    QTest::newRow("date") << QByteArray("x=@DateTime(1)");
    QTest::newRow("quoted") << QByteArray("x=\"@Variant(1)\"");
    QTest::newRow("quote inside") << QByteArray("x=@\"Variant(1)\"");
    QTest::newRow("hexadecimal @") << QByteArray("x=\\x40Variant(1)");
    QTest::newRow("hexadecimal @ with leading digits") << QByteArray("x=\\x10040Variant(1)");
    QTest::newRow("octal @") << QByteArray("x=\\100Variant(1)");
    QTest::newRow("blanks after a quote") << QByteArray("x=\"@\"  Variant(1)");
    QTest::newRow("octal letter") << QByteArray("x=@\\126ariant(1)");
    QTest::newRow("hexadecimal letter") << QByteArray("x=@\\x56\"ariant(1)\"");
    QTest::newRow("byte order marks") << QByteArray("\xef\xbb\xbfx=@\"\xef\xbb\xbfVariant(1)\"");
    QTest::newRow("unknown escape") << QByteArray("x=@\\zVariant(1)");
    QTest::newRow("continued line of another system") << QByteArray("x=@\\\r\nVariant(1)");
    QTest::newRow("continued line") << QByteArray("x=@\\\nVariant(1)");
    QTest::newRow("after a zero byte") << QByteArray("\0x=@Variant(1)", 14);
    QTest::newRow("far after the @") << "x=@" + QByteArray(60000, '"') + "Variant(1)";
    QTest::newRow("in a list") << QByteArray("x=a, @Variant(1)");
}

void tst_WindowGeometryFile::hiddenVariantIsDetected()
{
    QFETCH(QByteArray, text);
    QVERIFY(!WindowGeometryFile::isHarmless(text));
}

void tst_WindowGeometryFile::ordinaryTextIsHarmless_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("rectangle") << QByteArray("[General]\nGeometry=@Rect(1 2 3 4)\n");
    QTest::newRow("address") << QByteArray("x=me@example.org\n");
    QTest::newRow("Latin-1 letter after the @") << QByteArray("x=me@\\xe9\\x63ole\n");
    QTest::newRow("escaped character after the @") << QByteArray("x=@\\bV\n");
    QTest::newRow("letter beyond Latin-1 after the @") << QByteArray("x=@\\x144\\x5644\n");
    QTest::newRow("letter on the next line") << QByteArray("x=me@\nVersion=1\n");
    QTest::newRow("byte array") << QByteArray("x=@ByteArray(\\0\\xff)\n");
    QTest::newRow("@ at the start of a text") << QByteArray("x=@@home\n");
}

void tst_WindowGeometryFile::ordinaryTextIsHarmless()
{
    QFETCH(QByteArray, text);
    QVERIFY(WindowGeometryFile::isHarmless(text));
}

void tst_WindowGeometryFile::dangerousFileIsUnusableAndReplaced()
{
    writeFile("[General]\nGeometry=@Rect(1 2 3 4)\n"
              "x=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n");
    const LogCapture log;
    const WindowGeometryFile::Saved saved = WindowGeometryFile(sPath).read();
    QVERIFY(saved.found);
    QVERIFY(!saved.geometry.isValid());
    QCOMPARE(log.messages(),
             QList<LoggedMessage>(
                 {{QtWarningMsg,
                   "ConfigurationWindow geometry file is not usable:  \"geometry.ini\""}}));
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(fileText(), QByteArray("[General]\nGeometry=@Rect(5 6 7 8)\n"));
}

void tst_WindowGeometryFile::hugeFileIsUnusable()
{
    QFile file(sPath);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 40));
    QVERIFY(!WindowGeometryFile(sPath).read().geometry.isValid());
    WindowGeometryFile(sPath).write(QRect(5, 6, 7, 8));
    QCOMPARE(fileText(), QByteArray("[General]\nGeometry=@Rect(5 6 7 8)\n"));
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
    const QString warning = QString("ConfigurationWindow geometry file is not usable:  \"%1\"")
                                .arg(path);
    QCOMPARE(log.texts(QtWarningMsg), QStringList({warning, warning}));
}

int main(int argc, char **argv)
{
    return runTest<tst_WindowGeometryFile>(argc, argv);
}

#include "tst_WindowGeometryFile.moc"
