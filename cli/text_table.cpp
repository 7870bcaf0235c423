#include "cli/text_table.h"

#include <algorithm>

#include <fmt/format.h>

namespace veraqua {

namespace {

/// Characters of UTF-8 text.
std::size_t WidthOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {
    for (const Column& column : columns_) widths_.push_back(WidthOf(column.Heading));
}

void TextTable::Add(std::vector<std::string> cells) {
    for (std::size_t i = 0; i < columns_.size(); ++i) widths_[i] = std::max(widths_[i], WidthOf(cells[i]));
    rows_.push_back(std::move(cells));
}

std::string TextTable::Line(const std::vector<std::string>& cells) const {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::string padding(widths_[i] - WidthOf(cells[i]), ' ');
        line += i == 0 ? "" : "  ";
        line += columns_[i].Align == Side::Left ? cells[i] + padding : padding + cells[i];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

std::string TextTable::Text() const {
    std::vector<std::string> headings;
    std::vector<std::string> rules;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        headings.push_back(columns_[i].Heading);
        rules.emplace_back(widths_[i], '-');
    }
    std::string text = Line(headings) + Line(rules);
    for (const auto& row : rows_) text += Line(row);
    return text;
}

}  // namespace veraqua
