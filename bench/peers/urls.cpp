#include <curl/curl.h>
#include <uriparser/Uri.h>
#include <uriparser/UriIp4.h>

#include <stdexcept>

#include "bench/contender.h"

namespace ostrel::bench {

void add_urls(Contenders& all)
{
    all.push_back(contender("url", "uriparser", [](const char* v) {
        UriUriA uri;
        const bool accepted = uriParseSingleUriA(&uri, v, nullptr) == URI_SUCCESS;
        if (accepted) uriFreeUriMembersA(&uri);
        return accepted;
    }));
    all.push_back(contender("ipv4", "uriparser", [](const char* v) {
        unsigned char octets[4];
        return uriParseIpFourAddressA(octets, v, v + std::char_traits<char>::length(v)) == URI_SUCCESS;
    }));
    // Reusing one handle for all values is fastest.
    CURLU* handle = curl_url();
    if (handle == nullptr) throw std::runtime_error("curl_url returned no handle");
    all.push_back(contender("url", "libcurl", [handle](const char* v) {
        return curl_url_set(handle, CURLUPART_URL, v, 0) == CURLUE_OK;
    }));
}

}  // namespace ostrel::bench
