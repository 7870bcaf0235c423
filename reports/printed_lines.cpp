#include "reports/printed_lines.h"

namespace veraqua {

void AddLines(PrintedDocument& document, const Font& face, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) document.Lines.push_back({line, face});
}

void AddTable(PrintedDocument& document, const Font& face, const std::vector<std::string>& lines,
              std::size_t headings) {
    document.HeadingFirst = document.Lines.size();
    document.HeadingCount = headings;
    AddLines(document, face, lines);
}

}  // namespace veraqua
