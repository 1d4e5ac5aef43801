#pragma once

#include <QByteArray>
#include <QKeySequence>
#include <QString>

#include <cstddef>
#include <cstdint>

/// The fuzz target. The fuzzer or the replay calls it with one input after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Creates an application on the offscreen platform, with the C locale and without log output. Does
/// nothing when called again.
void startFuzzing();

/// If `holds` is false, prints the other arguments and aborts the process.
void expect(bool holds, const char *what, const QByteArray &found = QByteArray(),
            const QByteArray &expected = QByteArray());

/// Returns a temporary folder of this process.
QString scratchFolder();

/// Replaces the content of a file.
void writeScratchFile(const QString &path, const QByteArray &content);

/// Returns whether Qt can parse its own text for `keys`. It cannot for keys without a name, for
/// example.
bool isReadBack(const QKeySequence &keys);

/// Returns `data` as a byte array without copying it.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/// Returns all of `data` as UTF-8 text. QString::fromUtf8(QByteArray) would stop at a zero byte.
inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
}
