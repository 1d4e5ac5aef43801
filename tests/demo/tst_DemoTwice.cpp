#include "DemoFixture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>

#include <QProcess>
#include <QSocketNotifier>
#include <QTextStream>

#include <memory>

namespace {

const QString sProgram = "--program";

/// The demo as one of several programs: clicks the check boxes whose names it reads from the
/// standard input, and prints each change of its settings.
class Program
{
public:
    Program()
    {
        mFixture.session = std::make_unique<DemoSession>(DemoFixture::localFile(),
                                                         DemoSession::Look::Classic);
        mFixture.session->load(QString());
        mFixture.open("General");
        ConfStorage::instance()->addObserver([this](const ConfChange &change) {
            print(change.key + '=' + (change.after.value.toBool() ? "on" : "off"));
        });
        QObject::connect(&mNotifier, &QSocketNotifier::activated, qApp, [this] { readName(); });
        print("ready");
    }

private:
    void readName()
    {
        const QString name = mIn.readLine();
        if (name.isNull()) {
            QCoreApplication::quit();
            return;
        }
        DemoFixture::clickClass("Appearance");
        DemoFixture::clickClass("General"); // builds the page again
        QCoreApplication::processEvents();
        DemoFixture::click(mFixture.checkBox("General", qPrintable(name)));
    }

    void print(const QString &line)
    {
        mOut << line << '\n';
        mOut.flush();
    }

    DemoFixture mFixture{DemoFixture::Files::Keep};
    QTextStream mIn{stdin};
    QTextStream mOut{stdout};
    QSocketNotifier mNotifier{0, QSocketNotifier::Read};
};

} // namespace

/// Two demos that run at the same time with one local file.
class tst_DemoTwice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void bothFollowEachOtherAndKeepBothChanges();

private:
    static void start(QProcess *program)
    {
        program->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program->start(QCoreApplication::applicationFilePath(), {sProgram, QDir::currentPath()});
    }

    /// Waits until the program prints `line`.
    static bool prints(QProcess *program, const QByteArray &line)
    {
        return QTest::qWaitFor(
            [=] {
                while (program->canReadLine()) {
                    if (program->readLine().trimmed() == line)
                        return true;
                }
                return false;
            },
            30000);
    }
};

void tst_DemoTwice::bothFollowEachOtherAndKeepBothChanges()
{
    QProcess first;
    QProcess second;
    start(&first);
    start(&second);
    QVERIFY(prints(&first, "ready"));
    QVERIFY(prints(&second, "ready"));

    const auto clickAndFollow = [](QProcess *clicked, QProcess *other, const QByteArray &name,
                                   const QByteArray &change) {
        clicked->write(name + '\n');
        return prints(clicked, change) && prints(other, change);
    };
    QVERIFY(clickAndFollow(&first, &second, "Tips", "General.Tips=off"));
    QVERIFY(clickAndFollow(&second, &first, "TrayIcon", "General.TrayIcon=off"));
    QVERIFY(clickAndFollow(&second, &first, "Tips", "General.Tips=on"));
    QVERIFY(clickAndFollow(&first, &second, "TrayIcon", "General.TrayIcon=on"));
    QVERIFY(clickAndFollow(&first, &second, "Tips", "General.Tips=off"));

    for (QProcess *program : {&first, &second}) {
        program->closeWriteChannel();
        QVERIFY(program->waitForFinished());
        QCOMPARE(program->exitCode(), 0);
    }
    DemoFixture demo(DemoFixture::Files::Keep);
    demo.session = std::make_unique<DemoSession>(DemoFixture::localFile(),
                                                 DemoSession::Look::Classic);
    demo.session->load(QString());
    QVERIFY(!demo.settings().showTips);
    QVERIFY(demo.settings().showTrayIcon);
}

int main(int argc, char **argv)
{
    if (argc < 3 || argv[1] != sProgram)
        return runTest<tst_DemoTwice>(argc, argv);
    QDir::setCurrent(QFile::decodeName(argv[2]));
    QApplication application(argc, argv);
    const Program program;
    return QApplication::exec();
}

#include "tst_DemoTwice.moc"
