#include "support/CleanStore.h"
#include "support/LogCapture.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <QxtGlobalShortcut>

#include <QCoreApplication>
#include <QtTest>

/// A host without a window system that declares settings: a service or a command-line tool.
class tst_WithoutApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsWork();
    void noWindowIsShown();
    void hotkeysAreNotRegistered_data();
    void hotkeysAreNotRegistered();
};

void tst_WithoutApplication::settingsWork()
{
    bool flag = true;
    {
        MtConf::MtConfManage manager;
        manager.addConfBool("Flag", &flag, "General", "Flag");
        ConfStorage::instance()->set<bool>("General.Flag", false);
        QVERIFY(!flag);
        manager.restoreAllDefault();
        QVERIFY(flag);
    }
    clearStore();
}

void tst_WithoutApplication::noWindowIsShown()
{
    MtConf::MtConfManage manager;
    const LogCapture log;
    QVERIFY(!manager.ShowWindow());
    QCOMPARE(log.texts(QtCriticalMsg),
             QStringList("ShowConfigurationWindow without an application"));
    manager.closeConfigWindow();
    manager.setWindowStayOnTop(true);
}

void tst_WithoutApplication::hotkeysAreNotRegistered_data()
{
    QTest::addColumn<bool>("hasApplication");
    QTest::newRow("no application") << false;
    QTest::newRow("application without a window system") << true;
}

void tst_WithoutApplication::hotkeysAreNotRegistered()
{
    QFETCH(bool, hasApplication);
    int count = 1;
    char name[] = "tst_WithoutApplication";
    char *arguments[] = {name, nullptr};
    const auto application = hasApplication ? std::make_unique<QCoreApplication>(count, arguments)
                                            : nullptr;
    QVERIFY(!QxtGlobalShortcut::isSupported());
    QxtGlobalShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    QVERIFY(shortcut.isEnabled());
    QVERIFY(!shortcut.isValid());
}

QTEST_APPLESS_MAIN(tst_WithoutApplication)

#include "tst_WithoutApplication.moc"
