#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QJsonDocument>
#include <QString>

/// Returns the key of up to three components: `a`, `a.b` or `a.b.c`. Empty components at the end
/// are left out; an empty `b` before a `c` is not: `a..c`. `ConfItem::getFullName` differs: its
/// first component always has a full stop behind it.
///
/// @see MtConf::ConfItem::getFullName
/// @since 0.1
MALTO_EXPORT QString getIndexName(const QString &a, const QString &b, const QString &c);

/// Reads a JSON file in UTF-8. Returns a null document if the file does not exist or is not JSON;
/// neither is logged. Logs the critical message "can't open config file" with the path and returns
/// a null document if the file cannot be opened. Folders, pipes, devices and files of more than
/// 16 MiB count as files that cannot be opened. (The critical message "read config faild: " with
/// an error code is for a document with a parse error, which Qt never returns.)
///
/// @since 0.1
MALTO_EXPORT QJsonDocument readJsonFromFile(QString path);

/// Called when the setting of `MtConf::MtConfManage::addConfAutoRun` changes. Does nothing: the
/// library stores and shows this setting like any other, and registers nothing with the system.
///
/// @since 0.1
MALTO_EXPORT void setAppAutoRun(bool on);
