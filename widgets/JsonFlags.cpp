#include "JsonFlags_p.h"

#include "MaltoConfiguration/store/BoundCopy_p.h"

#include <MaltoConfiguration/store/ConfStorage.h>
#include <MaltoConfiguration/store/JsonForm.h>

#include <QStringList>

namespace MtConf {

namespace {

std::optional<quint64> bitsOf(const QJsonValue &flags)
{
    using Signed = std::numeric_limits<qint64>;
    if (const auto number = integerOf(flags, Signed::min(), Signed::max()))
        return static_cast<quint64>(*number);
    return integerOf(flags, quint64(0), std::numeric_limits<quint64>::max());
}

bool isNegative(const QJsonValue &flags)
{
    return integerOf(flags, std::numeric_limits<qint64>::min(), qint64(-1)).has_value();
}

QJsonValue jsonOfBits(quint64 bits, bool isSigned)
{
    return isSigned ? jsonOfInteger(static_cast<qint64>(bits)) : jsonOfInteger(bits);
}

QStringList namesOf(const QJsonValue &flags)
{
    QStringList names = flags.toString().split(QLatin1Char('|'));
    names.removeAll(QString());
    return names;
}

} // namespace

QJsonValue JsonFlags::normalized(const QJsonValue &flags) const
{
    BoundCopy copy = boundCopy(ConfStorage::instance()->mConfValues.value(mKey));
    const JsonOperations *operations = jsonOperations(copy.value.mType);
    if (!operations)
        return flags;
    if (!operations->accepts(flags))
        return QJsonValue();
    copy.value.loadFromJsonValue(flags);
    return copy.value.toJsonValue();
}

bool JsonFlags::isNone(const QJsonValue &flag) const
{
    const auto bits = bitsOf(flag);
    return bits ? *bits == 0 : flag == normalized(0);
}

bool JsonFlags::contains(const QJsonValue &flags, const QJsonValue &flag) const
{
    if (isNone(flag) || isNone(flags))
        return isNone(flag) && isNone(flags);
    const auto bits = bitsOf(flag);
    const auto all = bitsOf(flags);
    if (bits && all)
        return (*bits & ~*all) == 0;
    // One name may mean several bits, so the type of the setting combines them.
    return namesOf(flags).contains(flag.toString()) || normalized(with(flags, flag)) == flags;
}

QJsonValue JsonFlags::with(const QJsonValue &flags, const QJsonValue &flag) const
{
    const auto bits = bitsOf(flag);
    const auto all = bitsOf(flags);
    if (isNone(flag) || isNone(flags))
        return flag;
    if (bits && all)
        return jsonOfBits(*bits | *all, isNegative(flag) || isNegative(flags));
    QStringList names = namesOf(flags) + namesOf(flag);
    names.removeDuplicates();
    return names.join(QLatin1Char('|'));
}

QJsonValue JsonFlags::without(const QJsonValue &flags, const QJsonValue &flag) const
{
    const auto bits = bitsOf(flag);
    const auto all = bitsOf(flags);
    if (bits && all)
        return jsonOfBits(*all & ~*bits, isNegative(flags));
    QStringList names;
    for (const QString &name : namesOf(flags)) {
        if (!contains(name, flag))
            names.append(name);
    }
    return names.isEmpty() ? normalized(0) : QJsonValue(names.join(QLatin1Char('|')));
}

} // namespace MtConf
