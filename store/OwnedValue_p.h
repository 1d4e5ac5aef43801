#pragma once

class ConfValue;

/// Returns a value that owns a copy of the content of `value`.
ConfValue ownedCopy(const ConfValue &value);
