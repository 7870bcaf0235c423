#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace veraqua {

/// A whole report of tests/data/reports. Their cells were computed apart from the program, from the numbers of
/// tests/support/report_fields.h, and their lines read one by one.
inline std::string ExpectedText(const std::string& name) {
    std::ifstream file(VERAQUA_TEST_DATA "/reports/" + name + ".txt", std::ios::binary);
    if (!file) throw std::runtime_error("There is no expected report " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace veraqua
