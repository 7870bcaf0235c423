#include "core/base/failure.h"

#include <fmt/format.h>

namespace veraqua {

void FailIn(std::string_view fileName, std::string_view what) {
    throw RunTimeFailure(fmt::format("{}: {}", fileName, what));
}

}  // namespace veraqua
