#include "MaltoConfiguration/window/history/HotkeyItems_p.h"
#include "support/CleanStore.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QxtGlobalShortcut>

#include <memory>

using MtConf::ConfItem;
using MtConf::MtConfManage;
using MtConf::registerHotkeys;

class tst_HotkeyItems : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        clearStore();
        mManager = std::make_unique<MtConfManage>();
    }
    void cleanup()
    {
        mManager.reset();
        clearStore();
    }

    void storedHotkeyIsRegistered();
    void otherKeysAreLeftAlone();
    void itemsWithoutAHotkeyAreSkipped();
    void nullManagerIsAccepted() { registerHotkeys(nullptr, {"Hotkeys.A"}); }

private:
    ConfItem *add(const char *name, QKeySequence *keys, QxtGlobalShortcut *shortcut)
    {
        ConfItem *item = mManager->addConfQKeySequence(name, keys, "Hotkeys", name);
        item->properties.insert("Shortcut", QVariant::fromValue(shortcut));
        return item;
    }

    std::unique_ptr<MtConfManage> mManager;
};

void tst_HotkeyItems::storedHotkeyIsRegistered()
{
    QKeySequence keys("Ctrl+A");
    QxtGlobalShortcut shortcut;
    add("A", &keys, &shortcut);
    registerHotkeys(mManager.get(), {"Hotkeys.A"});
    QCOMPARE(shortcut.shortcut(), QKeySequence("Ctrl+A"));
    keys = QKeySequence();
    registerHotkeys(mManager.get(), {"Hotkeys.A"});
    QVERIFY(shortcut.shortcut().isEmpty());
}

void tst_HotkeyItems::otherKeysAreLeftAlone()
{
    QKeySequence a("Ctrl+A");
    QKeySequence b("Ctrl+B");
    QxtGlobalShortcut first;
    QxtGlobalShortcut second;
    add("A", &a, &first);
    add("B", &b, &second);
    registerHotkeys(mManager.get(), {"Hotkeys.B", "Hotkeys.Unknown"});
    QVERIFY(first.shortcut().isEmpty());
    QCOMPARE(second.shortcut(), QKeySequence("Ctrl+B"));
}

void tst_HotkeyItems::itemsWithoutAHotkeyAreSkipped()
{
    QKeySequence keys("Ctrl+A");
    add("A", &keys, nullptr);
    int number = 7;
    QxtGlobalShortcut shortcut(QKeySequence("Ctrl+N"));
    ConfItem *item = mManager->addConfInt32("N", &number, "Hotkeys", "N");
    item->properties.insert("Shortcut", QVariant::fromValue(&shortcut));
    registerHotkeys(mManager.get(), {"Hotkeys.A", "Hotkeys.N"});
    QCOMPARE(shortcut.shortcut(), QKeySequence("Ctrl+N"));
}

int main(int argc, char **argv)
{
    return runTest<tst_HotkeyItems>(argc, argv);
}

#include "tst_HotkeyItems.moc"
