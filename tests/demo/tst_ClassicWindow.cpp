#include "DemoFixture.h"
#include "demo/declareSettings.h"
#include "support/TestMain.h"
#include "support/WidgetDump.h"

#include <OrvUtils/QThemeCtrl.h>

#include <QFontInfo>

/// The settings window of the demo with no feature and in the classic look, page by page, as text.
/// Hosts that ask for nothing more keep this window.
///
/// The expected texts are in the folder "classic". The target `classic-window` writes them again.
class tst_ClassicWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void pageIsTheOneOfTheFile_data();
    void pageIsTheOneOfTheFile();
    void styleSheetIsTheOneOfTheFile();

private:
    std::unique_ptr<DemoSession> mSession;
    QByteArray mHome;
};

namespace {

constexpr char sRewrite[] = "MALTO_REWRITE_CLASSIC_WINDOW";

/// Returns the dump after the layouts, delayed polishing and deletions are complete.
QString settledDump(QWidget *window)
{
    constexpr int sMostRounds = 100;
    QString dump;
    for (int round = 0; round < sMostRounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        const QString next = widgetDump(window);
        if (next == dump)
            break;
        dump = next;
    }
    return dump;
}

/// Returns the first line that differs, or an empty text if none does.
QString difference(const QString &actual, const QString &expected)
{
    const QStringList are = actual.split('\n');
    const QStringList should = expected.split('\n');
    for (int i = 0; i < qMax(are.size(), should.size()); ++i) {
        if (are.value(i) != should.value(i))
            return QString("line %1 is\n%2\ninstead of\n%3")
                .arg(QString::number(i + 1), are.value(i), should.value(i));
    }
    return QString();
}

/// Compares `text` with the file of that name, which it writes first if the environment asks for
/// it. Returns the difference.
QString compareWithFile(const QString &text, const QString &name)
{
    QFile file(QString(CLASSIC_FOLDER "/%1.txt").arg(name));
    if (qEnvironmentVariableIsSet(sRewrite)) {
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
            return file.errorString();
        file.close();
    }
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    return difference(text, QString::fromUtf8(file.readAll()));
}

} // namespace

void tst_ClassicWindow::initTestCase()
{
    if (QFontInfo(QFont("sans-serif")).family() != "DejaVu Sans")
        QSKIP("The sizes are those of DejaVu Sans, which is not installed here");
    QApplication::setFont(QFont("sans-serif", 10)); // of widgets that no style sheet gives a font
    mHome = qgetenv("HOME");
}

void tst_ClassicWindow::init()
{
    clearStore();
    // The geometry of the window of the previous row.
    const QStringList files = QDir().entryList(QDir::Files);
    for (const QString &file : files)
        QVERIFY(QFile::remove(file));
    qputenv("HOME", "/home/user"); // a default value
    mSession = std::make_unique<DemoSession>("settings.json", DemoSession::Look::Classic);
    mSession->load(QString());
    DemoSession::showTheme(static_cast<int>(QThemeCtrl::Theme::Light));
}

void tst_ClassicWindow::cleanup()
{
    mSession.reset();
    clearStore();
    qputenv("HOME", mHome);
}

void tst_ClassicWindow::pageIsTheOneOfTheFile_data()
{
    QTest::addColumn<QString>("page");
    const QStringList pages = pageNames();
    for (const QString &page : pages)
        QTest::newRow(qPrintable(page)) << page;
}

void tst_ClassicWindow::pageIsTheOneOfTheFile()
{
    QFETCH(const QString, page);
    MtConf::ConfigurationWindow *window = mSession->manager().ShowWindow(page);
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window)); // the ring around the focus is part of the text
    QCOMPARE(compareWithFile(settledDump(window), page.toLower().replace(' ', '-')), QString());
}

void tst_ClassicWindow::styleSheetIsTheOneOfTheFile()
{
    const MtConf::ConfigurationWindow *window = mSession->manager().ShowWindow();
    QCOMPARE(compareWithFile(window->styleSheet(), "style-sheet"), QString());
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_STYLE_OVERRIDE", "Fusion");
    qputenv("FONTCONFIG_FILE", CLASSIC_FOLDER "/../fonts.conf");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qunsetenv("LANGUAGE");
    return runTest<tst_ClassicWindow>(argc, argv);
}

#include "tst_ClassicWindow.moc"
