#pragma once

#include "support/WindowFixture.h"

#include <QLineEdit>
#include <QScrollArea>

/// A settings window with Find and a few settings on three pages.
class FindFixture : public WindowFixture
{
public:
    FindFixture()
    {
        manager->windowFeatures = MtConf::FindFeature;
        addBool("Show tips");
        addBool("Capture an area", "Area", "Capture");
        addBool("Capture a window", "Window", "Capture");
        addBool("Hotkeys work", "", "System")->setHelp("Also those of a window");
    }

    static QLineEdit *field() { return child<QLineEdit>("FindField"); }
    static QLabel *hint() { return child<QLabel>("FindHint"); }

    /// Types `query` into the empty field, and waits for the results. Returns whether they are
    /// shown.
    static bool find(const QString &query)
    {
        field()->setFocus();
        field()->clear();
        QCoreApplication::processEvents(); // ends the previous search
        QTest::keyClicks(field(), query);
        const bool isShown = QTest::qWaitFor(hasResults);
        QCoreApplication::processEvents(); // shows and lays out the rows
        return isShown;
    }
    /// Returns whether results are shown in place of the page.
    static bool hasResults()
    {
        return child<QScrollArea>("scrollArea")->accessibleName() == QLatin1String("Results");
    }
    /// Returns the names of the classes that are not hidden.
    static QStringList shownClasses()
    {
        QStringList names;
        const QListView *list = classList();
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            if (!list->isRowHidden(row))
                names << list->model()->index(row, 0).data().toString();
        }
        return names;
    }
    /// Returns the keys of the settings that have an editor, in declaration order.
    QStringList shownKeys() const
    {
        QStringList keys;
        for (const MtConf::ConfItem &item : std::as_const(manager->items)) {
            if (item.editor)
                keys << item.getFullName();
        }
        return keys;
    }
    /// Returns the setting on the page "System".
    MtConf::ConfItem *hotkeysItem() const
    {
        return manager->getItemByName("System", "Hotkeys work", QString());
    }
    MtConf::ConfItem *tipsItem() const
    {
        return manager->getItemByName("General", "Show tips", QString());
    }
};
