#include <OrvUtils/QThemeCtrl.h>

#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QLabel>
#include <QSaveFile>
#include <QSignalSpy>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char sSheet[] = "one.qss";

void writeSheet(const char *name, const QByteArray &content)
{
    QFile file(QString::fromLatin1(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void replaceSheet(const char *name, const QByteArray &content)
{
    QSaveFile file(QString::fromLatin1(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    QVERIFY(file.commit());
}

} // namespace

/// Style sheets read from files, and watching these files.
class tst_QThemeCtrlSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sheetsAreJoinedInOrderAndExpanded();
    void unreadableSheetIsLoggedAndTheOthersAreUsed_data();
    void unreadableSheetIsLoggedAndTheOthersAreUsed();
    void emptyListOfSheetsClearsTheStyle();
    void encodingIsUtf8WithOrWithoutByteOrderMark();
    void sheetEndsAtAZeroByte();
    void resourceIsReadAndNotWatched();
    void nullWidgetIsIgnored();
    void sheetIsAppliedToTheWidget();
    void editedFileIsAnnouncedOnce();
    void fileReplacedByAnEditorIsStillWatched();
    void fileReplacedWithABackupIsStillWatched();
    void removingAndRecreatingAFileIsAnnounced();
    void touchedFileWithTheSameContentIsNotAnnounced();
    void fileOfADeletedWidgetIsNoLongerWatched();
    void unusedFileIsNoLongerWatched();
    void slotMayApplyTheSheetAgainAndDeleteWidgets();

private:
    static void apply(QWidget *widget, const QStringList &files)
    {
        QThemeCtrl::instance()->handleQssFile(widget, files, 2);
    }

    std::unique_ptr<QLabel> mLabel;
    std::unique_ptr<QSignalSpy> mChanges;
};

void tst_QThemeCtrlSheets::init()
{
    QThemeCtrl::instance()->setTheme(QThemeCtrl::Theme::Light);
    mLabel = std::make_unique<QLabel>();
    mChanges = std::make_unique<QSignalSpy>(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged);
    writeSheet(sSheet, "QLabel { margin: sca(1)px }");
}

void tst_QThemeCtrlSheets::cleanup()
{
    mChanges.reset();
    mLabel.reset();
}

void tst_QThemeCtrlSheets::sheetsAreJoinedInOrderAndExpanded()
{
    writeSheet("two.qss", "QLabel { margin: sca(2)px }");
    apply(mLabel.get(), {QStringLiteral("two.qss"), QStringLiteral("./one.qss")});
    QCOMPARE(mLabel->styleSheet(),
             QStringLiteral("QLabel { margin: 4px }\nQLabel { margin: 2px }\n"));
    QCOMPARE(mChanges->count(), 0);
}

void tst_QThemeCtrlSheets::unreadableSheetIsLoggedAndTheOthersAreUsed_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("missing") << QStringLiteral("nowhere.qss");
    QTest::newRow("missingResource") << QStringLiteral(":/nowhere.qss");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("pipe") << QStringLiteral("pipe");
    QTest::newRow("emptyName") << QString();
}

void tst_QThemeCtrlSheets::unreadableSheetIsLoggedAndTheOthersAreUsed()
{
    QFETCH(QString, file);
    ::mkfifo("pipe", 0600);
    LogCapture log;
    apply(mLabel.get(), {file, QLatin1String(sSheet)});
    QCOMPARE(mLabel->styleSheet(), QStringLiteral("QLabel { margin: 2px }\n"));
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             QStringList{QStringLiteral("QThemeCtrl::handleQssFile cannot read: ") + file});
}

void tst_QThemeCtrlSheets::emptyListOfSheetsClearsTheStyle()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    apply(mLabel.get(), {});
    QCOMPARE(mLabel->styleSheet(), QString());
}

void tst_QThemeCtrlSheets::encodingIsUtf8WithOrWithoutByteOrderMark()
{
    writeSheet("marked.qss", "\xef\xbb\xbfQLabel { font-family: \"\xe5\xae\x8b\" }");
    apply(mLabel.get(), {QStringLiteral("marked.qss")});
    QCOMPARE(mLabel->styleSheet(), QString::fromUtf8("QLabel { font-family: \"\xe5\xae\x8b\" }\n"));
    writeSheet("broken.qss", "/* \xff\xfe */");
    apply(mLabel.get(), {QStringLiteral("broken.qss")});
    QVERIFY(mLabel->styleSheet().startsWith(QStringLiteral("/* ")));
}

void tst_QThemeCtrlSheets::sheetEndsAtAZeroByte()
{
    writeSheet("zero.qss", QByteArray("QLabel { margin: 1px }\0QLabel { margin: 2px }", 45));
    apply(mLabel.get(), {QStringLiteral("zero.qss")});
    QCOMPARE(mLabel->styleSheet(), QStringLiteral("QLabel { margin: 1px }\n"));
}

void tst_QThemeCtrlSheets::resourceIsReadAndNotWatched()
{
    // A resource of Qt, which always exists.
    const QString resource = QStringLiteral(
        ":/qt-project.org/styles/commonstyle/images/left-32.png");
    QVERIFY(QFile::exists(resource));
    LogCapture log;
    apply(mLabel.get(), {resource});
    QVERIFY(LogCapture::texts(QtWarningMsg).filter(QStringLiteral("cannot read")).isEmpty());
    QVERIFY(!mLabel->styleSheet().isEmpty());
}

void tst_QThemeCtrlSheets::nullWidgetIsIgnored()
{
    LogCapture log;
    apply(nullptr, {QStringLiteral("nowhere.qss")});
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_QThemeCtrlSheets::sheetIsAppliedToTheWidget()
{
    QThemeCtrl::instance()->setValue(QThemeCtrl::Theme::System, QStringLiteral("Ground"),
                                     QStringLiteral("#123456"));
    writeSheet("ground.qss", "QLabel { background: var(Ground); min-width: sca(30)px }");
    apply(mLabel.get(), {QStringLiteral("ground.qss")});
    mLabel->resize(100, 100);
    QCOMPARE(mLabel->grab().toImage().pixelColor(50, 50), QColor(0x12, 0x34, 0x56));
    QCOMPARE(mLabel->minimumSizeHint().width(), 60);
}

void tst_QThemeCtrlSheets::editedFileIsAnnouncedOnce()
{
    writeSheet("two.qss", "");
    apply(mLabel.get(), {QLatin1String(sSheet), QStringLiteral("two.qss")});
    QLabel other;
    apply(&other, {QLatin1String(sSheet)});
    writeSheet(sSheet, "QLabel { margin: 5px }");
    writeSheet("two.qss", "QLabel { margin: 6px }");
    QTRY_COMPARE(mChanges->count(), 1);
    QCOMPARE(mLabel->styleSheet(), QStringLiteral("QLabel { margin: 2px }\n\n"));
}

void tst_QThemeCtrlSheets::fileReplacedByAnEditorIsStillWatched()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    for (int i = 1; i <= 3; ++i) {
        replaceSheet(sSheet, "/* replaced " + QByteArray::number(i) + " */");
        QTRY_COMPARE(mChanges->count(), i);
    }
    writeSheet(sSheet, "/* written */");
    QTRY_COMPARE(mChanges->count(), 4);
}

void tst_QThemeCtrlSheets::fileReplacedWithABackupIsStillWatched()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    // The hard link keeps the old file alive, so its removal is not reported.
    QCOMPARE(::link(sSheet, "backup"), 0);
    replaceSheet(sSheet, "/* replaced */");
    QTRY_COMPARE(mChanges->count(), 1);
    writeSheet(sSheet, "/* written */");
    QTRY_COMPARE(mChanges->count(), 2);
}

void tst_QThemeCtrlSheets::removingAndRecreatingAFileIsAnnounced()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    QVERIFY(QFile::remove(QLatin1String(sSheet)));
    QTRY_COMPARE(mChanges->count(), 1);
    writeSheet(sSheet, "QLabel { margin: sca(1)px }");
    QTRY_COMPARE(mChanges->count(), 2);
}

void tst_QThemeCtrlSheets::touchedFileWithTheSameContentIsNotAnnounced()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    replaceSheet(sSheet, "QLabel { margin: sca(1)px }");
    QVERIFY(!mChanges->wait(400));
}

void tst_QThemeCtrlSheets::fileOfADeletedWidgetIsNoLongerWatched()
{
    apply(mLabel.get(), {QLatin1String(sSheet)});
    mLabel.reset();
    writeSheet(sSheet, "QLabel { margin: 8px }");
    QVERIFY(!mChanges->wait(400));
}

void tst_QThemeCtrlSheets::unusedFileIsNoLongerWatched()
{
    writeSheet("two.qss", "");
    apply(mLabel.get(), {QLatin1String(sSheet)});
    apply(mLabel.get(), {QStringLiteral("two.qss")});
    writeSheet(sSheet, "QLabel { margin: 9px }");
    QVERIFY(!mChanges->wait(400));
}

void tst_QThemeCtrlSheets::slotMayApplyTheSheetAgainAndDeleteWidgets()
{
    auto *const doomed = new QLabel;
    apply(doomed, {QLatin1String(sSheet)});
    apply(mLabel.get(), {QLatin1String(sSheet)});
    QObject host;
    QPointer<QLabel> guard = doomed;
    connect(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged, &host, [this, guard] {
        delete guard;
        apply(mLabel.get(), {QLatin1String(sSheet)});
    });
    writeSheet(sSheet, "QLabel { margin: sca(10)px }");
    QTRY_COMPARE(mLabel->styleSheet(), QStringLiteral("QLabel { margin: 20px }\n"));
    QVERIFY(!guard);
    writeSheet(sSheet, "QLabel { margin: sca(11)px }");
    QTRY_COMPARE(mLabel->styleSheet(), QStringLiteral("QLabel { margin: 22px }\n"));
}

int main(int argc, char **argv)
{
    return runTest<tst_QThemeCtrlSheets>(argc, argv);
}

#include "tst_QThemeCtrlSheets.moc"
