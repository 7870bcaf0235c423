#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace veraqua {

/// An arithmetic fault, or a damaged or unreachable file. Its text is fit to be shown to the user. It ends the event,
/// the command or the one field of many in which it comes up; files are then as before, or the text says that a change
/// is recorded and will be completed.
class RunTimeFailure : public std::runtime_error {
  public:
    explicit RunTimeFailure(const std::string& text) : std::runtime_error(text) {}
};

/// What the user can set right without a repair, and that is no fault of a data file or of the arithmetic: another
/// program holds the data directory, or a file that the user named can't be read or written.
class Refusal : public RunTimeFailure {
  public:
    using RunTimeFailure::RunTimeFailure;
};

/// A RunTimeFailure that lies in a file: its name, then what is wrong there.
[[noreturn]] void FailIn(std::string_view fileName, std::string_view what);

/// What `compute` gives. Where the numbers of the file `fileName` can't be computed with, the failure names it.
template <class Compute>
auto InFile(std::string_view fileName, Compute compute) {
    try {
        return compute();
    } catch (const RunTimeFailure& failure) {  // the arithmetic knows no files
        FailIn(fileName, failure.what());
    }
}

}  // namespace veraqua
