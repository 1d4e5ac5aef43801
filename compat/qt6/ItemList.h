#pragma once

/// @file

#include <MaltoConfiguration/manage/StableList.h>

#include <QtGlobal>

static_assert(QT_VERSION_MAJOR == 6,
              "These headers of MaltoConfiguration are for Qt 6: use those for Qt 5, in the folder "
              "include.");

namespace MtConf {

/// The type of the lists of `MtConfManage`. With Qt 6, whose `QList` moves its elements when it
/// grows, it is a list with the functions of `QList` that such a list needs. With Qt 5 it is a
/// `QList`.
/// @since 0.1
template<class T> using ItemList = StableList<T>;

} // namespace MtConf
