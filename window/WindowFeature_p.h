#pragma once

#include "PageGroups_p.h"
#include "PageRow_p.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QListView;
class QScrollArea;
class QVBoxLayout;

namespace MtConf {

class ConfigurationWindow;
class HostCode;
class MtConfManage;
class PageBuilder;
class ValueOrigins;

/// The base class of the features of the settings window, each of which is one class. The window
/// creates them, calls the virtual functions, and deletes them with its other children. Nothing
/// else knows of a feature.
class WindowFeature : public QObject
{
    Q_OBJECT
public:
    /// Creates a feature of `window`. The page does not exist yet.
    explicit WindowFeature(ConfigurationWindow *window);

    /// Returns the text that the window shows for the name of a class or a group.
    static QString translatedName(const QString &name);

    /// Called when the widgets of a row are laid out. The row is not in rows() yet.
    virtual void rowAdded(const PageRow &row);
    /// Called when a page is complete, also a custom one.
    virtual void pageShown();
    /// Called before the widgets of a page are deleted.
    virtual void pageCleared();
    /// Called when the style sheet is applied: at the start, and after a change of theme or scale.
    virtual void sheetApplied();
    /// Called when the language has changed.
    virtual void retranslate();
    /// Called when the window closes, or the program quits with an open window, before the store is
    /// saved.
    virtual void windowClosed();

protected:
    ConfigurationWindow *window() const { return mWindow; }
    /// Null if the manager was destroyed while host code was running.
    MtConfManage *manager() const;
    std::shared_ptr<HostCode> hostCode() const;
    /// Null unless `DetailsFeature` is set.
    const ValueOrigins *origins() const;

    /// The list of classes. The data of a row in sClassNameRole is the name of the class.
    QListView *classList() const;
    static constexpr int sClassNameRole = Qt::UserRole + 1;
    /// The column on the left: the list of classes and the widgets above and below it.
    QVBoxLayout *classColumn() const;
    bool isModern() const;
    QScrollArea *scrollArea() const;

    /// Lets the editors of the page store what is typed. Returns false if a callback has deleted
    /// the window.
    bool commitEditors();
    /// The rows of the shown page.
    const QList<PageRow> &rows() const;
    /// Returns the row with the control or the caption `widget`, which may be null. Null if there
    /// is none.
    const PageRow *rowOf(const QObject *widget) const;
    /// Returns the row whose control, caption or button has the keyboard focus, or null.
    const PageRow *focusedRow() const;
    PageBuilder *builder() const;
    /// The scale of the window in pixels per point.
    double scale() const;
    /// Returns `pixels`, a size at 96 dots per inch, in pixels of the window.
    int scaled(double pixels) const;

    /// Shows `groups` instead of the page of the selected class: captions, translated, with the
    /// items below each. The editors are live.
    void showItems(const PageGroups &groups);
    /// Returns whether showItems() has replaced the page of the selected class.
    bool showsItems() const;
    /// Shows the page of the selected class again.
    void rebuildPage();

private:
    ConfigurationWindow *const mWindow;
};

} // namespace MtConf
