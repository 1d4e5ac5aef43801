#include "BoundValueModel.h"

#include "ProfileStore.h"

#include <MaltoConfiguration/manage/MtConfManage.h>

#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

BoundValueModel::BoundValueModel(const MtConf::MtConfManage &manager, QObject *parent)
    : QAbstractTableModel(parent), mManager(manager), mKeys(currentKeys())
{
}

int BoundValueModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mKeys.size());
}

int BoundValueModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant BoundValueModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= mKeys.size())
        return QVariant();
    const QString &key = mKeys.at(index.row());
    const bool changed = !ConfStorage::instance()->isEqualToDefault(key);
    if (role == Qt::FontRole && changed) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (index.column() == ValueColumn && role == Qt::DecorationRole) {
        const ConfValue value = ConfStorage::instance()->mConfValues.value(key);
        return value.mType == ConfValue::TyQColor ? QVariant(value.get<QColor>()) : QVariant();
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    switch (index.column()) {
    case KeyColumn: return key;
    case ValueColumn: return valueText(key);
    default: return changed ? tr("changed") : QString();
    }
}

QVariant BoundValueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case KeyColumn: return tr("Setting");
    case ValueColumn: return tr("Value");
    default: return tr("State");
    }
}

int BoundValueModel::changedCount() const
{
    return static_cast<int>(std::count_if(mKeys.cbegin(), mKeys.cend(), [](const QString &key) {
        return !ConfStorage::instance()->isEqualToDefault(key);
    }));
}

void BoundValueModel::refresh()
{
    const QStringList keys = currentKeys();
    if (keys != mKeys) {
        beginResetModel();
        mKeys = keys;
        endResetModel();
    } else if (!mKeys.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

void BoundValueModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QStringList BoundValueModel::currentKeys() const
{
    QStringList keys;
    for (const MtConf::ConfItem &item : mManager.items) {
        keys.append(item.getFullName());
        for (const MtConf::ConfItem &sub : item.subConfs)
            keys.append(sub.getFullName());
    }
    const auto &values = ConfStorage::instance()->mConfValues;
    for (auto value = values.lowerBound(ProfileStore::prefix());
         value != values.cend() && value.key().startsWith(ProfileStore::prefix()); ++value)
        keys.append(value.key());
    return keys;
}

QString BoundValueModel::valueText(const QString &key)
{
    const ConfStorage *store = ConfStorage::instance();
    if (store->mConfMetas.value(key).flags & ConfStorage::FlagSecret)
        return QStringLiteral("***");
    const ConfValue value = store->mConfValues.value(key);
    switch (value.mType) {
    case ConfValue::TyQColor: {
        const QColor color = value.get<QColor>();
        return color.alpha() == 255 ? color.name() : color.name(QColor::HexArgb);
    }
    case ConfValue::TyQFont: {
        const QFont font = value.get<QFont>();
        return tr("%1, %2 px").arg(font.family()).arg(font.pixelSize());
    }
    case ConfValue::TyQKeySequence:
        return value.get<QKeySequence>().toString(QKeySequence::NativeText);
    case ConfValue::TyQJsonObject:
        return QString::fromUtf8(
            QJsonDocument(value.get<QJsonObject>()).toJson(QJsonDocument::Compact));
    case ConfValue::TyQString: return value.get<QString>();
    case ConfValue::TyBool:
        return value.get<bool>() ? QStringLiteral("true") : QStringLiteral("false");
    default: break;
    }
    const QJsonValue json = value.toJsonValue();
    return json.isArray()
               ? QString::fromUtf8(QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact))
               : json.toVariant().toString();
}
