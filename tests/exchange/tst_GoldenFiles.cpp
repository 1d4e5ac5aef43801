#include "GoldenValues.h"
#include "support/FormSetting.h"
#include "support/IgnoreLeaks.h"
#include "support/LogCapture.h"
#include "support/TestMain.h"

#include "MaltoConfiguration/window/WindowGeometryFile_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QJsonDocument>

#include <optional>

namespace {

constexpr qint64 sTime = 1700000000;
const char sLocalFile[] = "local.json";

QByteArray fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

/// Returns what a build with Qt 5.15 has written.
QByteArray golden(const char *name)
{
    return fileText(QStringLiteral(MALTO_GOLDEN "/") + name);
}

/// Returns an empty value of the type.
ConfValue valueOf(ConfValue::ConfType type)
{
    switch (type) {
    case ConfValue::TyQColor: return ConfValue::owned(QColor(Qt::red));
    case ConfValue::TyInt32: return ConfValue::owned(7);
    case ConfValue::TyQreal: return ConfValue::owned(0.5);
    case ConfValue::TyBool: return ConfValue::owned(false);
    case ConfValue::TyQString: return ConfValue::owned(QString("default"));
    case ConfValue::TyQFont: return ConfValue::owned(QFont("Serif", 33));
    case ConfValue::TyQKeySequence: return ConfValue::owned(QKeySequence("F12"));
    case ConfValue::TyQJsonObject: return ConfValue::owned(QJsonObject{{"default", 1}});
    case ConfValue::TyQJsonArray: return ConfValue::owned(QJsonArray{"default"});
    case ConfValue::TyNone: break;
    }
    return {};
}

void declare(ConfStorage &store, const QString &key, ConfValue::ConfType type)
{
    store.mConfValues[key] = valueOf(type);
    store.mConfMetas[key].defaultValue = valueOf(type);
}

void change(ConfStorage &store, const QString &key, const ConfValue &value)
{
    store.mConfValues[key] = value;
    ConfStorage::ConfMeta &meta = store.mConfMetas[key];
    meta.flags &= ~quint32(ConfStorage::FlagIsDefault);
    meta.lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime, Qt::UTC);
}

/// Returns the values that are read back as they were written.
std::vector<GoldenValue> keptValues()
{
    std::vector<GoldenValue> kept;
    std::copy_if(goldenValues().begin(), goldenValues().end(), std::back_inserter(kept),
                 [](const GoldenValue &row) { return row.again.isEmpty(); });
    return kept;
}

/// Returns whether `value` is that of the row. A colour is read as the RGB value of its text.
bool isThatOf(const GoldenValue &row, const ConfValue &value)
{
    if (row.text == "null")
        return value.mType == ConfValue::TyNone;
    if (row.value.mType != ConfValue::TyQColor || row.text == "\"None\"")
        return value == row.value;
    return value.get<QColor>() == QColor::fromRgba(row.text.mid(1).chopped(1).toUInt(nullptr, 16));
}

/// Declares every value that is kept, and one key of every kind of entry.
void declareAll(ConfStorage &store, ConfStorage::DynamicConfClass &entries)
{
    for (const GoldenValue &row : keptValues())
        declare(store, row.name, row.value.mType);
    for (const char *key : {"Kind.system", "Kind.local", "Kind.restored", "Kind.untouched"})
        declare(store, key, ConfValue::TyInt32);
    store.mConfMetas["Kind.system"].flags |= ConfStorage::FlagSystemIndependent;
    store.mConfMetas["Kind.local"].flags |= ConfStorage::FlagLocalOnly;
    entries.prefix = "Entry.";
    entries.flags = ConfStorage::FlagSystemIndependent;
    entries.creator = [&store](const QString &key, const QJsonValue *value) {
        store.mConfValues[key] = ConfValue::owned(value->toObject());
        store.mConfMetas[key] = {};
        store.mConfMetas[key].flags = 0;
    };
    store.mDynamicConfClasses.append(&entries);
}

void changeAll(ConfStorage &store)
{
    for (const GoldenValue &row : keptValues())
        change(store, row.name, row.value);
    change(store, "Kind.system", ConfValue::owned(1));
    change(store, "Kind.local", ConfValue::owned(2));
    store.mConfMetas["Kind.restored"].lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime + 1,
                                                                                     Qt::UTC);
    const QString entry = QString::fromUtf8("Entry.ä 1");
    store.createDynamicConf(entry, QJsonObject{{"name", "News"}}, nullptr);
    store.mConfMetas[entry].lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime + 2, Qt::UTC);
    store.mRemovedDynamicConfs["Entry.2"] = QDateTime::fromSecsSinceEpoch(sTime + 3, Qt::UTC);
}

QByteArray localText(ConfStorage &store)
{
    store.mLocalSaveFile = sLocalFile;
    store.mChanged = true;
    store.saveToLocalConfFile();
    return fileText(sLocalFile);
}

/// Returns the local file after reading a local file with one value and writing it again.
QByteArray rewritten(ConfValue::ConfType type, const QByteArray &text)
{
    ConfStorage store;
    declare(store, "k", type);
    writeFile(sLocalFile, R"({"k":{"t":1,"v":)" + text + "}}");
    store.mLocalSaveFile = sLocalFile;
    store.loadLocalConfFile();
    QByteArray result = localText(store);
    const QByteArray start = R"({"k":{"t":1,"v":)";
    return result.startsWith(start) ? result.mid(start.size()).chopped(2) : result;
}

/// A host with a setting for each value of a type that is not built in.
struct FormHost
{
    FormHost()
    {
        for (const auto &form : formCases()) {
            variables.push_back(form->variable());
            variables.back()->reserve(store, form->name);
        }
    }
    Q_DISABLE_COPY(FormHost)

    std::vector<std::unique_ptr<FormCase::Variable>> variables;
    ConfStorage store;
};

} // namespace

/// The files of the library. Every expected text was written by a build with Qt 5.15; the build
/// under test must read the same values and write the same bytes.
class tst_GoldenFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mLog.emplace(); }
    void cleanup() { mLog.reset(); }

    void valueIsWritten_data() { addValues(); }
    void valueIsWritten();
    void valueIsReadAndWrittenAgain_data() { addValues(); }
    void valueIsReadAndWrittenAgain();
    void inputIsReadAndWritten_data();
    void inputIsReadAndWritten();
    void fileIsReadAndWritten_data();
    void fileIsReadAndWritten();
    void nestingIsLimited();
    void localFile();
    void localFileIsReadAndWrittenAgain();
    void formsAreWritten();
    void formsAreReadAndWrittenAgain();
    void dumps();
    void debugTable();
    void configurationFile();
    void geometryFile();

private:
    static void addValues();

    std::optional<LogCapture> mLog;
};

void tst_GoldenFiles::addValues()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < goldenValues().size(); ++i)
        QTest::newRow(goldenValues()[i].name.constData()) << static_cast<int>(i);
}

void tst_GoldenFiles::valueIsWritten()
{
    QFETCH(int, row);
    const GoldenValue &expected = goldenValues()[static_cast<size_t>(row)];
    ConfStorage store;
    declare(store, "k", expected.value.mType);
    change(store, "k", expected.value);
    QCOMPARE(localText(store), R"({"k":{"t":1700000000,"v":)" + expected.text + "}}");
}

void tst_GoldenFiles::valueIsReadAndWrittenAgain()
{
    QFETCH(int, row);
    const GoldenValue &expected = goldenValues()[static_cast<size_t>(row)];
    ConfStorage store;
    declare(store, "k", expected.value.mType);
    store.loadConf(QString::fromUtf8(R"({"k":{"v":)" + expected.text + "}}"),
                   ConfStorage::LoadLocal);
    if (expected.again.isEmpty())
        QVERIFY(isThatOf(expected, store.mConfValues.value("k")));
    const QByteArray again = expected.again.isEmpty() ? expected.text : expected.again;
    QCOMPARE(rewritten(expected.value.mType, expected.text), again);
}

void tst_GoldenFiles::inputIsReadAndWritten_data()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < goldenInputs().size(); ++i)
        QTest::addRow("%d %s", goldenInputs()[i].type, goldenInputs()[i].text.constData())
            << static_cast<int>(i);
}

void tst_GoldenFiles::inputIsReadAndWritten()
{
    QFETCH(int, row);
    const GoldenInput &input = goldenInputs()[static_cast<size_t>(row)];
    QCOMPARE(rewritten(input.type, input.text), input.written);
}

void tst_GoldenFiles::fileIsReadAndWritten_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("written");
    const QByteArray nothing = "{}";
    const QByteArray seven = R"({"k":{"t":1,"v":7}})";
    const auto row = [](const char *name, const QByteArray &text, const QByteArray &written) {
        QTest::newRow(name) << text << written;
    };
    row("compact", seven, seven);
    row("indented", "{\r\n\t\"k\": {\n  \"t\": 1, \"v\": 7\n} }\n", seven);
    row("byte order mark", "\xef\xbb\xbf" + seven, seven);
    row("two byte order marks", "\xef\xbb\xbf\xef\xbb\xbf" + seven, nothing);
    row("empty", "", nothing);
    row("array", "[" + seven + "]", nothing);
    row("text behind it", seven + "x", nothing);
    row("zero byte behind it", seven + '\0', nothing);
    row("comment", "/**/" + seven, nothing);
    row("cut off", seven.chopped(1), nothing);
    row("comma at the end", R"({"k":{"t":1,"v":7},})", nothing);
    row("duplicated key", R"({"k":{"t":5,"v":5},"k":{"t":1,"v":7}})", seven);
    row("duplicated member", R"({"k":{"t":5,"v":5,"v":7,"t":1}})", seven);
    row("escaped key", R"({"\u006b":{"\u0074":1,"v":7}})", seven);
    row("fraction as time", R"({"k":{"t":1.0,"v":7}})", seven);
    row("exponent in time", R"({"k":{"t":10e-1,"v":7}})", seven);
    row("illegal UTF-8", "{\"k\":{\"t\":1,\"v\":7},\"x\":\"\xff\"}", nothing);
    row("surrogate in UTF-8", "{\"k\":{\"t\":1,\"v\":7},\"x\":\"\xed\xa0\x80\"}", nothing);
    row("overlong UTF-8", "{\"k\":{\"t\":1,\"v\":7},\"x\":\"\xc0\x80\"}", nothing);
    row("control character in text", "{\"k\":{\"t\":1,\"v\":7},\"x\":\"\n\"}", seven);
    row("unknown escape", R"({"k":{"t":1,"v":7},"x":"\q"})", seven);
    row("cut off escape", R"({"k":{"t":1,"v":7},"x":"\u12"})", nothing);
    row("number with a leading zero", R"({"k":{"t":1,"v":07}})", nothing);
    row("number too large", R"({"k":{"t":1,"v":1e999}})", nothing);
    row("number without digits behind the point", R"({"k":{"t":1,"v":7.}})", seven);
    row("UTF-16", QByteArray("\xff\xfe{\0}\0", 6), nothing);
}

void tst_GoldenFiles::fileIsReadAndWritten()
{
    QFETCH(QByteArray, text);
    ConfStorage store;
    declare(store, "k", ConfValue::TyInt32);
    writeFile(sLocalFile, text);
    store.mLocalSaveFile = sLocalFile;
    {
        const IgnoreLeaks parser;
        store.loadLocalConfFile();
    }
    QVERIFY(mLog->messages().isEmpty());
    QTEST(localText(store), "written");
}

void tst_GoldenFiles::nestingIsLimited()
{
    const auto nested = [](int levels) {
        return QByteArray(levels, '[') + "1" + QByteArray(levels, ']');
    };
    constexpr int sMostLevels = 1024 - 2; // inside of the file and the entry
    QCOMPARE(rewritten(ConfValue::TyQJsonArray, nested(sMostLevels)), nested(sMostLevels));
    QCOMPARE(rewritten(ConfValue::TyQJsonArray, nested(sMostLevels + 1)), QByteArray("{}"));
}

void tst_GoldenFiles::localFile()
{
    ConfStorage store;
    ConfStorage::DynamicConfClass entries;
    declareAll(store, entries);
    QCOMPARE(localText(store), QByteArray("{}"));
    changeAll(store);
    QCOMPARE(localText(store), golden("local.json"));
}

void tst_GoldenFiles::localFileIsReadAndWrittenAgain()
{
    writeFile(sLocalFile, golden("local.json"));
    ConfStorage store;
    ConfStorage::DynamicConfClass entries;
    declareAll(store, entries);
    store.mLocalSaveFile = sLocalFile;
    store.loadLocalConfFile();
    for (const GoldenValue &row : keptValues())
        QVERIFY2(isThatOf(row, store.mConfValues.value(row.name)), row.name.constData());
    QCOMPARE(localText(store), golden("local.json"));
    QCOMPARE(store.mRemovedDynamicConfs.value("Entry.2").toSecsSinceEpoch(), sTime + 3);
}

void tst_GoldenFiles::formsAreWritten()
{
    FormHost host;
    for (size_t i = 0; i < formCases().size(); ++i) {
        const QString key = formCases()[i]->name;
        host.variables[i]->setInStore(host.store, key);
        host.store.mConfMetas[key].lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime, Qt::UTC);
    }
    QCOMPARE(localText(host.store), golden("forms.json"));
}

void tst_GoldenFiles::formsAreReadAndWrittenAgain()
{
    writeFile(sLocalFile, golden("forms.json"));
    FormHost host;
    host.store.mLocalSaveFile = sLocalFile;
    host.store.loadLocalConfFile();
    for (size_t i = 0; i < formCases().size(); ++i)
        QVERIFY2(host.variables[i]->hasValue(), formCases()[i]->name.constData());
    QCOMPARE(localText(host.store), golden("forms.json"));
}

void tst_GoldenFiles::dumps()
{
    ConfStorage store;
    for (const char *key : {"Color", "Int", "Text", "Local"})
        declare(store, key, ConfValue::TyInt32);
    change(store, "Color", ConfValue::owned(QColor(Qt::red)));
    change(store, "Int", ConfValue::owned(5));
    change(store, "Text", ConfValue::owned(QString::fromUtf8("é\n\"")));
    change(store, "Local", ConfValue::owned(QJsonArray{}));
    store.mConfMetas["Local"].flags |= ConfStorage::FlagLocalOnly;
    change(store, "Nested",
           ConfValue::owned(QJsonObject{{"array", QJsonArray{QJsonArray(), QJsonObject(), 0.5}}}));
    const auto text = [&](ConfStorage::DumpConfType type, QJsonDocument::JsonFormat format) {
        return QJsonDocument(store.dumpConf(type)).toJson(format);
    };
    QCOMPARE(text(ConfStorage::DumpShared, QJsonDocument::Indented), golden("shared.json"));
    QCOMPARE(text(ConfStorage::DumpChangedOnly, QJsonDocument::Compact), golden("changed.json"));
}

void tst_GoldenFiles::debugTable()
{
    ConfStorage store;
    ConfStorage::DynamicConfClass entries;
    declareAll(store, entries);
    changeAll(store);
    QCOMPARE(store.debugTable().toUtf8(), golden("table.txt"));
}

void tst_GoldenFiles::configurationFile()
{
    ConfStorage *store = ConfStorage::instance();
    QColor color, sub;
    int number = 0, plain = 0, unknown = 3;
    bool flag = false;
    QString text;
    QFont font;
    QKeySequence keys;
    {
        MtConf::MtConfManage manager;
        manager.addConfQColor("", &color, "Page", "Color");
        manager.addConfQColor("", &sub, "Page", "Color", QString::fromUtf8("Größe"));
        manager.addConfInt32("", &number, "Page", "Number");
        manager.addConfInt32("", &plain, QString::fromUtf8("Ключ"), "Number");
        manager.addConfInt32("", &unknown, "Page", "Unknown");
        manager.addConfBool("", &flag, "Page", "Flag");
        manager.addConfQString("", &text, "Page", "Text");
        manager.addConfQFont("", &font, "Page", "Font");
        manager.addConfQKeySequence("", &keys, "Page", "Keys");
        manager.loadFromFile(MALTO_GOLDEN "/configuration.json");
        QCOMPARE(color, QColor::fromRgba(0x80ff0000));
        QCOMPARE(sub, QColor::fromRgba(0xff00ff00));
        QCOMPARE(number, 2147483647);
        QCOMPARE(plain, -5);
        QCOMPARE(unknown, 3);
        QVERIFY(flag);
        QCOMPARE(text, QString::fromUtf8("Grüße \"日本\" 😀\n") + QChar(0));
        QCOMPARE(font.family(), QString("Noto Sans"));
        QCOMPARE(font.pixelSize(), 17);
        QCOMPARE(font.weight(), QFont::DemiBold);
        QCOMPARE(font.styleName(), QString("Demi"));
        QCOMPARE(keys,
                 QKeySequence(int(Qt::CTRL) | Qt::Key_K, int(Qt::KeypadModifier) | Qt::Key_Enter));
        for (ConfStorage::ConfMeta &meta : store->mConfMetas) {
            if (meta.lastChangeTime.isValid())
                meta.lastChangeTime = QDateTime::fromSecsSinceEpoch(sTime, Qt::UTC);
        }
        QCOMPARE(localText(*store), golden("configured.json"));
    }
    store->clear();
}

void tst_GoldenFiles::geometryFile()
{
    const WindowGeometryFile file("geometry.ini");
    writeFile("geometry.ini", golden("geometry.ini"));
    QCOMPARE(file.read().geometry, QRect(-1920, 23, 1067, 694));
    file.write(QRect(1, 2, 3, 4));
    QCOMPARE(file.read().geometry, QRect(1, 2, 3, 4));
    file.write(QRect(-1920, 23, 1067, 694));
    QCOMPARE(fileText("geometry.ini"), golden("geometry.ini"));
}

int main(int argc, char **argv)
{
    return runTest<tst_GoldenFiles>(argc, argv);
}

#include "tst_GoldenFiles.moc"
