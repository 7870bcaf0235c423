#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace veraqua {

/// A table in plain text for a font of fixed pitch: columns as wide as their longest cell, headings ruled off.
class TextTable {
  public:
    enum class Side { Left, Right };

    struct Column {
        std::string Heading;  ///< "\n" is a line break
        Side Align = Side::Left;
    };

    explicit TextTable(std::vector<Column> columns);

    /// As many cells as columns.
    void Add(std::vector<std::string> cells);

    /// Lines of the headings with the rule below them.
    std::size_t HeadingLines() const { return headings_.size() + 1; }

    /// All lines. Columns are two blanks apart, or one where the lines would be longer than `longest` characters.
    std::vector<std::string> Lines(std::size_t longest = std::string::npos) const;

    /// All lines as one text.
    std::string Text() const;

  private:
    std::string Line(const std::vector<std::string>& cells, const std::string& gap) const;

    std::vector<Column> columns_;
    std::vector<std::size_t> widths_;
    std::vector<std::vector<std::string>> headings_;  ///< line by line
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace veraqua
