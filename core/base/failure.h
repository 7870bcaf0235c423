#pragma once

#include <stdexcept>
#include <string>

namespace veraqua {

/// An arithmetic fault or a damaged or unreachable file. Its text names the file or the quantity, the place and the
/// numbers, and is fit to be shown to the user. Whoever throws it has written nothing; it is caught in one place per
/// program.
class RunTimeFailure : public std::runtime_error {
  public:
    explicit RunTimeFailure(const std::string& text) : std::runtime_error(text) {}
};

/// What the user can set right without a repair, and that is no fault of a data file or of the arithmetic: another
/// program holds the data directory, or a file that he named can't be read or written.
class Refusal : public RunTimeFailure {
  public:
    using RunTimeFailure::RunTimeFailure;
};

}  // namespace veraqua
