#pragma once

#include <curl/curl.h>

namespace tarvo {

/// The functions of libcurl that are used, under its own names (libcurl(3)).
///
/// Linked against, the library and the two dozen that it needs itself would make each start a quarter longer and stay in
/// memory without being used for as long as there is no modem.
class CurlLibrary {
public:
    /// Loads and initialises the library at the first call, for good. May be called by any thread.
    /// @throws std::runtime_error when it cannot be loaded
    static const CurlLibrary &shared();

private:
    /// What a function pointer of any kind is made of.
    struct Symbol {
        void *address;

        template <typename Function>
        operator Function *() const
        {
            return reinterpret_cast<Function *>(address);
        }
    };

    CurlLibrary();
    /// @throws std::runtime_error when the library has no such function
    Symbol find(const char *name) const;

    void *const m_library; // before what is found in it

public:
    decltype(&curl_easy_cleanup) easy_cleanup = find("curl_easy_cleanup");
    decltype(&curl_easy_getinfo) easy_getinfo = find("curl_easy_getinfo");
    decltype(&curl_easy_init) easy_init = find("curl_easy_init");
    decltype(&curl_easy_reset) easy_reset = find("curl_easy_reset");
    decltype(&curl_easy_setopt) easy_setopt = find("curl_easy_setopt");
    decltype(&curl_easy_strerror) easy_strerror = find("curl_easy_strerror");
    decltype(&curl_global_init) global_init = find("curl_global_init");
    decltype(&curl_multi_add_handle) multi_add_handle = find("curl_multi_add_handle");
    decltype(&curl_multi_cleanup) multi_cleanup = find("curl_multi_cleanup");
    decltype(&curl_multi_info_read) multi_info_read = find("curl_multi_info_read");
    decltype(&curl_multi_init) multi_init = find("curl_multi_init");
    decltype(&curl_multi_perform) multi_perform = find("curl_multi_perform");
    decltype(&curl_multi_poll) multi_poll = find("curl_multi_poll");
    decltype(&curl_multi_remove_handle) multi_remove_handle = find("curl_multi_remove_handle");
    decltype(&curl_multi_wakeup) multi_wakeup = find("curl_multi_wakeup");
    decltype(&curl_slist_append) slist_append = find("curl_slist_append");
    decltype(&curl_slist_free_all) slist_free_all = find("curl_slist_free_all");
};

} // namespace tarvo
