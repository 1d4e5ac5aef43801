#include "DemoFixture.h"
#include "demo/ProfileStore.h"
#include "support/TestMain.h"

#include <MaltoConfiguration/store/ConfOperation.h>

#include <QFrame>
#include <QLabel>
#include <QListWidget>

/// Undo in the settings window of the demo, which has all features: profiles on a custom page, and
/// settings whose callbacks change others.
class tst_UndoInDemo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { mDemo.reset(); }

    void changesOfAProfileAreUndone();
    void addedAndRemovedProfilesAreUndone();
    void restoredPresetsAreOneStep();
    void pageOfAProfileIsOpened();
    void restoredSettingsAreUndone();

private:
    ProfileStore &profiles() const { return mDemo->session->profiles(); }
    static void press(QKeySequence::StandardKey key)
    {
        MtConf::ConfigurationWindow *const window = DemoFixture::window();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keySequence(window->focusWidget() ? window->focusWidget() : window,
                           QKeySequence(key));
        QCoreApplication::processEvents(); // the page updates in the next event loop iteration
    }
    static QString barText()
    {
        auto *bar = DemoFixture::child<QFrame>("UndoBar");
        return bar->isVisible() ? bar->findChild<QLabel *>()->text() : QString();
    }

    std::unique_ptr<DemoFixture> mDemo;
    const QString mScreen = ProfileStore::prefix() + "Screen";
};

void tst_UndoInDemo::init()
{
    mDemo = std::make_unique<DemoFixture>();
    mDemo->session = std::make_unique<DemoSession>(DemoFixture::localFile(),
                                                   DemoSession::Look::Modern);
    mDemo->session->load(QString());
    QVERIFY(mDemo->open(QStringLiteral("Profiles")));
    QCoreApplication::processEvents();
}

void tst_UndoInDemo::changesOfAProfileAreUndone()
{
    auto *width = DemoFixture::child<QSpinBox>("profileWidth");
    QCOMPARE(width->value(), 1920);
    DemoFixture::type(width, QStringLiteral("640"));
    profiles().rename(mScreen, QStringLiteral("Mine"));
    QCoreApplication::processEvents();
    QCOMPARE(profiles().name(mScreen), QStringLiteral("Mine"));
    QVERIFY(!profiles().isUntouchedPreset(mScreen));
    press(QKeySequence::Undo);
    QCOMPARE(profiles().name(mScreen), QStringLiteral("Screen"));
    press(QKeySequence::Undo);
    QCOMPARE(width->value(), 1920);
    QVERIFY(profiles().isUntouchedPreset(mScreen));
    press(QKeySequence::Redo);
    QCOMPARE(width->value(), 640);
}

void tst_UndoInDemo::addedAndRemovedProfilesAreUndone()
{
    const QString key = profiles().add();
    profiles().rename(key, QStringLiteral("Mine"));
    profiles().remove(key);
    profiles().remove(mScreen);
    QTRY_COMPARE(barText(), QStringLiteral("Removed 1 entry."));
    press(QKeySequence::Undo);
    QVERIFY(profiles().isUntouchedPreset(mScreen));
    QCOMPARE(profiles().keys().size(), 3);
    press(QKeySequence::Undo);
    QCOMPARE(profiles().name(key), QStringLiteral("Mine"));
    QCOMPARE(DemoFixture::child<QListWidget>("profileList")->count(), 4);
    press(QKeySequence::Undo);
    press(QKeySequence::Undo);
    QCOMPARE(profiles().keys().size(), 3);
}

void tst_UndoInDemo::restoredPresetsAreOneStep()
{
    const QString key = profiles().add();
    profiles().setValue(mScreen, QStringLiteral("width"), 640);
    profiles().remove(ProfileStore::prefix() + "Window");
    profiles().restorePresets();
    QCOMPARE(profiles().keys().size(), 3);
    QTRY_COMPARE(barText(), QStringLiteral("Restored 3 settings."));
    press(QKeySequence::Undo);
    QCOMPARE(barText(), QString());
    QCOMPARE(profiles().keys().size(), 3);
    QVERIFY(profiles().keys().contains(key));
    QCOMPARE(profiles().profile(mScreen).value("width").toInt(), 640);
    press(QKeySequence::Redo);
    QVERIFY(!profiles().keys().contains(key));
}

void tst_UndoInDemo::pageOfAProfileIsOpened()
{
    profiles().setValue(mScreen, QStringLiteral("width"), 640);
    DemoFixture::window()->switchToView(QStringLiteral("General"));
    press(QKeySequence::Undo);
    QCOMPARE(DemoFixture::window()->currentClass(), QStringLiteral("Profiles"));
    QCOMPARE(profiles().profile(mScreen).value("width").toInt(), 1920);
}

void tst_UndoInDemo::restoredSettingsAreUndone()
{
    ConfStorage *const store = ConfStorage::instance();
    profiles().setValue(mScreen, QStringLiteral("width"), 640);
    const auto values = [&] {
        QJsonObject all;
        for (auto it = store->mConfValues.cbegin(); it != store->mConfValues.cend(); ++it) {
            if (!it.key().startsWith(QLatin1String("Malto.")))
                all.insert(it.key(), it->toJsonValue());
        }
        return all;
    };
    const QJsonObject defaults = values();
    int count = 0;
    for (const MtConf::ConfItem &item : mDemo->session->manager().items) {
        if (item.valueType != ConfValue::TyBool)
            continue;
        const ConfOperation edit(store, ConfChange::Cause::Edited);
        store->set(item.getFullName(), !store->get<bool>(item.getFullName()));
        ++count;
    }
    QVERIFY(count > 5);
    const QJsonObject changed = values();
    {
        const ConfOperation restoring(store, ConfChange::Cause::Restored);
        mDemo->session->manager().restoreAllDefault();
    }
    QVERIFY(values() != changed);
    QTRY_VERIFY(barText().startsWith(QLatin1String("Restored ")));
    press(QKeySequence::Undo);
    QCOMPARE(values(), changed);
    for (int i = 0; i < count; ++i)
        press(QKeySequence::Undo);
    QCOMPARE(values(), defaults);
}

int main(int argc, char **argv)
{
    return runTest<tst_UndoInDemo>(argc, argv);
}

#include "tst_UndoInDemo.moc"
