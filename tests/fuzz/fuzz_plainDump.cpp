// The text of a dump, read by our own reader and by Qt's.
#include "FuzzTarget.h"
#include "support/PlainDumpCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<int>(size));
    expect(!isMistaken(text), "what our own reader takes means the same to Qt's", text);
    return 0;
}
