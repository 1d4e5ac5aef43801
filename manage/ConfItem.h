#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QVariant>

#include <functional>

class QWidget;

/// What a host declares, the editors of it and the window.
namespace MtConf {

class ConfItem;
class ConfigItemWidget;

/// Bits of `ConfItem::flags` that the library reads; other bits are the host's.
enum ConfItemFlag : quint32 {
    ItemIsFiltered = 0x1 ///< shown only when the manager's `itemFilter` accepts the item
};

/// Makes the editor of an item, given the item and the editor's parent.
using WidgetCreator = std::function<ConfigItemWidget *(ConfItem *item, QWidget *parent)>;

/// The declaration of one setting: its page, its key, its label and its editor.
///
/// The item does not hold the value. Constructing one reserves the key in the store, bound to the
/// host's variable; every read and write goes through the store under `getFullName()`. Destroying
/// an item does not release its key. Names do not change after construction.
class MALTO_EXPORT ConfItem
{
public:
    /// Reserves `getFullName()` in the store for `*value`, whose content becomes the default. For
    /// `int`, `bool`, `QString`, `QColor`, `QFont` and `QKeySequence`. A null pointer is reported
    /// by the store, and the key stays unknown.
    template<class T> ConfItem(T *value, const QString &majorItemName, const QString &itemName,
                               const QString &itemSubName);
    /// Copies every field, the pointers `displayText` and `editor` too. Reserves nothing.
    ConfItem(const ConfItem &other);
    /// Replaces every field, and leaves the keys of both items reserved.
    ConfItem &operator=(const ConfItem &other);
    /// Leaves the key reserved.
    ~ConfItem();

    /// The key of the item in the store and in files: the names joined by ".", the sub-name only
    /// when there is one. A "." inside a name is kept as it stands, and then no key of a
    /// configuration file reaches the item.
    QString getFullName() const;

    /// Lets each operating system keep a value of its own for this item and its sub-items.
    void setFlagSystemIndependent() const;

    /// Installs the store's callback of the item's key, replacing an earlier one.
    void setConfChangedCallback(ConfChangedCallback cb) const;

    /// Whether the item and all its sub-items hold their defaults.
    bool isDefaultValue() const;

    /// Restores the default of the item and of all its sub-items, stamps the time and calls their
    /// callbacks.
    void restoreDefault() const;

    /// Always null: values are dumped by the store, not through items.
    QJsonValue toJsonValue() const;

    /// Loads the item from its member of a configuration file: a plain value, or an object with
    /// "value" and, for sub-items by name, "subConf". An object without "value" is itself the
    /// value. The store converts it and calls the callbacks. Always true.
    bool loadFromJsonValue(QJsonValue value) const;

    QMap<QString, ConfItem> subConfs;   ///< sub-items by name; filled by the host
    int valueType = ConfValue::TyNone;  ///< the type of the value, a `ConfValue::ConfType`
    QString majorName;                  ///< name of the class, the first part of the key
    QString name;                       ///< second part of the key
    QString subName;                    ///< third part of the key, mostly empty
    quint32 flags = 0;                  ///< `ConfItemFlag` bits and the host's
    const char *displayText = nullptr;  ///< untranslated label; a literal of the host
    WidgetCreator widgetCreator;        ///< makes the editor; empty: the item has none
    QMap<QString, QVariant> properties; ///< options of the editor, such as "MinValue"
    ConfigItemWidget *editor = nullptr; ///< the live editor, null while none is shown
    /// Told the value from before the editor was made when the editor goes and the value has
    /// changed meanwhile. It compares `toJsonValue()`, and so stays silent while that is null.
    std::function<void(QJsonValue oldValue, ConfItem *item)> auxCallback;
};

template<class T> ConfItem::ConfItem(T *value, const QString &majorItemName,
                                     const QString &itemName, const QString &itemSubName)
    : valueType(ConfValue::typeOf<T>()), majorName(majorItemName), name(itemName),
      subName(itemSubName)
{
    ConfStorage::instance()->reserveConf(getFullName(), value);
}

} // namespace MtConf
