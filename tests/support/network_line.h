#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veraqua {

/// A line of the weather network's text, LF at its end: a dry, fair day of station 6 in 2003, 12 to 30 degrees C,
/// humidity 30 to 80 %, 25 MJ/m2, 2 m/s of wind. The other columns hold what is no measurement.
///   std::string text = ANetworkLine(100) + ANetworkLine(101).Column(4, "999");
class ANetworkLine {
  public:
    explicit ANetworkLine(int dayOfYear) : columns_(28, "-1.5") {
        Column(1, "2003").Column(2, std::to_string(dayOfYear)).Column(3, "6");
        Column(4, "30").Column(5, "12").Column(7, "80").Column(8, "30");
        Column(11, "25").Column(19, "2").Column(24, "6.1");
    }

    /// Counted from 1, as the network does.
    ANetworkLine& Column(std::size_t number, std::string_view text) { return columns_.at(number - 1) = text, *this; }
    ANetworkLine& Year(std::string_view year) { return Column(1, year); }
    ANetworkLine& Station(std::string_view number) { return Column(3, number); }
    /// Without its maximum temperature.
    ANetworkLine& Bad() { return Column(4, "999"); }
    ANetworkLine& Columns(std::size_t count) { return columns_.resize(count), *this; }

    operator std::string() const {  // NOLINT(google-explicit-constructor)
        std::string line;
        for (const std::string& column : columns_) line += (line.empty() ? "" : ",") + column;
        return line + "\n";
    }

  private:
    std::vector<std::string> columns_;
};

inline std::string operator+(const std::string& text, const ANetworkLine& line) { return text + std::string(line); }
inline std::string operator+(const ANetworkLine& line, std::string_view text) { return std::string(line).append(text); }
inline std::string operator+(const ANetworkLine& a, const ANetworkLine& b) { return std::string(a) + std::string(b); }

/// Fair days from `first` to `last`.
inline std::string NetworkDays(int first, int last) {
    std::string text;
    for (int day = first; day <= last; ++day) text += ANetworkLine(day);
    return text;
}

}  // namespace veraqua
