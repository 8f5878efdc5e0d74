#pragma once

namespace VELIX {

/// Makes the built-in files (styles, icons, translations) known to Qt.
///
/// The linker drops their automatic registration from a static library, so start-up and tests
/// call this before they read a path that starts with ":/". Calling it again does no harm.
void initResources();

} // namespace VELIX
