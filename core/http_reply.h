#pragma once

#include <string>

namespace veraqua {

/// What came of a request to the weather network.
struct HttpReply {
    bool Succeeded = false;
    int Code = 0;      ///< HTTP status, or the transport's error number
    std::string Text;  ///< reason, fit for the user, where it failed
    std::string Body;
};

}  // namespace veraqua
