#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/shown/colour.h"

namespace veraqua {

/// Rows and columns to be looked through, of which one row may be selected.
struct TableContent {
    struct Column {
        std::string Heading;
        bool IsNumeric = false;  ///< set to the right
        bool IsHidden = false;   ///< the user doesn't want to see it
    };

    struct Cell {
        std::string Text;
        std::optional<double> SortKey;  ///< what the row goes by where the column is sorted; nothing: the text
        std::optional<Colour> Background;
        std::string ToolTip;  ///< why it has its colour

        bool operator==(const Cell&) const = default;
    };

    struct Row {
        std::vector<Cell> Cells;  ///< one for each column
        int Data = 0;             ///< what the row stands for

        bool operator==(const Row&) const = default;
    };

    std::vector<Column> Columns;
    std::vector<Row> Rows;
    int Index = -1;  ///< the row selected, from 0; -1: none

    /// The selected row; null if none is.
    const Row* Selected() const {
        return Index >= 0 && Index < static_cast<int>(Rows.size()) ? &Rows[static_cast<std::size_t>(Index)] : nullptr;
    }
};

}  // namespace veraqua
