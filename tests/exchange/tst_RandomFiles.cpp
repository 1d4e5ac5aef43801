#include "RandomFiles.h"
#include "support/TestMain.h"

/// Files with random settings. digests.txt was written by malto-exchange, built with Qt 5.15.
class tst_RandomFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesAreThoseOfQt5_data();
    void filesAreThoseOfQt5();
};

void tst_RandomFiles::filesAreThoseOfQt5_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    QFile file(MALTO_DIGESTS);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList lines = file.readAll().trimmed().split('\n');
    constexpr int sRowLength = 50;
    for (int i = 0; i < lines.size(); i += sRowLength)
        QTest::addRow("seeds from %d", i) << lines.mid(i, sRowLength);
}

void tst_RandomFiles::filesAreThoseOfQt5()
{
    QFETCH(QByteArrayList, lines);
    for (const QByteArray &line : qAsConst(lines)) {
        const quint64 seed = line.left(line.indexOf(' ')).toULongLong();
        const QByteArray actual = digestLine(seed);
        if (actual == line)
            continue;
        const std::vector<Files> groups = exchangedFiles(seed);
        const QByteArrayList expectedHashes = line.split(' ');
        const QByteArrayList actualHashes = actual.split(' ');
        for (int i = 0; i < static_cast<int>(groups.size()); ++i) {
            if (actualHashes.value(i + 1) == expectedHashes.value(i + 1))
                continue;
            for (const auto &[name, text] : groups[static_cast<size_t>(i)])
                qInfo("%s: %s", qPrintable(name), text.constData());
            break;
        }
        QCOMPARE(actual, line);
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_RandomFiles>(argc, argv);
}

#include "tst_RandomFiles.moc"
