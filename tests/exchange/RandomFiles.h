#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

/// Contents of files by name.
using Files = std::map<QString, QByteArray>;

// A host with settings of every type writes every kind of file, with content that depends on the
// seed alone. Both Qts must write the same bytes. The functions leave files in the current folder
// and use the store of the process.

/// Returns the files of a host with random settings: "local.json"; the dumps "shared.json" and
/// "changed.json"; "table.txt", for debugging; "configuration.json", as a user may write it, and
/// "configured.json", what a host saves that has loaded it; "log.txt"; for some seeds
/// "geometry.ini".
Files writtenFiles(quint64 seed);

/// Returns what a host writes that has read `files`, each into a new store.
Files rewrittenFiles(const Files &files);

/// Returns what a host writes that has read its `own` files from an earlier round, if any, has
/// merged those of another host, if any, and has then changed some settings.
Files mergedFiles(const Files &own, const Files &other, quint64 seed, int round);

/// Returns all of these for the seed: written, rewritten, and three rounds of merging; then those
/// of RandomForms.h.
std::vector<Files> exchangedFiles(quint64 seed);

/// Returns a line with the seed and a short hash of each element of `exchangedFiles(seed)`.
QByteArray digestLine(quint64 seed);
