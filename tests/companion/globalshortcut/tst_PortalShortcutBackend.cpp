#include "PortalFixture.h"
#include "support/TestMain.h"

#include <QDBusObjectPath>

#include <memory>

/// Hotkeys that the desktop grants, changes and refuses.
class tst_PortalShortcutBackend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m.reset(); }

    void actionsOfOneTurnAreBoundTogether();
    void actionsOfTenThousandAreBoundTogether();
    void actionsHaveDescriptionsAndPreferredKeys();
    void noActionsNeedNoSession();
    void aChangeBindsAllActionsInANewSession();
    void anActionThatDoesNotChangeIsNotBoundAgain();
    void theSameKeysDoNotCloseTheDialog();
    void whatIsUndoneInOneTurnAsksTheUserOnce();
    void theDesktopRefuses_data();
    void theDesktopRefuses();
    void aRefusedActionIsTriedAgain();
    void theDesktopMayGrantOtherKeys();
    void theDesktopChangesTheKeys();
    void anActivationShowsThatThereAreKeys();
    void anActivationHasItsToken_data();
    void anActivationHasItsToken();
    void activationsOfOthersAreIgnored();
    void suspendedActionsAreNotActivated();

private:
    std::unique_ptr<PortalFixture> m;
};

void tst_PortalShortcutBackend::init()
{
    m = std::make_unique<PortalFixture>();
    QVERIFY(!m->bus.address().isEmpty());
}

void tst_PortalShortcutBackend::actionsOfOneTurnAreBoundTogether()
{
    m->portal.start();
    m->create();
    QVERIFY(m->backend->isSupported());
    m->add("window");
    m->add("area");
    QTRY_COMPARE(m->failure("window"), Failure::NoFailure);
    QCOMPARE(m->failure("area"), Failure::NoFailure);
    QCOMPARE(m->trigger("area"), QString("Granted keys"));
    QCOMPARE(m->portal.boundIds(), QStringList({"area", "window"}));
    QCOMPARE(m->portal.count("CreateSession"), 1);
    QCOMPARE(m->portal.count("BindShortcuts"), 1);

    m->add("screen");
    m->add("tray");
    QTRY_COMPARE(m->failure("tray"), Failure::NoFailure);
    QCOMPARE(m->portal.boundIds(), QStringList({"area", "screen", "tray", "window"}));
    QCOMPARE(m->portal.count("BindShortcuts"), 2);
}

void tst_PortalShortcutBackend::actionsOfTenThousandAreBoundTogether()
{
    m->portal.start();
    m->create();
    for (int i = 0; i < 10000; ++i)
        m->add(QString::number(i));
    QTRY_COMPARE_WITH_TIMEOUT(m->failure("9999"), Failure::NoFailure, 60000);
    QCOMPARE(m->portal.bound.size(), 10000);
    QCOMPARE(m->portal.count("BindShortcuts"), 1);
}

void tst_PortalShortcutBackend::actionsHaveDescriptionsAndPreferredKeys()
{
    m->portal.start();
    m->create();
    m->add("a", PortalFixture::sKeys, "Capture an area");
    m->add("b", PortalFixture::sKeys);
    m->add("c", Qt::Key_Shift, "No name");
    QTRY_COMPARE(m->failure("c"), Failure::NoFailure);
    const QList<PortalShortcut> &bound = m->portal.bound;
    QCOMPARE(bound.size(), 3);
    QCOMPARE(bound[0].properties, QVariantMap({{"description", "Capture an area"},
                                               {"preferred_trigger", "CTRL+ALT+k"}}));
    QCOMPARE(bound[1].properties,
             QVariantMap({{"description", "Ctrl+Alt+K"}, {"preferred_trigger", "CTRL+ALT+k"}}));
    QCOMPARE(bound[2].properties, QVariantMap({{"description", "No name"}}));
}

void tst_PortalShortcutBackend::noActionsNeedNoSession()
{
    m->portal.start();
    m->create();
    QTRY_COMPARE(m->portal.count("Get"), 1);
    m->add("a");
    m->backend->remove("a");
    m->add("b");
    QTRY_COMPARE(m->failure("b"), Failure::NoFailure);
    QCOMPARE(m->portal.boundIds(), QStringList("b"));
    m->backend->remove("b");
    QTRY_COMPARE(m->portal.count("Close"), 1);
    QCOMPARE(m->portal.count("CreateSession"), 1);
}

void tst_PortalShortcutBackend::aChangeBindsAllActionsInANewSession()
{
    m->portal.start();
    m->create();
    m->add("a");
    m->add("b");
    QTRY_COMPARE(m->failure("b"), Failure::NoFailure);
    const QString session = m->portal.session();
    m->backend->change({"a", "Other", Qt::Key_F5});
    QTRY_COMPARE(m->portal.count("BindShortcuts"), 2);
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QCOMPARE(m->portal.bound[0].properties["preferred_trigger"].toString(), QString("F5"));
    QCOMPARE(m->portal.boundIds(), QStringList({"a", "b"}));
    QVERIFY(m->portal.session() != session);
    // The old session was closed before, and no hotkey works until the new one is there.
    QCOMPARE(m->portal.calls.mid(m->portal.calls.indexOf("Close")),
             QStringList({"Close", "CreateSession", "BindShortcuts"}));
    const QVector<Failure> states{Failure::NoFailure, Failure::Pending, Failure::NoFailure};
    QCOMPARE(m->recorder.history["b"].mid(m->recorder.history["b"].indexOf(Failure::NoFailure)),
             states);
}

void tst_PortalShortcutBackend::anActionThatDoesNotChangeIsNotBoundAgain()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->backend->change({"a", {}, PortalFixture::sKeys});
    m->add("b");
    QTRY_COMPARE(m->failure("b"), Failure::NoFailure);
    m->backend->change({"a", {}, PortalFixture::sKeys});
    QCoreApplication::processEvents();
    QCOMPARE(m->portal.count("BindShortcuts"), 2);
}

void tst_PortalShortcutBackend::theSameKeysDoNotCloseTheDialog()
{
    m->portal.onBind = [this](const QDBusMessage &call) { m->portal.hold(call); };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->portal.unfinished.size(), 1);
    m->backend->change({"a", {}, PortalFixture::sKeys});
    QCoreApplication::processEvents();
    m->portal.respond(m->portal.unfinished.first(), 0,
                      FakePortal::results({PortalFixture::answer("a", "Ctrl+Alt+K")}));
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QCOMPARE(m->portal.count("CreateSession"), 1);
}

void tst_PortalShortcutBackend::whatIsUndoneInOneTurnAsksTheUserOnce()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    for (int i = 0; i < 100; ++i) {
        m->backend->remove("a");
        m->add("a");
        m->backend->change({"a", {}, Qt::Key_F5});
        m->backend->change({"a", {}, Qt::Key_F6});
    }
    QTRY_COMPARE(m->portal.count("BindShortcuts"), 2);
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QCOMPARE(m->portal.count("CreateSession"), 2);
    QCOMPARE(m->portal.bound[0].properties["preferred_trigger"].toString(), QString("F6"));
}

void tst_PortalShortcutBackend::theDesktopRefuses_data()
{
    QTest::addColumn<bool>("inSession");
    QTest::addColumn<uint>("code");
    QTest::newRow("the user cancels the dialog") << true << 1U;
    QTest::newRow("the dialog ends otherwise") << true << 2U;
    QTest::newRow("an unknown code for hotkeys") << true << 77U;
    QTest::newRow("no session by the user") << false << 1U;
    QTest::newRow("no session") << false << 2U;
}

void tst_PortalShortcutBackend::theDesktopRefuses()
{
    QFETCH(const bool, inSession);
    QFETCH(const uint, code);
    const auto refuse = [&](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, code);
    };
    (inSession ? m->portal.onBind : m->portal.onCreate) = refuse;
    m->portal.start();
    m->create();
    m->add("a");
    m->add("b");
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    QCOMPARE(m->failure("b"), Failure::Refused);
    QTRY_COMPARE(m->portal.count("Close"), 1);
    QVERIFY(m->backend->isSupported());
    QCOMPARE(m->portal.count("CreateSession"), 1); // the user is not asked again
}

void tst_PortalShortcutBackend::aRefusedActionIsTriedAgain()
{
    m->portal.onBind = [this](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, 1);
    };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    m->portal.onBind = nullptr;
    m->backend->change({"a", {}, PortalFixture::sKeys});
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
}

void tst_PortalShortcutBackend::theDesktopMayGrantOtherKeys()
{
    m->portal.onBind = [this](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, 0,
                          FakePortal::results({PortalFixture::answer("other", "Press Super+K"),
                                               PortalFixture::answer("none", ""),
                                               PortalFixture::answer("odd", QVariant(5)),
                                               {"silent", {}}}));
    };
    m->portal.start();
    m->create();
    for (const char *id : {"other", "none", "silent", "left out", "odd"})
        m->add(id);
    QTRY_COMPARE(m->failure("other"), Failure::NoFailure);
    QCOMPARE(m->trigger("other"), QString("Press Super+K"));
    QCOMPARE(m->failure("none"), Failure::Refused);
    QCOMPARE(m->failure("silent"), Failure::NoFailure);
    QCOMPARE(m->trigger("silent"), QString());
    QCOMPARE(m->failure("left out"), Failure::Refused);
    QCOMPARE(m->failure("odd"), Failure::NoFailure);
}

void tst_PortalShortcutBackend::theDesktopChangesTheKeys()
{
    m->portal.start();
    m->create();
    m->add("a");
    m->add("b");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    const auto change = [this](const QString &session, const QList<PortalShortcut> &shortcuts) {
        m->portal.emitSignal("ShortcutsChanged", {QVariant::fromValue(QDBusObjectPath(session)),
                                                  QVariant::fromValue(shortcuts)});
    };
    change("/another/session", {PortalFixture::answer("a", "Wrong")});
    change(m->portal.session(),
           {PortalFixture::answer("a", "F7"), PortalFixture::answer("unknown", "F8")});
    QTRY_COMPARE(m->trigger("a"), QString("F7"));
    QCOMPARE(m->trigger("b"), QString("Granted keys"));
    QVERIFY(!m->recorder.results.contains("unknown"));
    QCOMPARE(m->recorder.history["a"].count(Failure::Pending), 0);
    change(m->portal.session(), {PortalFixture::answer("a", "")});
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
}

void tst_PortalShortcutBackend::anActivationShowsThatThereAreKeys()
{
    m->portal.onBind = [this](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, 0, FakePortal::results(m->portal.granted("")));
    };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    m->portal.activate("a");
    QTRY_COMPARE(m->recorder.activations.size(), 1);
    QCOMPARE(m->failure("a"), Failure::NoFailure);
}

void tst_PortalShortcutBackend::anActivationHasItsToken_data()
{
    QTest::addColumn<QVariantMap>("options");
    QTest::addColumn<QString>("token");
    QTest::newRow("token") << QVariantMap{{"activation_token", "token-1"}} << "token-1";
    QTest::newRow("older portal") << QVariantMap() << QString();
    QTest::newRow("token of the wrong type")
        << QVariantMap{{"activation_token", QStringList{"a", "b"}}} << QString();
}

void tst_PortalShortcutBackend::anActivationHasItsToken()
{
    QFETCH(const QVariantMap, options);
    QFETCH(const QString, token);
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->portal.activate("a", options);
    QTRY_COMPARE(m->recorder.activations, (QList<QPair<QString, QString>>{{"a", token}}));
}

void tst_PortalShortcutBackend::activationsOfOthersAreIgnored()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->portal.activate("unknown");
    m->portal.emitSignal("Activated", {QVariant::fromValue(QDBusObjectPath("/another/session")),
                                       "a", QVariant::fromValue(quint64(1)), QVariantMap()});
    m->portal.emitSignal("Deactivated", {QVariant::fromValue(QDBusObjectPath(m->portal.session())),
                                         "a", QVariant::fromValue(quint64(1)), QVariantMap()});
    m->portal.activate("a", {{"activation_token", "last"}});
    QTRY_COMPARE(m->recorder.activations, (QList<QPair<QString, QString>>{{"a", "last"}}));
}

void tst_PortalShortcutBackend::suspendedActionsAreNotActivated()
{
    m->portal.start();
    m->create();
    m->add("a");
    m->add("b");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    m->backend->suspend(true);
    m->portal.activate("a");
    m->portal.emitSignal(
        "ShortcutsChanged",
        {QVariant::fromValue(QDBusObjectPath(m->portal.session())),
         QVariant::fromValue(QList<PortalShortcut>{PortalFixture::answer("b", "F9")})});
    QTRY_COMPARE(m->trigger("b"), QString("F9")); // sent after the activation
    QCOMPARE(m->failure("a"), Failure::NoFailure);
    m->backend->suspend(false);
    m->portal.activate("b");
    QTRY_COMPARE(m->recorder.activations, (QList<QPair<QString, QString>>{{"b", QString()}}));
    QCOMPARE(m->portal.count("BindShortcuts"), 1);
}

int main(int argc, char **argv)
{
    return runTest<tst_PortalShortcutBackend>(argc, argv);
}

#include "tst_PortalShortcutBackend.moc"
