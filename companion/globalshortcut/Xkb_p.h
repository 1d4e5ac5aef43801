#pragma once
// No warnings about the redefined keyword.
#pragma GCC system_header

// The C header has members whose name is a C++ keyword.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
