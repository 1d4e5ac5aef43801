#include "MaltoConfiguration/store/JsonText_p.h"
#include "support/TestMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The JSON that the library writes. Every expected text is one that Qt 5.15 writes, but for
/// infinity, NaN and U+FEFF at the start of a string.
class tst_JsonText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void textIsThatOfQt5_data();
    void textIsThatOfQt5();
    void textIsReadBackAsTheSameValue_data();
    void textIsReadBackAsTheSameValue();
};

void tst_JsonText::textIsThatOfQt5_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const QByteArray &text, const QJsonValue &value) {
        QTest::newRow(text.constData()) << value << text;
    };
    row("null", QJsonValue());
    row("true", true);
    row("false", false);
    row("0", 0);
    row("-1", -1);
    row("2147483647", 2147483647);
    row("0.1", 0.1);
    row("-0.25", -0.25);
    row("0.0004", 0.0004);
    row("0.0001", 0.0001);
    row("9.999e-05", 0.00009999);
    row("1e-07", 1e-7);
    row("5e-324", 5e-324);
    row("1.7976931348623157e+308", 1.7976931348623157e308);
    // Whole numbers beyond 2^53, which Qt 6 writes otherwise.
    row("9007199254740991", 9007199254740991.0);
    row("9007199254740992", 9007199254740992.0);
    row("9007199254740994", 9007199254740994.0);
    row("100000000000000000", 1e17);
    row("-100000000000000000", -1e17);
    row("123456789012345680", 123456789012345678.0);
    row("18446744073709550000", 18446744073709549568.0);
    row("18446744073709552000", 18446744073709551616.0);
    row("18446744073709556000", 18446744073709555712.0);
    row("1e+22", 1e22);
    QTest::newRow("beyond a double")
        << QJsonValue(qint64(9007199254740993)) << QByteArray("9007199254740992");
    QTest::newRow("largest integer")
        << QJsonValue(qint64(9223372036854775807)) << QByteArray("9223372036854776000");
    QTest::newRow("smallest integer")
        << QJsonValue(std::numeric_limits<qint64>::min()) << QByteArray("-9223372036854776000");
    QTest::newRow("infinity") << QJsonValue(qInf()) << QByteArray("\"inf\"");
    QTest::newRow("minus infinity") << QJsonValue(-qInf()) << QByteArray("\"-inf\"");
    QTest::newRow("not a number, inside")
        << QJsonValue(QJsonObject{{"a", QJsonArray{qQNaN()}}}) << QByteArray(R"({"a":["nan"]})");
    const QString mark(QChar(QChar::ByteOrderMark));
    row(R"("\ufeff")", mark);
    row("\"\\ufeff\xef\xbb\xbf\"", mark + mark);
    row(R"("\ufeffa\"b\n")", mark + "a\"b\n");
    row("\"a\xef\xbb\xbf\"", "a" + mark);
    row(R"({"\ufeffk":["\ufeffv"]})", QJsonObject{{mark + "k", QJsonArray{mark + "v"}}});
    row("\"\"", "");
    row("\"plain\"", "plain");
    row("\"\\\"\\\\/\\n\"", "\"\\/\n");
    row("\"\xc3\xa9\"", QString(QChar(0xe9)));
    row("[]", QJsonArray());
    row("[1,\"two\",[null],{}]", QJsonArray{1, "two", QJsonArray{QJsonValue()}, QJsonObject()});
    row("{}", QJsonObject());
    row("{\"\":1,\"Z\":2,\"a\":{\"b\":[100000000000000000,true]},\"\xc3\xa9\":3}",
        QJsonObject{{QString(QChar(0xe9)), 3},
                    {"a", QJsonObject{{"b", QJsonArray{1e17, true}}}},
                    {"Z", 2},
                    {"", 1}});
}

void tst_JsonText::textIsThatOfQt5()
{
    QFETCH(QJsonValue, value);
    QByteArray text = "before ";
    appendJsonValue(text, value);
    QCOMPARE(text.left(7), QByteArray("before "));
    QTEST(text.mid(7), "text");
}

void tst_JsonText::textIsReadBackAsTheSameValue_data()
{
    textIsThatOfQt5_data();
}

void tst_JsonText::textIsReadBackAsTheSameValue()
{
    QFETCH(QByteArray, text);
    const QJsonArray read = QJsonDocument::fromJson('[' + text + ']').array();
    QCOMPARE(read.size(), 1);
    QFETCH(QJsonValue, value);
    if (value.isString())
        QCOMPARE(read.first(), value);
    QByteArray again;
    appendJsonValue(again, read.first());
    QCOMPARE(again, text);
}

int main(int argc, char **argv)
{
    return runTest<tst_JsonText>(argc, argv);
}

#include "tst_JsonText.moc"
