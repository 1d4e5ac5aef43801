#pragma once

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// During its lifetime the leak check ignores what this thread allocates: the JSON parser of Qt 5
/// leaks when an object names a member twice.
class IgnoreLeaks
{
public:
    IgnoreLeaks()
    {
#ifdef __SANITIZE_ADDRESS__
        __lsan_disable();
#endif
    }
    ~IgnoreLeaks()
    {
#ifdef __SANITIZE_ADDRESS__
        __lsan_enable();
#endif
    }
    IgnoreLeaks(const IgnoreLeaks &) = delete;
    IgnoreLeaks &operator=(const IgnoreLeaks &) = delete;
};
