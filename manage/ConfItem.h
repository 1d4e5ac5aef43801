#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

class QWidget;

/// The settings that a host declares, their editors and the settings window.
namespace MtConf {

class ConfItem;
class ConfigItemWidget;

/// Bits of `ConfItem::flags` that the library reads. The host may use the other bits.
///
/// @since 0.1
enum ConfItemFlag : quint32 {
    ItemIsFiltered = 0x1 ///< shown only if `MtConfManage::itemFilter` accepts the item
};

/// A function that creates the editor of an item as a child of `parent`.
///
/// @see ConfItem::widgetCreator
/// @since 0.1
using WidgetCreator = std::function<ConfigItemWidget *(ConfItem *item, QWidget *parent)>;

/// The declaration of one setting: its page, its key, its label and its editor.
///
/// The item does not contain the value. Its constructor reserves the key in the store for a
/// variable of the host, and every read and write uses the store with the key `getFullName()`. The
/// key stays reserved when the item is destroyed. Do not change the names after construction.
///
/// @see MtConfManage, ConfStorage
/// @since 0.1
class MALTO_EXPORT ConfItem
{
public:
    /// Reserves `getFullName()` in the store for `*value`, whose content becomes the default value.
    /// `T` is `int`, `bool`, `QString`, `QColor`, `QFont` or `QKeySequence`. If `value` is null,
    /// the store logs that and the key stays unknown.
    template<class T> ConfItem(T *value, const QString &majorItemName, const QString &itemName,
                               const QString &itemSubName);
    /// Copies every field, including the pointers `displayText` and `editor`. Reserves no key.
    ConfItem(const ConfItem &other);
    /// Copies every field. The keys of both items stay reserved.
    ConfItem &operator=(const ConfItem &other);

    /// Returns the key of the item in the store and in files: the names joined by ".", `subName`
    /// only if it is not empty. A "." within a name is not escaped. Such an item is not found when
    /// a configuration file is loaded.
    QString getFullName() const;

    /// Sets `ConfStorage::FlagSystemIndependent` for the keys of this item and of its sub-items, so
    /// that files contain them with the system mark.
    ///
    /// @see addSysMark
    void setFlagSystemIndependent() const;

    /// Sets the callback of the item's key in the store and replaces an earlier one. Logs what
    /// `ConfStorage::setConfChangedCallback` logs.
    void setConfChangedCallback(ConfChangedCallback cb) const;

    /// Makes entries of `formerName`, the full name that the item had in an older version of the
    /// program, entries of the item: in the local file, in dumps and in configuration files. The
    /// newest of both wins. With `keepEntry` the local file keeps the entry of the former name, so
    /// that older versions find it. Call it before the local file is loaded, or else the callback
    /// is called if the value changes.
    ///
    /// @see ConfStorage::addFormerName
    void addFormerName(const QString &formerName, bool keepEntry = true);

    /// Sets the function that converts values from an older form to the current one. It gets every
    /// value that is loaded for the item, in JSON as `ConfValue::toJsonValue` returns it, and must
    /// return values of the current form unchanged. It must not change the store. Call it before
    /// the local file is loaded.
    ///
    /// @see ConfStorage::setConfConverter
    void setConverter(std::function<QJsonValue(const QJsonValue &value)> converter);

    /// Returns whether the item and all its sub-items have their default values.
    bool isDefaultValue() const;

    /// Restores the default values of the item and then of its sub-items: updates their timestamps
    /// and calls their callbacks. Logs what `ConfStorage::setToDefault` logs.
    void restoreDefault() const;

    /// Returns null: the store dumps values, not the items.
    QJsonValue toJsonValue() const;

    /// Loads the item from its member of a configuration file: a plain value, or an object with
    /// "value" for the item and "subConf" for its sub-items, an object by name. An object without
    /// "value" is the value itself. The store converts the value and calls the callback. Always
    /// returns true.
    ///
    /// @see ConfStorage::loadValueFromJson
    bool loadFromJsonValue(QJsonValue value) const;

    QMap<QString, ConfItem> subConfs;   ///< sub-items by name; filled by the host
    int valueType = ConfValue::TyNone;  ///< the type of the value, a `ConfValue::ConfType`
    QString majorName;                  ///< name of the class, the first part of the key
    QString name;                       ///< the second part of the key
    QString subName;                    ///< the third part of the key, usually empty
    QStringList formerNames;            ///< full names in older versions; see `addFormerName`
    quint32 flags = 0;                  ///< `ConfItemFlag` bits and bits of the host
    const char *displayText = nullptr;  ///< untranslated label; a literal of the host
    WidgetCreator widgetCreator;        ///< creates the editor; empty: the item has no editor
    QMap<QString, QVariant> properties; ///< options of the editor, such as "MinValue"
    ConfigItemWidget *editor = nullptr; ///< the current editor; null if there is none
    /// Called when the editor is destroyed, if the value has changed since the editor was created;
    /// `oldValue` is the value from then. The editor compares `toJsonValue()`, which is always
    /// null, so it never calls this function.
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
