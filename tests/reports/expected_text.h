#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace veraqua {

/// A whole report or screen of tests/data/reports. Cells of the saved reports were computed apart from the program,
/// from the numbers of tests/support/report_fields.h; printouts and screens show the same cells, or others of the same
/// numbers, and were read line by line against them.
inline std::string ExpectedText(const std::string& name) {
    std::ifstream file(VERAQUA_TEST_DATA "/reports/" + name + ".txt", std::ios::binary);
    if (!file) throw std::runtime_error("There is no expected report " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace veraqua
