#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfValue.h>

#include <limits>

namespace {

const char sGetMismatch[] = "ConfValue::get() type mismatch";
const char sSetMismatch[] = "ConfValue::set() type mismatch";

ConfValue ofUnknownType(quint32 type)
{
    ConfValue value = ConfValue::owned(1);
    value.mType = static_cast<ConfValue::ConfType>(type);
    return value;
}

/// Whether a bound value makes the name known to Qt, as that of a pointer to `T`.
template<class T> bool bindingRegisters(const char *name)
{
    const ConfValue value = ConfValue::bound<T>(nullptr);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // Qt 6 looks up names by another function, which Qt 5 lacks
    return QMetaType::type(name) == value.mValue.userType();
    QT_WARNING_POP
}

QKeySequence keys(int first, int second = 0)
{
    return QKeySequence(first, second);
}

} // namespace

Q_DECLARE_METATYPE(ConfValue)

class tst_ConfValue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void defaultConstructedIsEmpty();
    void pointerTypesAreRegisteredByName();
    void typeNumbersAreFixed();
    void boundValueReadsAndWritesTheVariable();
    void ownedValueHasItsOwnCopy();
    void nullPointerReadsDefaultsAndWritesNothing();
    void mismatchIsLoggedAndChangesNothing();
    void mismatchReturnsADefaultValue();
    void setFromAnotherValueCopiesIntoTheVariable();
    void setFromAnotherTypeIsLogged();
    void settingAValueOfUnknownTypeIsLogged();
    void equality_data();
    void equality();
    void unknownTypesAreNeverEqual();
    void toJson_data();
    void toJson();
    void toJsonOfUnknownTypeIsLogged();
    void fromJson_data();
    void fromJson();
    void textThatIsNotAFontGivesTheDefaultFont();
    void fontSizeOutOfRangeGivesTheDefaultFont_data();
    void fontSizeOutOfRangeGivesTheDefaultFont();
    void fontSizeInRangeIsKept_data();
    void fontSizeInRangeIsKept();
    void fromJsonNullUnbinds_data();
    void fromJsonNullUnbinds();
    void fromJsonOfUnknownTypeIsLogged();
    void fromJsonWritesThroughThePointer();
};

void tst_ConfValue::defaultConstructedIsEmpty()
{
    const ConfValue value;
    QVERIFY(value.mValue.isNull());
    QVERIFY(!value.mIsPtr);
    QCOMPARE(value.mType, ConfValue::TyNone);
    QVERIFY(value.toJsonValue().isNull());
}

void tst_ConfValue::pointerTypesAreRegisteredByName()
{
    QVERIFY(bindingRegisters<QColor>("TyQColorPtr"));
    QVERIFY(bindingRegisters<int>("TyInt32Ptr"));
    QVERIFY(bindingRegisters<qreal>("TyQrealPtr"));
    QVERIFY(bindingRegisters<bool>("TyBoolPtr"));
    QVERIFY(bindingRegisters<QString>("TyQStringPtr"));
    QVERIFY(bindingRegisters<QFont>("TyQFontPtr"));
    QVERIFY(bindingRegisters<QKeySequence>("TyQKeySequencePtr"));
    QVERIFY(bindingRegisters<QJsonObject>("TyQJsonObjectPtr"));
    QVERIFY(bindingRegisters<QJsonArray>("TyQJsonArrayPtr"));
    int number = 0;
    QCOMPARE(qvariant_cast<int *>(ConfValue::bound(&number).mValue), &number);
}

void tst_ConfValue::typeNumbersAreFixed()
{
    QCOMPARE(int(ConfValue::owned(QColor()).mType), 1);
    QCOMPARE(int(ConfValue::owned(1).mType), 2);
    QCOMPARE(int(ConfValue::owned(1.0).mType), 3);
    QCOMPARE(int(ConfValue::owned(true).mType), 4);
    QCOMPARE(int(ConfValue::owned(QString()).mType), 5);
    QCOMPARE(int(ConfValue::owned(QFont()).mType), 6);
    QCOMPARE(int(ConfValue::owned(QKeySequence()).mType), 7);
    QCOMPARE(int(ConfValue::owned(QJsonObject()).mType), 8);
    QCOMPARE(int(ConfValue::owned(QJsonArray()).mType), 9);
    QCOMPARE(ConfValue::owned(QJsonObject()).mValue.userType(), int(QMetaType::QJsonObject));
}

void tst_ConfValue::boundValueReadsAndWritesTheVariable()
{
    int number = 7;
    ConfValue value = ConfValue::bound(&number);
    QVERIFY(value.mIsPtr);
    QCOMPARE(value.get<int>(), 7);
    number = 9;
    QCOMPARE(value.get<int>(), 9);
    value.set(11);
    QCOMPARE(number, 11);
    QCOMPARE(value.mValue.value<int *>(), &number);
}

void tst_ConfValue::ownedValueHasItsOwnCopy()
{
    QString text("before");
    ConfValue value = ConfValue::owned(text);
    QVERIFY(!value.mIsPtr);
    const ConfValue copy = value;
    value.set(QString("after"));
    QCOMPARE(value.get<QString>(), QString("after"));
    QCOMPARE(copy.get<QString>(), QString("before"));
    QCOMPARE(text, QString("before"));
}

void tst_ConfValue::nullPointerReadsDefaultsAndWritesNothing()
{
    ConfValue value = ConfValue::bound(static_cast<int *>(nullptr));
    QCOMPARE(value.get<int>(), 0);
    value.set(5);
    QCOMPARE(value.get<int>(), 0);
    value.loadFromJsonValue(3);
    QVERIFY(value.toJsonValue().isNull() || value.toJsonValue().toInt() == 0);
}

void tst_ConfValue::mismatchIsLoggedAndChangesNothing()
{
    bool flag = true;
    ConfValue value = ConfValue::bound(&flag);
    const LogCapture log;
    QCOMPARE(value.get<int>(), 0);
    value.set(5);
    QCOMPARE(log.texts(QtWarningMsg), (QStringList{sGetMismatch, sGetMismatch}));
    QCOMPARE(log.messages().size(), 2);
    QVERIFY(flag);
    QVERIFY(value.get<bool>());
}

void tst_ConfValue::mismatchReturnsADefaultValue()
{
    const LogCapture log;
    const ConfValue value;
    QCOMPARE(value.get<int>(), 0);
    QCOMPARE(value.get<double>(), 0.0);
    QCOMPARE(value.get<bool>(), false);
    QCOMPARE(value.get<QString>(), QString());
    QVERIFY(!value.get<QColor>().isValid());
    QCOMPARE(value.get<QFont>(), QFont());
    QVERIFY(value.get<QKeySequence>().isEmpty());
    QVERIFY(value.get<QJsonObject>().isEmpty());
    QVERIFY(value.get<QJsonArray>().isEmpty());
    QCOMPARE(log.texts(QtWarningMsg).count(sGetMismatch), 9);
}

void tst_ConfValue::setFromAnotherValueCopiesIntoTheVariable()
{
    QColor color(Qt::red), other(Qt::blue);
    ConfValue value = ConfValue::bound(&color);
    value.set(ConfValue::owned(QColor(Qt::green)));
    QCOMPARE(color, QColor(Qt::green));
    const ConfValue bound = ConfValue::bound(&other);
    value.set(bound);
    QCOMPARE(color, QColor(Qt::blue));
    QCOMPARE(value.mValue.value<QColor *>(), &color);
    ConfValue own = ConfValue::owned(QColor());
    own.set(value);
    QCOMPARE(own.get<QColor>(), QColor(Qt::blue));
    QVERIFY(!own.mIsPtr);
}

void tst_ConfValue::setFromAnotherTypeIsLogged()
{
    int number = 3;
    ConfValue value = ConfValue::bound(&number);
    const LogCapture log;
    value.set(ConfValue::owned(QString("5")));
    value.set(ConfValue());
    QCOMPARE(log.texts(QtWarningMsg), (QStringList{sSetMismatch, sSetMismatch}));
    QCOMPARE(number, 3);
}

void tst_ConfValue::settingAValueOfUnknownTypeIsLogged()
{
    ConfValue value;
    ConfValue strange = ofUnknownType(42);
    const LogCapture log;
    value.set(ConfValue());
    strange.set(ofUnknownType(42));
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"restoreDefault: unknow type:  0", "restoreDefault: unknow type:  42"}));
    QCOMPARE(strange.mValue, QVariant(1));
}

void tst_ConfValue::equality_data()
{
    QTest::addColumn<ConfValue>("left");
    QTest::addColumn<ConfValue>("right");
    QTest::addColumn<bool>("equal");
    static int number = 5;
    const auto own = [](const auto &value) { return ConfValue::owned(value); };
    QTest::newRow("bound and owned number") << ConfValue::bound(&number) << own(5) << true;
    QTest::newRow("other number") << own(5) << own(6) << false;
    QTest::newRow("number and real") << own(5) << own(5.0) << false;
    QTest::newRow("not a number") << own(qQNaN()) << own(qQNaN()) << false;
    QTest::newRow("reals that differ in the last bit") << own(0.1 + 0.2) << own(0.3) << false;
    QTest::newRow("booleans") << own(true) << own(true) << true;
    QTest::newRow("texts") << own(QString("a")) << own(QString("A")) << false;
    QTest::newRow("null and empty text") << own(QString()) << own(QString("")) << true;
    QTest::newRow("invalid colours") << own(QColor()) << own(QColor()) << true;
    QTest::newRow("colours with different alpha")
        << own(QColor(1, 2, 3, 4)) << own(QColor(1, 2, 3)) << false;
    QTest::newRow("fonts") << own(QFont("Sans", 9)) << own(QFont("Sans", 9)) << true;
    QTest::newRow("keys") << own(keys(Qt::Key_A)) << own(keys(Qt::Key_A, Qt::Key_B)) << false;
    QTest::newRow("objects") << own(QJsonObject{{"a", 1}}) << own(QJsonObject{{"a", 1}}) << true;
    QTest::newRow("arrays") << own(QJsonArray{1, 2}) << own(QJsonArray{2, 1}) << false;
    QTest::newRow("empty and number") << ConfValue() << own(0) << false;
}

void tst_ConfValue::equality()
{
    QFETCH(ConfValue, left);
    QFETCH(ConfValue, right);
    const LogCapture log;
    QTEST(left == right, "equal");
    QTEST(right == left, "equal");
    QTEST(!(left != right), "equal");
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfValue::unknownTypesAreNeverEqual()
{
    const LogCapture log;
    QVERIFY(!(ConfValue() == ConfValue()));
    QVERIFY(!(ofUnknownType(10) == ofUnknownType(10)));
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"restoreDefault: unknow type:  0", "restoreDefault: unknow type:  10"}));
}

void tst_ConfValue::toJson_data()
{
    QTest::addColumn<ConfValue>("value");
    QTest::addColumn<QJsonValue>("json");
    const auto own = [](const auto &value) { return ConfValue::owned(value); };
    QTest::newRow("opaque colour") << own(QColor(255, 0, 0)) << QJsonValue("ffff0000");
    QTest::newRow("translucent colour") << own(QColor(0x11, 0, 0, 0x80)) << QJsonValue("80110000");
    QTest::newRow("no leading zeros") << own(QColor(0, 0, 0xab, 0)) << QJsonValue("ab");
    QTest::newRow("invalid colour") << own(QColor()) << QJsonValue("None");
    QTest::newRow("number") << own(-42) << QJsonValue(-42);
    QTest::newRow("smallest number")
        << own(std::numeric_limits<int>::min()) << QJsonValue(-2147483648.0);
    QTest::newRow("real") << own(0.5) << QJsonValue(0.5);
    QTest::newRow("boolean") << own(true) << QJsonValue(true);
    QTest::newRow("text") << own(QString::fromUtf8("é")) << QJsonValue(QString::fromUtf8("é"));
    QTest::newRow("empty text") << own(QString("")) << QJsonValue("");
    QTest::newRow("null text") << own(QString()) << QJsonValue();
    QTest::newRow("unbound number")
        << ConfValue::bound(static_cast<int *>(nullptr)) << QJsonValue(0);
    QTest::newRow("unbound text") << ConfValue::bound(static_cast<QString *>(nullptr))
                                  << QJsonValue("");
    QTest::newRow("keys") << own(keys(int(Qt::CTRL) | Qt::Key_A, Qt::Key_F5))
                          << QJsonValue("Ctrl+A, F5");
    QTest::newRow("no keys") << own(QKeySequence()) << QJsonValue("");
    QTest::newRow("object") << own(QJsonObject{{"a", 1}}) << QJsonValue(QJsonObject{{"a", 1}});
    QTest::newRow("array") << own(QJsonArray{1, "b"}) << QJsonValue(QJsonArray{1, "b"});
}

void tst_ConfValue::toJson()
{
    QFETCH(ConfValue, value);
    QTEST(value.toJsonValue(), "json");
    QFont font("Sans");
    font.setPixelSize(13);
    QVERIFY(ConfValue::owned(font).toJsonValue().toString().startsWith("Sans,-1,13,"));
}

void tst_ConfValue::toJsonOfUnknownTypeIsLogged()
{
    const LogCapture log;
    QVERIFY(ofUnknownType(77).toJsonValue().isNull());
    QCOMPARE(log.texts(QtCriticalMsg), QStringList("restoreDefault: unknow type:  77"));
}

void tst_ConfValue::fromJson_data()
{
    QTest::addColumn<ConfValue>("value");
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<ConfValue>("loaded");
    const auto own = [](const auto &value) { return ConfValue::owned(value); };
    const ConfValue color = own(QColor(Qt::red)), number = own(5), flag = own(true);
    const ConfValue text = own(QString("x")), sequence = own(keys(Qt::Key_A));
    QTest::newRow("colour") << color << QJsonValue("80110000") << own(QColor(0x11, 0, 0, 0x80));
    QTest::newRow("short colour") << color << QJsonValue("ff") << own(QColor(0, 0, 255, 0));
    QTest::newRow("invalid colour") << color << QJsonValue("None") << own(QColor());
    QTest::newRow("not hexadecimal") << color << QJsonValue("red") << own(QColor(0, 0, 0, 0));
    QTest::newRow("colour from a number") << color << QJsonValue(7) << own(QColor(0, 0, 0, 0));
    QTest::newRow("number") << number << QJsonValue(-3) << own(-3);
    QTest::newRow("number from a text") << number << QJsonValue("7") << own(0);
    QTest::newRow("number from a fraction") << number << QJsonValue(1.5) << own(0);
    QTest::newRow("number beyond 32 bits") << number << QJsonValue(1e10) << own(0);
    QTest::newRow("real") << own(1.0) << QJsonValue(2.5) << own(2.5);
    QTest::newRow("real from a boolean") << own(1.0) << QJsonValue(true) << own(0.0);
    QTest::newRow("boolean") << flag << QJsonValue(false) << own(false);
    QTest::newRow("boolean from a number") << flag << QJsonValue(1) << own(false);
    QTest::newRow("text") << text << QJsonValue("new") << own(QString("new"));
    QTest::newRow("text from an object") << text << QJsonValue(QJsonObject()) << own(QString());
    QTest::newRow("keys") << sequence << QJsonValue("Ctrl+A, F5")
                          << own(keys(int(Qt::CTRL) | Qt::Key_A, Qt::Key_F5));
    QTest::newRow("no keys") << sequence << QJsonValue("") << own(QKeySequence());
    QTest::newRow("object") << own(QJsonObject()) << QJsonValue(QJsonObject{{"b", 2}})
                            << own(QJsonObject{{"b", 2}});
    QTest::newRow("array from an object")
        << own(QJsonArray{1}) << QJsonValue(QJsonObject()) << own(QJsonArray());
}

void tst_ConfValue::fromJson()
{
    QFETCH(ConfValue, value);
    QFETCH(QJsonValue, json);
    QFETCH(ConfValue, loaded);
    value.loadFromJsonValue(json);
    QVERIFY(value == loaded);
    QFont font("Sans");
    font.setPixelSize(21);
    ConfValue fontValue = ConfValue::owned(QFont());
    fontValue.loadFromJsonValue(font.toString());
    QCOMPARE(fontValue.get<QFont>().pixelSize(), 21);
}

void tst_ConfValue::textThatIsNotAFontGivesTheDefaultFont()
{
    ConfValue value = ConfValue::owned(QFont("Serif", 33));
    QTest::ignoreMessage(QtWarningMsg, "QFont::fromString: Invalid description 'Sans,9,-1'");
    value.loadFromJsonValue("Sans,9,-1");
    QCOMPARE(value.get<QFont>(), QFont());
}

void tst_ConfValue::fontSizeOutOfRangeGivesTheDefaultFont_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("infinite") << "Sans,inf,-1,5,50,0,0,0,0,0";
    QTest::newRow("beyond the range of double") << "Sans,1e400,-1,5,50,0,0,0,0,0";
    QTest::newRow("a thousand million points") << "Sans,1e9";
    QTest::newRow("a little too large") << "Sans,4096.5,-1,5,50,0,0,0,0,0";
    QTest::newRow("largest integer in pixels") << "Sans,-1,2147483647,5,50,0,0,0,0,0";
    QTest::newRow("a little too many pixels") << "Sans,-1,4097,5,50,0,0,0,0,0";
    QTest::newRow("almost zero") << "Sans,1e-300,-1,5,50,0,0,0,0,0";
}

void tst_ConfValue::fontSizeOutOfRangeGivesTheDefaultFont()
{
    QFETCH(QString, text);
    ConfValue value = ConfValue::owned(QFont("Serif", 33));
    const LogCapture log;
    value.loadFromJsonValue(text);
    QCOMPARE(value.get<QFont>(), QFont());
    QCOMPARE(log.messages(),
             QList<LoggedMessage>(
                 {{QtWarningMsg,
                   QString("ConfValue::loadFromJsonValue() font size out of range:  \"%1\"")
                       .arg(text)}}));
}

void tst_ConfValue::fontSizeInRangeIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("most points") << "Sans,4096,-1,5,50,0,0,0,0,0";
    QTest::newRow("most pixels") << "Sans,-1,4096,5,50,0,0,0,0,0";
    QTest::newRow("fewest points") << "Sans,0.1,-1,5,50,0,0,0,0,0";
}

void tst_ConfValue::fontSizeInRangeIsKept()
{
    QFETCH(QString, text);
    ConfValue value = ConfValue::owned(QFont());
    const LogCapture log;
    value.loadFromJsonValue(text);
    QCOMPARE(value.toJsonValue().toString(), text);
    QVERIFY(log.messages().isEmpty());
}

void tst_ConfValue::fromJsonNullUnbinds_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("undefined") << QJsonValue(QJsonValue::Undefined);
}

void tst_ConfValue::fromJsonNullUnbinds()
{
    QFETCH(QJsonValue, json);
    int number = 5;
    ConfValue value = ConfValue::bound(&number);
    value.loadFromJsonValue(json);
    QCOMPARE(number, 5);
    QCOMPARE(value.mType, ConfValue::TyNone);
    QVERIFY(!value.mIsPtr);
    QVERIFY(value.mValue.isNull());
    QVERIFY(value.toJsonValue().isNull());
}

void tst_ConfValue::fromJsonOfUnknownTypeIsLogged()
{
    ConfValue empty, strange = ofUnknownType(12);
    const LogCapture log;
    empty.loadFromJsonValue(5);
    strange.loadFromJsonValue(5);
    QCOMPARE(log.texts(QtCriticalMsg),
             (QStringList{"restoreDefault: unknow type:  0", "restoreDefault: unknow type:  12"}));
    QCOMPARE(strange.mValue, QVariant(1));
}

void tst_ConfValue::fromJsonWritesThroughThePointer()
{
    QString text("before");
    ConfValue value = ConfValue::bound(&text);
    value.loadFromJsonValue("after");
    QCOMPARE(text, QString("after"));
    QVERIFY(value.mIsPtr);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfValue>(argc, argv);
}

#include "tst_ConfValue.moc"
