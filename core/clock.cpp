#include "core/clock.h"

#include <ctime>

namespace veraqua {

JulianValue ClockDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return JulianFromDate(local.tm_mon + 1, local.tm_mday, local.tm_year + 1900);
}

}  // namespace veraqua
