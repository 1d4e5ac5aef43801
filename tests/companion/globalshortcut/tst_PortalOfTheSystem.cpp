#include "FakeDesktop.h"
#include "PortalFixture.h"
#include "support/TestMain.h"

/// The xdg-desktop-portal of the system, and a desktop of the test's own behind it.
class tst_PortalOfTheSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hotkeysAreBoundAndActivated();
    void theUserRefuses();
    void theUserTakesTime();
    void anOpenDialogIsClosedByAChange();
    void theUserChoosesOtherKeys();
    void aChangeClosesTheSession();
    void theDesktopClosesTheSession();
    void theDesktopCrashesDuringTheDialog();
    void aDesktopThatCrashedBindsAgainAfterAChange();
    void thePortalIsStartedAgain();
    void aDesktopThatIsNotRunningRefuses();
    void aDesktopMayHaveNoHotkeys();

private:
    void start();

    std::unique_ptr<PortalFixture> m;
    std::unique_ptr<FakeDesktop> mDesktop;
};

void tst_PortalOfTheSystem::init()
{
    m = std::make_unique<PortalFixture>();
    mDesktop = std::make_unique<FakeDesktop>(m->bus);
}

void tst_PortalOfTheSystem::cleanup()
{
    m->backend.reset();
    mDesktop.reset();
    m.reset();
}

void tst_PortalOfTheSystem::start()
{
    mDesktop->start();
    m->create();
    m->add("area", PortalFixture::sKeys, "Capture an area");
    m->add("window", Qt::Key_F5, "Capture a window");
}

void tst_PortalOfTheSystem::hotkeysAreBoundAndActivated()
{
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    QCOMPARE(m->failure("window"), Failure::NoFailure);
    QCOMPARE(m->trigger("window"), QString("Granted keys"));
    QCOMPARE(mDesktop->boundIds(), QStringList({"area", "window"}));
    QCOMPARE(mDesktop->bound[0].properties, QVariantMap({{"description", "Capture an area"},
                                                         {"preferred_trigger", "CTRL+ALT+k"}}));
    mDesktop->activate("window", {{"activation_token", "token-7"}});
    QTRY_COMPARE(m->recorder.activations, (QList<QPair<QString, QString>>{{"window", "token-7"}}));
}

void tst_PortalOfTheSystem::theUserRefuses()
{
    mDesktop->user = FakeDesktop::User::Refuses;
    start();
    QTRY_COMPARE(m->failure("area"), Failure::Refused);
    QCOMPARE(m->failure("window"), Failure::Refused);
    mDesktop->user = FakeDesktop::User::Accepts;
    m->backend->change({"area", "Capture an area", PortalFixture::sKeys});
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    QCOMPARE(m->failure("window"), Failure::NoFailure);
}

void tst_PortalOfTheSystem::theUserTakesTime()
{
    mDesktop->user = FakeDesktop::User::Waits;
    start();
    QTRY_COMPARE(mDesktop->calls.count("BindShortcuts"), 1);
    QCOMPARE(m->failure("area"), Failure::Pending);
    mDesktop->accept();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
}

void tst_PortalOfTheSystem::anOpenDialogIsClosedByAChange()
{
    mDesktop->user = FakeDesktop::User::Waits;
    start();
    QTRY_COMPARE(mDesktop->calls.count("BindShortcuts"), 1);
    mDesktop->user = FakeDesktop::User::Accepts;
    m->add("screen");
    QTRY_COMPARE(m->failure("screen"), Failure::NoFailure);
    QCOMPARE(mDesktop->boundIds(), QStringList({"area", "screen", "window"}));
    QVERIFY(mDesktop->calls.contains("Close"));
    QCOMPARE(mDesktop->calls.count("BindShortcuts"), 2);
}

void tst_PortalOfTheSystem::theUserChoosesOtherKeys()
{
    mDesktop->trigger = "Press Super+K";
    start();
    QTRY_COMPARE(m->trigger("area"), QString("Press Super+K"));
    mDesktop->changeKeys("area", "Press F9");
    QTRY_COMPARE(m->trigger("area"), QString("Press F9"));
    QCOMPARE(m->trigger("window"), QString("Press Super+K"));
    mDesktop->changeKeys("area", "");
    QTRY_COMPARE(m->failure("area"), Failure::Refused);
}

void tst_PortalOfTheSystem::aChangeClosesTheSession()
{
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    const QString session = mDesktop->session;
    m->backend->remove("area");
    QTRY_COMPARE(mDesktop->boundIds(), QStringList("window"));
    QTRY_COMPARE(m->failure("window"), Failure::NoFailure);
    QVERIFY(mDesktop->session != session);
    QCOMPARE(mDesktop->calls.count("Close"), 1);
    m->backend->remove("window");
    QTRY_COMPARE(mDesktop->calls.count("Close"), 2);
}

void tst_PortalOfTheSystem::theDesktopClosesTheSession()
{
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    mDesktop->closeSession();
    QTRY_COMPARE(m->failure("area"), Failure::Refused);
    QCOMPARE(m->failure("window"), Failure::Refused);
}

void tst_PortalOfTheSystem::theDesktopCrashesDuringTheDialog()
{
    mDesktop->user = FakeDesktop::User::Waits;
    start();
    QTRY_COMPARE(mDesktop->calls.count("BindShortcuts"), 1);
    mDesktop->crash();
    QTRY_COMPARE(m->failure("area"), Failure::Refused);
    mDesktop->user = FakeDesktop::User::Accepts;
    mDesktop->start();
    m->backend->change({"area", "Capture an area", PortalFixture::sKeys});
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
}

// The portal does not tell that the desktop behind it has crashed.
void tst_PortalOfTheSystem::aDesktopThatCrashedBindsAgainAfterAChange()
{
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    mDesktop->crash();
    mDesktop->start();
    m->backend->change({"area", "Capture an area", PortalFixture::sKeys | Qt::SHIFT});
    QTRY_COMPARE(mDesktop->calls.count("BindShortcuts"), 2);
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    mDesktop->activate("area");
    QTRY_COMPARE(m->recorder.activations.size(), 1);
}

void tst_PortalOfTheSystem::thePortalIsStartedAgain()
{
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    mDesktop->killPortal();
    QTRY_COMPARE(mDesktop->calls.count("BindShortcuts"), 2);
    QTRY_COMPARE(m->failure("area"), Failure::NoFailure);
    QVERIFY(m->recorder.history["area"].contains(Failure::Pending));
    QVERIFY(!m->recorder.history["area"].contains(Failure::NoBackend));
    mDesktop->activate("area");
    QTRY_COMPARE(m->recorder.activations.size(), 1);
}

void tst_PortalOfTheSystem::aDesktopThatIsNotRunningRefuses()
{
    m->create();
    m->add("area");
    QTRY_COMPARE(m->failure("area"), Failure::Refused);
}

void tst_PortalOfTheSystem::aDesktopMayHaveNoHotkeys()
{
    mDesktop->hideHotkeys();
    start();
    QTRY_COMPARE(m->failure("area"), Failure::NoBackend);
    QVERIFY(!m->backend->isSupported());
}

int main(int argc, char **argv)
{
    return runTest<tst_PortalOfTheSystem>(argc, argv);
}

#include "tst_PortalOfTheSystem.moc"
