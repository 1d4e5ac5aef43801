#pragma once

#include "TypedEditorFixture.h"

#include <QPushButton>

#include <utility>

/// The editor of one item on a shown page, and a button that can take the focus.
template<class Editor> class TextEditorFixture : public TypedEditorFixture
{
public:
    TextEditorFixture() : other(new QPushButton(&parent)) {}

    /// Shows the editor of `item` as the window does. Returns false if the page does not become
    /// active.
    bool openPage(MtConf::ConfItem *edited)
    {
        item = edited;
        editor = open<Editor>(edited);
        layout->addWidget(other);
        editor->describeControls("Group");
        return show();
    }

    template<class Widget> Widget *child() const { return editor->template findChild<Widget *>(); }
    QPushButton *button(const QString &text) const
    {
        const QList<QPushButton *> buttons = editor->template findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    QDateTime lastChangeTime() const
    {
        return store()->mConfMetas[item->getFullName()].lastChangeTime;
    }

    /// Lets the next change of the item delete the editor, as a host does that shows another page.
    void deleteEditorInCallback()
    {
        item->setConfChangedCallback([this](const QString &, const ConfValue *) {
            if (editor)
                delete std::exchange(editor, nullptr).data();
        });
    }

    MtConf::ConfItem *item = nullptr;
    QPointer<Editor> editor;
    QPushButton *const other;
};
