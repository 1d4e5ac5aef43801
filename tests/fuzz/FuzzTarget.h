#pragma once

#include <QByteArray>
#include <QKeySequence>
#include <QString>

#include <cstddef>
#include <cstdint>

/// The target: called with one input after the other, by the fuzzer or by the replay.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Once per process: an application on the offscreen platform, the C locale, and a silent log.
void startFuzzing();

/// Ends the process, after printing the rest, when something does not hold.
void expect(bool holds, const char *what, const QByteArray &found = QByteArray(),
            const QByteArray &expected = QByteArray());

/// A folder of this process alone, in the system's one for temporary files.
QString scratchFolder();

/// Makes the file hold `content`.
void writeScratchFile(const QString &path, const QByteArray &content);

/// Whether Qt reads what it writes of a hotkey; it does not of keys without a name, for one.
bool isReadBack(const QKeySequence &keys);

/// `data` as bytes, without a copy.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/// `data` as text in UTF-8, to its end: QString::fromUtf8(QByteArray) stops at a zero byte.
inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
}
