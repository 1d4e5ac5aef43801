#include "support/TestMain.h"

#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>

class tst_replaceSCAWithScaledValue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void macrosAreReplaced_data();
    void macrosAreReplaced();
};

void tst_replaceSCAWithScaledValue::macrosAreReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("scale");
    QTest::addColumn<QString>("replaced");
    QTest::newRow("one macro") << "width: SCA(10)px" << 1.5f << "width: 15px";
    QTest::newRow("second macro inside the replaced span stays")
        << "SCA(4) SCA(8)" << 2.0f << "8 SCA(8)";
    // "SCA(4)" has six characters. After its replacement by one character the search continues at
    // the sixth.
    QTest::newRow("second macro after the replaced span is replaced")
        << "SCA(4)-----SCA(8)" << 2.0f << "8-----16";
    QTest::newRow("one character less is inside") << "SCA(4)----SCA(8)" << 2.0f << "8----SCA(8)";
    QTest::newRow("half is rounded up") << "SCA(1)" << 2.5f << "3";
    QTest::newRow("less than half is rounded down") << "SCA(1)" << 1.4f << "1";
    QTest::newRow("zero") << "SCA(0)" << 3.0f << "0";
    QTest::newRow("negative scale") << "SCA(10)" << -1.5f << "-15";
    QTest::newRow("no macro") << "plain text" << 2.0f << "plain text";
    QTest::newRow("empty") << "" << 2.0f << "";
    QTest::newRow("case counts") << "sca(4) Sca(4)" << 2.0f << "sca(4) Sca(4)";
    QTest::newRow("no digits") << "SCA() SCA(x) SCA(-1) SCA(1.5)" << 2.0f
                               << "SCA() SCA(x) SCA(-1) SCA(1.5)";
    QTest::newRow("no closing parenthesis") << "SCA(12" << 2.0f << "SCA(12";
    QTest::newRow("no closing parenthesis, then a macro") << "SCA(12SCA(4)" << 2.0f << "SCA(128";
    QTest::newRow("digits of another script count as none") << "SCA(\u0663)" << 2.0f << "0";
    QTest::newRow("after half a surrogate pair")
        << QString(QChar(0xd800)) + "SCA(4)" << 2.0f << QString(QChar(0xd800)) + "8";
    QTest::newRow("nested") << "SCA(SCA(1))" << 2.0f << "SCA(2)";
    QTest::newRow("product beyond int counts as 0") << "SCA(2147483647)" << 4.0f << "0";
    QTest::newRow("digits beyond int count as 0") << "SCA(99999999999)" << 2.0f << "0";
}

void tst_replaceSCAWithScaledValue::macrosAreReplaced()
{
    QFETCH(QString, text);
    QFETCH(float, scale);
    QTEST(replaceSCAWithScaledValue(text, scale), "replaced");
}

int main(int argc, char **argv)
{
    return runTest<tst_replaceSCAWithScaledValue>(argc, argv);
}

#include "tst_replaceSCAWithScaledValue.moc"
