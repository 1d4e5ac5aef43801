#include "RowWords_p.h"

#include "MaltoConfiguration/manage/ValueOrigins_p.h"
#include "MaltoConfiguration/window/PageRow_p.h"
#include "ValueInWords_p.h"

#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/store/ConfStorage.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

namespace MtConf {

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("MtConf::RowWords", source);
}

/// Returns `source` with the time of the last change of `row`.
QString withTime(const char *source, const char *sourceWithoutTime, const PageRow &row)
{
    const QDateTime time = ConfStorage::instance()->mConfMetas.value(row.key).lastChangeTime;
    if (!time.isValid())
        return text(sourceWithoutTime);
    return text(source).arg(isolated(QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)));
}

} // namespace

QString defaultInWords(const PageRow &row)
{
    const ConfStorage *const store = ConfStorage::instance();
    const auto meta = store->mConfMetas.constFind(row.key);
    if (meta == store->mConfMetas.constEnd() || (meta->flags & ConfStorage::FlagSecret))
        return QString();
    const QString value = valueInWords(*row.item, meta->defaultValue.toJsonValue());
    return value.isEmpty() ? QString()
                           : text(QT_TRANSLATE_NOOP("MtConf::RowWords", "Default: %1")).arg(value);
}

QString changeInWords(const PageRow &row)
{
    if (ConfStorage::instance()->isEqualToDefault(row.key))
        return text(QT_TRANSLATE_NOOP("MtConf::RowWords", "Not changed"));
    return withTime(QT_TRANSLATE_NOOP("MtConf::RowWords", "Changed on %1"),
                    QT_TRANSLATE_NOOP("MtConf::RowWords", "Changed"), row);
}

QString originInWords(const PageRow &row, const ValueOrigins &origins, const MtConfManage &manager)
{
    using Origin = ValueOrigins::Origin;
    switch (origins.originOf(row.key)) {
    case Origin::Default:
    case Origin::Changed: return changeInWords(row);
    case Origin::ConfigurationFile:
        return text(QT_TRANSLATE_NOOP("MtConf::RowWords", "From the file %1"))
            .arg(QFileInfo(manager.confFilePath).fileName());
    case Origin::Elsewhere:
        return withTime(
            QT_TRANSLATE_NOOP("MtConf::RowWords", "Changed by another program or computer on %1"),
            QT_TRANSLATE_NOOP("MtConf::RowWords", "Changed by another program or computer"), row);
    case Origin::Locked: return lockInWords();
    }
    return QString();
}

QString lockInWords()
{
    return text(QT_TRANSLATE_NOOP("MtConf::RowWords", "Locked by the administrator"));
}

} // namespace MtConf
