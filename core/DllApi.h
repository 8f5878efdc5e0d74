#pragma once

namespace VELIX {

/// Opens a shared library with immediate binding, its symbols visible to libraries opened later.
/// Null, with the loader's message as a diagnostic, if that fails; null for a null name.
[[nodiscard]] void* apiDllOpen(const char* fileName);

/// Returns the address of a symbol; null if the library lacks it or the handle is null.
[[nodiscard]] void* apiDllGetSymbol(void* handle, const char* name);

void apiDllClose(void* handle);

} // namespace VELIX
