#include <MaltoConfiguration/manage/ConfItem.h>

#include "ConfItemIndex_p.h"

#include <QJsonObject>

namespace MtConf {

namespace {

quint64 sRevision = 0;

} // namespace

quint64 itemRevision()
{
    return sRevision;
}

ConfItem::ConfItem(const ConfItem &other)
{
    *this = other;
}

// Written out, because it counts the change. The copy constructor uses this one list of the fields.
ConfItem &ConfItem::operator=(const ConfItem &other)
{
    subConfs = other.subConfs;
    valueType = other.valueType;
    isWholeNumber = other.isWholeNumber;
    majorName = other.majorName;
    name = other.name;
    subName = other.subName;
    formerNames = other.formerNames;
    flags = other.flags;
    displayText = other.displayText;
    widgetCreator = other.widgetCreator;
    properties = other.properties;
    choices = other.choices;
    dependencies = other.dependencies;
    validator = other.validator;
    editor = other.editor;
    auxCallback = other.auxCallback;
    ++sRevision;
    return *this;
}

// A callback may destroy the item whose function is running. So no function reads a member of the
// item after it has called the store, and sub-items are iterated in a copy, which shares their
// data.

QString ConfItem::getFullName() const
{
    QString fullName;
    fullName.reserve(majorName.size() + name.size() + subName.size() + 2);
    fullName.append(majorName).append(QLatin1Char('.')).append(name);
    if (!subName.isEmpty())
        fullName.append(QLatin1Char('.')).append(subName);
    return fullName;
}

void ConfItem::setFlagSystemIndependent() const
{
    ConfStorage::instance()->mConfMetas[getFullName()].flags |= ConfStorage::FlagSystemIndependent;
    for (const ConfItem &sub : subConfs)
        sub.setFlagSystemIndependent();
}

void ConfItem::setConfChangedCallback(ConfChangedCallback cb) const
{
    ConfStorage::instance()->setConfChangedCallback(getFullName(), std::move(cb));
}

void ConfItem::addFormerName(const QString &formerName, bool keepEntry)
{
    formerNames.append(formerName);
    ++sRevision;
    ConfStorage::instance()->addFormerName(getFullName(), formerName, keepEntry);
}

void ConfItem::setConverter(std::function<QJsonValue(const QJsonValue &)> converter)
{
    ConfStorage::instance()->setConfConverter(getFullName(), std::move(converter));
}

bool ConfItem::isDefaultValue() const
{
    if (!ConfStorage::instance()->isEqualToDefault(getFullName()))
        return false;
    for (const ConfItem &sub : subConfs) {
        if (!sub.isDefaultValue())
            return false;
    }
    return true;
}

void ConfItem::restoreDefault() const
{
    const QMap<QString, ConfItem> subs = subConfs;
    ConfStorage::instance()->setToDefault(getFullName(), true);
    for (const ConfItem &sub : subs)
        sub.restoreDefault();
}

QJsonValue ConfItem::toJsonValue() const
{
    return QJsonValue();
}

bool ConfItem::loadFromJsonValue(QJsonValue value) const
{
    const QString fullName = getFullName();
    bool isLocked = false;
    if (value.isObject()) {
        const QJsonObject member = value.toObject();
        const QJsonObject subMembers = member.value(QLatin1String("subConf")).toObject();
        const QMap<QString, ConfItem> subs = subConfs;
        for (auto sub = subs.cbegin(); sub != subs.cend(); ++sub) {
            const auto subMember = subMembers.constFind(sub.key());
            if (subMember != subMembers.constEnd())
                sub->loadFromJsonValue(subMember.value());
        }
        const auto own = member.constFind(QLatin1String("value"));
        if (own != member.constEnd()) {
            value = own.value();
            isLocked = member.value(QLatin1String("locked")).toBool();
        }
    }
    ConfStorage *const store = ConfStorage::instance();
    if (isLocked && (store->mFileOptions & ConfStorage::LockedValues))
        store->lockConf(fullName, value);
    else
        store->loadValueFromJson(fullName, value);
    return true;
}

} // namespace MtConf
