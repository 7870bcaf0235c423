#include "core/base/text_table.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace veraqua {

namespace {

/// Characters of UTF-8 text.
std::size_t WidthOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char c : text) c == '\n' ? static_cast<void>(lines.emplace_back()) : lines.back().push_back(c);
    return lines;
}

}  // namespace

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns)), widths_(columns_.size()) {
    std::vector<std::vector<std::string>> headings;
    std::size_t most = 0;
    for (const Column& column : columns_) {
        headings.push_back(LinesOf(column.Heading));
        most = std::max(most, headings.back().size());
    }
    headings_.assign(most, std::vector<std::string>(columns_.size()));
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::size_t above = most - headings[i].size();
        for (std::size_t line = 0; line < headings[i].size(); ++line) {
            widths_[i] = std::max(widths_[i], WidthOf(headings[i][line]));
            headings_[above + line][i] = headings[i][line];
        }
    }
}

void TextTable::Add(std::vector<std::string> cells) {
    for (std::size_t i = 0; i < columns_.size(); ++i) widths_[i] = std::max(widths_[i], WidthOf(cells[i]));
    rows_.push_back(std::move(cells));
}

std::vector<std::string> TextTable::Lines(std::size_t longest) const {
    const std::size_t width = std::accumulate(widths_.begin(), widths_.end(), 2 * (columns_.size() - 1));
    const std::string gap(width <= longest ? 2 : 1, ' ');
    std::vector<std::string> lines;
    lines.reserve(headings_.size() + 1 + rows_.size());
    for (const auto& heading : headings_) lines.push_back(Line(heading, gap));
    std::vector<std::string> rules(columns_.size());
    for (std::size_t i = 0; i < rules.size(); ++i) rules[i].assign(widths_[i], '-');
    lines.push_back(Line(rules, gap));
    for (const auto& row : rows_) lines.push_back(Line(row, gap));
    return lines;
}

std::string TextTable::Text() const {
    std::string text;
    for (const std::string& line : Lines()) text += line + "\n";
    return text;
}

std::string TextTable::Line(const std::vector<std::string>& cells, const std::string& gap) const {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const std::string padding(widths_[i] - WidthOf(cells[i]), ' ');
        line += i == 0 ? "" : gap;
        line += columns_[i].Align == Side::Left ? cells[i] + padding : padding + cells[i];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

}  // namespace veraqua
