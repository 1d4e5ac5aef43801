#include "DeclarationCheck_p.h"
#include "MtConfManageDeclare_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QDateTime>
#include <QSet>

#include <algorithm>
#include <utility>

namespace MtConf {

namespace {

/// Returns the default value of `key` in JSON.
QJsonValue defaultOf(const QString &key)
{
    return ConfStorage::instance()->mConfMetas.value(key).defaultValue.toJsonValue();
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

bool isOutside(const QJsonValue &value, const QVariant &lowest, const QVariant &highest)
{
    if (lowest.userType() == QMetaType::QDateTime) {
        const auto time = fromJsonForm<QDateTime>(value);
        return time && time->isValid()
               && ((lowest.toDateTime().isValid() && *time < lowest.toDateTime())
                   || (highest.toDateTime().isValid() && *time > highest.toDateTime()));
    }
    const double number = value.isString() ? value.toString().toDouble() : value.toDouble();
    return (lowest.isValid() && number < lowest.toDouble())
           || (highest.isValid() && number > highest.toDouble());
}

/// Returns whether `key` can have `value`, the JSON of a value.
bool canHave(const QString &key, const QJsonValue &value)
{
    ConfValue copy = ConfStorage::instance()->mConfMetas.value(key).defaultValue;
    if (const JsonOperations *operations = jsonOperations(copy.mType))
        return operations->accepts(value);
    copy.loadFromJsonValue(value);
    return copy.toJsonValue() == value;
}

/// Returns whether the item lets the user choose flags.
bool isMultiSelect(const ConfItem &item)
{
    return item.properties.contains(QStringLiteral("MultiSelect"));
}

} // namespace

QList<const MtConfManage *> &liveManagers()
{
    static QList<const MtConfManage *> sManagers;
    return sManagers;
}

DeclarationCheck::DeclarationCheck(const MtConfManage &manager) : mManager(manager) {}

QStringList DeclarationCheck::problems()
{
    for (const ConfItem &item : mManager.items)
        collect(item, false);
    for (const ConfItem *item : std::as_const(mItems))
        checkItem(*item);
    checkOtherManagers();
    return mProblems;
}

void DeclarationCheck::collect(const ConfItem &item, bool isSubItem)
{
    mItems.append(&item);
    if (isSubItem)
        mSubItems.append(&item);
    ++mKeys[item.getFullName()];
    for (const ConfItem &sub : item.subConfs)
        collect(sub, true);
}

void DeclarationCheck::checkItem(const ConfItem &item)
{
    const QString key = item.getFullName();
    checkNames(item);
    const int count = std::exchange(mKeys[key], 0);
    if (count == 0)
        return; // an item before has the same key
    if (count > 1)
        report(key, QStringLiteral("is declared more than once"));
    if (!ConfStorage::instance()->mConfValues.contains(key)) {
        report(key, QStringLiteral("has no variable: it was declared with a null pointer, or "
                                   "released"));
        return;
    }
    if (const auto *cls = ConfStorage::instance()->findDynamicConfClass(key))
        report(key, QStringLiteral("belongs to the dynamic class with the prefix %1")
                        .arg(quoted(cls->prefix)));
    checkVariable(key);
    checkDefault(item);
    checkChoices(item);
    checkIsShown(item);
    checkInput(item);
    checkDependencies(item);
    checkFormerNames(item);
}

void DeclarationCheck::checkNames(const ConfItem &item)
{
    for (const QString &name : {item.majorName, item.name, item.subName}) {
        for (const QChar separator : {QLatin1Char('#'), QLatin1Char('.')}) {
            if (name.contains(separator))
                report(item.getFullName(),
                       QStringLiteral("has a name with %1, which separates the parts of keys")
                           .arg(quoted(separator)));
        }
    }
}

/// Compares the variable of `key` with those of the keys before it.
void DeclarationCheck::checkVariable(const QString &key)
{
    const ConfValue value = ConfStorage::instance()->mConfValues.value(key);
    if (!value.mIsPtr || !value.mValue.isValid())
        return;
    // Every bound value contains a pointer, whatever its type. A struct and its first member have
    // the same address.
    const Variable variable(*static_cast<void *const *>(value.mValue.constData()), value.mType);
    const auto owner = mOwners.constFind(variable);
    if (owner == mOwners.constEnd())
        mOwners.insert(variable, key);
    else
        report(key, QStringLiteral("has the same variable as %1").arg(quoted(*owner)));
}

void DeclarationCheck::checkDefault(const ConfItem &item)
{
    const QString key = item.getFullName();
    QVariant lowest = item.properties.value(QStringLiteral("MinValue"));
    QVariant highest = item.properties.value(QStringLiteral("MaxValue"));
    if (hasSpinBox(item)) {
        // The range of a QSpinBox.
        lowest = lowest.isValid() ? lowest : 0;
        highest = highest.isValid() ? highest : std::max(99, lowest.toInt());
    }
    if (isOutside(defaultOf(key), lowest, highest))
        report(key, QStringLiteral("has a default value outside of its range"));
    const bool isEmpty = lowest.userType() == QMetaType::QDateTime
                             ? highest.toDateTime().isValid()
                                   && lowest.toDateTime() > highest.toDateTime()
                             : lowest.isValid() && highest.isValid()
                                   && lowest.toDouble() > highest.toDouble();
    if (isEmpty)
        report(key, QStringLiteral("has a range whose lowest value is greater than its highest"));
}

void DeclarationCheck::checkChoices(const ConfItem &item)
{
    const QString key = item.getFullName();
    const QVariant values = item.properties.value(QStringLiteral("Malto.ValueCount"));
    if (values.isValid() && values.toInt() != item.choices.size())
        report(key, QStringLiteral("has %1 labels for %2 values")
                        .arg(item.choices.size())
                        .arg(values.toInt()));
    if (item.choices.isEmpty() || isMultiSelect(item))
        return;
    const QJsonValue value = defaultOf(key);
    const bool isOffered = std::any_of(
        item.choices.cbegin(), item.choices.cend(),
        [&](const ConfChoice &choice) { return choice.value == value; });
    if (!isOffered)
        report(key, QStringLiteral("has a default value that is not among its choices"));
}

void DeclarationCheck::checkIsShown(const ConfItem &item)
{
    const QString key = item.getFullName();
    const auto major = std::find_if(
        mManager.majorItems.cbegin(), mManager.majorItems.cend(),
        [&](const MajorConfItem &candidate) { return candidate.name == item.majorName; });
    const bool hasOwnPage = major != mManager.majorItems.cend() && major->majorWidget;
    if (!item.widgetCreator) {
        if (item.displayText && !hasOwnPage)
            report(key, QStringLiteral("has a label but no editor, so no page shows it"));
        return;
    }
    if (!item.displayText)
        report(key, QStringLiteral("has an editor but no label"));
    if (mSubItems.contains(&item))
        report(key, QStringLiteral("is a sub-item with an editor, which no page shows"));
    if ((item.flags & ItemIsFiltered) && !mManager.itemFilter)
        report(key, QStringLiteral("is filtered, but the manager has no filter, so no page shows "
                                   "it"));
    if (hasOwnPage)
        report(key, QStringLiteral("has an editor, but its class has a page of its own, which does "
                                   "not show it"));
    if (major == mManager.majorItems.cend())
        report(key, QStringLiteral("belongs to a class that the manager does not have"));
}

/// Compares a hotkey or a gesture with those before it.
void DeclarationCheck::checkInput(const ConfItem &item)
{
    constexpr int sActionBits = 0xffff;
    const QString key = item.getFullName();
    const QJsonValue value = defaultOf(key);
    QString input;
    if (item.valueType == ConfValue::TyQKeySequence)
        input = value.toString().isEmpty() ? QString() : QLatin1String("keys ") + value.toString();
    else if (item.properties.contains(QStringLiteral("Kind")) && (value.toInt() & sActionBits))
        input = QString::number(value.toInt());
    if (input.isEmpty())
        return;
    const auto owner = mInputs.constFind(input);
    if (owner == mInputs.constEnd())
        mInputs.insert(input, key);
    else
        report(key,
               QStringLiteral("has the same default hotkey or gesture as %1").arg(quoted(*owner)));
}

void DeclarationCheck::checkDependencies(const ConfItem &item)
{
    const QString key = item.getFullName();
    for (auto other = item.dependencies.cbegin(); other != item.dependencies.cend(); ++other) {
        if (other.key() == key)
            report(key, QStringLiteral("depends on itself"));
        else if (!ConfStorage::instance()->mConfValues.contains(other.key()))
            report(key,
                   QStringLiteral("depends on %1, which is not declared").arg(quoted(other.key())));
        else if (!canHave(other.key(), *other))
            report(
                key,
                QStringLiteral("depends on a value that %1 cannot have").arg(quoted(other.key())));
    }
}

void DeclarationCheck::checkFormerNames(const ConfItem &item)
{
    for (const QString &formerName : item.formerNames) {
        if (ConfStorage::instance()->mConfValues.contains(formerName))
            report(item.getFullName(), QStringLiteral("has the former name %1, which is declared")
                                           .arg(quoted(formerName)));
    }
}

void DeclarationCheck::checkOtherManagers()
{
    QSet<QString> keys;
    for (const ConfItem *item : std::as_const(mItems))
        keys.insert(item->getFullName());
    for (const MtConfManage *other : std::as_const(liveManagers())) {
        if (other == &mManager)
            continue;
        for (const ConfItem &item : other->items) {
            if (keys.remove(item.getFullName()))
                report(item.getFullName(), QStringLiteral("is declared by another manager, too"));
        }
    }
}

void DeclarationCheck::report(const QString &key, const QString &problem)
{
    mProblems.append(quoted(key) + QLatin1Char(' ') + problem + QLatin1Char('.'));
}

QStringList MtConfManage::checkDeclarations() const
{
    return DeclarationCheck(*this).problems();
}

} // namespace MtConf
