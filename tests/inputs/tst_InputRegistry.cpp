#include "InputFixture.h"

#include "support/TestMain.h"

#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QJsonObject>
#include <QSignalSpy>
#include <QTranslator>

#include <map>
#include <utility>

using MtConf::InputRegistry;
using MtConf::InputScope;
using MtConf::InputUse;

/// The settings in the registry: who is in conflict, and when it is told.
class tst_InputRegistry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { mFixture = std::make_unique<InputFixture>(); }
    void cleanup() { mFixture.reset(); }

    void keysMeet_data();
    void keysMeet();
    void gesturesMeet_data();
    void gesturesMeet();
    void gestureAndKeysNeverMeet();
    void usesAreInTheOrderOfDeclaration();
    void useTellsScopeKeyAndName();
    void nameIsTranslated();
    void valueThatWouldBeSetIsJudged();
    void unknownSettingHasNoConflicts();
    void laterDeclarationIsKnown();
    void declarationThatReplacesAnotherIsKnown();
    void shortcutWithAnAdjustedEditorIsNoHotkey();
    void bothSidesAreTold();
    void othersAreNotTold();
    void manyChangesAreToldOnce();
    void tenThousandWithTheSameKeysAreTold();
    void changeOfALaterDeclarationIsTold();
    void loadedValueIsTold();
    void restoredValueIsTold();
    void removedEntryUsesNothing();
    void clearedStoreUsesNothing();
    void storeThatIsFilledAgainIsFollowed();
    void receiverMayDeleteTheRegistry();
    void managerMayBeDestroyedBeforeTheSignal();

private:
    /// Returns the settings that the next signal tells, sorted; empty if there is none.
    QStringList told()
    {
        QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
        QCoreApplication::processEvents();
        QStringList keys = spy.isEmpty() ? QStringList() : spy.takeFirst().at(0).toStringList();
        keys.sort();
        return keys;
    }

    std::unique_ptr<InputFixture> mFixture;
};

void tst_InputRegistry::keysMeet_data()
{
    QTest::addColumn<bool>("isFirstGlobal");
    QTest::addColumn<QString>("first");
    QTest::addColumn<bool>("isSecondGlobal");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("doMeet");

    const QString none;
    QTest::newRow("two hotkeys") << true << "Ctrl+K" << true << "Ctrl+K" << true;
    QTest::newRow("hotkey and shortcut") << true << "Ctrl+K" << false << "Ctrl+K" << true;
    QTest::newRow("two shortcuts") << false << "Ctrl+K" << false << "Ctrl+K" << true;
    QTest::newRow("other key") << true << "Ctrl+K" << true << "Ctrl+L" << false;
    QTest::newRow("more modifiers") << false << "Ctrl+K" << false << "Ctrl+Shift+K" << false;
    QTest::newRow("keypad") << false << "Ctrl+5" << false << "Ctrl+Num+5" << false;
    QTest::newRow("both empty") << true << none << true << none << false;
    QTest::newRow("one empty") << true << "Ctrl+K" << false << none << false;
    QTest::newRow("same chords") << false << "Ctrl+K, A" << false << "Ctrl+K, A" << true;
    QTest::newRow("begin of the other") << false << "Ctrl+K" << false << "Ctrl+K, A" << true;
    QTest::newRow("end of the other") << false << "A" << false << "Ctrl+K, A" << false;
    QTest::newRow("same begin") << false << "Ctrl+K, B" << false << "Ctrl+K, A" << false;
    QTest::newRow("hotkey at the begin") << true << "Ctrl+K" << false << "Ctrl+K, A" << true;
    QTest::newRow("hotkey at the end") << true << "A" << false << "Ctrl+K, A" << true;
    QTest::newRow("hotkey of two chords") << true << "Ctrl+K, A" << false << "Ctrl+K" << false;
    QTest::newRow("hotkeys of two chords") << true << "Ctrl+K, A" << true << "Ctrl+K, A" << false;
    QTest::newRow("no keys at all") << false << "nonsense" << false << "nonsense" << false;
}

void tst_InputRegistry::keysMeet()
{
    QFETCH(const bool, isFirstGlobal);
    QFETCH(const QString, first);
    QFETCH(const bool, isSecondGlobal);
    QFETCH(const QString, second);
    QFETCH(const bool, doMeet);
    isFirstGlobal ? mFixture->addHotkey("First", first) : mFixture->addShortcut("First", first);
    isSecondGlobal ? mFixture->addHotkey("Second", second)
                   : mFixture->addShortcut("Second", second);
    QCOMPARE(mFixture->conflicts("Keys.First"), doMeet ? QStringList{"Second"} : QStringList());
    QCOMPARE(mFixture->conflicts("Keys.Second"), doMeet ? QStringList{"First"} : QStringList());
}

void tst_InputRegistry::gesturesMeet_data()
{
    constexpr int sShift = 0x02000000;
    constexpr int sCtrl = 0x04000000;
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("doMeet");
    QTest::newRow("same click") << 4 << 4 << true;
    QTest::newRow("left click and double click") << (1 | sCtrl) << (2 | sCtrl) << true;
    QTest::newRow("right click and double click") << 4 << 8 << true;
    QTest::newRow("middle click and double click") << 16 << 32 << true;
    QTest::newRow("other buttons") << 2 << 8 << false;
    QTest::newRow("wheel") << 64 << 64 << true;
    QTest::newRow("drag and click") << 128 << 2 << false;
    QTest::newRow("drags of two buttons") << 128 << 256 << false;
    QTest::newRow("more modifiers") << (1 | sShift) << (1 | sShift | sCtrl) << false;
    QTest::newRow("same modifiers") << (1 | sShift | sCtrl) << (2 | sShift | sCtrl) << true;
    QTest::newRow("no actions") << 0 << 0 << false;
    QTest::newRow("modifiers without actions") << sShift << sShift << false;
}

void tst_InputRegistry::gesturesMeet()
{
    QFETCH(const int, first);
    QFETCH(const int, second);
    QFETCH(const bool, doMeet);
    mFixture->addGesture("First", first);
    mFixture->addGesture("Second", second);
    QCOMPARE(mFixture->conflicts("Mouse.First"), doMeet ? QStringList{"Second"} : QStringList());
    QCOMPARE(mFixture->conflicts("Mouse.Second"), doMeet ? QStringList{"First"} : QStringList());
    const QStringList used = first & 0xffff ? QStringList{"First"} : QStringList();
    QCOMPARE(InputFixture::names(mFixture->registry->usesOfGesture(first)).mid(0, 1), used);
}

void tst_InputRegistry::gestureAndKeysNeverMeet()
{
    mFixture->addHotkey("Key", "A");
    mFixture->addGesture("Gesture", Qt::Key_A);
    QVERIFY(mFixture->conflicts("Keys.Key").isEmpty());
    QVERIFY(mFixture->conflicts("Mouse.Gesture").isEmpty());
    QVERIFY(mFixture->registry->conflictsOf("Mouse.Gesture", QKeySequence("A")).isEmpty());
    QVERIFY(mFixture->registry->conflictsOf("Keys.Key", 4).isEmpty());
}

void tst_InputRegistry::usesAreInTheOrderOfDeclaration()
{
    for (const char *name : {"D", "B", "A", "C"})
        mFixture->addHotkey(name, "Ctrl+K");
    const QList<InputUse> uses = mFixture->registry->usesOf(QKeySequence("Ctrl+K"));
    QCOMPARE(InputFixture::names(uses), (QStringList{"D", "B", "A", "C"}));
    QCOMPARE(mFixture->conflicts("Keys.B"), (QStringList{"D", "A", "C"}));
}

void tst_InputRegistry::useTellsScopeKeyAndName()
{
    mFixture->addHotkey("Hotkey", "Ctrl+K");
    mFixture->addShortcut("Shortcut", "Ctrl+K");
    mFixture->addGesture("Gesture", 4);
    const QList<InputUse> uses = mFixture->registry->usesOf(QKeySequence("Ctrl+K"));
    QCOMPARE(uses.size(), 2);
    QCOMPARE(uses.at(0).scope, InputScope::Global);
    QCOMPARE(uses.at(0).key, QString("Keys.Hotkey"));
    QCOMPARE(uses.at(0).name, QString("Hotkey"));
    QCOMPARE(uses.at(1).scope, InputScope::Program);
    QCOMPARE(uses.at(1).key, QString("Keys.Shortcut"));
    QVERIFY(!uses.at(1).object && !uses.at(1).widget);
    const QList<InputUse> gestures = mFixture->registry->usesOfGesture(8);
    QCOMPARE(gestures.size(), 1);
    QCOMPARE(gestures.at(0).scope, InputScope::Program);
    QCOMPARE(gestures.at(0).key, QString("Mouse.Gesture"));
    QVERIFY(mFixture->registry->isGlobal("Keys.Hotkey"));
    QVERIFY(!mFixture->registry->isGlobal("Keys.Shortcut"));
    QVERIFY(!mFixture->registry->isGlobal("Keys.Unknown"));
}

void tst_InputRegistry::nameIsTranslated()
{
    class German : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            return context == QByteArray("QObject") && text == QByteArray("Area") ? "Bereich"
                                                                                  : QString();
        }
        bool isEmpty() const override { return false; }
    };
    mFixture->addHotkey("Area", "Ctrl+K");
    const QKeySequence keys("Ctrl+K");
    QCOMPARE(InputFixture::names(mFixture->registry->usesOf(keys)), QStringList{"Area"});
    German german;
    QVERIFY(QCoreApplication::installTranslator(&german));
    QCOMPARE(InputFixture::names(mFixture->registry->usesOf(keys)), QStringList{"Bereich"});
}

void tst_InputRegistry::valueThatWouldBeSetIsJudged()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    mFixture->addGesture("Click", 4);
    mFixture->addGesture("Other", 64);
    const InputRegistry &registry = *mFixture->registry;
    QCOMPARE(InputFixture::names(registry.conflictsOf("Keys.B", QKeySequence("Ctrl+K"))),
             QStringList{"A"});
    QVERIFY(registry.conflictsOf("Keys.A", QKeySequence("Ctrl+K")).isEmpty());
    QVERIFY(registry.conflictsOf("Keys.B", QKeySequence()).isEmpty());
    QCOMPARE(InputFixture::names(registry.conflictsOf("Mouse.Other", 8)), QStringList{"Click"});
    QVERIFY(registry.conflictsOf("Mouse.Click", 8).isEmpty());
    QVERIFY(registry.conflictsOf("Mouse.Other", 0).isEmpty());
}

void tst_InputRegistry::unknownSettingHasNoConflicts()
{
    mFixture->addHotkey("A", "Ctrl+K");
    int number = 3;
    mFixture->manager->addConfInt32("Number", &number, "Keys", "Number");
    for (const QString &key : {QString("Keys.Number"), QString("Keys.Nobody"), QString()}) {
        QVERIFY(mFixture->registry->conflictsOf(key).isEmpty());
        QVERIFY(mFixture->registry->conflictsOf(key, QKeySequence("Ctrl+K")).isEmpty());
        QVERIFY(mFixture->registry->conflictsOf(key, 3).isEmpty());
    }
}

void tst_InputRegistry::laterDeclarationIsKnown()
{
    mFixture->addHotkey("A", "Ctrl+K");
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    mFixture->addHotkey("B", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
}

void tst_InputRegistry::declarationThatReplacesAnotherIsKnown()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    mFixture->manager->items.removeLast();
    mFixture->addHotkey("C", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"C"});
    QVERIFY(mFixture->registry->usesOf(QKeySequence("Ctrl+L")).isEmpty());
    told();
    mFixture->manager->items.removeLast();
    mFixture->addHotkey("D");
    InputFixture::setKeys("D", "Ctrl+K");
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.C", "Keys.D"}));
}

void tst_InputRegistry::shortcutWithAnAdjustedEditorIsNoHotkey()
{
    MtConf::ConfItem *const item = mFixture->addShortcut("A", "Ctrl+K");
    item->widgetCreator = [](MtConf::ConfItem *edited, QWidget *parent) {
        return MtConf::ConfWidgetShortcut::CreatConfWidget(edited, parent);
    };
    QVERIFY(!mFixture->registry->isGlobal("Keys.A"));
    QCOMPARE(mFixture->registry->usesOf(QKeySequence("Ctrl+K")).first().scope,
             MtConf::InputScope::Program);
}

void tst_InputRegistry::bothSidesAreTold()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    mFixture->addGesture("Click", 4);
    mFixture->addGesture("Other", 64);
    mFixture->registry->usesOf(QKeySequence());
    told();
    InputFixture::setKeys("B", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"}); // at once
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
    InputFixture::setKeys("B", "Ctrl+L");
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
    InputFixture::store()->set("Mouse.Other", 8);
    QCOMPARE(told(), (QStringList{"Mouse.Click", "Mouse.Other"}));
    InputFixture::store()->set("Mouse.Other", 0);
    QCOMPARE(told(), (QStringList{"Mouse.Click", "Mouse.Other"}));
}

void tst_InputRegistry::othersAreNotTold()
{
    constexpr int sCount = 10000;
    QList<QByteArray> names;
    for (int i = 0; i < sCount; ++i) {
        names.append("Item" + QByteArray::number(i));
        // 5000 chords, each of two settings
        const QChar key(0x4e00 + i % (sCount / 2));
        mFixture->addHotkey(names.last().constData(), "Ctrl+" + QString(key));
    }
    QCOMPARE(mFixture->conflicts("Keys.Item7"), QStringList{"Item5007"});
    told();
    InputFixture::setKeys("Item7", "Ctrl+" + QString(QChar(0x4e00 + 8)));
    QCOMPARE(told(), (QStringList{"Keys.Item5007", "Keys.Item5008", "Keys.Item7", "Keys.Item8"}));
    QVERIFY(mFixture->conflicts("Keys.Item5007").isEmpty());
    QCOMPARE(mFixture->conflicts("Keys.Item8"), (QStringList{"Item7", "Item5008"}));
}

void tst_InputRegistry::manyChangesAreToldOnce()
{
    mFixture->addHotkey("A");
    mFixture->addHotkey("B");
    mFixture->registry->usesOf(QKeySequence());
    told();
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    for (int i = 0; i < 10; ++i) {
        InputFixture::setKeys("A", QString("Ctrl+%1").arg(i));
        InputFixture::setKeys("B", QString("Ctrl+%1").arg(i));
    }
    QCOMPARE(spy.size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
}

// Takes half a minute if each change looks for all settings with the same keys.
void tst_InputRegistry::tenThousandWithTheSameKeysAreTold()
{
    constexpr int sCount = 10000;
    QList<QByteArray> names;
    for (int i = 0; i < sCount; ++i) {
        names.append("Item" + QByteArray::number(i));
        mFixture->addHotkey(names.last().constData(), "Ctrl+L");
    }
    QCOMPARE(told().size(), 0);
    mFixture->registry->usesOf(QKeySequence());
    QCOMPARE(told().size(), sCount);
    for (const QByteArray &name : std::as_const(names))
        InputFixture::setKeys(name, "Ctrl+K");
    QCOMPARE(told().size(), sCount);
    QCOMPARE(mFixture->registry->conflictsOf("Keys.Item7").size(), sCount - 1);
}

void tst_InputRegistry::changeOfALaterDeclarationIsTold()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->registry->usesOf(QKeySequence());
    told();
    mFixture->addHotkey("B");
    InputFixture::setKeys("B", "Ctrl+K");
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
}

void tst_InputRegistry::loadedValueIsTold()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    mFixture->registry->usesOf(QKeySequence());
    told();
    const QJsonObject entry{{"v", "Ctrl+K"}, {"t", QDateTime::currentSecsSinceEpoch()}};
    InputFixture::store()->loadConf(QJsonObject{{"Keys.B", entry}}, ConfStorage::LoadLocal);
    QCOMPARE(*mFixture->sequences.at(1), QKeySequence("Ctrl+K"));
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
}

void tst_InputRegistry::restoredValueIsTold()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    InputFixture::setKeys("B", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
    told();
    mFixture->manager->restoreAllDefault();
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    QVERIFY(told().contains("Keys.A"));
}

void tst_InputRegistry::removedEntryUsesNothing()
{
    ConfStorage *const store = InputFixture::store();
    ConfStorage::DynamicConfClass entries;
    entries.prefix = "Keys.B";
    entries.creator = [store, this](const QString &key, const QJsonValue *) {
        store->reserveConf(key, mFixture->sequences.at(1).get());
    };
    entries.remover = [](const QString &) {};
    store->mDynamicConfClasses.append(&entries);
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
    told();
    store->removeDynamicConf("Keys.B");
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
    store->createDynamicConf("Keys.B", "Ctrl+K", nullptr);
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
    store->clear();
}

void tst_InputRegistry::clearedStoreUsesNothing()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+K");
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
    told();
    clearStore();
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    QVERIFY(mFixture->registry->usesOf(QKeySequence("Ctrl+K")).isEmpty());
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"}));
}

void tst_InputRegistry::storeThatIsFilledAgainIsFollowed()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->addHotkey("B", "Ctrl+L");
    mFixture->registry->usesOf(QKeySequence());
    clearStore();
    for (int i = 0; i < 2; ++i)
        InputFixture::store()->reserveConf(i == 0 ? "Keys.A" : "Keys.B",
                                           mFixture->sequences.at(static_cast<size_t>(i)).get());
    QVERIFY(mFixture->conflicts("Keys.A").isEmpty());
    told();
    InputFixture::setKeys("B", "Ctrl+K");
    QCOMPARE(told(), (QStringList{"Keys.A", "Keys.B"})); // before anybody asks
    QCOMPARE(mFixture->conflicts("Keys.A"), QStringList{"B"});
}

void tst_InputRegistry::receiverMayDeleteTheRegistry()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->registry->usesOf(QKeySequence());
    connect(mFixture->registry, &InputRegistry::usesChanged, this,
            [this] { delete mFixture->registry; });
    const QPointer<InputRegistry> registry = mFixture->registry;
    InputFixture::setKeys("A", "Ctrl+L");
    QTRY_VERIFY(!registry);
    InputFixture::setKeys("A", "Ctrl+K"); // nobody observes it any more
}

void tst_InputRegistry::managerMayBeDestroyedBeforeTheSignal()
{
    mFixture->addHotkey("A", "Ctrl+K");
    mFixture->registry->usesOf(QKeySequence());
    QSignalSpy spy(mFixture->registry, &InputRegistry::usesChanged);
    InputFixture::setKeys("A", "Ctrl+L");
    mFixture->manager.reset();
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
}

int main(int argc, char **argv)
{
    return runTest<tst_InputRegistry>(argc, argv);
}

#include "tst_InputRegistry.moc"
