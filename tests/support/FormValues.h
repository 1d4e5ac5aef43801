#pragma once

#include "SettingTypes.h"

#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QJsonDocument>
#include <QKeySequence>
#include <QRect>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <chrono>
#include <deque>
#include <limits>

/// Returns `json` as compact text.
inline QByteArray jsonText(const QJsonValue &json)
{
    return QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

/// Returns the JSON of `text`.
inline QJsonValue jsonOfText(const QByteArray &text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

template<class Visit> void visitNumbers(const Visit &visit)
{
    using Limits = std::numeric_limits<double>;
    visit("float", 0.1F, "0.1");
    visit("float: largest", std::numeric_limits<float>::max(), "3.4028235e+38");
    visit("float: infinity", -std::numeric_limits<float>::infinity(), R"("-inf")");
    visit("float: NaN", std::numeric_limits<float>::quiet_NaN(), R"("nan")");
    visit("short", short(-7), "-7");
    visit("quint32", std::numeric_limits<quint32>::max(), "4294967295");
    visit("qint64: exact as a number", qint64(9007199254740991), "9007199254740991");
    visit("qint64: beyond 2^53", qint64(9007199254740993), R"("9007199254740993")");
    visit("qint64: smallest", std::numeric_limits<qint64>::min(), R"("-9223372036854775808")");
    visit("quint64: largest", std::numeric_limits<quint64>::max(), R"("18446744073709551615")");
    visit("duration: milliseconds", std::chrono::milliseconds(1500), "1500");
    visit("duration: nanoseconds", std::chrono::nanoseconds::min(), R"("-9223372036854775808")");
    visit("duration: fraction", std::chrono::duration<double>(2.5), "2.5");
    visit("duration: without an end", std::chrono::duration<double>(Limits::infinity()),
          R"("inf")");
    visit("duration: NaN", std::chrono::duration<double>(Limits::quiet_NaN()), R"("nan")");
}

template<class Visit> void visitEnums(const Visit &visit)
{
    using namespace Settings;
    visit("enum: 8 bits", Small::Last, "255");
    visit("enum: 64 bits", Large::Last, R"("18446744073709551615")");
    visit("enum: name", WrapMode::Anywhere, R"("Anywhere")");
    visit("enum: without a name", static_cast<WrapMode>(3), "3");
    visit("flags", Qt::AlignTop | Qt::AlignLeft, "33");
    visit("flags: names", Edges(Left | Right), R"("Left|Right")");
    visit("flags: none", Edges(), "0");
}

template<class Visit> void visitTexts(const Visit &visit)
{
    visit("QByteArray", QByteArray("\x00\xff\n", 3), R"("AP8K")");
    visit("QByteArray: empty", QByteArray(), R"("")");
    visit("std::string", std::string("a\0\"\xc3\xa4", 5), "\"a\\u0000\\\"\xc3\xa4\"");
    visit("std::string: empty", std::string(), R"("")");
    visit("QUrl", QUrl(QStringLiteral("https://example.org/a%20b?q=1#value")),
          R"("https://example.org/a%20b?q=1#value")");
    visit("QUrl: relative", QUrl(QStringLiteral("../a.txt")), R"("../a.txt")");
    visit("QUrl: empty", QUrl(), R"("")");
    visit("QUuid", QUuid("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"),
          R"("67c8770b-44f1-410a-ab9a-f9b5446f13ee")");
    visit("QUuid: null", QUuid(), R"("")");
}

template<class Visit> void visitDates(const Visit &visit)
{
    const QDate date(2026, 11, 22);
    const QTime time(7, 5, 3, 250);
    visit("QDate", date, R"("2026-11-22")");
    visit("QDate: first", QDate(1, 1, 1), R"("0001-01-01")");
    visit("QDate: invalid", QDate(), R"("")");
    visit("QTime", time, R"("07:05:03.250")");
    visit("QTime: midnight", QTime(0, 0), R"("00:00:00.000")");
    visit("QTime: invalid", QTime(), R"("")");
    visit("QDateTime: UTC", QDateTime(date, time, Qt::UTC), R"("2026-11-22T07:05:03.250Z")");
    visit("QDateTime: offset", QDateTime(date, time, Qt::OffsetFromUTC, 20700),
          R"("2026-11-22T07:05:03.250+05:45")");
    visit("QDateTime: invalid", QDateTime(), R"("")");
}

template<class Visit> void visitGeometry(const Visit &visit)
{
    visit("QSize", QSize(3, -4), "[3,-4]");
    visit("QSize: invalid", QSize(), "[-1,-1]");
    visit("QPoint", QPoint(-3, 4), "[-3,4]");
    visit("QRect", QRect(1, 2, 3, 4), "[1,2,3,4]");
    visit("QRect: null", QRect(), "[0,0,0,0]");
}

template<class Visit> void visitLists(const Visit &visit)
{
    using Limits = std::numeric_limits<double>;
    visit("QStringList", QStringList{"a", ""}, R"(["a",""])");
    visit("QStringList: empty", QStringList(), "[]");
    visit("QStringList: null text", QStringList{QString()}, R"([""])");
    visit("QList of int", QList<int>{1, -2}, "[1,-2]");
    visit("QVector of colours", QVector<QColor>{Qt::red, QColor()}, R"(["ffff0000","None"])");
    visit("QVector of keys", QVector<QKeySequence>{QKeySequence(int(Qt::CTRL) | Qt::Key_S)},
          R"(["Ctrl+S"])");
    visit("std::vector of bool", std::vector<bool>{true, false}, "[true,false]");
    visit("std::vector of double",
          std::vector<double>{1.5, -Limits::infinity(), Limits::infinity(), Limits::quiet_NaN()},
          R"([1.5,"-inf","inf","nan"])");
    visit("std::deque of bytes", std::deque<QByteArray>{"a", ""}, R"(["YQ==",""])");
    visit("QList of lists", QList<QList<qint64>>{{}, {9007199254740993}},
          R"([[],["9007199254740993"]])");
    visit("QList of objects", QList<QJsonObject>{{{"value", QJsonValue()}}, {}},
          R"([{"value":null},{}])");
    visit("list of a host's type", QList<Settings::Margins>{{3, 4}}, "[[3,4]]");
    visit("a host's type", Settings::Margins{3, 4}, "[3,4]");
    visit("optional: empty", std::optional<int>(), "[]");
    visit("optional: number", std::optional<int>(0), "[0]");
    visit("optional: NaN", std::optional<double>(Limits::quiet_NaN()), R"(["nan"])");
    visit("optional: empty text", std::optional<QString>(QString()), R"([""])");
    visit("optional: empty optional",
          std::optional<std::optional<int>>(std::optional<int>(std::nullopt)), "[[]]");
}

template<class Visit> void visitMaps(const Visit &visit)
{
    using Limits = std::numeric_limits<double>;
    visit("QMap of int", QMap<QString, int>{{"value", 1}, {"", 2}}, R"({"":2,"value":1})");
    visit("QMap: empty", QMap<QString, int>(), "{}");
    visit("QMap: names of members of files",
          QMap<QString, bool>{{"value", true},
                              {"locked", true},
                              {"subConf", false},
                              {"t", true},
                              {"v", false},
                              {"d", true}},
          R"({"d":true,"locked":true,"subConf":false,"t":true,"v":false,"value":true})");
    visit("QMap: entry", QMap<QString, qint64>{{"t", 1}, {"v", 2}, {"d", 3}},
          R"({"d":3,"t":1,"v":2})");
    visit("QMap of double",
          QMap<QString, double>{{"a", Limits::quiet_NaN()}, {"value", -Limits::infinity()}},
          R"({"a":"nan","value":"-inf"})");
    visit("QMap of lists", QMap<QString, QStringList>{{"cpp", {"*.cpp"}}}, R"({"cpp":["*.cpp"]})");
    visit("QMap of maps", QMap<QString, QMap<QString, int>>{{"value", {{"value", 1}}}},
          R"({"value":{"value":1}})");
    visit("optional map", std::optional<QMap<QString, int>>({{"value", 1}}), R"([{"value":1}])");
    visit("QVariantMap",
          QVariantMap{{"value", 1.5}, {"b", QVariantList{"x", true, QVariant::fromValue(nullptr)}}},
          R"({"b":["x",true,null],"value":1.5})");
    visit("QVariantMap: empty", QVariantMap(), "{}");
}

/// Calls `visit(name, value, text)` for values of every type with a supplied form; `text` is the
/// JSON of the value.
template<class Visit> void visitFormValues(const Visit &visit)
{
    visitNumbers(visit);
    visitEnums(visit);
    visitTexts(visit);
    visitDates(visit);
    visitGeometry(visit);
    visitLists(visit);
    visitMaps(visit);
}

/// Returns whether both values are equal; NaN is equal to itself.
template<class T> bool isSameForm(const T &value, const T &other)
{
    const QByteArray text = jsonText(MtConf::toJsonForm(value));
    return text == jsonText(MtConf::toJsonForm(other)) && (text.contains("nan") || value == other);
}
