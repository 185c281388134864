#include "support/BundleState.h"

#include <dlfcn.h>
#include <stdexcept>

namespace support {

namespace {

/// The variable of this name in the loaded bundle.
void *bundleVariable(const char *mangledName) {
    void *bundle = dlopen(ZV_BUNDLE_PATH "/Zelvora", RTLD_LAZY | RTLD_NOLOAD);
    void *variable = bundle ? dlsym(bundle, mangledName) : nullptr;
    if (!variable)
        throw std::runtime_error(std::string("not in the loaded bundle: ") + mangledName);
    dlclose(bundle);
    return variable;
}

} // namespace

NSMutableDictionary *&sharedSettings() {
    return *static_cast<NSMutableDictionary **>(bundleVariable("_ZN2zv15_sharedSettingsE"));
}

NSMutableDictionary *&settingsMirror() {
    return *static_cast<NSMutableDictionary **>(bundleVariable("_ZN2zv9_settingsE"));
}

} // namespace support
