#pragma once

#include "support/CleanStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>

#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

#include <memory>

/// A manager over an empty store and a shown parent, as the page of the window is, to try editors.
class EditorFixture
{
public:
    EditorFixture() : layout(new QVBoxLayout(&parent)) { clearStore(); }
    ~EditorFixture() { clearStore(); }
    Q_DISABLE_COPY(EditorFixture)

    /// Makes the editor of `item` by its factory, with its caption, as the window does.
    template<class Editor> Editor *edit(MtConf::ConfItem *item)
    {
        auto *editor = dynamic_cast<Editor *>(item->widgetCreator(item, &parent));
        layout->addWidget(editor->label());
        layout->addWidget(editor);
        return editor;
    }

    /// Shows the parent; false if it does not become the active window.
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

/// How the caption of an editor is marked: "1" while the value differs from its default.
inline QString changedMark(MtConf::ConfigItemWidget *editor)
{
    return editor->label()->property("changed").toString();
}
