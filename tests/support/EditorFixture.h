#pragma once

#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <memory>

/// A manager with an empty store, and a parent widget for editors in place of the window's page.
class EditorFixture
{
public:
    EditorFixture() : layout(new QVBoxLayout(&parent)) { clearStore(); }
    ~EditorFixture() { clearStore(); }
    Q_DISABLE_COPY(EditorFixture)

    /// Creates the editor of `item` with its factory and adds it with its caption, as the window
    /// does.
    template<class Editor> Editor *edit(MtConf::ConfItem *item)
    {
        auto *editor = dynamic_cast<Editor *>(item->widgetCreator(item, &parent));
        layout->addWidget(editor->label());
        layout->addWidget(editor);
        return editor;
    }

    /// Shows the parent widget; returns false if it does not become the active window.
    bool show()
    {
        parent.show();
        parent.activateWindow();
        return QTest::qWaitForWindowActive(&parent);
    }

    static ConfStorage *store() { return ConfStorage::instance(); }

    MtConf::MtConfManage manager;
    QWidget parent;
    QVBoxLayout *layout;
};

/// Returns the caption's "changed" property: "1" while the value differs from its default.
inline QString changedMark(MtConf::ConfigItemWidget *editor)
{
    return editor->label()->property("changed").toString();
}
