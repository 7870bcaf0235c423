#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace veraqua {

struct Font {
    std::string Family;  ///< any serif for "Times Roman" and "Rockwell", any of fixed pitch for "Courier New"
    int Points = 0;

    bool operator==(const Font&) const = default;
};

struct PrintedLine {
    std::string Text;
    Font Face;

    bool operator==(const PrintedLine&) const = default;
};

/// A document for the printer, line after line; the printer breaks the pages.
struct PrintedDocument {
    std::string Title;  ///< for the print dialog and the file name of a PDF
    std::vector<PrintedLine> Lines;
    std::size_t HeadingFirst = 0;  ///< first of the lines that head a table: each further page begins with them anew
    std::size_t HeadingCount = 0;  ///< 0: no table
    bool OnOnePage = false;        ///< in smaller letters rather than on several pages, as long as it can be read
};

}  // namespace veraqua
