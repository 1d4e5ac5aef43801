#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QJsonValue>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <chrono>
#include <functional>
#include <type_traits>

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

/// What a range does with values outside of it.
///
/// @see ConfItem::setRange
/// @since 0.1
enum RangeRule {
    EditorRange, ///< only the editor refuses them
    Enforced,    ///< the store refuses them, too, when they are loaded or set
    Clamped      ///< the store changes them to the nearest value in the range
};

/// What a path names.
///
/// @see MtConfManage::addConfPath
/// @since 0.1
enum class PathKind {
    ExistingFile, ///< a file to read
    NewFile,      ///< a file to write, which need not exist
    Folder        ///< a folder
};

/// One of the values that an editor offers.
///
/// @see ConfItem::choices
/// @since 0.1
struct ConfChoice
{
    QString label;            ///< what the user sees; untranslated if it is a literal
    QJsonValue value;         ///< in JSON as `ConfValue::toJsonValue` returns it
    bool isTranslated = true; ///< whether the label is translated in the context "QObject"

    /// Returns the label in the current language.
    MALTO_EXPORT QString text() const;
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
    /// `T` is any type of a setting; see `ConfStorage::reserveConf`. If `value` is null, the store
    /// logs that and the key stays unknown.
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

    // Options, to be chained when the item is declared. Each returns the item. Texts are literals
    // of the host, translated in the context "QObject" when they are shown.

    /// Sets the range of a number, or of a duration as a count of its unit. The editor shows the
    /// range in the tool tip. For a value outside of it, it shows a message and stores nothing.
    /// With `Enforced` or `Clamped` the store checks every value; see
    /// `ConfStorage::setConfConstraint`. With `EditorRange` a stored value outside of the range is
    /// shown, and not changed until the user edits it. Limits of whole numbers are rounded into the
    /// range. A range whose lowest value is greater than its highest is not enforced.
    ConfItem *setRange(double lowest, double highest, RangeRule rule = EditorRange);
    /// Sets the range of a point in time. An invalid limit is none, and an invalid value, "not
    /// set", is always accepted.
    ConfItem *setRange(const QDateTime &earliest, const QDateTime &latest,
                       RangeRule rule = EditorRange);
    /// Sets the range of a duration.
    template<class Count, class Unit, class OtherCount, class OtherUnit>
    ConfItem *setRange(std::chrono::duration<Count, Unit> lowest,
                       std::chrono::duration<OtherCount, OtherUnit> highest,
                       RangeRule rule = EditorRange);
    /// Sets how much one step of the editor's arrows changes a number.
    ConfItem *setStep(double step);
    /// Sets how many decimals the editor shows and stores.
    ConfItem *setDecimals(int decimals);
    /// Sets the text behind a number in its editor, such as " px".
    ConfItem *setSuffix(const char *suffix);
    /// Sets the text that an empty field shows.
    ConfItem *setPlaceholder(const char *text);
    /// Sets a sentence that explains the setting: the tool tip and the accessible description.
    ConfItem *setHelp(const char *text);
    /// Marks the setting as one for experts, which the window shows only if
    /// `MtConfManage::showExpertItems` is true.
    ConfItem *setExpert();
    /// Lets the user choose several of the item's choices, which are flags.
    ConfItem *setMultiSelect();
    /// Disables the row of the item while `other` does not have the value `value`, which is of the
    /// type of `other`, a literal for a text, or in JSON as `ConfValue::toJsonValue` returns it.
    /// With several calls all of them must hold. `other` must not be null; it may be on another
    /// page.
    template<class T> ConfItem *dependsOn(const ConfItem *other, const T &value);
    /// Sets a function that checks what the user enters, in JSON as `ConfValue::toJsonValue`
    /// returns it. It returns why the value is not accepted, in the current language, or an empty
    /// text. The editor shows the reason under the row and stores nothing. The function must not
    /// change the store. Values that are set or loaded are not checked.
    ConfItem *setValidator(std::function<QString(const QJsonValue &value)> validator);
    /// Marks the value as secret: only the local file contains it, `ConfStorage::debugTable` and
    /// `ConfStorage::previewLoad` show "***" instead of it, and no message contains it. It is not
    /// encrypted: whoever can read the local file can read it. Sets `ConfStorage::FlagSecret` and
    /// `ConfStorage::FlagLocalOnly`.
    ConfItem *setSecret();

    /// Returns the unit of a duration in seconds; 1 for any other setting.
    double secondsPerUnit() const;
    /// Returns the help text in the current language; empty if there is none.
    QString helpText() const;
    /// Returns the suffix in the current language; empty if there is none.
    QString suffixText() const;
    /// Returns the placeholder in the current language; empty if there is none.
    QString placeholderText() const;

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

    QMap<QString, ConfItem> subConfs;  ///< sub-items by name; filled by the host
    int valueType = ConfValue::TyNone; ///< the type of the value, a `ConfValue::ConfType`
    bool isWholeNumber = false;        ///< whether it is a whole number; see `MtConf::isWhole`
    QString majorName;                 ///< name of the class, the first part of the key
    QString name;                      ///< the second part of the key
    QString subName;                   ///< the third part of the key, usually empty
    QStringList formerNames;           ///< full names in older versions; see `addFormerName`
    quint32 flags = 0;                 ///< `ConfItemFlag` bits and bits of the host
    const char *displayText = nullptr; ///< untranslated label; a literal of the host
    WidgetCreator widgetCreator;       ///< creates the editor; empty: the item has no editor
    /// Options of the editor by name; docs/guide/own-editors.md lists the names of the library.
    QMap<QString, QVariant> properties;
    QList<ConfChoice> choices;              ///< what the editor offers; may be empty
    QMap<QString, QJsonValue> dependencies; ///< values that other keys must have
    /// Checks what the user enters; see `setValidator`.
    std::function<QString(const QJsonValue &value)> validator;
    ConfigItemWidget *editor = nullptr; ///< the current editor; null if there is none
    /// Called when the editor is destroyed, if the value has changed since the editor was created;
    /// `oldValue` is the value from then. The editor compares `toJsonValue()`, which is always
    /// null, so it never calls this function.
    std::function<void(QJsonValue oldValue, ConfItem *item)> auxCallback;

private:
    void setLimits(const QVariant &lowest, const QVariant &highest, RangeRule rule);
};

template<class T> ConfItem::ConfItem(T *value, const QString &majorItemName,
                                     const QString &itemName, const QString &itemSubName)
    : valueType(static_cast<int>(ConfValue::typeOf<T>())), isWholeNumber(isWhole<T>),
      majorName(majorItemName), name(itemName), subName(itemSubName)
{
    ConfStorage::instance()->reserveConf(getFullName(), value);
}

template<class Count, class Unit, class OtherCount, class OtherUnit>
ConfItem *ConfItem::setRange(std::chrono::duration<Count, Unit> lowest,
                             std::chrono::duration<OtherCount, OtherUnit> highest, RangeRule rule)
{
    using Seconds = std::chrono::duration<double>;
    const double unit = secondsPerUnit();
    return setRange(Seconds(lowest).count() / unit, Seconds(highest).count() / unit, rule);
}

template<class T> ConfItem *ConfItem::dependsOn(const ConfItem *other, const T &value)
{
    if constexpr (std::is_same_v<T, QJsonValue>)
        dependencies[other->getFullName()] = value;
    else if constexpr (std::is_convertible_v<T, const char *>)
        dependencies[other->getFullName()] = QString::fromUtf8(value);
    else
        dependencies[other->getFullName()] = ConfValue::owned(value).toJsonValue();
    return this;
}

} // namespace MtConf
