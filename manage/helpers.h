#pragma once

/// @file

#include <MaltoConfiguration/malto_export.h>

#include <QJsonDocument>
#include <QString>

/// The key text of up to three components: `a`, `a.b` or `a.b.c`, without the full stops of empty
/// components at the end. An empty `b` before a `c` keeps its full stop. Unlike
/// `ConfItem::getFullName`, a component alone gets none.
MALTO_EXPORT QString getIndexName(const QString &a, const QString &b, const QString &c);

/// Reads a JSON file in UTF-8. A null document means that there is nothing usable: the file is
/// missing, or holds no JSON, which is not logged, or it cannot be opened, which logs the critical
/// message "can't open config file" and the path. A folder, pipe or device and a file of more than
/// 128 MiB count as files that cannot be opened. (A document with a parse error would log the
/// critical message "read config faild: " and the code, but Qt gives none.)
MALTO_EXPORT QJsonDocument readJsonFromFile(QString path);

/// The hook of the start-at-login setting. The library registers nothing with the system; the
/// setting is stored and shown like any other.
MALTO_EXPORT void setAppAutoRun(bool on);
