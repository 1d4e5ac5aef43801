#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <MaltoConfiguration/manage/MtConfManage.h>

namespace MtConf {

/// What the looks of the window differ in, besides their page builders and the modern frame.
struct LookValues
{
    QSizeF size;               ///< of the window at its first opening, in points
    double iconSize;           ///< of the classes, in points
    QString iconColor;         ///< theme value
    QString selectedIconColor; ///< theme value; empty: white
    QStringList sheets;        ///< empty: those of setQssForWidget()
    double unitsPerPoint;      ///< the unit of the sheets' sizes
};

/// Returns the values of `look`.
LookValues lookValues(WindowLook look);

} // namespace MtConf
