#include "MaltoConfiguration/window/rows/ValueInWords_p.h"
#include "support/CleanStore.h"
#include "support/SettingTypes.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QTranslator>

#include <functional>

using MtConf::ConfItem;
using MtConf::MtConfManage;
using MtConf::valueInWords;

namespace {

/// Every kind of setting, with its variable.
struct Host
{
    MtConfManage manager;
    bool flag = false;
    int number = 0;
    double fraction = 0;
    QString text;
    QColor color;
    QFont font;
    QKeySequence keys;
    QStringList list;
    QDateTime time;
    std::chrono::minutes minutes{};
    std::chrono::microseconds microseconds{};
    Settings::Edges edges;
    QJsonObject object;
    qint64 large = 0;
};

using Declare = std::function<ConfItem *(Host &host)>;

ConfItem *number(Host &host)
{
    return host.manager.addConfInt32("Number", &host.number, "Page", "Number");
}
ConfItem *text(Host &host)
{
    return host.manager.addConfText("Text", &host.text, "Page", "Text");
}
ConfItem *color(Host &host)
{
    return host.manager.addConfQColor("Color", &host.color, "Page", "Color");
}
ConfItem *font(Host &host)
{
    return host.manager.addConfQFont("Font", &host.font, "Page", "Font");
}
ConfItem *hotkey(Host &host)
{
    return host.manager.addConfQKeySequence("Keys", &host.keys, "Page", "Keys");
}
ConfItem *choice(Host &host)
{
    return host.manager.addConfInt32WithCombobox("Choice", {"Small", "Large"}, {10, 20},
                                                 &host.number, "Page", "Choice");
}
ConfItem *flags(Host &host)
{
    return host.manager
        .addConfEnum<Settings::Edges>("Edges",
                                      {{Settings::Left, "Left"}, {Settings::Right, "Right"}},
                                      &host.edges, "Page", "Edges")
        ->setMultiSelect();
}
ConfItem *mouseAction(Host &host)
{
    host.manager.addConfMouseAction("Click", &host.number, 1, "Page", "Click");
    return host.manager.getItemByName("Page", "Click", "");
}
ConfItem *language(Host &host)
{
    host.manager.addConfLanguage("Language", &host.text, "Page", "Language");
    return host.manager.languageItem;
}
ConfItem *list(Host &host)
{
    return host.manager.addConfStringList("List", &host.list, "Page", "List");
}

/// Translates every text by putting "de " before it.
class Prefixer : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QLatin1String("de ") + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

Q_DECLARE_METATYPE(Declare)

class tst_ValueInWords : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { clearStore(); }
    void cleanup() { clearStore(); }

    void valueIsReadAsItsEditorShowsIt_data();
    void valueIsReadAsItsEditorShowsIt();
    void timesAreLocal();
    void secretsAreHidden();
    void wordsAreTranslated();
    void coloursHaveASwatch();
    void valuesWithoutADeclarationAreRead_data();
    void valuesWithoutADeclarationAreRead();
};

void tst_ValueInWords::valueIsReadAsItsEditorShowsIt_data()
{
    QTest::addColumn<Declare>("declare");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("words");
    const Declare boolean = [](Host &host) {
        return host.manager.addConfBool("Flag", &host.flag, "Page", "Flag");
    };
    const Declare fraction = [](Host &host) {
        return host.manager.addConfDouble("Fraction", &host.fraction, "Page", "Fraction")
            ->setSuffix(" px");
    };
    const Declare minutes = [](Host &host) {
        return host.manager.addConfDuration("Minutes", &host.minutes, "Page", "Minutes");
    };
    const Declare unitless = [](Host &host) {
        return host.manager.addConfDuration("Micros", &host.microseconds, "Page", "Micros");
    };
    const Declare multiChoice = [](Host &host) { return choice(host)->setMultiSelect(); };
    const Declare object = [](Host &host) {
        return host.manager.addConfValue(&host.object, "Page", "Object");
    };
    const Declare large = [](Host &host) {
        return host.manager.addConfValue(&host.large, "Page", "Large")->setSuffix(" B");
    };

    QTest::newRow("a flag that is on") << boolean << QJsonValue(true) << "Yes";
    QTest::newRow("a flag that is off") << boolean << QJsonValue(false) << "No";
    QTest::newRow("a number") << Declare(number) << QJsonValue(7) << "7";
    QTest::newRow("a number with its unit") << fraction << QJsonValue(2.25) << "2.25 px";
    QTest::newRow("a duration") << minutes << QJsonValue(5) << "5 min";
    QTest::newRow("a duration whose unit has no name") << unitless << QJsonValue(5) << "5";
    QTest::newRow("a number that no double holds")
        << large << QJsonValue("9007199254740993") << "9007199254740993 B";
    QTest::newRow("a text") << Declare(text) << QJsonValue("PNG") << "PNG";
    QTest::newRow("an empty text") << Declare(text) << QJsonValue("") << "Empty";
    QTest::newRow("a text of two lines")
        << Declare(text) << QJsonValue("a\nb") << QString::fromUtf8("a↵b");
    QTest::newRow("a choice") << Declare(choice) << QJsonValue(20) << "Large";
    QTest::newRow("a number that is not offered") << Declare(choice) << QJsonValue(5) << "5";
    QTest::newRow("several choices") << multiChoice << QJsonValue(30) << "Small, Large";
    QTest::newRow("flags by name") << Declare(flags) << QJsonValue("Left|Right") << "Left, Right";
    QTest::newRow("one flag") << Declare(flags) << QJsonValue("Right") << "Right";
    QTest::newRow("no flag") << Declare(flags) << QJsonValue(0) << "None";
    QTest::newRow("a mouse action")
        << Declare(mouseAction) << QJsonValue(int(Qt::ShiftModifier) | int(Qt::AltModifier) | 4)
        << QString::fromUtf8("⇧⌥ + Right Click");
    QTest::newRow("no mouse action") << Declare(mouseAction) << QJsonValue(0) << "None";
    QTest::newRow("a language") << Declare(language) << QJsonValue("de-de")
                                << "Deutsch (Deutschland)";
    QTest::newRow("the language of the system")
        << Declare(language) << QJsonValue("auto") << "Follow the system";
    QTest::newRow("a language without a name") << Declare(language) << QJsonValue("xx") << "xx";
    QTest::newRow("a colour") << Declare(color) << QJsonValue("ffff8000") << "#ff8000";
    QTest::newRow("a translucent colour")
        << Declare(color) << QJsonValue("80ff8000") << "#80ff8000";
    QTest::newRow("no colour") << Declare(color) << QJsonValue("None") << "None";
    QTest::newRow("a font in pixels")
        << Declare(font) << QJsonValue("DejaVu Sans,-1,16,5,75,1,0,0,0,0")
        << "DejaVu Sans, 16 px, bold, italic";
    QTest::newRow("a font in points") << Declare(font) << QJsonValue("Serif,10.5,-1,5,50,0,1,0,0,0")
                                      << "Serif, 10.5 pt, underlined";
    QTest::newRow("a hotkey") << Declare(hotkey) << QJsonValue("Ctrl+Shift+S") << "Ctrl+Shift+S";
    QTest::newRow("no hotkey") << Declare(hotkey) << QJsonValue("") << "Not set";
    QTest::newRow("a list") << Declare(list) << QJsonValue(QJsonArray{"a", "b c"}) << "a, b c";
    QTest::newRow("an empty list") << Declare(list) << QJsonValue(QJsonArray()) << "Empty";
    QTest::newRow("an object") << object << QJsonValue(QJsonObject{{"name", "Web"}})
                               << R"({"name":"Web"})";
    QTest::newRow("a value of another type") << Declare(color) << QJsonValue(3) << "3";
    QTest::newRow("no value") << Declare(number) << QJsonValue(QJsonValue::Undefined) << "";
}

void tst_ValueInWords::valueIsReadAsItsEditorShowsIt()
{
    QFETCH(Declare, declare);
    QFETCH(QJsonValue, value);
    Host host;
    QTEST(valueInWords(*declare(host), value), "words");
}

void tst_ValueInWords::timesAreLocal()
{
    Host host;
    const ConfItem *item = host.manager.addConfDateTime("Time", &host.time, "Page", "Time");
    const QDateTime local(QDate(2026, 11, 22), QTime(7, 5));
    const QJsonValue value = MtConf::toJsonForm(local.toUTC());
    QCOMPARE(valueInWords(*item, value), QString("22 Nov 2026 07:05"));
    QCOMPARE(valueInWords(*item, MtConf::toJsonForm(local.addSecs(3))),
             QString("22 Nov 2026 07:05:03"));
    QCOMPARE(valueInWords(*item, MtConf::toJsonForm(QDateTime())), QString("Not set"));
}

void tst_ValueInWords::secretsAreHidden()
{
    Host host;
    const ConfItem *password = host.manager.addConfPassword("Token", &host.text, "Page", "Token");
    QCOMPARE(valueInWords(*password, "hunter2"), QString("***"));
    ConfItem *item = color(host)->setSecret();
    QCOMPARE(valueInWords(*item, "ffff8000"), QString("***"));
    QVERIFY(!MtConf::colorOfValue(*item, "ffff8000").isValid());
}

void tst_ValueInWords::wordsAreTranslated()
{
    Prefixer prefixer;
    QVERIFY(QCoreApplication::installTranslator(&prefixer));
    Host host;
    const ConfItem *flag = host.manager.addConfBool("Flag", &host.flag, "Page", "Flag");
    QCOMPARE(valueInWords(*flag, true), QString("de Yes"));
    QCOMPARE(valueInWords(*choice(host), 20), QString("de Large"));
    QCOMPARE(valueInWords(*mouseAction(host), 4), QString("de Right Click"));
    QCOMPARE(valueInWords(*choice(host)->setMultiSelect(), 30), QString("de Smallde , de Large"));
    const ConfItem *minutes = host.manager.addConfDuration("M", &host.minutes, "Page", "M");
    QCOMPARE(valueInWords(*minutes, 5), QString("5de  min"));
    // As it is when its editor exists.
    host.manager.items.last().setSuffix(" min");
    QCOMPARE(valueInWords(*minutes, 5), QString("5de  min"));
}

void tst_ValueInWords::coloursHaveASwatch()
{
    Host host;
    QCOMPARE(MtConf::colorOfValue(*color(host), "80ff8000"), QColor(255, 128, 0, 128));
    QVERIFY(!MtConf::colorOfValue(*color(host), "None").isValid());
    QVERIFY(!MtConf::colorOfValue(*text(host), "ffff8000").isValid());
}

void tst_ValueInWords::valuesWithoutADeclarationAreRead_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("words");
    QTest::newRow("a flag") << QJsonValue(true) << "Yes";
    QTest::newRow("a number") << QJsonValue(0.5) << "0.5";
    QTest::newRow("a text") << QJsonValue("Web") << "Web";
    QTest::newRow("null") << QJsonValue() << "None";
    QTest::newRow("a list of numbers") << QJsonValue(QJsonArray{1, 2}) << "[1,2]";
    QTest::newRow("an empty object") << QJsonValue(QJsonObject()) << "Empty";
    QTest::newRow("no value") << QJsonValue(QJsonValue::Undefined) << "";
}

void tst_ValueInWords::valuesWithoutADeclarationAreRead()
{
    QFETCH(QJsonValue, value);
    QTEST(valueInWords(value), "words");
}

int main(int argc, char **argv)
{
    return runTest<tst_ValueInWords>(argc, argv);
}

#include "tst_ValueInWords.moc"
