#pragma once

#include <MaltoConfiguration/ItemList.h>
#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/manage/MajorConfItem.h>

#include <QList>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

class QAction;
class QShortcut;

namespace MtConf {

class ConfigurationWindow;
class ValueOrigins;

/// Bits of `MtConfManage::windowFeatures`: what the settings window offers besides the editors. See
/// docs/guide/window.md.
///
/// @since 0.1
enum WindowFeatureFlag : quint32 {
    FindFeature = 0x1,          ///< a field that finds settings on all pages
    ResetFeature = 0x2,         ///< a button that resets one row, and marks of what has changed
    UndoFeature = 0x4,          ///< undo and redo of each edit
    DetailsFeature = 0x8,       ///< help under the captions, and where a value comes from
    ImportExportFeature = 0x10, ///< import from a file with a preview, and export
    LivePagesFeature = 0x20,    ///< open pages follow the store
    NavigationFeature = 0x40,   ///< keys for closing, for the next page and for help
    HostNameFeature = 0x80,     ///< the host's title and icon, and the geometry in the store
    /// says which keys and gestures are used twice, and offers to replace or swap them
    InputConflictsFeature = 0x100,
    AllWindowFeatures = 0x1ff ///< all of them
};

/// How the settings window looks.
///
/// @see MtConfManage::windowLook
/// @since 0.1
enum WindowLook {
    ClassicLook, ///< captions and editors in two columns, in panels as wide as the window
    ModernLook   ///< rows with editors at the right, in panels of limited width
};

/// The settings and classes that a host declares, in order, and the access to the settings window.
///
/// A host creates one manager and calls one `addConf` function for each setting. Then it loads its
/// files and shows the window. Use the manager on the GUI thread only.
///
/// The manager may be destroyed while the window exists, even in a callback of one of its settings:
/// the window is closed, which saves, and is destroyed, after the callback has returned at the
/// latest. Close the window or destroy the manager before the `QApplication` is destroyed.
///
/// The manager never removes items and classes, and their addresses stay valid when the lists grow.
/// A host may change the lists itself, except while a copy of them exists, and must not remove an
/// item whose editor is shown.
///
/// A complete host:
/// @include minimal/main.cpp
///
/// @see ConfItem, ConfigurationWindow, ConfStorage
/// @since 0.1
class MALTO_EXPORT MtConfManage : public QObject
{
    Q_OBJECT
public:
    /// Constructs a manager without settings.
    explicit MtConfManage(QObject *parent = nullptr);
    /// Closes the settings window of this manager, which saves, and destroys it. If code of the
    /// host that the window has called is still running, the window is destroyed after that.
    ~MtConfManage() override;

    // Declaration. `text` is the untranslated label, translated in the context "QObject" when it is
    // shown; it must outlive the manager, as a literal does. The three names are the key of the
    // setting. If `creator` is empty, the item gets the default editor of its type. The returned
    // pointers are valid as long as the manager exists. If `value` is null, the store logs that and
    // the setting has no key.

    /// Declares an integer, edited in a spin box. The properties "MinValue" and "MaxValue" of the
    /// item set its range; the default is 0 to 99.
    ConfItem *addConfInt32(const char *text, int *value, const QString &majorName,
                           const QString &name, const QString &subName = QString(),
                           WidgetCreator creator = WidgetCreator());
    /// Declares a boolean, edited in a check box.
    ConfItem *addConfBool(const char *text, bool *value, const QString &majorName,
                          const QString &name, const QString &subName = QString(),
                          WidgetCreator creator = WidgetCreator());
    /// Declares a string. There is no default editor: without a `creator` the window does not show
    /// the item.
    ConfItem *addConfQString(const char *text, QString *value, const QString &majorName,
                             const QString &name, const QString &subName = QString(),
                             WidgetCreator creator = WidgetCreator());
    /// Declares a colour, edited with a button that opens the colour dialog.
    ConfItem *addConfQColor(const char *text, QColor *value, const QString &majorName,
                            const QString &name, const QString &subName = QString(),
                            WidgetCreator creator = WidgetCreator());
    /// Declares a font, edited with a button that opens the font dialog. The editor stores its size
    /// in pixels.
    ConfItem *addConfQFont(const char *text, QFont *value, const QString &majorName,
                           const QString &name, const QString &subName = QString(),
                           WidgetCreator creator = WidgetCreator());
    /// Declares a hotkey, recorded from the keyboard. The property "Shortcut" of the item contains
    /// the `QxtGlobalShortcut *` that registers the hotkey; without it the editor stores nothing.
    ConfItem *addConfQKeySequence(const char *text, QKeySequence *value, const QString &majorName,
                                  const QString &name, const QString &subName = QString(),
                                  WidgetCreator creator = WidgetCreator());
    /// Declares a mouse action: the action in the low 16 bits and the `Qt::KeyboardModifier` bits
    /// above them. `mode` selects the actions to choose from: 0 the wheel, 1 clicks, 2 drags. Calls
    /// `ConfItem::setFlagSystemIndependent` for the item.
    void addConfMouseAction(const char *text, int *value, int mode, const QString &majorName,
                            const QString &name, const QString &subName = QString());
    /// Declares the language of the interface, stored as its code, and sets `languageItem`. A
    /// change installs the translators and emits `sigLanguageChange`.
    void addConfLanguage(const char *text, QString *value, const QString &majorName,
                         const QString &name, const QString &subName = QString());
    /// Declares a string, chosen from `choices`, which are shown untranslated.
    ConfItem *addConfStrWithCombobox(const char *text, QStringList choices, QString *value,
                                     const QString &majorName, const QString &name,
                                     const QString &subName = QString());
    /// Declares an integer: the index of the label that is chosen from `labels`. The labels are
    /// literals of the host, translated in the context "QObject" when they are shown. With the
    /// property "MultiSelect" several labels can be chosen, and the value is the bitwise OR of
    /// their values.
    ConfItem *addConfInt32WithCombobox(const char *text, QList<const char *> labels, int *value,
                                       const QString &majorName, const QString &name,
                                       const QString &subName = QString());
    /// The same with a value for each label. If `values` is empty, the value is the index.
    ConfItem *addConfInt32WithCombobox(const char *text, QList<const char *> labels,
                                       QList<int> values, int *value, const QString &majorName,
                                       const QString &name, const QString &subName = QString());
    /// Declares whether the program starts at login, edited in a check box. A change calls
    /// `setAppAutoRun`.
    void addConfAutoRun(const char *text, bool *value, const QString &majorName,
                        const QString &name, const QString &subName = QString());

    /// Declares a number with decimals, edited in a spin box: two decimals and steps of 1 unless
    /// the item's options say otherwise.
    ///
    /// @see ConfItem::setRange, ConfItem::setDecimals, ConfItem::setStep, ConfItem::setSuffix
    ConfItem *addConfDouble(const char *text, double *value, const QString &majorName,
                            const QString &name, const QString &subName = QString(),
                            WidgetCreator creator = WidgetCreator());
    /// Declares a text of one line.
    ///
    /// @see ConfItem::setPlaceholder, ConfItem::setValidator
    ConfItem *addConfText(const char *text, QString *value, const QString &majorName,
                          const QString &name, const QString &subName = QString(),
                          WidgetCreator creator = WidgetCreator());
    /// Declares a text of several lines.
    ConfItem *addConfMultilineText(const char *text, QString *value, const QString &majorName,
                                   const QString &name, const QString &subName = QString(),
                                   WidgetCreator creator = WidgetCreator());
    /// Declares a password or a token: a text that the editor shows only on request. Calls
    /// `ConfItem::setSecret`. The value is not encrypted.
    ConfItem *addConfPassword(const char *text, QString *value, const QString &majorName,
                              const QString &name, const QString &subName = QString(),
                              WidgetCreator creator = WidgetCreator());
    /// Declares the path of a file or a folder, typed or chosen in a dialog. `filters` are the name
    /// filters of the dialog as `QFileDialog` takes them, a literal that is translated in the
    /// context "QObject"; null for all files. A path that does not exist is said under the row, and
    /// stored.
    ConfItem *addConfPath(const char *text, QString *value, PathKind kind, const QString &majorName,
                          const QString &name, const QString &subName = QString(),
                          const char *filters = nullptr);
    /// Declares a list of texts, which the user can add, remove, edit and move.
    ConfItem *addConfStringList(const char *text, QStringList *value, const QString &majorName,
                                const QString &name, const QString &subName = QString(),
                                WidgetCreator creator = WidgetCreator());
    /// Declares an enum or flags, chosen from `choices`: values with their labels, literals of the
    /// host that are translated in the context "QObject". Flags need `ConfItem::setMultiSelect`.
    template<class T> ConfItem *addConfEnum(const char *text,
                                            const QList<std::pair<T, const char *>> &choices,
                                            T *value, const QString &majorName, const QString &name,
                                            const QString &subName = QString());
    /// Declares a point in time, edited in local time with minutes, or seconds if it has some.
    ConfItem *addConfDateTime(const char *text, QDateTime *value, const QString &majorName,
                              const QString &name, const QString &subName = QString(),
                              WidgetCreator creator = WidgetCreator());
    /// Declares a duration, a number of the unit of its type: milliseconds, seconds, minutes, hours
    /// or days. The editor shows the unit.
    template<class Count, class Unit>
    ConfItem *addConfDuration(const char *text, std::chrono::duration<Count, Unit> *value,
                              const QString &majorName, const QString &name,
                              const QString &subName = QString());
    /// Declares the shortcut of `action`, which gets it now and after each change, as long as the
    /// action exists. For global hotkeys use `addConfQKeySequence`.
    ConfItem *addConfShortcut(const char *text, QKeySequence *value, QAction *action,
                              const QString &majorName, const QString &name,
                              const QString &subName = QString());
    /// The same for a QShortcut.
    ConfItem *addConfShortcut(const char *text, QKeySequence *value, QShortcut *shortcut,
                              const QString &majorName, const QString &name,
                              const QString &subName = QString());
    /// Declares a value of any type without an editor, which is only kept and merged. Adds no page
    /// for `majorName`.
    template<class T> ConfItem *addConfValue(T *value, const QString &majorName,
                                             const QString &name,
                                             const QString &subName = QString());

    /// Adds a copy of an item that the host has constructed, and returns the copy.
    ConfItem *addConfItem(ConfItem &item);

    // Lookup.

    /// Returns the first item with exactly these names, or null.
    ConfItem *getItemByName(const QString &majorName, const QString &name, const QString &subName);
    /// Returns the items of a class in declaration order. Logs the warning
    /// "major class not exist: " with the name and returns an empty list if there is no such class.
    QList<ConfItem *> getConfItemList(const QString &majorName);
    /// Returns the class of that name, which is appended to `majorItems` if it does not exist.
    MajorConfItem *addMajorConfItemIfNotExist(const QString &name);
    /// Returns the class of that name, or null.
    MajorConfItem *getMajorConfItemByName(const QString &name);
    /// Sets the function that creates the custom page of a class. Adds the class if it does not
    /// exist.
    void setMajorWidget(const QString &name, std::function<QWidget *(QWidget *)> factory);
    /// Sets the flags of a class to `flag` (`MajorConfFlag` bits). Adds the class if it does not
    /// exist.
    void setConfigClassFlag(const QString &name, int flag);

    /// Returns what is wrong with the declarations, one sentence for each problem; an empty list if
    /// all is well. Call it in a test of the host, or at the end of the declarations in a debug
    /// build. Changes and logs nothing. docs/guide/checks.md lists the problems.
    QStringList checkDeclarations() const;

    // Files and default values.

    /// Loads a configuration file, a JSON object with values by full name, and sets `confFilePath`.
    /// Each value counts as a change by the user. Skips keys of unknown items silently. Logs what
    /// `readJsonFromFile` logs.
    void _loadFromFile(QString path);
    /// Calls `_loadFromFile`, then `runAfterLoadFromFile`.
    void loadFromFile(QString path);
    /// Installs the translators for the language of `languageItem`, if there is one.
    void runAfterLoadFromFile();
    /// Lets the editors store what the user has not confirmed yet, then calls
    /// `ConfStorage::saveToLocalConfFile`.
    void saveToFile();
    /// Calls `restoreAllHook`, then restores the default value of every item.
    void restoreAllDefault();

    // The settings window.

    /// Shows or raises the settings window, and opens the page `majorName` unless it is empty. Only
    /// one window exists: one that another manager has opened still shows that manager. Returns
    /// null if there is no window afterwards: a page has closed it or destroyed the manager, or
    /// there is no `QApplication`, which is logged.
    ConfigurationWindow *ShowWindow(QString majorName = QString());
    /// Closes the settings window if there is one.
    void closeConfigWindow();
    /// Sets whether the settings window stays above other windows. Does nothing without a window.
    void setWindowStayOnTop(bool on);
    /// Sets the glyphs of the icon font that the window shows beside the classes, by class name. An
    /// open window shows them after its next change of theme.
    void setIconMap(QMap<QString, QChar> &map);

    ItemList<ConfItem> items;           ///< the items in declaration order
    ItemList<MajorConfItem> majorItems; ///< the classes in the order in which they are first named
    QString confFilePath;               ///< the last argument of `_loadFromFile`
    ConfItem *languageItem = nullptr;   ///< the item of the language; null if there is none
    std::function<void()> restoreAllHook; ///< called first by `restoreAllDefault`; may be empty
    /// Returns whether the window shows an item with the flag `ItemIsFiltered`. If it is empty, the
    /// window shows none of them.
    std::function<bool(ConfItem &)> itemFilter;
    /// Whether pages that are built from now on show the items with `ConfItem::setExpert`.
    bool showExpertItems = false;

    /// `WindowFeatureFlag` bits; none by default. Set them before the first declaration, because
    /// some features keep settings of their own or follow the store from then on.
    quint32 windowFeatures = 0;
    /// How a settings window looks that is created from now on.
    WindowLook windowLook = ClassicLook;
    /// Called with the key of the focused row, or the class name if no row has the focus, when the
    /// user presses F1 in the settings window. Needs `NavigationFeature`; may be empty.
    std::function<void(const QString &key)> helpHook;

Q_SIGNALS:
    /// Emitted after the language has changed and its translators are installed.
    void sigLanguageChange();

private:
    template<class T> ConfItem *addConf(const char *text, T *value, const QString &majorName,
                                        const QString &name, const QString &subName,
                                        WidgetCreator creator, WidgetCreator defaultCreator);

    ConfItem *addItem(const ConfItem &item);
    ConfItem *addChoiceItem(ConfItem &item, const char *text, QList<ConfChoice> choices);
    ConfItem *addDurationItem(ConfItem &item, const char *text, double secondsPerUnit);
    void commitEditors();

    friend class ConfigurationWindow;
    friend class WindowFeature;
    void prepareFeatures();

    std::unique_ptr<ValueOrigins> mOrigins; // null unless DetailsFeature is set

    // Lists that were shared when an element was appended. Kept so that pointers to their elements
    // stay valid.
    QList<ItemList<ConfItem>> mSharedItems;
    QList<ItemList<MajorConfItem>> mSharedMajorItems;
};

template<class T>
ConfItem *MtConfManage::addConfEnum(const char *text,
                                    const QList<std::pair<T, const char *>> &choices, T *value,
                                    const QString &majorName, const QString &name,
                                    const QString &subName)
{
    QList<ConfChoice> recorded;
    for (const auto &[choice, label] : choices)
        recorded.append({QString::fromUtf8(label), toJsonForm(choice)});
    ConfItem item(value, majorName, name, subName);
    return addChoiceItem(item, text, std::move(recorded));
}

template<class Count, class Unit>
ConfItem *MtConfManage::addConfDuration(const char *text, std::chrono::duration<Count, Unit> *value,
                                        const QString &majorName, const QString &name,
                                        const QString &subName)
{
    ConfItem item(value, majorName, name, subName);
    return addDurationItem(item, text, double(Unit::num) / double(Unit::den));
}

template<class T> ConfItem *MtConfManage::addConfValue(T *value, const QString &majorName,
                                                       const QString &name, const QString &subName)
{
    const ConfItem item(value, majorName, name, subName);
    return addItem(item);
}

} // namespace MtConf
