// Any text as a dump, parsed by the library's own parser and by Qt's.
#include "FuzzTarget.h"
#include "support/PlainDumpCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startFuzzing();
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<int>(size));
    expect(!isMistaken(text), "both parsers produce the same values", text);
    return 0;
}
