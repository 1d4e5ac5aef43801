#include "support/LogCapture.h"

#include <QIconfont/QIconfont.h>
#include <QIconfont/QuorviGlyphs.h>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QtTest>

/// QIconfont before an application exists, and in several applications one after the other.
class tst_QIconfontLifetime : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everythingIsNullWithoutAnApplication();
    void everythingIsNullInACoreApplication();
    void everyApplicationHasTheFont_data();
    void everyApplicationHasTheFont();
    void everythingIsNullAfterTheApplication();

private:
    static void verifyAllIsNull();

    int mArgc = 1;
    char mName[22] = "tst_QIconfontLifetime";
    char *mArgv[2] = {mName, nullptr};
};

void tst_QIconfontLifetime::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void tst_QIconfontLifetime::verifyAllIsNull()
{
    const LogCapture log;
    QVERIFY(!QIconfont::load());
    QVERIFY(QIconfont::fontFamily().isEmpty());
    QVERIFY(QIconfont::Icon(QuorviGlyphs::Correct, Qt::black, 20).isNull());
    const QPixmap pixmap = QIconfont::Pixmap(QuorviGlyphs::Correct, Qt::black, 20);
    QVERIFY(pixmap.isNull());
    QCOMPARE(pixmap.size(), QSize(0, 0));
    QVERIFY(log.messages().isEmpty());
}

void tst_QIconfontLifetime::everythingIsNullWithoutAnApplication()
{
    verifyAllIsNull();
}

void tst_QIconfontLifetime::everythingIsNullInACoreApplication()
{
    const QCoreApplication application(mArgc, mArgv);
    verifyAllIsNull();
}

void tst_QIconfontLifetime::everyApplicationHasTheFont_data()
{
    QTest::addColumn<QChar>("glyph");
    QTest::newRow("first application") << QuorviGlyphs::Correct;
    QTest::newRow("next application, a glyph drawn before") << QuorviGlyphs::Correct;
    QTest::newRow("next application, another glyph") << QuorviGlyphs::Error;
}

void tst_QIconfontLifetime::everyApplicationHasTheFont()
{
    QFETCH(QChar, glyph);
    const QGuiApplication application(mArgc, mArgv);
    // This pixel is at the left edge of the circle.
    const QPixmap pixmap = QIconfont::Pixmap(glyph, Qt::black, 40);
    QCOMPARE(pixmap.toImage().pixelColor(2, 20), QColor(Qt::black));
    QVERIFY(QFontDatabase().families().contains("QuorviIconfont"));
}

void tst_QIconfontLifetime::everythingIsNullAfterTheApplication()
{
    verifyAllIsNull();
}

// The tests create their applications themselves.
QTEST_APPLESS_MAIN(tst_QIconfontLifetime)

#include "tst_QIconfontLifetime.moc"
