#pragma once

#include "MaltoConfiguration/store/StoreObserver_p.h"

#include <QJsonValue>
#include <QMap>
#include <QObject>
#include <QString>

namespace MtConf {

class ConfigItemWidget;

/// Enables the row of an editor while other settings have certain values.
class RowDependency : public QObject
{
public:
    /// Follows the values of `dependencies`, by key, until `editor` is destroyed.
    RowDependency(const QMap<QString, QJsonValue> &dependencies, ConfigItemWidget *editor);

private:
    bool isFulfilled() const;
    void update();

    const QMap<QString, QJsonValue> mDependencies;
    ConfigItemWidget *const mEditor;
    const StoreObserver mObserver;
};

} // namespace MtConf
