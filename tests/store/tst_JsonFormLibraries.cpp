#include "support/LogCapture.h"
#include "support/SettingTypes.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfStorage.h>

#include <QLibrary>

namespace {

/// One of the two libraries.
class Library
{
public:
    explicit Library(const char *path) : mLibrary(path)
    {
        if (!mLibrary.load())
            qFatal("%s", qPrintable(mLibrary.errorString()));
    }

    quint32 number(const char *function) { return resolve<quint32 (*)()>(function)(); }
    int value(const char *function, ConfStorage *store)
    {
        return resolve<int (*)(ConfStorage *)>(function)(store);
    }
    void reserve(ConfStorage *store) { resolve<void (*)(ConfStorage *)>("reserveSettings")(store); }
    void release(ConfStorage *store) { resolve<void (*)(ConfStorage *)>("releaseSettings")(store); }
    void set(ConfStorage *store, int mode, int left)
    {
        resolve<void (*)(ConfStorage *, int, int)>("setSettings")(store, mode, left);
    }
    void unload() { QVERIFY(mLibrary.unload()); }

private:
    template<class Function> Function resolve(const char *name)
    {
        const auto function = reinterpret_cast<Function>(mLibrary.resolve(name));
        if (!function)
            qFatal("%s is missing", name);
        return function;
    }

    QLibrary mLibrary;
};

/// A host that saves its settings in the destructor of a global variable.
struct HostAtExit
{
    ~HostAtExit()
    {
        if (store && store->dumpConf(ConfStorage::DumpLocal) != expected)
            qFatal("settings are lost when the program ends");
    }

    QVector<std::optional<Settings::WrapMode>> modes;
    ConfStorage *store = nullptr;
    QJsonObject expected;
} atExit;

} // namespace

/// Libraries with hidden symbols that have settings of the same type.
class tst_JsonFormLibraries : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typeIsUsableWhenALibraryIsUnloaded();
    void typeHasOneNumber();
    void valueIsSharedByLibraries();
    void settingsCanBeSavedWhenTheProgramEnds();
};

// Runs first: the library that is unloaded is the first one to use the types.
void tst_JsonFormLibraries::typeIsUsableWhenALibraryIsUnloaded()
{
    ConfStorage store;
    store.mFileOptions = ConfStorage::KeepUnknownEntries;
    Library first(MALTO_FIRST_LIBRARY);
    first.reserve(&store);
    first.set(&store, 7, 3);
    first.release(&store);
    first.unload();
    Library second(MALTO_SECOND_LIBRARY);
    second.reserve(&store);
    QCOMPARE(second.value("wrapModeInStore", &store), 7);
    QCOMPARE(second.value("marginInStore", &store), 3);
    second.release(&store);
    second.unload();

    Settings::WrapMode mode{};
    store.reserveConf("Wrap", &mode);
    QCOMPARE(mode, Settings::WrapMode::Anywhere);
    store.set("Wrap", Settings::WrapMode::Word);
    QCOMPARE(store.mConfValues["Wrap"].toJsonValue(), QJsonValue("Word"));
}

void tst_JsonFormLibraries::typeHasOneNumber()
{
    Library first(MALTO_FIRST_LIBRARY), second(MALTO_SECOND_LIBRARY);
    const quint32 type = first.number("wrapModeType");
    QVERIFY(type >= 10);
    QCOMPARE(second.number("wrapModeType"), type);
    QCOMPARE(quint32(ConfValue::typeOf<Settings::WrapMode>()), type);
    QVERIFY(first.number("marginsType") != type);
    QCOMPARE(first.number("marginsType"), second.number("marginsType"));
    const auto number = ConfValue::typeOf<QMap<QString, QList<Settings::Margins>>>();
    QCOMPARE(quint32(number), first.number("marginsType"));
}

void tst_JsonFormLibraries::valueIsSharedByLibraries()
{
    ConfStorage store;
    Library first(MALTO_FIRST_LIBRARY), second(MALTO_SECOND_LIBRARY);
    const LogCapture log;
    first.reserve(&store);
    second.set(&store, 7, 5);
    QCOMPARE(first.value("wrapModeInStore", &store), 7);
    QCOMPARE(first.value("marginInStore", &store), 5);
    QCOMPARE(store.get<Settings::WrapMode>("Wrap"), Settings::WrapMode::Anywhere);
    store.set("Wrap", Settings::WrapMode::None);
    QCOMPARE(second.value("wrapModeInStore", &store), 0);
    second.reserve(&store); // the variables of the other library
    QCOMPARE(first.value("wrapModeInStore", &store), 1);
    QVERIFY(LogCapture::messages().isEmpty());
}

void tst_JsonFormLibraries::settingsCanBeSavedWhenTheProgramEnds()
{
    static ConfStorage *const sStore = new ConfStorage;
    sStore->reserveConf("Modes", &atExit.modes);
    sStore->set("Modes", decltype(atExit.modes){Settings::WrapMode::Word, {}});
    atExit.store = sStore;
    atExit.expected = sStore->dumpConf(ConfStorage::DumpLocal);
    const QJsonValue saved = atExit.expected["Modes"].toObject()["v"];
    QCOMPARE(saved, QJsonValue(QJsonArray{QJsonArray{"Word"}, QJsonArray()}));
}

int main(int argc, char **argv)
{
    return runTest<tst_JsonFormLibraries>(argc, argv);
}

#include "tst_JsonFormLibraries.moc"
