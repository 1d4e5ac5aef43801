#include <MaltoConfiguration/store/ConfStorage.h>

#include "ConfKeptEntries_p.h"
#include "ConfVersions_p.h"
#include "DumpMember_p.h"
#include "EntryLog_p.h"
#include "JsonText_p.h"
#include "Limits_p.h"
#include "SecretText_p.h"

#include <QJsonValue>

#include <algorithm>
#include <utility>

namespace {

constexpr int sMostCharacters = 40;

QString nothing()
{
    return QStringLiteral("-");
}

QString keyText(const QString &key)
{
    return EntryLog::printable(key, Limits::sMaxLoggedLength);
}

/// Returns one line of JSON, truncated if it is long.
QString jsonText(const QJsonValue &value)
{
    if (value.isUndefined())
        return nothing();
    QByteArray json;
    appendJsonValue(json, value);
    return EntryLog::printable(QString::fromUtf8(json), sMostCharacters);
}

QString valueText(const ConfValue &value, quint32 flags)
{
    if (flags & ConfStorage::FlagSecret)
        return sSecretText;
    return value.mType == ConfValue::TyNone ? nothing() : jsonText(value.toJsonValue());
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODate) : nothing();
}

/// Returns the row of a kept entry. It has the timestamp of a removal, too.
QStringList keptRow(const QString &name, const QJsonValue &entry, bool isSecret)
{
    const std::optional<qint64> seconds = ConfKeptEntries::timeOf(entry);
    const QDateTime time = seconds ? QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC) : QDateTime();
    const QJsonValue value = entry.isObject() ? entry.toObject().value(sValueKey.name()) : entry;
    return {keyText(name),  isSecret ? QString(sSecretText) : jsonText(value),
            nothing(),      QStringLiteral("kept"),
            timeText(time), nothing()};
}

QString flagsText(quint32 flags, bool isLocked)
{
    QStringList names;
    if (flags & ConfStorage::FlagIsDefault)
        names.append(QStringLiteral("default"));
    if (flags & ConfStorage::FlagSystemIndependent)
        names.append(QStringLiteral("system"));
    if (flags & ConfStorage::FlagLocalOnly)
        names.append(QStringLiteral("local"));
    if (flags & ConfStorage::FlagSecret)
        names.append(QStringLiteral("secret"));
    if (isLocked)
        names.append(QStringLiteral("locked"));
    return names.isEmpty() ? nothing() : names.join(QLatin1Char(','));
}

QString aligned(const QVector<QStringList> &rows)
{
    QVector<QString::size_type> widths(rows.first().size());
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (int column = 0; column < row.size(); ++column)
            line += row[column].leftJustified(widths[column] + 2);
        text += line.trimmed() + QLatin1Char('\n');
    }
    return text;
}

} // namespace

/// Returns whether the kept entry `name` is that of a secret key, or of a former name of one.
bool ConfStorage::isSecretEntry(const QString &name) const
{
    QString key = name;
    if (key.endsWith(addSysMark(QString())))
        key.chop(addSysMark(QString()).size());
    QSet<QString> seen; // former names may form a circle
    while (!key.isEmpty() && !seen.contains(key)) {
        if (mKeptEntries->isSecret(key) || (mConfMetas.value(key).flags & FlagSecret))
            return true;
        seen.insert(key);
        key = mVersions ? mVersions->mFormerNames.value(key).key : QString();
    }
    return false;
}

QString ConfStorage::debugTable() const
{
    if (mMisuse)
        checkUse("debugTable");
    QVector<QStringList> rows{{QStringLiteral("KEY"), QStringLiteral("VALUE"),
                               QStringLiteral("DEFAULT"), QStringLiteral("STATE"),
                               QStringLiteral("CHANGED AT"), QStringLiteral("FLAGS")}};
    QStringList keys = mConfValues.keys();
    for (auto meta = mConfMetas.cbegin(); meta != mConfMetas.cend(); ++meta) {
        if (!mConfValues.contains(meta.key()))
            keys.append(meta.key());
    }
    std::sort(keys.begin(), keys.end());
    for (const QString &key : std::as_const(keys)) {
        if (rows.size() > Limits::sMaxTableRows)
            break;
        const ConfMeta meta = mConfMetas.value(key);
        rows.append({keyText(key), valueText(mConfValues.value(key), meta.flags),
                     valueText(meta.defaultValue, meta.flags),
                     isEqualToDefault(key) ? nothing() : QStringLiteral("changed"),
                     timeText(meta.lastChangeTime), flagsText(meta.flags, isLocked(key))});
    }
    for (auto removed = mRemovedDynamicConfs.cbegin(); removed != mRemovedDynamicConfs.cend();
         ++removed) {
        if (rows.size() > Limits::sMaxTableRows)
            break;
        rows.append({keyText(removed.key()), nothing(), nothing(), QStringLiteral("removed"),
                     timeText(removed.value()), nothing()});
    }
    const auto kept = mKeptEntries ? mKeptEntries->entries() : QMap<QString, QJsonValue>();
    for (auto entry = kept.cbegin(); entry != kept.cend(); ++entry) {
        if (rows.size() > Limits::sMaxTableRows)
            break;
        rows.append(keptRow(entry.key(), *entry, isSecretEntry(entry.key())));
    }
    const auto more = keys.size() + mRemovedDynamicConfs.size() + kept.size() - (rows.size() - 1);
    return aligned(rows) + (more > 0 ? QStringLiteral("%1 more\n").arg(more) : QString());
}
