#include "PortalFixture.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <QDBusObjectPath>

#include <memory>

/// A portal that breaks its own documentation, and a bus that ends.
class tst_PortalProtocol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m.reset(); }

    void anAnswerThatBreaksTheRulesIsRefused_data();
    void anAnswerThatBreaksTheRulesIsRefused();
    void theResponseMayComeBeforeTheReply();
    void theFirstOfTwoResponsesCounts();
    void aPortalMayChooseThePathsOfRequests();
    void hugeAnswersAndUnknownIdsAreIgnored();
    void signalsOfTheWrongTypeAreIgnored();
    void theBusGoesAway_data();
    void theBusGoesAway();
    void anUnfinishedDialogIsClosed();

private:
    std::unique_ptr<PortalFixture> m;
};

void tst_PortalProtocol::init()
{
    m = std::make_unique<PortalFixture>();
    QVERIFY(!m->bus.address().isEmpty());
}

void tst_PortalProtocol::anAnswerThatBreaksTheRulesIsRefused_data()
{
    QTest::addColumn<bool>("inSession");
    QTest::addColumn<bool>("isReply");
    QTest::addColumn<QVariantList>("arguments");
    for (const bool inSession : {false, true}) {
        const auto row = [&](const char *name, bool isReply, const QVariantList &arguments) {
            QTest::newRow(qPrintable(QString(inSession ? "hotkeys: %1" : "session: %1").arg(name)))
                << inSession << isReply << arguments;
        };
        row("reply without a path", true, {});
        row("reply with a number", true, {5});
        row("response without results", false, {0U});
        row("response with a negative code", false, {-1, QVariantMap()});
        row("response with a text", false, {"yes", "no"});
        row("response without arguments", false, {});
        row("response without what was asked for", false, {0U, QVariantMap()});
        row("response with numbers", false,
            {0U, QVariantMap{{"session_handle", 5}, {"shortcuts", 5}}});
        row("response with empty texts", false,
            {0U, QVariantMap{{"session_handle", ""}, {"shortcuts", ""}}});
        row("response with a list of texts", false,
            {0U, QVariantMap{{"session_handle", QStringList{"a"}},
                             {"shortcuts", QStringList{"a", "b"}}}});
        row("response with a path", false,
            {0U, QVariantMap{{"session_handle", 0.5},
                             {"shortcuts", QVariant::fromValue(QDBusObjectPath("/a"))}}});
    }
}

void tst_PortalProtocol::anAnswerThatBreaksTheRulesIsRefused()
{
    QFETCH(const bool, inSession);
    QFETCH(const bool, isReply);
    QFETCH(const QVariantList, arguments);
    const LogCapture log;
    const auto answer = [&](const QDBusMessage &call) {
        if (isReply) {
            m->portal.replyWith(call, arguments);
            return;
        }
        m->portal.reply(call);
        m->portal.respondWith(call, arguments);
    };
    (inSession ? m->portal.onBind : m->portal.onCreate) = answer;
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::Refused);
    QVERIFY(LogCapture::texts(QtWarningMsg).size() <= 1);
    // The next answer is a good one.
    m->portal.onBind = nullptr;
    m->portal.onCreate = nullptr;
    m->backend->change({"a", {}, PortalFixture::sKeys});
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
}

void tst_PortalProtocol::theResponseMayComeBeforeTheReply()
{
    const auto reversed = [this](const QVariantMap &results) {
        return [this, results](const QDBusMessage &call) {
            m->portal.respond(call, 0,
                              results.isEmpty() ? FakePortal::results(m->portal.granted("F5"))
                                                : results);
            m->portal.reply(call);
        };
    };
    m->portal.onBind = reversed({});
    m->portal.onCreate = [this, reversed](const QDBusMessage &call) {
        reversed({{"session_handle", m->portal.session()}})(call);
    };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    QCOMPARE(m->trigger("a"), QString("F5"));
}

void tst_PortalProtocol::theFirstOfTwoResponsesCounts()
{
    m->portal.onCreate = [this](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, 0, {{"session_handle", m->portal.session()}});
        m->portal.respond(call, 0, {{"session_handle", m->portal.session()}});
    };
    m->portal.onBind = [this](const QDBusMessage &call) {
        m->portal.reply(call);
        m->portal.respond(call, 0, FakePortal::results(m->portal.granted("First")));
        m->portal.respond(call, 1);
        m->portal.activate("a");
    };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->recorder.activations.size(), 1);
    QCOMPARE(m->trigger("a"), QString("First"));
    QCOMPARE(m->portal.count("BindShortcuts"), 1);
}

void tst_PortalProtocol::aPortalMayChooseThePathsOfRequests()
{
    m->portal.ignoresTokens = true;
    m->portal.onBind = [this](const QDBusMessage &call) { m->portal.hold(call); };
    m->portal.onCreate = [this](const QDBusMessage &call) { m->portal.hold(call); };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->portal.unfinished.size(), 1);
    QTest::qWait(0);
    // Such a portal must wait until the program listens, which it cannot know.
    const auto answered = [this](const QVariantMap &results) {
        m->portal.respond(m->portal.unfinished.last(), 0, results);
        QCoreApplication::processEvents();
    };
    while (m->portal.unfinished.size() < 2)
        answered({{"session_handle", m->portal.session()}});
    while (m->failure("a") != Failure::NoFailure)
        answered(FakePortal::results(m->portal.granted("F5")));
    QCOMPARE(m->trigger("a"), QString("F5"));
}

void tst_PortalProtocol::hugeAnswersAndUnknownIdsAreIgnored()
{
    m->portal.onBind = [this](const QDBusMessage &call) {
        QList<PortalShortcut> shortcuts;
        for (int i = 0; i < 50000; ++i)
            shortcuts.append(
                PortalFixture::answer(QString("unknown %1").arg(i), QString(100, 'x')));
        shortcuts.append(PortalFixture::answer("a", "Keys"));
        m->portal.reply(call);
        m->portal.respond(call, 0, FakePortal::results(shortcuts));
    };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE_WITH_TIMEOUT(m->failure("a"), Failure::NoFailure, 60000);
    QCOMPARE(m->recorder.results.keys(), QStringList("a"));
}

void tst_PortalProtocol::signalsOfTheWrongTypeAreIgnored()
{
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    const QVariant session = QVariant::fromValue(QDBusObjectPath(m->portal.session()));
    for (const char *name : {"Activated", "ShortcutsChanged"}) {
        m->portal.emitSignal(name, {});
        m->portal.emitSignal(name, {session});
        m->portal.emitSignal(name, {5, 6, 7, 8});
        m->portal.emitSignal(name, {session, "a"});
        m->portal.emitSignal(name, {session, QVariantMap()});
        m->portal.emitSignal(name, {session, "a", "now", QVariantMap()});
        m->portal.emitSignal(name, {m->portal.session(), "a", quint64(1), QVariantMap()});
    }
    m->portal.activate("a", {{"activation_token", "good"}});
    QTRY_COMPARE(m->recorder.activations, (QList<QPair<QString, QString>>{{"a", "good"}}));
    QCOMPARE(m->trigger("a"), QString("Granted keys"));
}

void tst_PortalProtocol::theBusGoesAway_data()
{
    QTest::addColumn<QString>("last");
    for (const char *call : {"Register", "Get", "CreateSession", "BindShortcuts", "nothing"})
        QTest::newRow(qPrintable(QString("during %1").arg(call))) << QString(call);
}

void tst_PortalProtocol::theBusGoesAway()
{
    QFETCH(const QString, last);
    const LogCapture log;
    m->portal.answersUntil = last;
    m->portal.start();
    m->create();
    m->add("a");
    if (last == "nothing")
        QTRY_COMPARE(m->failure("a"), Failure::NoFailure);
    else
        QTRY_COMPARE(m->portal.count(last), 1);
    m->bus.stop();
    QTRY_COMPARE(m->failure("a"), Failure::NoBackend);
    QVERIFY(!m->backend->isSupported());
    m->add("b");
    m->backend->change({"a", {}, Qt::Key_F5});
    m->backend->remove("a");
    QCoreApplication::processEvents();
    QCOMPARE(m->failure("b"), Failure::NoBackend);
}

void tst_PortalProtocol::anUnfinishedDialogIsClosed()
{
    m->portal.onBind = [this](const QDBusMessage &call) { m->portal.hold(call); };
    m->portal.start();
    m->create();
    m->add("a");
    QTRY_COMPARE(m->portal.unfinished.size(), 1);
    m->add("b"); // closes the request and the session
    QTRY_COMPARE(m->portal.unfinished.size(), 2);
    QCOMPARE(m->portal.count("Close"), 2);
    m->portal.respond(m->portal.unfinished[0], 1); // too late
    m->portal.respond(m->portal.unfinished[1], 0, FakePortal::results(m->portal.granted("F5")));
    QTRY_COMPARE(m->failure("b"), Failure::NoFailure);
    QCOMPARE(m->failure("a"), Failure::NoFailure);
    QVERIFY(!m->recorder.history["a"].contains(Failure::Refused));
}

int main(int argc, char **argv)
{
    return runTest<tst_PortalProtocol>(argc, argv);
}

#include "tst_PortalProtocol.moc"
