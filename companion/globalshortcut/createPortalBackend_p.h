#pragma once

#include "GlobalShortcutBackend_p.h"

#include <memory>

/// Creates the backend for Wayland; never null. CMake chooses the file that defines it.
std::unique_ptr<GlobalShortcutBackend> createPortalBackend(
    GlobalShortcutBackend::Listener &listener);
