#pragma once

#include "support/EditorFixture.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QLabel>
#include <QListWidget>
#include <QPointer>

#include <memory>
#include <vector>

/// A test object with any number of mouse gestures and their editors.
class MouseActionFixture : public QObject
{
protected:
    static constexpr int sShift = 0x02000000;
    static constexpr int sControl = 0x04000000;
    static constexpr int sAlt = 0x08000000;
    static constexpr int sMeta = 0x10000000;

    /// One item with its variable, its editor and the editor's controls.
    struct Gesture
    {
        int value = 0;
        std::unique_ptr<MtConf::ConfItem> item;
        QPointer<MtConf::ConfWidgetMouseAction> editor;
        QPointer<QComboBox> actions;
        QPointer<MultiSelectComboBox> modifiers;
        QPointer<QLabel> state;
    };

    /// Resets the fixture; there is no gesture yet.
    void reset()
    {
        mFixture = std::make_unique<EditorFixture>();
        QCOMPARE(MtConf::ConfWidgetMouseAction::sConflictList.size(), 0);
    }
    void clear()
    {
        mFixture.reset();
        mGestures.clear();
    }

    Gesture *add(const char *text, int value, int kind)
    {
        mGestures.push_back(std::make_unique<Gesture>());
        Gesture *gesture = mGestures.back().get();
        gesture->value = value;
        gesture->item = std::make_unique<MtConf::ConfItem>(&gesture->value, "Mouse", text, "");
        gesture->item->displayText = text;
        gesture->item->widgetCreator = [kind](MtConf::ConfItem *item, QWidget *parent) {
            return new MtConf::ConfWidgetMouseAction(item, parent, kind);
        };
        gesture->editor = mFixture->edit<MtConf::ConfWidgetMouseAction>(gesture->item.get());
        gesture->actions = gesture->editor->findChild<ComboboxDisableWheel *>();
        gesture->modifiers = gesture->editor->findChild<MultiSelectComboBox *>();
        const auto labels = gesture->editor->findChildren<QLabel *>(QString(),
                                                                    Qt::FindDirectChildrenOnly);
        for (QLabel *label : labels) {
            if (label->property("class").isValid())
                gesture->state = label;
        }
        return gesture;
    }

    /// Sets the controls to show `value`.
    static void show(Gesture *gesture, int value)
    {
        for (int row = 0; row < 4; ++row)
            gesture->modifiers->setItemChecked(row, value & (sShift << row));
        gesture->actions->setCurrentIndex(gesture->actions->findData(value & 0xffff));
    }
    /// Opens the list of modifiers and clicks a row.
    static void clickModifier(const Gesture *gesture, int row)
    {
        gesture->modifiers->showPopup();
        auto *list = qobject_cast<QListWidget *>(gesture->modifiers->view());
        QWidget *box = list->itemWidget(list->item(row));
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(10, box->height() / 2));
    }

    static QString action(const Gesture *gesture) { return gesture->actions->currentText(); }
    static void store(const Gesture *gesture, int value)
    {
        ConfStorage::instance()->set<int>(gesture->item->getFullName(), value);
    }
    static QString stateClass(const Gesture *gesture)
    {
        return gesture->state->property("class").toString();
    }
    static int glyph(const Gesture *gesture)
    {
        return gesture->state->text().size() == 1 ? gesture->state->text().at(0).unicode() : -1;
    }

    std::unique_ptr<EditorFixture> mFixture;
    std::vector<std::unique_ptr<Gesture>> mGestures;
};
