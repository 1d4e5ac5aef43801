#include "BenchmarkSupport.h"

#include <malloc/malloc.h>

qint64 heapBytes()
{
    malloc_statistics_t statistics{};
    malloc_zone_statistics(nullptr, &statistics); // null: the sum over all zones
    return static_cast<qint64>(statistics.size_in_use);
}
