#pragma once

#include <string>
#include <vector>

namespace veraqua {

/// A table in plain text for a terminal: columns as wide as their longest cell, two blanks apart, headings ruled off.
class TextTable {
  public:
    enum class Side { Left, Right };

    struct Column {
        std::string Heading;
        Side Align = Side::Left;
    };

    explicit TextTable(std::vector<Column> columns);

    /// As many cells as columns.
    void Add(std::vector<std::string> cells);

    std::string Text() const;

  private:
    std::string Line(const std::vector<std::string>& cells) const;

    std::vector<Column> columns_;
    std::vector<std::size_t> widths_;
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace veraqua
