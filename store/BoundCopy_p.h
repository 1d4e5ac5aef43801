#pragma once

#include <MaltoConfiguration/store/ConfValue.h>

#include <memory>

/// A copy of a value that is bound to a variable of its own, so that changing the copy does not
/// change the variable of the host. Otherwise it behaves as the value does. An owned value differs:
/// it is null if its text is.
struct BoundCopy
{
    ConfValue value;
    std::shared_ptr<void> variable; ///< null if the copied value owns its content
};

/// Returns a copy of `value`.
BoundCopy boundCopy(const ConfValue &value);
