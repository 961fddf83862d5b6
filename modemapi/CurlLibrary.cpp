#include "modemapi/CurlLibrary.h"

#include <dlfcn.h>

#include <stdexcept>

namespace tarvo {

namespace {

constexpr auto libraryName = "libcurl.so.4"; ///< what has the interface of the headers, in all of libcurl 7 and 8

/// @throws std::runtime_error with what dlerror(3) says when @p found is null
void *checked(void *found)
{
    if (!found)
        throw std::runtime_error(dlerror()); // NOLINT(concurrency-mt-unsafe): each thread has its own in glibc
    return found;
}

} // namespace

const CurlLibrary &CurlLibrary::shared()
{
    static const CurlLibrary library;
    return library;
}

CurlLibrary::CurlLibrary()
    : m_library(checked(dlopen(libraryName, RTLD_NOW | RTLD_NODELETE)))
{
    global_init(CURL_GLOBAL_NOTHING); // no TLS is ever spoken
}

CurlLibrary::Symbol CurlLibrary::find(const char *name) const
{
    return {checked(dlsym(m_library, name))};
}

} // namespace tarvo
