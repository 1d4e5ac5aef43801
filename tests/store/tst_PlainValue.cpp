#include "support/LogCapture.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonDocument>

namespace {

const char sKey[] = "Group.Setting";

/// A store with one setting, and what a host can see of it.
template<class T> class Host
{
public:
    Host(const T &current, quint32 options) : mVariable(current)
    {
        mStore.mFileOptions = options;
        mStore.reserveConf(sKey, &mVariable);
    }

    /// Loads the file as text, which is parsed without a document.
    QStringList loadText(const QByteArray &file)
    {
        const LogCapture log;
        mStore.loadConf(QString::fromUtf8(file), ConfStorage::LoadLocal);
        return state();
    }
    /// Loads the file as a parsed document.
    QStringList loadObject(const QByteArray &file)
    {
        const LogCapture log;
        mStore.loadConf(QJsonDocument::fromJson(file).object(), ConfStorage::LoadLocal);
        return state();
    }
    const T &variable() const { return mVariable; }

private:
    QStringList state() const
    {
        QStringList seen;
        for (const LoggedMessage &message : std::as_const(LogCapture::messages()))
            seen << QString::number(message.level) + message.text;
        const ConfStorage::ConfMeta meta = mStore.mConfMetas.value(sKey);
        const QByteArray dump = QJsonDocument(mStore.dumpConf(ConfStorage::DumpLocal)).toJson();
        const ConfLoadReport report = mStore.lastLoad();
        return seen << QString::fromUtf8(dump) << meta.lastChangeTime.toString()
                    << QString::number(meta.flags) << QString::number(report.taken)
                    << QString::number(report.refusedCount);
    }

    T mVariable;
    ConfStorage mStore;
};

template<class T> void compareLoads(const T &current, const QByteArray &value)
{
    const QByteArray file = QByteArray(R"({"Group.Setting":{"t":100,"v":)") + value + "}}";
    for (const quint32 options :
         {quint32(0), quint32(ConfStorage::StrictTypes | ConfStorage::NullIsDefault)}) {
        Host<T> plain(current, options);
        Host<T> parsed(current, options);
        QCOMPARE(plain.loadText(file), parsed.loadObject(file));
        QCOMPARE(plain.variable(), parsed.variable());
    }
}

} // namespace

/// A value that is loaded without a QJsonValue is the value that is loaded with one.
class tst_PlainValue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void bothLoadsAreEqual_data();
    void bothLoadsAreEqual();
    void callbackIsCalled();
    void changeIsObserved();
};

void tst_PlainValue::bothLoadsAreEqual_data()
{
    QTest::addColumn<QByteArray>("value");
    const QByteArrayList values{"0",
                                "7",
                                "-1",
                                "1",
                                "2147483647",
                                "2147483648",
                                "-2147483648",
                                "-2147483649",
                                "999999999999999999",
                                "0.5",
                                "1e2",
                                "true",
                                "false",
                                "null",
                                "[]",
                                "[1]",
                                R"({"a":1})",
                                R"("")",
                                R"("text")",
                                R"("true")",
                                R"("12")",
                                R"("None")",
                                R"("ff112233")",
                                R"("FF112233")",
                                R"("0")",
                                R"("123456789")",
                                R"("0x12")",
                                R"(" ff112233")",
                                R"("Ctrl+S")",
                                R"("Ctrl+K, Ctrl+C")",
                                R"("Ctrl+Shift")",
                                R"("ctrl+ä")",
                                R"("Sans,12,-1,5,50,0,0,0,0,0")",
                                R"(" Sans,12,-1,5,50,0,0,0,0,0 ")",
                                R"("Sans,12,-1,5,75,1,1,0,0,0,Bold")",
                                R"("Sans,12,-1,5,600,1,0,1,0,0,3,1,2,1,75,2,Demi")",
                                R"("Sans,12")",
                                R"("Sans,12,5,75,1,0,0,0,0")",
                                R"(",12,-1,5,50,0,0,0,0,0")",
                                R"("Sans,9999,-1,5,50,0,0,0,0,0")",
                                R"("Sans,inf,-1,5,50,0,0,0,0,0")",
                                R"("Sans,12,-1,5,x,0,0,0,0,0")",
                                R"("Sans,12,-1,5,-5,0,0,0,0,0")",
                                R"("a\"b\\c\/d\b\f\n\r\te")",
                                R"("\u0041\u00e9\u20AC\u0000x")",
                                R"("\ud83d\ude00")",
                                R"("\ud83d")",
                                R"("\ufeff")",
                                "\"\357\273\277\"",
                                "\"\357\273\277\\n\"",
                                "\"\\n\357\273\277\"",
                                "\"\303\251\\n\"",
                                "\"\345\261\217\345\271\225\"",
                                "\"\\\"\320\255\\\"\"",
                                R"("C\u0074rl+S")"};
    for (const QByteArray &value : values)
        QTest::addRow("%s", value.toPercentEncoding(" \"\\[]{}:,+").constData()) << value;
}

void tst_PlainValue::bothLoadsAreEqual()
{
    QFETCH(QByteArray, value);
    compareLoads<int>(3, value);
    compareLoads<bool>(true, value);
    compareLoads<double>(2.5, value);
    compareLoads<QString>("before", value);
    compareLoads<QColor>(Qt::red, value);
    compareLoads<QFont>(QFont("Serif", 20), value);
    compareLoads<QKeySequence>(QKeySequence("F1"), value);
    compareLoads<QJsonObject>({{"b", 2}}, value);
    compareLoads<QJsonArray>({2}, value);
    compareLoads<QStringList>({"a", "b"}, value);
}

void tst_PlainValue::callbackIsCalled()
{
    ConfStorage store;
    QString text;
    store.reserveConf(sKey, &text);
    QStringList heard;
    store.setConfChangedCallback(sKey, [&](const QString &key, const ConfValue *value) {
        heard << key << value->get<QString>();
    });
    QVERIFY(store.loadConf(R"({"Group.Setting":{"t":100,"v":"new"}})", ConfStorage::LoadLocal));
    QCOMPARE(heard, QStringList({sKey, "new"}));
}

void tst_PlainValue::changeIsObserved()
{
    ConfStorage store;
    QFont font;
    store.reserveConf(sKey, &font);
    QJsonValue heard;
    store.addObserver([&](const ConfChange &change) { heard = change.after.value; });
    QVERIFY(store.loadConf(R"({"Group.Setting":{"t":100,"v":"Sans,7,-1,5,50,0,0,0,0,0"}})",
                           ConfStorage::LoadLocal));
    QCOMPARE(heard, QJsonValue("Sans,7,-1,5,50,0,0,0,0,0"));
}

int main(int argc, char **argv)
{
    return runTest<tst_PlainValue>(argc, argv);
}

#include "tst_PlainValue.moc"
