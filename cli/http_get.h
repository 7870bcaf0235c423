#pragma once

#include <functional>
#include <string>

#include "core/http_reply.h"

namespace veraqua {

/// HTTP or HTTPS GET of a text of at most 4 MiB. Redirects are followed; 30 seconds without data end it. A status other
/// than 200 is a failure with that status and its reason.
HttpReply HttpGet(const std::string& url, const std::function<void(std::string_view)>& state);

}  // namespace veraqua
