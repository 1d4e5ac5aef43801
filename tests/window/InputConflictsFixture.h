#pragma once

#include "support/WindowFixture.h"

#include <MaltoConfiguration/widgets/KeySequenceEdit.h>

#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QxtGlobalShortcut>

#include <memory>

/// A settings window with hotkeys, a shortcut and gestures, for tests of those that are used twice.
class InputConflictsFixture
{
public:
    using ConfItem = MtConf::ConfItem;

    static constexpr auto sReplace = "Replace";
    static constexpr auto sSwap = "Swap";
    static constexpr auto sKeepBoth = "Keep both";
    static constexpr auto sCancel = "Cancel";

    /// Adds the global test data: each test runs in both looks.
    static void addLooks()
    {
        QTest::addColumn<quint32>("features");
        QTest::addColumn<bool>("isModern");
        QTest::newRow("classic look")
            << quint32(MtConf::InputConflictsFeature | MtConf::UndoFeature) << false;
        QTest::newRow("modern look, all features") << quint32(MtConf::AllWindowFeatures) << true;
    }
    void create()
    {
        mAreaKeys = QKeySequence("Ctrl+K");
        mWindowKeys = QKeySequence("Ctrl+L");
        mSaveKeys = QKeySequence("Ctrl+S");
        mFarKeys = QKeySequence("Ctrl+F");
        mPanValue = 4;  // right click
        mZoomValue = 2; // left double click
        mFarValue = 16; // middle click
        mFixture = std::make_unique<WindowFixture>();
        auto &manager = *mFixture->manager;
        QFETCH_GLOBAL(const quint32, features);
        QFETCH_GLOBAL(const bool, isModern);
        manager.windowFeatures = features;
        manager.windowLook = isModern ? MtConf::ModernLook : MtConf::ClassicLook;
        mHost = std::make_unique<QMainWindow>();
        auto *const save = new QAction("Save", mHost.get());
        mHost->addAction(save);
        mArea = addHotkey("Area", &mAreaKeys, &mAreaShortcut);
        mWindow = addHotkey("Window", &mWindowKeys, &mWindowShortcut);
        mSave = manager.addConfShortcut("Save", &mSaveKeys, save, "Keys", "Save");
        manager.addConfMouseAction("Pan", &mPanValue, 1, "Mouse", "Pan");
        manager.addConfMouseAction("Zoom", &mZoomValue, 1, "Mouse", "Zoom");
        mPan = manager.getItemByName("Mouse", "Pan", "");
        mZoom = manager.getItemByName("Mouse", "Zoom", "");
        addHotkey("Far", &mFarKeys, &mFarShortcut, "Far");
        manager.addConfMouseAction("Distant", &mFarValue, 1, "Far", "Distant");
    }
    void destroy()
    {
        mFixture.reset();
        mHost.reset();
    }

    void open(const QString &page = "Keys")
    {
        QVERIFY(mFixture->open(page));
        WindowFixture::window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(WindowFixture::window()));
    }
    ConfItem *addHotkey(const char *name, QKeySequence *keys, QxtGlobalShortcut *shortcut,
                        const char *page = "Keys")
    {
        shortcut->setShortcut(*keys);
        ConfItem *const item = mFixture->manager->addConfQKeySequence(name, keys, page, name);
        item->properties["Shortcut"] = QVariant::fromValue(shortcut);
        return item;
    }
    static KeySequenceEdit *recorder(const ConfItem *item)
    {
        return item->editor->findChild<KeySequenceEdit *>();
    }
    static void record(const ConfItem *item, Qt::Key key)
    {
        recorder(item)->setFocus();
        QTest::keyClick(recorder(item), key, Qt::ControlModifier);
    }
    static QWidget *offer()
    {
        const QList<QFrame *> frames = WindowFixture::window()->findChildren<QFrame *>();
        for (QFrame *frame : frames) {
            if (frame->property("class") == "InputOffer" && !frame->isHidden())
                return frame;
        }
        return nullptr;
    }
    static QString question()
    {
        return offer() ? offer()->findChild<QLabel *>()->text() : QString();
    }
    static QPushButton *button(const QString &text)
    {
        const QList<QPushButton *> buttons = offer() ? offer()->findChildren<QPushButton *>()
                                                     : QList<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == text && !button->isHidden())
                return button;
        }
        return nullptr;
    }
    static QStringList offered()
    {
        QStringList texts;
        for (const char *text : {sReplace, sSwap, sKeepBoth, sCancel}) {
            if (button(text))
                texts.append(text);
        }
        return texts;
    }
    static void answer(const QString &text)
    {
        QCoreApplication::processEvents(); // the layout
        QTest::mouseClick(button(text), Qt::LeftButton);
    }
    /// Returns the notes about keys on the page, by row.
    static QStringList notes()
    {
        QStringList texts;
        const QList<QLabel *> labels = WindowFixture::window()->findChildren<QLabel *>("InputNote");
        for (const QLabel *label : labels) {
            if (!label->isHidden())
                texts.append(label->text());
        }
        texts.sort();
        return texts;
    }
    static QComboBox *actions(const ConfItem *item)
    {
        return item->editor->findChildren<QComboBox *>().last();
    }
    static void choose(const ConfItem *item, int gesture)
    {
        actions(item)->setCurrentIndex(actions(item)->findData(gesture));
    }
    static void undo(QKeySequence::StandardKey key = QKeySequence::Undo)
    {
        const QList<QAction *> all = WindowFixture::window()->findChildren<QAction *>();
        for (QAction *action : all) {
            if (action->objectName() == (key == QKeySequence::Undo ? "Undo" : "Redo"))
                action->trigger();
        }
    }

    std::unique_ptr<WindowFixture> mFixture;
    std::unique_ptr<QMainWindow> mHost;
    ConfItem *mArea = nullptr;
    ConfItem *mWindow = nullptr;
    ConfItem *mSave = nullptr;
    ConfItem *mPan = nullptr;
    ConfItem *mZoom = nullptr;
    QKeySequence mAreaKeys;
    QKeySequence mWindowKeys;
    QKeySequence mSaveKeys;
    QKeySequence mFarKeys;
    int mPanValue = 0;
    int mZoomValue = 0;
    int mFarValue = 0;
    QxtGlobalShortcut mAreaShortcut;
    QxtGlobalShortcut mWindowShortcut;
    QxtGlobalShortcut mFarShortcut;
};
