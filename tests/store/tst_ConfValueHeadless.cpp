#include "support/LogCapture.h"

#include <MaltoConfiguration/store/ConfValue.h>

#include <QJsonValue>
#include <QtTest>

/// Values in a program without a `QGuiApplication`, where Qt has no default font.
class tst_ConfValueHeadless : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fontWithoutASizeIsKept_data();
    void fontWithoutASizeIsKept();
    void fontWithASizeIsKept();
    void fontSizeOutOfRangeGivesTheDefaultFont_data();
    void fontSizeOutOfRangeGivesTheDefaultFont();
};

void tst_ConfValueHeadless::fontWithoutASizeIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("weight");
    QTest::newRow("family alone") << "Sans" << int(QFont::Normal);
    QTest::newRow("every field") << "Sans,-1,-1,5,75,0,0,0,0,0" << int(QFont::Bold);
    QTest::newRow("sizes of zero") << "Sans,0,0,5,75,0,0,0,0,0" << int(QFont::Bold);
}

void tst_ConfValueHeadless::fontWithoutASizeIsKept()
{
    QFETCH(QString, text);
    ConfValue value = ConfValue::owned(QFont("Serif", 33));
    const LogCapture log;
    value.loadFromJsonValue(text);
    const QFont font = value.get<QFont>();
    QCOMPARE(font.family(), QString("Sans"));
    QTEST(int(font.weight()), "weight");
    QCOMPARE(font.pixelSize(), -1);
    QCOMPARE(font.pointSizeF(), -1.0);
    QVERIFY(log.messages().isEmpty());

    // The font is the same after writing and reading it.
    ConfValue copy = ConfValue::owned(QFont());
    copy.loadFromJsonValue(value.toJsonValue());
    QVERIFY(copy == value);
}

void tst_ConfValueHeadless::fontWithASizeIsKept()
{
    ConfValue value = ConfValue::owned(QFont());
    value.loadFromJsonValue("Sans,11,-1,5,50,1,0,0,0,0");
    QCOMPARE(value.get<QFont>().pointSizeF(), 11.0);
    QVERIFY(value.get<QFont>().italic());
}

void tst_ConfValueHeadless::fontSizeOutOfRangeGivesTheDefaultFont_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("infinite") << "Sans,inf,-1,5,50,0,0,0,0,0";
    QTest::newRow("too many pixels") << "Sans,-1,4097,5,50,0,0,0,0,0";
    QTest::newRow("almost zero") << "Sans,1e-300,-1,5,50,0,0,0,0,0";
}

void tst_ConfValueHeadless::fontSizeOutOfRangeGivesTheDefaultFont()
{
    QFETCH(QString, text);
    ConfValue value = ConfValue::owned(QFont("Serif", 33));
    const LogCapture log;
    value.loadFromJsonValue(text);
    QCOMPARE(value.get<QFont>(), QFont());
    QCOMPARE(
        log.texts(QtWarningMsg),
        QStringList(
            QString("ConfValue::loadFromJsonValue() font size out of range:  \"%1\"").arg(text)));
}

QTEST_GUILESS_MAIN(tst_ConfValueHeadless)

#include "tst_ConfValueHeadless.moc"
