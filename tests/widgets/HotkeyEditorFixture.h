#pragma once

#include "support/EditorFixture.h"

#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QPointer>
#include <QPushButton>
#include <QxtGlobalShortcut>

#include <memory>

/// Returns the tool tip of the state button for a hotkey that could not be registered.
inline QString failedToolTip()
{
    return QStringLiteral("Setup failed, the hotkey may be occupied. Click to try setup again.");
}

/// Returns a sequence of two chords, which no platform can register.
inline QKeySequence neverValid()
{
    return QKeySequence(QStringLiteral("Ctrl+K, Ctrl+L"));
}

/// A test object with one hotkey item, its global shortcut and its editor.
class HotkeyEditorFixture : public QObject
{
protected:
    /// Resets the fixture; there is no item yet.
    void reset()
    {
        mFixture = std::make_unique<EditorFixture>();
        mValue = QKeySequence();
    }
    void clear()
    {
        mFixture.reset();
        mItem.reset();
        mShortcut.reset();
    }

    void makeItem(bool withShortcut)
    {
        mItem = std::make_unique<MtConf::ConfItem>(&mValue, "Hotkeys", "Capture", "");
        mItem->displayText = "Capture area";
        mItem->widgetCreator = MtConf::ConfDefWidgetQKeySequence::CreatConfWidget;
        if (!withShortcut)
            return;
        mShortcut = std::make_unique<QxtGlobalShortcut>();
        mItem->properties.insert("Shortcut", QVariant::fromValue(mShortcut.get()));
    }

    void makeEditor()
    {
        mEditor = mFixture->edit<MtConf::ConfDefWidgetQKeySequence>(mItem.get());
        mField = mEditor->findChild<KeySequenceEdit *>();
        mButton = mEditor->findChild<QPushButton *>();
        QVERIFY(mField);
        QVERIFY(mButton);
        QVERIFY(mFixture->show());
        mField->setFocus();
    }

    void store(const QKeySequence &sequence)
    {
        ConfStorage::instance()->set<QKeySequence>(mItem->getFullName(), sequence);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier | Qt::AltModifier)
    {
        QTest::keyPress(mField.data(), Qt::Key(key), modifiers);
    }

    std::unique_ptr<EditorFixture> mFixture;
    std::unique_ptr<MtConf::ConfItem> mItem;
    std::unique_ptr<QxtGlobalShortcut> mShortcut;
    QKeySequence mValue;
    QPointer<MtConf::ConfDefWidgetQKeySequence> mEditor;
    QPointer<KeySequenceEdit> mField;
    QPointer<QPushButton> mButton;
};
