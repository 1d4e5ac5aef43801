#include "FaultInjection.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>

#include <OrvUtils/QThemeCtrl.h>

#include <QDir>
#include <QLabel>

#include <cerrno>
#include <functional>
#include <sys/stat.h>

using Faults::Call;
using Faults::Kind;
using Faults::Scope;
using MtConf::ConfWidgetLanguage;

namespace {

constexpr qint64 sLimit = 4 * 1024 * 1024;

/// Changes what is read at a path.
struct Attack
{
    std::function<void(const QString &path)> prepare;
    std::function<Faults::Answer(const Call &call, const QString &path)> answer;
    qint64 maxBytes = 0; ///< that may be read
};

Faults::Answer proceed(const Call &, const QString &)
{
    return Faults::proceed();
}

void nothing(const QString &) {}

void addAttacks()
{
    QTest::addColumn<Attack>("attack");
    QTest::newRow("pipe without a writer") << Attack{[](const QString &path) {
                                                         QFile::remove(path);
                                                         ::mkfifo(qPrintable(path), 0600);
                                                     },
                                                     proceed, 0};
    QTest::newRow("endless device") << Attack{[](const QString &path) {
                                                  QFile::remove(path);
                                                  QFile::link("/dev/zero", path);
                                              },
                                              proceed, 0};
    QTest::newRow("file that becomes a pipe when it is opened")
        << Attack{nothing,
                  [](const Call &call, const QString &path) {
                      if (call.kind == Kind::Open) {
                          QFile::remove(path);
                          ::mkfifo(qPrintable(path), 0600);
                      }
                      return Faults::proceed();
                  },
                  0};
    QTest::newRow("one byte more than the limit") << Attack{
        [](const QString &path) { QVERIFY(QFile::resize(path, sLimit + 1)); }, proceed, sLimit + 1};
    // As some files of the system, whose size is 0.
    QTest::newRow("endless file") << Attack{nothing,
                                            [](const Call &call, const QString &) {
                                                return call.kind == Kind::Read ? Faults::fill()
                                                                               : Faults::proceed();
                                            },
                                            sLimit + 1};
    QTest::newRow("disk error in the middle")
        << Attack{[](const QString &path) { QVERIFY(QFile::resize(path, 200000)); },
                  [](const Call &call, const QString &) {
                      static int count = 0;
                      count = call.kind == Kind::Open ? 0 : count + 1;
                      return call.kind == Kind::Read && count > 1 ? Faults::fail(EIO)
                                                                  : Faults::proceed();
                  },
                  200000};
}

} // namespace

Q_DECLARE_METATYPE(Attack)

/// Style sheets and translations that another program exchanges, or that are no files.
class tst_SmallFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void styleSheetIsLeftOut_data() { addAttacks(); }
    void styleSheetIsLeftOut();
    void translationIsNotInstalled_data() { addAttacks(); }
    void translationIsNotInstalled();
    void filesOfTheLimitAreRead();
    void contentIsReadAfterTheFileIsGone();

private:
    // As the language editor writes it.
    static QString folder() { return QCoreApplication::applicationDirPath() + relativeFolder(); }
    static QString relativeFolder()
    {
        return '/'
               + QDir(QCoreApplication::applicationDirPath())
                     .relativeFilePath(QDir::current().canonicalPath())
               + "/box";
    }
    static QString sheet() { return folder() + "/one.qss"; }
    static QString catalogue() { return folder() + "/fr-fr.qm"; }
    static QString label() { return QObject::tr("Language"); }

    /// Calls `load` during the attack and checks how much was read.
    static void run(const Attack &attack, const QString &path, const std::function<void()> &load)
    {
        attack.prepare(path);
        qint64 bytes = 0;
        {
            const Scope faults(QFile::encodeName(folder()), [&](const Call &call) {
                if (call.path != QFile::encodeName(path))
                    return Faults::proceed();
                if (call.kind == Kind::Read)
                    bytes += call.size;
                return attack.answer(call, path);
            });
            load();
        }
        QVERIFY2(bytes <= attack.maxBytes + 64 * 1024, qPrintable(QString::number(bytes)));
    }
};

void tst_SmallFileFaults::init()
{
    QVERIFY(QDir().mkpath(folder()));
    QFile file(sheet());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("QLabel { margin: sca(1)px }");
    file.close();
    QVERIFY(QFile::copy(QDir(MALTO_TEST_CATALOGUES).filePath("fr-fr.qm"), catalogue()));
    ConfWidgetLanguage::sLanguagePath = relativeFolder() + '/';
    ConfWidgetLanguage::sLanguageQtPath = relativeFolder() + '/';
    ConfWidgetLanguage::mSupportLangCodes = QStringList{"en-us", "fr-fr"};
}

void tst_SmallFileFaults::cleanup()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("en-us");
    QDir(folder()).removeRecursively();
}

void tst_SmallFileFaults::styleSheetIsLeftOut()
{
    QFETCH(Attack, attack);
    QLabel widget;
    const LogCapture log;
    run(attack, sheet(),
        [&] { QThemeCtrl::instance()->handleQssFile(&widget, QStringList(sheet()), 2); });
    QCOMPARE(widget.styleSheet(), QString());
    QCOMPARE(log.texts(QtWarningMsg),
             QStringList("QThemeCtrl::handleQssFile cannot read: " + sheet()));
}

void tst_SmallFileFaults::translationIsNotInstalled()
{
    QFETCH(Attack, attack);
    const LogCapture log;
    run(attack, catalogue(), [] { ConfWidgetLanguage::installTranslator("fr-fr"); });
    QCOMPARE(label(), QString("Language"));
    QCOMPARE(log.texts(QtWarningMsg).value(0), QString("Unable to load QTranslator"));
}

void tst_SmallFileFaults::filesOfTheLimitAreRead()
{
    QVERIFY(QFile::resize(sheet(), sLimit));
    QVERIFY(QFile::resize(catalogue(), sLimit));
    QLabel widget;
    QThemeCtrl::instance()->handleQssFile(&widget, QStringList(sheet()), 2);
    QCOMPARE(widget.styleSheet(), QString("QLabel { margin: 2px }\n"));
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QCOMPARE(label(), QString("Langue"));
}

void tst_SmallFileFaults::contentIsReadAfterTheFileIsGone()
{
    const LogCapture log;
    ConfWidgetLanguage::installTranslator("fr-fr");
    QVERIFY(QFile::resize(catalogue(), 0));
    QVERIFY(QFile::remove(catalogue()));
    QCOMPARE(label(), QString("Langue"));
}

int main(int argc, char **argv)
{
    return runTest<tst_SmallFileFaults>(argc, argv);
}

#include "tst_SmallFileFaults.moc"
