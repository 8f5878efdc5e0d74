#include "core/DllApi.h"

#include "core/Diagnostics.h"

#include <dlfcn.h>

namespace VELIX {

void* apiDllOpen(const char* fileName)
{
    if (fileName == nullptr) {
        return nullptr;
    }
    void* handle = dlopen(fileName, RTLD_NOW | RTLD_GLOBAL);
    if (handle == nullptr) {
        Diagnostics::print("Error dlopen: %s\n", dlerror());
    }
    return handle;
}

void* apiDllGetSymbol(void* handle, const char* name)
{
    // The loader takes a null handle for "search everything", which would hide a failed open.
    return handle != nullptr ? dlsym(handle, name) : nullptr;
}

void apiDllClose(void* handle)
{
    if (handle != nullptr) {
        dlclose(handle);
    }
}

} // namespace VELIX
