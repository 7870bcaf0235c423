#pragma once

#include <curl/curl.h>

namespace veraqua {

/// The part of libcurl that a download takes. It is loaded at the first one and not with the program: the thirty
/// libraries that it brings along would cost a short command more than all that the command does.
struct CurlLibrary {
    decltype(&curl_easy_init) Init;
    decltype(&curl_easy_setopt) Setopt;
    decltype(&curl_easy_perform) Perform;
    decltype(&curl_easy_getinfo) Getinfo;
    decltype(&curl_easy_strerror) Strerror;
    decltype(&curl_easy_cleanup) Cleanup;
};

/// The library, which stays loaded; null where this computer has none.
const CurlLibrary* LoadedCurl();

}  // namespace veraqua
