#pragma once

/// @file

#include <QList>

static_assert(QT_VERSION_MAJOR == 5,
              "These headers of MaltoConfiguration are for Qt 5: use those for Qt 6, in the folder "
              "include/MaltoConfiguration-qt6.");

namespace MtConf {

/// The type of the lists of `MtConfManage`. With Qt 5 it is a `QList`, which allocates each element
/// by itself, so that the list can grow without moving them. With Qt 6, whose `QList` moves its
/// elements, it is a `StableList` with the functions of `QList` that such a list needs.
/// @since 0.1
template<class T> using ItemList = QList<T>;

} // namespace MtConf
