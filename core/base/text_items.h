#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace veraqua {

/// Takes items one by one from a text data file such as crop.dat. Items are separated by commas or line ends, in any
/// mix; blank lines between them do no harm, and a text item may stand in double quotes. Whatever doesn't parse, and a
/// file that ends too early, is a RunTimeFailure that names the file and the line.
class TextItems {
  public:
    TextItems(std::string_view bytes, std::string_view fileName) : rest_(bytes), fileName_(fileName) {}

    /// True when no further item stands in the file.
    bool AtEnd();

    /// A text item, as UTF-8, without blanks around it.
    std::string Text();

    float Single();
    std::int16_t Integer16();

    /// The rest of the line that the last item left, or the next line.
    std::string Line();

  private:
    std::string_view Token();
    double Number();  ///< without the separator behind it, so that a refusal names its line
    void Advance(std::size_t count);
    void SkipBlanks(std::string_view blanks);
    void TakeSeparator();
    [[noreturn]] void Refuse(std::string_view what) const;

    std::string_view rest_;
    std::string_view fileName_;
    int line_ = 1;
};

}  // namespace veraqua
