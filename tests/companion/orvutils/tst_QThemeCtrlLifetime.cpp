#include <OrvUtils/OrvScreenManager.h>
#include <OrvUtils/QThemeCtrl.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPalette>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The singletons before the application exists, after it is destroyed, and with the next one.
class tst_QThemeCtrlLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void worksWithoutApplication();
    void followsAnApplicationCreatedLater();
    void outlivesTheApplication();
    void followsTheNextApplication();

private:
    static std::unique_ptr<QApplication> makeApplication();
    void watchASheet();

    QTemporaryDir mFolder;
};

std::unique_ptr<QApplication> tst_QThemeCtrlLifetime::makeApplication()
{
    static int sCount = 1;
    static char sName[] = "tst_QThemeCtrlLifetime";
    static char *sArguments[] = {sName, nullptr};
    return std::make_unique<QApplication>(sCount, sArguments);
}

void tst_QThemeCtrlLifetime::watchASheet()
{
    const QString path = mFolder.filePath(QStringLiteral("sheet.qss"));
    QFile sheet(path);
    QVERIFY(sheet.open(QIODevice::WriteOnly | QIODevice::Append));
    sheet.write("QLabel { color: red }");
    sheet.close();
    QLabel label;
    QSignalSpy spy(QThemeCtrl::instance(), &QThemeCtrl::sigThemeChanged);
    QThemeCtrl::instance()->handleQssFile(&label, {path}, 1);
    QVERIFY(sheet.open(QIODevice::WriteOnly | QIODevice::Append));
    sheet.write("QLabel { color: blue }");
    sheet.close();
    QTRY_COMPARE(spy.count(), 1);
}

void tst_QThemeCtrlLifetime::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QVERIFY(mFolder.isValid());
}

void tst_QThemeCtrlLifetime::worksWithoutApplication()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    QVERIFY(!theme->isDark());
    QCOMPARE(theme->expandMacros(QStringLiteral("sca(2)"), 2), QStringLiteral("4"));
    theme->handleQssFile(nullptr, {QStringLiteral("nowhere.qss")}, 1);
    QCOMPARE(OrvScreenManager::instance()->primaryScreen().rect, QRect());
    QCOMPARE(OrvScreenManager::instance()->widgetScreen(nullptr).dpi, 96.0);
    QVERIFY(OrvScreenManager::instance()->screens().isEmpty());
}

void tst_QThemeCtrlLifetime::followsAnApplicationCreatedLater()
{
    const std::unique_ptr<QApplication> application = makeApplication();
    QThemeCtrl *const theme = QThemeCtrl::instance();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QVERIFY(theme->isDark());
    QVERIFY(!OrvScreenManager::instance()->primaryScreen().rect.isEmpty());
    watchASheet();
}

void tst_QThemeCtrlLifetime::outlivesTheApplication()
{
    QThemeCtrl *const theme = QThemeCtrl::instance();
    theme->setTheme(QThemeCtrl::Theme::Light);
    QVERIFY(!theme->isDark());
    QVERIFY(theme->color(QStringLiteral("ColorBg0")).isValid());
    theme->setTheme(QThemeCtrl::Theme::System);
    QCOMPARE(OrvScreenManager::instance()->primaryScreen().rect, QRect());
}

void tst_QThemeCtrlLifetime::followsTheNextApplication()
{
    const std::unique_ptr<QApplication> application = makeApplication();
    QThemeCtrl *const theme = QThemeCtrl::instance();
    QApplication::setPalette(QPalette(QColor(240, 240, 240)));
    QVERIFY(!theme->isDark());
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QVERIFY(theme->isDark());
    QSignalSpy spy(OrvScreenManager::instance(), &OrvScreenManager::sigScreensChanged);
    Q_EMIT application->primaryScreenChanged(QGuiApplication::primaryScreen());
    QCOMPARE(spy.count(), 1);
    watchASheet();
}

// Not with runTest(): the tests create and destroy their applications themselves.
QTEST_APPLESS_MAIN(tst_QThemeCtrlLifetime)

#include "tst_QThemeCtrlLifetime.moc"
