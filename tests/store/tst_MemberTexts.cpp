#include "MaltoConfiguration/store/MemberTexts_p.h"

#include "support/TestMain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <random>

namespace {

QByteArray toBytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<int>(text.size()));
}

QJsonValue parsed(std::string_view value)
{
    return QJsonDocument::fromJson('[' + toBytes(value) + ']').array().at(0);
}

/// Returns the object that the members make. Of members with the same name the last one counts.
QJsonObject objectOf(const std::vector<MemberText> &members)
{
    QJsonObject object;
    for (const MemberText &member : members)
        object.insert(member.name(), parsed(member.value));
    return object;
}

/// A page of memory. Reading the bytes behind it ends the process.
class GuardedPage
{
public:
    GuardedPage()
        : mSize(static_cast<size_t>(::sysconf(_SC_PAGESIZE))),
          mMemory(::mmap(nullptr, 2 * mSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS,
                         -1, 0))
    {
        if (isValid())
            ::mprotect(static_cast<char *>(mMemory) + mSize, mSize, PROT_NONE);
    }
    ~GuardedPage()
    {
        if (isValid())
            ::munmap(mMemory, 2 * mSize);
    }
    Q_DISABLE_COPY(GuardedPage)

    bool isValid() const { return mMemory != MAP_FAILED; }
    /// Returns `text` in the last bytes of the page.
    QByteArray atEnd(const QByteArray &text)
    {
        char *const start = static_cast<char *>(mMemory) + mSize - text.size();
        std::memcpy(start, text.constData(), static_cast<size_t>(text.size()));
        return QByteArray::fromRawData(start, static_cast<int>(text.size()));
    }

private:
    const size_t mSize;
    void *const mMemory;
};

/// Makes random JSON.
class RandomJson
{
public:
    explicit RandomJson(unsigned seed) : mRandom(seed) {}

    QJsonObject object(int depth)
    {
        QJsonObject result;
        for (int i = below(5); i > 0; --i)
            result.insert(text(), value(depth - 1));
        return result;
    }

private:
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }

    QString text()
    {
        static const QStringList sParts{"a",
                                        "\"",
                                        "\\",
                                        "/",
                                        "{",
                                        "}",
                                        "[",
                                        "]",
                                        ",",
                                        ":",
                                        " ",
                                        "\n",
                                        "\t",
                                        "",
                                        "1",
                                        QChar(1),
                                        "t",
                                        "\\u0041",
                                        "#s",
                                        QString::fromUtf8("\u00e9"),
                                        QString::fromUtf8("\U0001f600")};
        QString result;
        for (int i = below(6); i > 0; --i)
            result += sParts.at(below(static_cast<int>(sParts.size())));
        return result;
    }

    QJsonValue value(int depth)
    {
        switch (below(depth > 0 ? 7 : 5)) {
        case 0: return below(1000) - 500;
        case 1: return below(1000) / 8.0;
        case 2: return text();
        case 3: return below(2) == 0;
        case 4: return QJsonValue::Null;
        case 5: return object(depth);
        default: break;
        }
        QJsonArray array;
        for (int i = below(4); i > 0; --i)
            array.append(value(depth - 1));
        return array;
    }

    std::mt19937 mRandom;
};

} // namespace

class tst_MemberTexts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void objectIsSplitIntoMembers_data();
    void objectIsSplitIntoMembers();
    void valuesKeepTheirBytes();
    void nameIsThatOfTheParser_data();
    void nameIsThatOfTheParser();
    void randomObjectsAreSplit_data();
    void randomObjectsAreSplit();
    void otherTextIsRefused_data();
    void otherTextIsRefused();
    void truncatedTextIsRefused();
    void nothingBehindTheTextIsRead();
    void valuesAreNotChecked();
    void membersAreFoundInAnyOrder_data();
    void membersAreFoundInAnyOrder();
};

void tst_MemberTexts::objectIsSplitIntoMembers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count");

    QTest::newRow("empty object") << QByteArray("{}") << 0;
    QTest::newRow("empty object with space") << QByteArray(" \t\r\n{ \t\r\n} \t\r\n") << 0;
    QTest::newRow("number") << QByteArray(R"({"a":1})") << 1;
    QTest::newRow("string") << QByteArray(R"({"a":"x"})") << 1;
    QTest::newRow("empty string") << QByteArray(R"({"a":""})") << 1;
    QTest::newRow("empty name") << QByteArray(R"({"":1})") << 1;
    QTest::newRow("words") << QByteArray(R"({"a":true,"b":false,"c":null})") << 3;
    QTest::newRow("empty array and object") << QByteArray(R"({"a":[],"b":{}})") << 2;
    QTest::newRow("nested") << QByteArray(R"({"a":{"b":[1,{"c":[2,3]},[]],"d":4},"e":5})") << 2;
    QTest::newRow("commas in an array") << QByteArray(R"({"a":[1,2,3],"b":4})") << 2;
    QTest::newRow("space around everything")
        << QByteArray("{ \"a\" :\t[ 1 , 2 ]\r\n, \"b\"\n:\n{ \"c\" : 3 } }") << 2;
    QTest::newRow("brackets in strings") << QByteArray(R"({"a}":"]},{","b":["}","\"]"]})") << 2;
    QTest::newRow("escaped quotes") << QByteArray(R"({"a\"b":"c\"d","e":"\""})") << 2;
    QTest::newRow("escaped backslash before the quote")
        << QByteArray(R"({"a\\":"b\\","c":["\\\"","\\"]})") << 2;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf{\"a\":1}") << 1;
    QTest::newRow("UTF-8") << QByteArray("{\"\xc3\xa9\":\"\xf0\x9f\x98\x80\"}") << 1;
}

void tst_MemberTexts::objectIsSplitIntoMembers()
{
    QFETCH(QByteArray, text);
    QFETCH(int, count);
    QJsonParseError error;
    const QJsonObject expected = QJsonDocument::fromJson(text, &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    const auto members = splitMembers(text);
    QVERIFY(members);
    QCOMPARE(static_cast<int>(members->size()), count);
    QCOMPARE(objectOf(*members), expected);
}

void tst_MemberTexts::valuesKeepTheirBytes()
{
    const QByteArray text = "{ \"a\\/b\" : 9007199254740993 , \"b\":\t[ 1.0e0 , \"\\u00e9\" ]\n"
                            ",\"b\" :{ \"c\" : \"} \" } }";
    const auto members = splitMembers(text);
    QVERIFY(members);
    QCOMPARE(static_cast<int>(members->size()), 3); // of the same name, too
    QCOMPARE(toBytes(members->at(0).rawName), QByteArray("a\\/b"));
    QCOMPARE(toBytes(members->at(0).value), QByteArray("9007199254740993"));
    QCOMPARE(toBytes(members->at(1).rawName), QByteArray("b"));
    QCOMPARE(toBytes(members->at(1).value), QByteArray(R"([ 1.0e0 , "\u00e9" ])"));
    QCOMPARE(toBytes(members->at(2).value), QByteArray(R"({ "c" : "} " })"));
}

void tst_MemberTexts::nameIsThatOfTheParser_data()
{
    QTest::addColumn<QByteArray>("rawName");
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QByteArray("General.Number") << "General.Number";
    QTest::newRow("empty") << QByteArray() << QString("");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xa9") << QString::fromUtf8("\u00e9");
    QTest::newRow("escapes") << QByteArray(R"(\"\\\/\b\f\n\r\t)") << "\"\\/\b\f\n\r\t";
    QTest::newRow("escaped letter") << QByteArray(R"(z\u00e9)") << QString::fromUtf8("z\u00e9");
    QTest::newRow("escaped pair") << QByteArray(R"(\ud83d\ude00)")
                                  << QString::fromUtf8("\U0001f600");
}

void tst_MemberTexts::nameIsThatOfTheParser()
{
    QFETCH(QByteArray, rawName);
    QFETCH(QString, name);
    const QByteArray text = "{\"" + rawName + "\":1}";
    const auto members = splitMembers(text);
    QVERIFY(members && members->size() == 1);
    QCOMPARE(members->front().name(), name);
    QCOMPARE(QJsonDocument::fromJson(text).object().keys(), QStringList(name));
}

void tst_MemberTexts::randomObjectsAreSplit_data()
{
    QTest::addColumn<bool>("isCompact");
    QTest::newRow("compact") << true;
    QTest::newRow("indented") << false;
}

void tst_MemberTexts::randomObjectsAreSplit()
{
    QFETCH(bool, isCompact);
    const auto format = isCompact ? QJsonDocument::Compact : QJsonDocument::Indented;
    for (unsigned seed = 0; seed < 2000; ++seed) {
        const QJsonObject object = RandomJson(seed).object(5);
        const QByteArray text = QJsonDocument(object).toJson(format);
        const auto members = splitMembers(text);
        QVERIFY2(members, text);
        QVERIFY2(static_cast<int>(members->size()) == object.size(), text);
        QVERIFY2(objectOf(*members) == object, text);
    }
}

void tst_MemberTexts::otherTextIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("space") << QByteArray(" \n");
    QTest::newRow("byte order mark alone") << QByteArray("\xef\xbb\xbf");
    QTest::newRow("two byte order marks") << QByteArray("\xef\xbb\xbf\xef\xbb\xbf{}");
    QTest::newRow("array") << QByteArray("[1]");
    QTest::newRow("string") << QByteArray(R"("{}")");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("text before") << QByteArray("x{}");
    QTest::newRow("text behind") << QByteArray("{} x");
    QTest::newRow("text behind members") << QByteArray(R"({"a":1} x)");
    QTest::newRow("second object") << QByteArray(R"({"a":1}{"b":2})");
    QTest::newRow("comma behind") << QByteArray(R"({"a":1},)");
    QTest::newRow("comma at the start") << QByteArray(R"({,"a":1})");
    QTest::newRow("comma at the end") << QByteArray(R"({"a":1,})");
    QTest::newRow("two commas") << QByteArray(R"({"a":1,,"b":2})");
    QTest::newRow("no colon") << QByteArray(R"({"a" 1})");
    QTest::newRow("no value") << QByteArray(R"({"a":})");
    QTest::newRow("no value before a comma") << QByteArray(R"({"a":,"b":1})");
    QTest::newRow("only space as value") << QByteArray("{\"a\": \n}");
    QTest::newRow("name without quotes") << QByteArray("{a:1}");
    QTest::newRow("name in other quotes") << QByteArray("{'a':1}");
    QTest::newRow("number as name") << QByteArray("{1:1}");
    QTest::newRow("open bracket in a value") << QByteArray(R"({"a":[1})");
    QTest::newRow("open quote in a value") << QByteArray(R"({"a":"1})");
    QTest::newRow("last quote is escaped") << QByteArray(R"({"a":"1\"})");
    QTest::newRow("escape at the end") << QByteArray(R"({"a":"1\)");
    QTest::newRow("comment before a name") << QByteArray(R"({/**/"a":1})");
}

void tst_MemberTexts::otherTextIsRefused()
{
    QFETCH(QByteArray, text);
    QVERIFY(!QJsonDocument::fromJson(text).isObject());
    QVERIFY(!splitMembers(text));
}

void tst_MemberTexts::truncatedTextIsRefused()
{
    const QByteArray text = R"({"a\"}":[{"b":"\\"},-1.5e3,true],"c":{"d":"}\u007d"},"e":null})";
    QVERIFY(splitMembers(text));
    for (int size = 0; size < static_cast<int>(text.size()); ++size)
        QVERIFY2(!splitMembers(text.left(size)), text.left(size));
}

void tst_MemberTexts::nothingBehindTheTextIsRead()
{
    GuardedPage page;
    QVERIFY(page.isValid());
    const QByteArray text = R"({"a\"}":[{"b":"\\"},-1.5e3,true],"c":{"d":"}\u007d"},"e":null})";
    for (int size = 0; size <= static_cast<int>(text.size()); ++size)
        QCOMPARE(splitMembers(page.atEnd(text.left(size))).has_value(), size == text.size());
}

void tst_MemberTexts::valuesAreNotChecked()
{
    const QByteArray text = R"({"a":x y,"b":[1}})";
    const auto members = splitMembers(text);
    QVERIFY(members && members->size() == 2);
    QCOMPARE(toBytes(members->at(0).value), QByteArray("x y"));
    QCOMPARE(toBytes(members->at(1).value), QByteArray("[1}"));
}

void tst_MemberTexts::membersAreFoundInAnyOrder_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<int>>("values"); // -1: not found

    QTest::newRow("in their order") << QStringList{"a", "b", "c"} << QList<int>{1, 2, 3};
    QTest::newRow("backwards") << QStringList{"c", "b", "a"} << QList<int>{3, 2, 1};
    QTest::newRow("last, then first") << QStringList{"c", "a"} << QList<int>{3, 1};
    QTest::newRow("the same again") << QStringList{"b", "b"} << QList<int>{2, 2};
    QTest::newRow("unknown") << QStringList{"x", "a", "x", "b"} << QList<int>{-1, 1, -1, 2};
    QTest::newRow("several with the name") << QStringList{"b", "d"} << QList<int>{2, 6};
    QTest::newRow("several, after the next one") << QStringList{"e", "d"} << QList<int>{5, 6};
}

void tst_MemberTexts::membersAreFoundInAnyOrder()
{
    QFETCH(QStringList, names);
    QFETCH(QList<int>, values);
    const QByteArray text = R"({"a":1,"b":2,"c":3,"d":4,"e":5,"d":6})";
    const auto members = splitMembers(text);
    QVERIFY(members);
    MemberIndex index(*members);
    QList<int> found;
    for (const QString &name : std::as_const(names)) {
        const QByteArray rawName = name.toUtf8();
        const MemberText *member = index.find({rawName.constData(), size_t(rawName.size())});
        found << (member ? toBytes(member->value).toInt() : -1);
    }
    QCOMPARE(found, values);
}

int main(int argc, char **argv)
{
    return runTest<tst_MemberTexts>(argc, argv);
}

#include "tst_MemberTexts.moc"
