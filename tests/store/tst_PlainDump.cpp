#include "support/PlainDumpCheck.h"
#include "support/TestMain.h"

namespace {

QByteArray nestedArrays(int levels)
{
    return QByteArray(levels, '[') + QByteArray(levels, ']');
}

/// Returns a row name of one line.
QByteArray nameOf(const QByteArray &value)
{
    return value.left(40).toPercentEncoding(" \"\\[]{}:,+");
}

QByteArray withValue(const QByteArray &value)
{
    return R"({"key":{"t":5,"v":)" + value + "}}";
}

QByteArray withTime(const QByteArray &time)
{
    return R"({"key":{"t":)" + time + R"(,"v":1}})";
}

} // namespace

/// Every text is either parsed with the result of QJsonDocument, or rejected.
class tst_PlainDump : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void plainDumpIsParsed_data();
    void plainDumpIsParsed();
    void membersReturnTheirTimeAndValue();
    void rangeOfTimestamps_data();
    void rangeOfTimestamps();
    void otherTextIsRejected_data();
    void otherTextIsRejected();
    void truncatedTextIsRejected();
    void textWithAChangedByteIsNotMisread();
    void textWithAnInsertedByteIsNotMisread();
    void textWithRemovedBytesIsNotMisread();
};

void tst_PlainDump::plainDumpIsParsed_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArrayList values{
        "0",
        "7",
        "-7",
        "2147483647",
        "-2147483648",
        "9007199254740993",
        "999999999999999999",
        "-999999999999999999",
        "1000000000000000000",
        "9223372036854775807",
        "-9223372036854775808",
        "9223372036854775808",
        "99999999999999999999",
        "-0",
        "0.5",
        "-1.25e-7",
        "1e300",
        "true",
        "false",
        "null",
        R"("")",
        R"("plain")",
        R"(" !#[]^~{}:,")",
        R"("Ctrl+A")",
        R"("\"")",
        R"("\\")",
        R"("\\\"}")",
        R"("\u00e9")",
        R"("\ufeff")",
        "\"\\ufeff\357\273\277\"",
        "\"\303\251\"",
        "\"\177\"",
        "\"\357\273\277\"",
        "\"\357\277\275\"",
        "\"\357\277\277\"",
        "\"\360\237\230\200\"",
        "\"\303\251\\n\"",
        "\"\\b\\f\\n\\r\\t\\/\"",
        "\"\357\273\277\\n\"",
        "\"\\n\357\273\277\"",
        "\"\357\277\275\\n\"",
        R"("\u0000a")",
        R"("\u20AC\u20ac")",
        R"("\ud83d\ude00")",
        R"("\ud83d")",
        R"("\ude00\ud83d")",
        "\"\n\"",
        R"("\x")", // this and the line break: not valid, but Qt accepts them
        "[]",
        "{}",
        R"([1,"}",{"a":[]}])",
        R"({"t":1,"v":{"]":"["}})",
        nestedArrays(500)};
    for (const QByteArray &value : values)
        QTest::addRow("value %s", nameOf(value).constData()) << withValue(value);
    const QByteArrayList times{"0", "1", "-1", "1763731200", "2147483647", "-2147483648"};
    for (const QByteArray &time : times)
        QTest::addRow("time %s", time.constData()) << withTime(time);
    QTest::newRow("default") << QByteArray(R"({"key":{"t":5}})");
    QTest::newRow("removal") << QByteArray(R"({"key":{"d":5}})");
    QTest::newRow("no name") << QByteArray(R"({"":{"t":5}})");
    QTest::newRow("mark") << QByteArray(R"({"key#s.mac":{"t":5,"v":1}})");
    QTest::newRow("several") << QByteArray(
        R"({"A":{"t":1,"v":1},"A.":{"t":2},"AA":{"d":3},"B":{"t":4,"v":"x"},"a":{"t":5,"v":[2]}})");
}

void tst_PlainDump::plainDumpIsParsed()
{
    QFETCH(QByteArray, text);
    QVERIFY(readPlainDump(text));
    QVERIFY(!isMistaken(text));
}

void tst_PlainDump::membersReturnTheirTimeAndValue()
{
    const QByteArray text(R"({"a":{"t":1,"v":"x"},"b":{"t":2,"v":null},"c":{"t":3},"d":{"d":4}})");
    const auto members = readPlainDump(text);
    QVERIFY(members);
    QCOMPARE(members->size(), size_t(4));
    QCOMPARE(members->at(0).time(), std::optional<qint64>(1));
    QVERIFY(!members->at(0).removalTime());
    QCOMPARE(members->at(0).value(), QJsonValue("x"));
    QCOMPARE(members->at(1).time(), std::optional<qint64>(2));
    QVERIFY(members->at(1).value().isNull());
    QCOMPARE(members->at(2).time(), std::optional<qint64>(3));
    QVERIFY(members->at(2).value().isUndefined());
    QVERIFY(!members->at(3).time());
    QCOMPARE(members->at(3).removalTime(), std::optional<qint64>(4));
    QVERIFY(members->at(3).value().isUndefined());
}

void tst_PlainDump::rangeOfTimestamps_data()
{
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<bool>("isShort");
    QTest::addColumn<bool>("isLong");
    QTest::newRow("last second of 32 bits") << QByteArray("2147483647") << true << true;
    QTest::newRow("one later") << QByteArray("2147483648") << false << true;
    QTest::newRow("first second of 32 bits") << QByteArray("-2147483648") << true << true;
    QTest::newRow("one earlier") << QByteArray("-2147483649") << false << true;
    QTest::newRow("year 9999") << QByteArray("253370764800") << false << true;
    QTest::newRow("2^53 - 1") << QByteArray("9007199254740991") << false << true;
    QTest::newRow("2^53") << QByteArray("9007199254740992") << false << false;
    QTest::newRow("-2^53 + 1") << QByteArray("-9007199254740991") << false << true;
    QTest::newRow("-2^53") << QByteArray("-9007199254740992") << false << false;
    QTest::newRow("18 digits") << QByteArray("999999999999999999") << false << false;
}

void tst_PlainDump::rangeOfTimestamps()
{
    QFETCH(QByteArray, time);
    for (const auto range : {TimeRange::Until2038, TimeRange::Long}) {
        QFETCH(bool, isShort);
        QFETCH(bool, isLong);
        const bool isAccepted = range == TimeRange::Long ? isLong : isShort;
        for (const QByteArray &text :
             {withTime(time), QByteArray(R"({"key":{"d":)" + time + "}}")}) {
            QCOMPARE(readPlainDump(text, range).has_value(), isAccepted);
            QVERIFY(!isMistaken(text, range));
        }
        const ParsedMember parsed(QJsonObject{{"t", time.toDouble()}}, range);
        QCOMPARE(parsed.time(), std::optional<qint64>(isAccepted ? time.toLongLong() : 0));
    }
}

void tst_PlainDump::otherTextIsRejected_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty text") << QByteArray();
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("entry with an unknown member") << QByteArray(R"({"a":{"x":1}})");
    QTest::newRow("entry with an additional member") << QByteArray(R"({"a":{"t":1,"v":2,"x":3}})");
    QTest::newRow("value without a time") << QByteArray(R"({"a":{"v":2}})");
    QTest::newRow("value before its time") << QByteArray(R"({"a":{"v":2,"t":1}})");
    QTest::newRow("removal with a value") << QByteArray(R"({"a":{"d":1,"v":2}})");
    QTest::newRow("removal with a time") << QByteArray(R"({"a":{"d":1,"t":2}})");
    QTest::newRow("two values") << QByteArray(R"({"a":{"t":1,"v":2,"v":3}})");
    QTest::newRow("no value") << QByteArray(R"({"a":{"t":1,"v":}})");
    QTest::newRow("two values without a name") << QByteArray(R"({"a":{"t":1,"v":1,2}})");
    QTest::newRow("entry that is not an object") << QByteArray(R"({"a":1})");
    QTest::newRow("empty entry") << QByteArray(R"({"a":{}})");
    QTest::newRow("same name twice") << QByteArray(R"({"a":{"t":1},"a":{"t":2}})");
    QTest::newRow("names out of order") << QByteArray(R"({"b":{"t":1},"a":{"t":2}})");
    QTest::newRow("escaped name") << QByteArray(R"({"\u0061":{"t":1}})");
    QTest::newRow("name beyond ASCII") << QByteArray("{\"\303\251\":{\"t\":1}}");
    QTest::newRow("byte order mark") << QByteArray("\357\273\277{\"a\":{\"t\":1}}");
    QTest::newRow("zero at the end") << QByteArray("{\"a\":{\"t\":1}}\0", 14);
    QTest::newRow("end of line") << QByteArray("{\"a\":{\"t\":1}}\n");
    QTest::newRow("stale tail") << QByteArray(R"({"a":{"t":1}}})");
    QTest::newRow("comma at the end") << QByteArray(R"({"a":{"t":1},})");
    const QByteArrayList times{"",     "-",          "+1",          "01",
                               "-0",   "1.0",        "1e3",         "\"1\"",
                               "true", "2147483648", "-2147483649", "99999999999999999999"};
    for (const QByteArray &time : times)
        QTest::addRow("time %s", time.constData()) << withTime(time);
    const QByteArrayList values{"01",           "-",        "+1",
                                "1 2",          "truex",    "nul",
                                R"("a"b)",      "\"\303\"", "\"\355\240\200\"",
                                "\"\300\200\"", "[",        "]",
                                "{]",           "[}",       nestedArrays(501)};
    for (const QByteArray &value : values)
        QTest::addRow("value %s", nameOf(value).constData()) << withValue(value);
}

void tst_PlainDump::otherTextIsRejected()
{
    QFETCH(QByteArray, text);
    QVERIFY(!readPlainDump(text));
}

namespace {

const QByteArray sText(R"({"A.b1":{"t":17,"v":-20},"A.b2":{"t":3,"v":"x\"y"},"B":{"d":4},)"
                       "\"B2\":{\"t\":8,\"v\":\"\342\202\254\"},"
                       R"("C":{"t":5},"D":{"t":6,"v":[true,{"k":null}]},"E":{"t":7,"v":false}})");

} // namespace

void tst_PlainDump::truncatedTextIsRejected()
{
    QVERIFY(readPlainDump(sText));
    for (int size = 0; size < sText.size(); ++size)
        QVERIFY2(!readPlainDump(sText.left(size)), sText.left(size).constData());
}

void tst_PlainDump::textWithAChangedByteIsNotMisread()
{
    for (int place = 0; place < sText.size(); ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray text = sText;
            text[place] = static_cast<char>(byte);
            QVERIFY2(!isMistaken(text), text.constData());
        }
    }
}

void tst_PlainDump::textWithAnInsertedByteIsNotMisread()
{
    for (int place = 0; place <= sText.size(); ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray text = sText;
            text.insert(place, static_cast<char>(byte));
            QVERIFY2(!isMistaken(text), text.constData());
        }
    }
}

void tst_PlainDump::textWithRemovedBytesIsNotMisread()
{
    for (int place = 0; place < sText.size(); ++place) {
        for (int size = 1; size <= sText.size() - place; ++size) {
            QByteArray text = sText;
            text.remove(place, size);
            QVERIFY2(!isMistaken(text), text.constData());
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<tst_PlainDump>(argc, argv);
}

#include "tst_PlainDump.moc"
