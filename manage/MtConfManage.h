#pragma once

#include <MaltoConfiguration/ItemList.h>
#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/manage/MajorConfItem.h>

#include <QList>
#include <QObject>

namespace MtConf {

class ConfigurationWindow;

/// What the host declares: its settings and their classes, in order, and the way to the settings
/// window.
///
/// The host makes one manager, calls one `addConf` operation for each setting, then loads its files
/// and shows the window. The manager must not outlive the `QApplication` with the window still
/// open; destroying it closes the window, and must therefore not happen in a callback that an
/// editor of the window sets off: use `deleteLater` there. Everything runs on the GUI thread.
///
/// Items and classes are only ever added by the manager, and their addresses stay valid as the
/// lists grow. A host may edit the lists itself, but must not do so while a copy of them is alive,
/// nor remove an item whose editor is shown.
///
/// A whole host:
/// @include minimal/main.cpp
class MALTO_EXPORT MtConfManage : public QObject
{
    Q_OBJECT
public:
    /// A manager without settings.
    explicit MtConfManage(QObject *parent = nullptr);
    /// Closes the settings window if it is this manager's, which saves, and deletes it.
    ~MtConfManage() override;

    // Declaration. `text` is the untranslated label and must outlive the manager, as a literal
    // does; it is translated in the context "QObject". The three names make the key of the setting.
    // An empty `creator` stands for the type's own editor. The pointers that are returned stay
    // valid for the manager's life. A null `value` is reported by the store, and the setting has no
    // key.

    /// Declares an integer, edited in a spin box. Its properties "MinValue" and "MaxValue" set the
    /// range, 0 to 99 without them.
    ConfItem *addConfInt32(const char *text, int *value, const QString &majorName,
                           const QString &name, const QString &subName = QString(),
                           WidgetCreator creator = WidgetCreator());
    /// Declares a switch, edited in a check box.
    ConfItem *addConfBool(const char *text, bool *value, const QString &majorName,
                          const QString &name, const QString &subName = QString(),
                          WidgetCreator creator = WidgetCreator());
    /// Declares a text. It has no editor of its own: without a `creator` the window leaves it out.
    ConfItem *addConfQString(const char *text, QString *value, const QString &majorName,
                             const QString &name, const QString &subName = QString(),
                             WidgetCreator creator = WidgetCreator());
    /// Declares a colour, edited by a colour button.
    ConfItem *addConfQColor(const char *text, QColor *value, const QString &majorName,
                            const QString &name, const QString &subName = QString(),
                            WidgetCreator creator = WidgetCreator());
    /// Declares a font, edited by a button that opens the font dialog. Its size is kept in pixels.
    ConfItem *addConfQFont(const char *text, QFont *value, const QString &majorName,
                           const QString &name, const QString &subName = QString(),
                           WidgetCreator creator = WidgetCreator());
    /// Declares a hotkey, recorded from the keyboard. The item's property "Shortcut" holds the
    /// `QxtGlobalShortcut *` that registers it with the system; without one the editor stores
    /// nothing.
    ConfItem *addConfQKeySequence(const char *text, QKeySequence *value, const QString &majorName,
                                  const QString &name, const QString &subName = QString(),
                                  WidgetCreator creator = WidgetCreator());
    /// Declares a mouse gesture: an action in the low 16 bits and `Qt::KeyboardModifier` bits
    /// above. `mode` chooses the actions to offer: 0 the wheel, 1 clicks, 2 drags. Each operating
    /// system keeps a gesture of its own.
    void addConfMouseAction(const char *text, int *value, int mode, const QString &majorName,
                            const QString &name, const QString &subName = QString());
    /// Declares the language of the interface, kept as its code, and remembers it as
    /// `languageItem`. A change installs the translators and emits `sigLanguageChange`.
    void addConfLanguage(const char *text, QString *value, const QString &majorName,
                         const QString &name, const QString &subName = QString());
    /// Declares a text that is chosen from `choices`, which are shown as they are.
    ConfItem *addConfStrWithCombobox(const char *text, QStringList choices, QString *value,
                                     const QString &majorName, const QString &name,
                                     const QString &subName = QString());
    /// Declares an integer that is the index of the label chosen from `labels`. The labels are
    /// literals of the host, translated in the context "QObject" when they are shown. With the
    /// property "MultiSelect" several can be chosen, and the value is the bitwise OR of theirs.
    ConfItem *addConfInt32WithCombobox(const char *text, QList<const char *> labels, int *value,
                                       const QString &majorName, const QString &name,
                                       const QString &subName = QString());
    /// The same with a value of its own for each label.
    ConfItem *addConfInt32WithCombobox(const char *text, QList<const char *> labels,
                                       QList<int> values, int *value, const QString &majorName,
                                       const QString &name, const QString &subName = QString());
    /// Declares the switch for starting at login: a check box whose change calls `setAppAutoRun`.
    void addConfAutoRun(const char *text, bool *value, const QString &majorName,
                        const QString &name, const QString &subName = QString());

    /// Adds a copy of an item that the host built itself, and returns the copy.
    ConfItem *addConfItem(ConfItem &item);

    // Lookup.

    /// The first item with exactly these names, or null.
    ConfItem *getItemByName(const QString &majorName, const QString &name, const QString &subName);
    /// The items of a class, in declaration order. Logs the warning "major class not exist: " and
    /// the name when there is no such class.
    QList<ConfItem *> getConfItemList(const QString &majorName);
    /// The class of that name, appended to the list if it is new.
    MajorConfItem *addMajorConfItemIfNotExist(const QString &name);
    /// The class of that name, or null.
    MajorConfItem *getMajorConfItemByName(const QString &name);
    /// Gives a class, created if it is new, a page of its own making instead of editors.
    void setMajorWidget(const QString &name, std::function<QWidget *(QWidget *)> factory);
    /// Sets the flags of a class, created if it is new, to `flag` (`MajorConfFlag` bits).
    void setConfigClassFlag(const QString &name, int flag);

    // Files and defaults.

    /// Loads a configuration file: a JSON object of values by full name. Keys of unknown items are
    /// skipped silently; what `readJsonFromFile` logs is all that is logged.
    void _loadFromFile(QString path);
    /// `_loadFromFile`, then `runAfterLoadFromFile`.
    void loadFromFile(QString path);
    /// Applies what must follow a load: the language.
    void runAfterLoadFromFile();
    /// Has the store write its local file, if something changed.
    void saveToFile();
    /// Calls `restoreAllHook`, then restores every item to its default.
    void restoreAllDefault();

    // The settings window.

    /// Shows the one settings window, or raises it, and opens the page `majorName` unless that is
    /// empty. A window that another manager opened stays that manager's. Null when there is no
    /// window afterwards: a page closed it, or there is no `QApplication`, which is logged.
    ConfigurationWindow *ShowWindow(QString majorName = QString());
    /// Closes the settings window if there is one.
    void closeConfigWindow();
    /// Whether the settings window stays above other windows; nothing without a window.
    void setWindowStayOnTop(bool on);
    /// The glyphs of the icon font that stand beside the classes in the window, by class name. An
    /// open window shows them from its next change of theme on.
    void setIconMap(QMap<QString, QChar> &map);

    ItemList<ConfItem> items;                   ///< every item, in declaration order
    ItemList<MajorConfItem> majorItems;         ///< the classes, in order of first mention
    QString confFilePath;                       ///< the file last given to `_loadFromFile`
    ConfItem *languageItem = nullptr;           ///< the language setting, if one was declared
    std::function<void()> restoreAllHook;       ///< called first by `restoreAllDefault`
    std::function<bool(ConfItem &)> itemFilter; ///< accepts items flagged `ItemIsFiltered`

Q_SIGNALS:
    /// The language setting has changed and its translators are installed.
    void sigLanguageChange();

private:
    template<class T> ConfItem *addConf(const char *text, T *value, const QString &majorName,
                                        const QString &name, const QString &subName,
                                        WidgetCreator creator, WidgetCreator defaultCreator);

    // Lists that somebody held a copy of when the next element came, kept so that pointers to their
    // elements do not dangle.
    QList<ItemList<ConfItem>> mSharedItems;
    QList<ItemList<MajorConfItem>> mSharedMajorItems;
};

} // namespace MtConf
