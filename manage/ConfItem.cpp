#include <MaltoConfiguration/manage/ConfItem.h>

#include <QJsonObject>

namespace MtConf {

quint64 ConfItemRevision::sCurrent = 0;

// Callbacks may remove the very item whose operation runs. After a call into the store nothing here
// reads a member of the item any more; sub-items are walked in a copy, which shares their data.

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
        if (own != member.constEnd())
            value = own.value();
    }
    ConfStorage::instance()->loadValueFromJson(fullName, value);
    return true;
}

} // namespace MtConf
