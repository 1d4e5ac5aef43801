#include "HotkeyEditorFixture.h"
#include "support/TestMain.h"

#include <QLabel>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// Hotkeys whose item has a validator.
class tst_ConfDefWidgetQKeySequenceValidator : public HotkeyEditorFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { clear(); }

    void acceptedKeysAreRegisteredAndStored();
    void refusedKeysAreNeitherRegisteredNorStored();
    void storedKeysEndTheMessage();
    void restoredKeysAreRegisteredUnasked();
    void validatorMayDestroy_data();
    void validatorMayDestroy();
    void validatorMayReplaceTheShortcut();

private:
    const QKeySequence mRefused{"Ctrl+Alt+X"};
    QStringList mAsked;
};

void tst_ConfDefWidgetQKeySequenceValidator::init()
{
    reset();
    makeItem(true);
    mAsked.clear();
    mItem->setValidator([this](const QJsonValue &keys) {
        mAsked.append(keys.toString());
        return keys.toString() == mRefused.toString() ? QString("not this one") : QString();
    });
    makeEditor();
    mFixture->layout->addWidget(mEditor->messageLabel());
}

void tst_ConfDefWidgetQKeySequenceValidator::acceptedKeysAreRegisteredAndStored()
{
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), mValue);
    QCOMPARE(mAsked, QStringList{"Ctrl+Alt+K"});
}

void tst_ConfDefWidgetQKeySequenceValidator::refusedKeysAreNeitherRegisteredNorStored()
{
    press(Qt::Key_K);
    press(Qt::Key_X);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), mValue);
    QCOMPARE(mEditor->messageLabel()->text(), QString("not this one"));
    QCOMPARE(mField->keySequence(), mRefused); // to be mended by the user
    QCOMPARE(mAsked, (QStringList{"Ctrl+Alt+K", "Ctrl+Alt+X"}));
}

void tst_ConfDefWidgetQKeySequenceValidator::storedKeysEndTheMessage()
{
    press(Qt::Key_K);
    press(Qt::Key_X);
    press(Qt::Key_K);
    QCOMPARE(mEditor->messageLabel()->text(), QString());
    QCOMPARE(mField->keySequence(), mValue);
}

void tst_ConfDefWidgetQKeySequenceValidator::restoredKeysAreRegisteredUnasked()
{
    store(mRefused); // by the program
    mEditor->refresh();
    QCOMPARE(mShortcut->shortcut(), mRefused);
    QCOMPARE(mValue, mRefused);
    QCOMPARE(mAsked, QStringList());
}

void tst_ConfDefWidgetQKeySequenceValidator::validatorMayDestroy_data()
{
    QTest::addColumn<std::function<void()>>("act");
    QTest::newRow("the shortcut") << std::function<void()>([this] { mShortcut.reset(); });
    QTest::newRow("the editor") << std::function<void()>([this] { delete mEditor.data(); });
    QTest::newRow("both") << std::function<void()>([this] {
        mShortcut.reset();
        delete mEditor.data();
    });
}

void tst_ConfDefWidgetQKeySequenceValidator::validatorMayDestroy()
{
    QFETCH(const std::function<void()>, act);
    mItem->setValidator([&act](const QJsonValue &) {
        act();
        return QString();
    });
    press(Qt::Key_K);
    QVERIFY(mValue.isEmpty());
    QVERIFY(!mShortcut || mShortcut->shortcut().isEmpty());
}

void tst_ConfDefWidgetQKeySequenceValidator::validatorMayReplaceTheShortcut()
{
    mItem->setValidator([this](const QJsonValue &) {
        mShortcut = std::make_unique<QxtGlobalShortcut>();
        mItem->properties["Shortcut"] = QVariant::fromValue(mShortcut.get());
        return QString();
    });
    press(Qt::Key_K);
    QCOMPARE(mValue, QKeySequence("Ctrl+Alt+K"));
    QCOMPARE(mShortcut->shortcut(), mValue);
}

int main(int argc, char **argv)
{
    return runTest<tst_ConfDefWidgetQKeySequenceValidator>(argc, argv);
}

#include "tst_ConfDefWidgetQKeySequenceValidator.moc"
