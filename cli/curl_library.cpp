#include "cli/curl_library.h"

#include <dlfcn.h>

#include <optional>

namespace veraqua {

namespace {

/// The interface that the library has kept since 2006.
constexpr const char* LibraryName = "libcurl.so.4";

template <class Function>
bool Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

std::optional<CurlLibrary> Load() {
    void* library = dlopen(LibraryName, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return std::nullopt;
    CurlLibrary curl{};
    const bool whole =
        Find(library, "curl_easy_init", curl.Init) && Find(library, "curl_easy_setopt", curl.Setopt) &&
        Find(library, "curl_easy_perform", curl.Perform) && Find(library, "curl_easy_getinfo", curl.Getinfo) &&
        Find(library, "curl_easy_strerror", curl.Strerror) && Find(library, "curl_easy_cleanup", curl.Cleanup);
    return whole ? std::optional(curl) : std::nullopt;
}

}  // namespace

const CurlLibrary* LoadedCurl() {
    static const std::optional<CurlLibrary> curl = Load();
    return curl ? &*curl : nullptr;
}

}  // namespace veraqua
