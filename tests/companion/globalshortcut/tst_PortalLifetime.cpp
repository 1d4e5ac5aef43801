#include "PortalFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QDBusObjectPath>

#include <memory>

/// The portal is started, ends and comes back; it may want to know the program.
class tst_PortalLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m.reset(); }

    void thePortalGoesAwayAndComesBack();
    void aPortalThatEndsBeforeItAnswersIsNotStartedAgain();
    void aClosedSessionIsRefused();
    void aPortalWithoutHotkeysIsMissing();
    void otherKeysAreNotPendingWithoutAPortal();
    void aMissingPortalIsFoundLater();
    void theProgramRegistersItsIdFirst();
    void theIdIsThatOfTheDesktopFile();
    void aPortalMayRequireAnId();

private:
    std::unique_ptr<PortalFixture> m;
};

void tst_PortalLifetime::init()
{
    m = std::make_unique<PortalFixture>();
    QVERIFY(!m->bus.address().isEmpty());
}

void tst_PortalLifetime::thePortalGoesAwayAndComesBack()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->portal.crash();
    QTRY_COMPARE(m->recorder.history["a"].last(), Failure::NoBackend); // nothing starts it
    QVERIFY(m->recorder.history["a"].contains(Failure::Pending));
    QVERIFY(!m->backend->isSupported());
    m->add("b");
    QCOMPARE(m->failure("b"), Failure::NoBackend);
    m->portal.start();
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QCOMPARE(m->failure("b"), Failure::NoFailure);
    QVERIFY(m->backend->isSupported());
    QCOMPARE(m->portal.count("BindShortcuts"), 2);
    m->portal.activate("b");
    QTRY_COMPARE(m->recorder.activations.size(), 1);
}

void tst_PortalLifetime::aPortalThatEndsBeforeItAnswersIsNotStartedAgain()
{
    m->portal.onBind = [this](const QDBusMessage &call) { m->portal.hold(call); };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->portal.unfinished.size(), 1);
    m->portal.crash();
    QTRY_COMPARE(m->failure("a"), Failure::NoBackend);
    QCOMPARE(m->portal.count("Get"), 1);
    m->portal.onBind = nullptr;
    m->portal.start();
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
}

void tst_PortalLifetime::aClosedSessionIsRefused()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->portal.closeSession();
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    m->portal.activate("a"); // of a session that is closed
    m->backend->change({"a", {}, PortalFixture::sKeys});
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QVERIFY(m->recorder.activations.isEmpty());
    QCOMPARE(m->portal.count("BindShortcuts"), 2);
}

void tst_PortalLifetime::aPortalWithoutHotkeysIsMissing()
{
    m->portal.hasShortcuts = false;
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoBackend);
    QVERIFY(!m->backend->isSupported());
    QCOMPARE(m->portal.count("CreateSession"), 0);
    m->add("b");
    QCOMPARE(m->failure("b"), Failure::NoBackend);
}

void tst_PortalLifetime::otherKeysAreNotPendingWithoutAPortal()
{
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoBackend);
    m->recorder.results.clear(); // for other keys the result is Pending until it is told
    m->backend->change({"a", {}, static_cast<int>(Qt::Key_F9)});
    QCOMPARE(m->failure("a"), Failure::NoBackend);
    m->portal.start();
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
}

void tst_PortalLifetime::aMissingPortalIsFoundLater()
{
    m->create();
    QVERIFY(m->backend->isSupported()); // it may be starting
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoBackend);
    QVERIFY(!m->backend->isSupported());
    m->portal.start();
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QVERIFY(m->backend->isSupported());
}

void tst_PortalLifetime::theProgramRegistersItsIdFirst()
{
    m->portal.hasRegistry = true;
    m->portal.needsId = true;
    m->portal.start();
    QGuiApplication::setDesktopFileName("org.example.Capture.desktop");
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QGuiApplication::setDesktopFileName({});
    QCOMPARE(m->portal.applicationId, QString("org.example.Capture"));
    QCOMPARE(m->portal.calls, QStringList({"Register", "Get", "CreateSession", "BindShortcuts"}));
}

void tst_PortalLifetime::theIdIsThatOfTheDesktopFile()
{
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).baseName();
    QCOMPARE(PortalWatcher::applicationId(), program);
    QCoreApplication::setOrganizationDomain("shop.example.com");
    QCOMPARE(PortalWatcher::applicationId(), "com.example.shop." + program);
    QGuiApplication::setDesktopFileName("org.example.Capture");
    QCOMPARE(PortalWatcher::applicationId(), QString("org.example.Capture"));
    QGuiApplication::setDesktopFileName({});
    QCoreApplication::setOrganizationDomain({});
}

void tst_PortalLifetime::aPortalMayRequireAnId()
{
    const LogCapture log;
    m->portal.needsId = true;
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             QStringList("QxtGlobalShortcut the desktop portal rejects the hotkeys:  "
                         "\"An app id is required\""));
}

int main(int argc, char **argv)
{
    return runTest<tst_PortalLifetime>(argc, argv);
}

#include "tst_PortalLifetime.moc"
