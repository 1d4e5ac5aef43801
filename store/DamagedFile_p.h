#pragma once

#include "PosixFile_p.h"

struct DumpText;

/// Copies of a local file that cannot be parsed, beside the file.
namespace DamagedFile {

/// Returns whether the text, the content of a local file, contains something and is not a JSON
/// object.
bool isDamaged(const DumpText &dump);
bool isDamaged(const QByteArray &text);

/// Returns whether `text` is what an interrupted save of `saved` left: a part of it, or all of it
/// with null bytes where the disk did not get it.
bool isRestOf(const QByteArray &text, const QByteArray &saved);

/// Copies `text`, the content of `file`, to "<file>.damaged-<UTC time>" and waits until the copy is
/// on the disk. Uses the newest copy if it has the same content, so that a file that is loaded
/// several times has one copy. Then removes all but the newest three copies. The copy has the
/// access of the file or less. Returns the path of the copy, or an empty text if there is none.
QString keepCopy(const QByteArray &text, const PosixFile &file, PosixFile::Access access);

} // namespace DamagedFile
