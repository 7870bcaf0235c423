#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "core/files/files.h"
#include "core/records.h"
#include "tests/support/script_ask.h"

/// What the fuzz programs share.
namespace veraqua {

/// The data directory of one input, without files at first. What is written to it stays in memory, in a set of changes
/// that is never committed, so that thousands of inputs a second cost the disk nothing. The state begins anew with it.
class MemoryDirectory {
  public:
    MemoryDirectory();

  private:
    std::optional<files::ChangeSet> changes_;
};

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program unless `holds`: that is what a fuzzer counts as a find.
void Require(bool holds, std::string_view what);

/// True if `deed` ends well, false if it ends in the two ways that damaged data may bring about: a RunTimeFailure, or a
/// message and the end of the program. Anything else that it throws is a find.
bool EndsWell(const std::function<void()>& deed);

/// Default weather as it is shipped, for the region of station 06.
const WeatherCoefficients& ShippedWeather();

/// Runs the season of the field in row 1, if its file can be read. What a run that ends well has computed holds no
/// division by zero, and what it has written can be read again.
void RunFirstField(ScriptAsk& user);

}  // namespace veraqua
