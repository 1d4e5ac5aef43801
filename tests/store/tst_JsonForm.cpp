#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include "support/LogCapture.h"
#include "support/SettingTypes.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QRect>
#include <QTest>
#include <QUrl>
#include <QUuid>

#include <chrono>
#include <cmath>
#include <vector>

using namespace Settings;

namespace {

QByteArray textOf(const QJsonValue &json)
{
    return QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
}

/// A store with one setting, which begins with `T()`.
template<class T> struct Host
{
    Host() { store.reserveConf("key", &variable); }
    Q_DISABLE_COPY(Host)

    QJsonObject dump() const
    {
        const QJsonObject object = store.dumpConf(ConfStorage::DumpLocal);
        return QJsonDocument::fromJson(QJsonDocument(object).toJson()).object(); // as a file
    }

    T variable = T();
    ConfStorage store;
};

/// Sets a value, and loads the dump into another store.
template<class T> void checkRoundTrip(const T &value, const QByteArray &expected)
{
    Host<T> host, other;
    host.store.set("key", value);
    QVERIFY(host.variable == value);
    QVERIFY(host.store.template get<T>("key") == value);
    const QJsonObject dump = host.dump();
    QCOMPARE(textOf(dump.value("key").toObject().value("v")), '[' + expected + ']');
    other.store.loadConf(dump, ConfStorage::LoadLocal);
    QVERIFY(other.variable == value);
    QCOMPARE(other.store.mConfValues["key"], host.store.mConfValues["key"]);

    other.store.setToDefault("key", true);
    QVERIFY(other.variable == T());
    QVERIFY(other.store.isEqualToDefault("key"));
}

/// Loads `json`, which is refused: the variable and the timestamp stay, and the key is logged.
template<class T> void checkRefused(const QByteArray &json)
{
    Host<T> host;
    const T before = host.variable;
    const QJsonValue value = QJsonDocument::fromJson('[' + json + ']').array().at(0);
    const LogCapture log;
    host.store.loadConf(QJsonObject{{"key", QJsonObject{{"t", 5}, {"v", value}}}},
                        ConfStorage::LoadLocal);
    QVERIFY2(host.variable == before, json.constData());
    QVERIFY2(host.dump().isEmpty(), json.constData());
    QCOMPARE(host.store.lastLoad().refusedCount, 1);
    QCOMPARE(LogCapture::texts(QtWarningMsg),
             QStringList{"ConfStorage::loadConf() value of another type refused:  \"key\""});
}

} // namespace

/// Settings of types that have a `JsonForm`.
class tst_JsonForm : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void numbersAreRead();
    void wholeNumbersOfEverySizeSurvive();
    void enumsAndFlagsAreNumbersOrNames();
    void textsAreRead();
    void datesKeepTheirInstant();
    void textsOfDatesAreReadByBothQts_data();
    void textsOfDatesAreReadByBothQts();
    void geometryIsAnArray();
    void containersHoldAnyForm();
    void hostCanAddAForm();
    void otherJsonIsRefused();
    void nullIsNeverWritten();
    void typeHasTheSameNumberEverywhere();
    void ownedValueIsItsJson();
    void copiesAreIndependent();
};

void tst_JsonForm::initTestCase()
{
    qputenv("TZ", "EST5"); // local time is not UTC
}

void tst_JsonForm::numbersAreRead()
{
    checkRoundTrip(0.1f, "0.1");
    checkRoundTrip(std::numeric_limits<float>::max(), "3.4028235e+38");
    checkRoundTrip(-std::numeric_limits<float>::infinity(), "\"-inf\"");
    checkRoundTrip<short>(-7, "-7");
    checkRoundTrip(std::chrono::milliseconds(1500), "1500");
    checkRoundTrip(std::chrono::duration<double>(2.5), "2.5");
}

void tst_JsonForm::wholeNumbersOfEverySizeSurvive()
{
    checkRoundTrip<qint64>(9007199254740991, "9007199254740991");
    checkRoundTrip<qint64>(9007199254740993, "\"9007199254740993\"");
    checkRoundTrip(std::numeric_limits<qint64>::min(), "\"-9223372036854775808\"");
    checkRoundTrip(std::numeric_limits<quint64>::max(), "\"18446744073709551615\"");
    checkRoundTrip<quint32>(4294967295, "4294967295");
    checkRoundTrip<qint8>(-128, "-128");
    checkRoundTrip<long>(-5, "-5");
    checkRoundTrip<unsigned long>(5, "5");
}

void tst_JsonForm::enumsAndFlagsAreNumbersOrNames()
{
    checkRoundTrip(Small::Last, "255");
    checkRoundTrip(Large::Last, "\"18446744073709551615\"");
    checkRoundTrip(Qt::AlignTop | Qt::AlignLeft, "33");
    checkRoundTrip(WrapMode::Anywhere, "\"Anywhere\"");
    checkRoundTrip(static_cast<WrapMode>(3), "3");
    checkRoundTrip(Scale::Both, "\"Both\"");
    checkRoundTrip(Scale::Breadth, "\"Width\""); // the first name
    checkRoundTrip(static_cast<Scale>(0), "0");
    checkRoundTrip(Edges(Left | Right), "\"Left|Right\"");
    checkRoundTrip(Edges(QFlag(9)), "9");

    Host<WrapMode> host;
    host.store.loadValueFromJson("key", 1); // of a version without the line beside the enum
    QCOMPARE(host.variable, WrapMode::Word);
    host.store.loadValueFromJson("key", "Anywhere");
    QCOMPARE(host.variable, WrapMode::Anywhere);
}

void tst_JsonForm::textsAreRead()
{
    checkRoundTrip(QByteArray("\x00\xff\n", 3), "\"AP8K\"");
    checkRoundTrip(std::string("a\xc3\xa4"), "\"a\xc3\xa4\"");
    checkRoundTrip(QUrl("https://example.org/a%20b?q=\xc3\xa4"),
                   "\"https://example.org/a%20b?q=%C3%A4\"");
    Host<QUrl> host;
    host.store.loadValueFromJson("key", "a#b#c");
    QCOMPARE(host.variable, QUrl("a#b%23c"));
    const QUuid id("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}");
    checkRoundTrip(id, "\"67c8770b-44f1-410a-ab9a-f9b5446f13ee\"");

    Host<std::string> bytes;
    bytes.store.set("key", std::string("\xef\xbb\xbf!"));
    const QString text = QChar(QChar::ByteOrderMark) + QString('!');
    QCOMPARE(bytes.store.mConfValues["key"].toJsonValue(), QJsonValue(text));
}

void tst_JsonForm::datesKeepTheirInstant()
{
    const QDate date(2026, 11, 22);
    const QTime time(7, 5, 3, 250);
    checkRoundTrip(date, "\"2026-11-22\"");
    checkRoundTrip(time, "\"07:05:03.250\"");
    checkRoundTrip(QDateTime(date, time, Qt::UTC), "\"2026-11-22T07:05:03.250Z\"");
    checkRoundTrip(QDateTime(date, time, Qt::OffsetFromUTC, -3600),
                   "\"2026-11-22T07:05:03.250-01:00\"");
    checkRoundTrip(QDateTime(date, time, Qt::OffsetFromUTC, 3601),
                   "\"2026-11-22T06:05:02.250Z\""); // the text has whole minutes only
    checkRoundTrip(QDateTime(), "\"\"");

    Host<QDateTime> host;
    host.store.loadValueFromJson("key", "2026-11-22T07:05:03Z");
    QCOMPARE(host.variable.timeSpec(), Qt::UTC);
    host.store.loadValueFromJson("key", "2026-11-22T07:05:03+05:00");
    QCOMPARE(host.variable.timeSpec(), Qt::OffsetFromUTC);
    QCOMPARE(host.variable.toUTC(), QDateTime(date, QTime(2, 5, 3), Qt::UTC));
    const QDateTime here(date, time);
    host.store.set("key", here);
    host.store.loadValueFromJson("key", host.store.mConfValues["key"].toJsonValue());
    QCOMPARE(host.variable.timeSpec(), Qt::LocalTime);
    QCOMPARE(host.variable, here);
}

void tst_JsonForm::textsOfDatesAreReadByBothQts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date"); // as it is written; null if the text is refused
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("dateTime");
    const QString no;
    const auto row = [](const QString &text, const QString &date, const QString &time,
                        const QString &dateTime) {
        QTest::newRow(qPrintable(text)) << text << date << time << dateTime;
    };
    row("2026-11-22", "2026-11-22", no, "2026-11-22T00:00:00.000-05:00");
    row("2026-1-2", no, no, no);
    row("2026-+1-02", no, no, no);
    row("20261122", no, no, no);
    row("2026-11-22x", no, no, no);
    row("2026-02-29", no, no, no);
    row("07:05", no, "07:05:00.000", no);
    row("07:05:03", no, "07:05:03.000", no);
    row("07:05:03.2", no, "07:05:03.200", no);
    row("07:05:03,25", no, "07:05:03.250", no);
    row("07:05:03.2506", no, "07:05:03.251", no);
    row("23:59:59.9999", no, "23:59:59.999", no);
    row("24:00:00", no, "00:00:00.000", no);
    row("24:00:01", no, no, no);
    row("7:05", no, no, no);
    row("07:05.5", no, no, no);
    row("07:05:031", no, no, no);
    row("07:05:03 ", no, no, no);
    row("07:05:03Z", no, no, no);
    row("2026-11-22T07:05", no, no, "2026-11-22T07:05:00.000-05:00");
    row("2026-11-22 07:05Z", no, no, "2026-11-22T07:05:00.000Z");
    row("2026-11-22T07:05:03.5+0530", no, no, "2026-11-22T07:05:03.500+05:30");
    row("2026-11-22T07:05:03.123456+02", no, no, "2026-11-22T07:05:03.123+02:00");
    row("2026-11-22T07:05:03-00:00", no, no, "2026-11-22T07:05:03.000Z");
    row("2026-11-22T24:00:00Z", no, no, "2026-11-23T00:00:00.000Z");
    row("2026-11-22T07:05:03z", no, no, no);
    row("2026-11-22T07:05:03+05:60", no, no, no);
    row("2026-11-22T07:05:03+15:00", no, no, "2026-11-22T07:05:03.000+15:00");
    row("2026-11-22T07:05:03x+01:00", no, no, no);
    row("2026-11-22T", no, no, no);
    row(QString::fromUtf8("２０２６-11-22"), no, no, no);
}

template<class T> void checkText(const QString &text, const QString &written)
{
    Host<T> host;
    const LogCapture log;
    host.store.loadValueFromJson("key", text);
    if (written.isNull()) {
        QCOMPARE(host.variable, T());
        QCOMPARE(LogCapture::texts(QtWarningMsg).size(), 1);
    } else {
        QCOMPARE(host.store.mConfValues["key"].toJsonValue().toString(), written);
    }
}

void tst_JsonForm::textsOfDatesAreReadByBothQts()
{
    QFETCH(QString, text);
    QFETCH(QString, date);
    QFETCH(QString, time);
    QFETCH(QString, dateTime);
    checkText<QDate>(text, date);
    checkText<QTime>(text, time);
    checkText<QDateTime>(text, dateTime);
}

void tst_JsonForm::geometryIsAnArray()
{
    checkRoundTrip(QSize(3, -4), "[3,-4]");
    checkRoundTrip(QPoint(-3, 4), "[-3,4]");
    checkRoundTrip(QRect(1, 2, 3, 4), "[1,2,3,4]");
    checkRoundTrip(QRect(), "[0,0,0,0]");
    constexpr int sLargest = std::numeric_limits<int>::max();
    checkRoundTrip(QRect(QPoint(1, -sLargest), QPoint(sLargest, -1)),
                   "[1,-2147483647,2147483647,2147483647]");
}

void tst_JsonForm::containersHoldAnyForm()
{
    checkRoundTrip(QStringList{"a", ""}, "[\"a\",\"\"]");
    checkRoundTrip(QList<int>{1, 2}, "[1,2]");
    checkRoundTrip(QVector<QColor>{Qt::red, QColor()}, "[\"ffff0000\",\"None\"]");
    checkRoundTrip(std::vector<bool>{true, false}, "[true,false]");
    checkRoundTrip(std::vector<double>{1.5, -std::numeric_limits<double>::infinity()},
                   "[1.5,\"-inf\"]");
    checkRoundTrip(std::optional<int>(), "[]");
    checkRoundTrip(std::optional<int>(7), "[7]");
    checkRoundTrip(std::optional<std::optional<int>>(std::optional<int>()), "[[]]");
    checkRoundTrip(QMap<QString, int>{{"value", 1}, {"", 2}}, "{\"\":2,\"value\":1}");
    checkRoundTrip(QMap<QString, QStringList>{{"cpp", {"*.cpp"}}}, "{\"cpp\":[\"*.cpp\"]}");
    checkRoundTrip(QVariantMap{{"a", 1.5}, {"b", QVariantList{"x", true}}},
                   "{\"a\":1.5,\"b\":[\"x\",true]}");
}

void tst_JsonForm::hostCanAddAForm()
{
    checkRoundTrip(Margins{3, 4}, "[3,4]");
    checkRoundTrip(QList<Margins>{{3, 4}}, "[[3,4]]");
}

void tst_JsonForm::otherJsonIsRefused()
{
    checkRefused<float>("\"1\"");
    checkRefused<float>("1e300");
    checkRefused<qint64>("1.5");
    checkRefused<qint64>("9007199254740992"); // rounded, perhaps
    checkRefused<qint64>("\"9223372036854775808\"");
    checkRefused<quint64>("-1");
    checkRefused<quint64>("\"-1\"");
    checkRefused<qint8>("128");
    checkRefused<Small>("256");
    checkRefused<WrapMode>("\"None of them\"");
    checkRefused<WrapMode>("\"\"");
    checkRefused<Scale>("\"Width|Height\"");
    checkRefused<Scale>("257");
    checkRefused<Edges>("\"Left|Top\"");
    checkRefused<Edges>("\"\"");
    checkRefused<QByteArray>("\"a!\"");
    checkRefused<QByteArray>("1");
    checkRefused<QUrl>("\"http://[\"");
    checkRefused<QUuid>("\"67c8770b\"");
    checkRefused<QDate>("\"2026-02-30\"");
    checkRefused<QTime>("\"25:00\"");
    checkRefused<QDateTime>("1795335977");
    checkRefused<QDateTime>("\"9999-12-31T24:00:00Z\""); // the year 10000 has no text
    checkRefused<QSize>("[1]");
    checkRefused<QSize>("[1,2.5]");
    checkRefused<QRect>("{\"x\":1}");
    checkRefused<QRect>("[1,2,3]");
    checkRefused<QRect>("[1,2,3,\"4\"]");
    checkRefused<QRect>("[1,2,3,1e300]");
    checkRefused<QRect>("[2147483647,0,2,1]");
    checkRefused<QRect>("[0,-2147483648,0,0]");
    checkRefused<QStringList>("[\"a\",1]");
    checkRefused<QStringList>("\"a\"");
    checkRefused<std::optional<int>>("[1,2]");
    checkRefused<std::optional<int>>("7");
    checkRefused<QMap<QString, int>>("{\"a\":\"x\"}");
    checkRefused<QMap<QString, int>>("[]");
    checkRefused<QVariantMap>("[]");
    checkRefused<std::string>("1");
    checkRefused<Margins>("[1]");
}

void tst_JsonForm::nullIsNeverWritten()
{
    checkRoundTrip(QByteArray(), "\"\"");
    checkRoundTrip(QStringList{QString()}, "[\"\"]");
    checkRoundTrip(QUrl(), "\"\"");
    checkRoundTrip(QUuid(), "\"\"");
    checkRoundTrip(QDate(), "\"\"");
    checkRoundTrip(QTime(), "\"\"");
    checkRoundTrip(std::string(), "\"\"");
    Host<float> host;
    host.store.set("key", std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(host.dump().value("key").toObject().value("v"), QJsonValue("nan"));
}

void tst_JsonForm::typeHasTheSameNumberEverywhere()
{
    const auto type = ConfValue::typeOf<QStringList>();
    QVERIFY(type >= 10);
    QCOMPARE(ConfValue::typeOf<QStringList>(), type);
    QVERIFY(ConfValue::typeOf<QUrl>() != type);
    QCOMPARE(MtConf::JsonTypeUse(typeid(QStringList), {}).id(), quint32(type));
    QVERIFY(MtConf::jsonOperations(type));
    QVERIFY(!MtConf::jsonOperations(ConfValue::TyQJsonArray));
    QVERIFY(!MtConf::jsonOperations(100000));
}

void tst_JsonForm::ownedValueIsItsJson()
{
    ConfValue value = ConfValue::owned(QSize(1, 2));
    QCOMPARE(value.toJsonValue(), QJsonValue(QJsonArray{1, 2}));
    value.loadFromJsonValue(QJsonArray{3, 4});
    QCOMPARE(value.get<QSize>(), QSize(3, 4));
    value.set(QSize(5, 6));
    QCOMPARE(value.get<QSize>(), QSize(5, 6));
    const LogCapture log;
    value.loadFromJsonValue("no size");
    QCOMPARE(value.get<QSize>(), QSize(5, 6));
    QCOMPARE(value.get<QPoint>(), QPoint());
    QCOMPARE(LogCapture::texts(QtWarningMsg).size(), 2);
}

void tst_JsonForm::copiesAreIndependent()
{
    Host<QStringList> host;
    host.store.mFileOptions = ConfStorage::LockedValues;
    host.store.set("key", QStringList{"own"});
    host.store.lockConf("key", QJsonArray{"fixed"});
    QCOMPARE(host.variable, QStringList{"fixed"});
    QCOMPARE(host.dump().value("key").toObject().value("v"), QJsonValue(QJsonArray{"own"}));
    const QVector<ConfChange> changes = host.store.previewLoad(
        QJsonObject{{"key", QJsonObject{{"t", 2e9}, {"v", QJsonArray{"new"}}}}},
        ConfStorage::LoadLocal);
    QCOMPARE(host.variable, QStringList{"fixed"});
    QCOMPARE(changes.size(), 1);
}

QTEST_GUILESS_MAIN(tst_JsonForm)
#include "tst_JsonForm.moc"
