#pragma once

#include "support/EditorFixture.h"

#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>

#include <QCheckBox>
#include <QListView>
#include <QWindow>

using Labels = QList<const char *>;

/// Creates combo box editors for two items, "Capture.Mode" bound to `mInt` and "Capture.Name" bound
/// to `mString`, and clicks in their lists.
class ComboboxFixture
{
protected:
    void open()
    {
        mFixture = std::make_unique<EditorFixture>();
        mInt = 0;
        mString.clear();
    }
    void close() { mFixture.reset(); }

    MtConf::ConfItem *intItem()
    {
        return mFixture->manager.addConfInt32("Mode", &mInt, "Capture", "Mode");
    }
    MtConf::ConfItem *stringItem()
    {
        return mFixture->manager.addConfQString("Name", &mString, "Capture", "Name");
    }
    /// Creates the editor of `item`; with `multi` its list has check boxes.
    MtConf::ConfWidgetCombobox *edit(MtConf::ConfItem *item, bool multi = false)
    {
        item->widgetCreator = MtConf::ConfWidgetCombobox::CreatConfWidget;
        if (multi)
            item->properties.insert("MultiSelect", false);
        auto *editor = mFixture->edit<MtConf::ConfWidgetCombobox>(item);
        mBox = editor->findChild<QComboBox *>();
        mMulti = qobject_cast<MultiSelectComboBox *>(mBox);
        return editor;
    }

    QCheckBox *checkBox(int index) const
    {
        return qobject_cast<QCheckBox *>(mBox->view()->indexWidget(mBox->model()->index(index, 0)));
    }
    QList<int> checkedRows() const
    {
        QList<int> rows;
        for (int i = 0; i < mMulti->count(); ++i) {
            if (checkBox(i) && checkBox(i)->isChecked())
                rows.append(i);
        }
        return rows;
    }
    void clickBox(int index) const
    {
        QTest::mouseClick(checkBox(index), Qt::LeftButton, {},
                          QPoint(8, checkBox(index)->height() / 2));
    }
    /// Opens the list and clicks a row, not its check box.
    void clickRow(int index) const
    {
        QVERIFY(mFixture->show());
        mBox->showPopup();
        QWidget *list = mBox->view()->window();
        QVERIFY(QTest::qWaitForWindowExposed(list));
        const QRect row = mBox->view()->visualRect(mBox->model()->index(index, 0));
        const QPoint point = mBox->view()->viewport()->mapToGlobal(
            QPoint(row.right() - 6, row.center().y()));
        QCursor::setPos(point);
        QTRY_COMPARE(QCursor::pos(), point);
        QWindow *window = list->windowHandle();
        QTest::mouseMove(window, window->mapFromGlobal(point));
        QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(point));
    }

    std::unique_ptr<EditorFixture> mFixture;
    QComboBox *mBox = nullptr;
    MultiSelectComboBox *mMulti = nullptr;
    int mInt = 0;
    QString mString;
};
