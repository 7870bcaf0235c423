#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/calendar.h"
#include "core/shown/colour.h"
#include "core/shown/table.h"

/// The controls of a form as plain records. They know no toolkit: an event reads and sets them, and the screen shows
/// what they say.
namespace veraqua {

/// What all controls share.
struct Control {
    bool Visible = true;
    bool Enabled = true;
    std::string ToolTip;
    std::optional<Colour> Background;  ///< nothing: the platform's own
};

/// "&&" in a caption shows as one "&", in every kind of control.
struct Label : Control {
    Label() = default;
    explicit Label(std::string caption) : Caption(std::move(caption)) {}

    std::string Caption;
};

/// A frame or a backing shape; what it surrounds are controls of their own.
struct Frame : Control {
    Frame() = default;
    explicit Frame(std::string caption) : Caption(std::move(caption)) {}

    std::string Caption;
};

struct TextBox : Control {
    TextBox() = default;
    explicit TextBox(std::string text, std::size_t longest = 0) : Text(std::move(text)), Longest(longest) {}

    std::string Text;         ///< "\n" is a line break in boxes of several lines
    std::size_t Longest = 0;  ///< characters that can be typed; 0: any number
    bool Typed = false;       ///< the user has changed the text since the form was loaded
    bool ReadOnly = false;    ///< shows only

    void Clear() {
        Text.clear();
        Typed = false;
    }
};

struct Button : Control {
    Button() = default;
    explicit Button(std::string caption, std::string toolTip = {}) : Caption(std::move(caption)) {
        ToolTip = std::move(toolTip);
    }

    std::string Caption;
};

struct ListItem {
    std::string Text;
    int Data = 0;  ///< what the row stands for

    bool operator==(const ListItem&) const = default;
};

/// What lists and drop-down lists share.
struct ItemList : Control {
    std::vector<ListItem> Items;
    int Index = -1;  ///< the row selected, from 0; -1: none

    void Add(std::string text, int data = 0) { Items.push_back({std::move(text), data}); }
    void Clear() {
        Items.clear();
        Index = -1;
    }
    /// The selected row; null if none is.
    const ListItem* Selected() const {
        return Index >= 0 && Index < static_cast<int>(Items.size()) ? &Items[static_cast<std::size_t>(Index)] : nullptr;
    }
};

struct ListBox : ItemList {};

/// A drop-down list. Its text is that of the row selected, or what was typed where it can be edited.
struct ComboBox : ItemList {
    ComboBox() = default;
    explicit ComboBox(bool editable) : Editable(editable) {}

    std::string Text;
    bool Editable = false;
    std::optional<int> MovedFrom;  ///< the row picked last, while the user has gone on from it without picking another
    bool Typed = false;            ///< they have done so by typing

    void Clear() {
        ItemList::Clear();
        Text.clear();
        Settle();
    }
    void Select(int index) {
        Index = index;
        Text = Selected() != nullptr ? Selected()->Text : "";
        Settle();
    }
    /// Shows another row, which isn't picked by that.
    void MoveTo(int index) {
        const int picked = MovedFrom.value_or(Index);
        Select(index);
        MovedFrom = picked;
    }
    /// Likewise a text; one that stands in the list means its row.
    void Type(std::string text) {
        const auto row =
            std::find_if(Items.begin(), Items.end(), [&](const ListItem& item) { return item.Text == text; });
        MoveTo(row == Items.end() ? -1 : static_cast<int>(row - Items.begin()));
        Text = std::move(text);
        Typed = true;
    }
    /// What is shown is what was picked.
    void Settle() {
        MovedFrom.reset();
        Typed = false;
    }
    /// Whether the user has gone on to something else than was picked last.
    bool IsUnsettled() const { return MovedFrom && (Index != *MovedFrom || (Index < 0 && !Text.empty())); }
};

/// A table. Its view may show the rows in another order; `Index` counts in the order of `Rows`.
struct Table : Control, TableContent {};

/// One of a group of which only one is chosen; its form keeps the group.
struct OptionButton : Control {
    OptionButton() = default;
    explicit OptionButton(std::string caption, bool chosen = false) : Caption(std::move(caption)), Chosen(chosen) {}

    std::string Caption;
    bool Chosen = false;
};

/// A box that stands for itself, checked or not.
struct CheckBox : Control {
    CheckBox() = default;
    explicit CheckBox(std::string caption) : Caption(std::move(caption)) {}

    std::string Caption;
    bool Checked = false;
};

/// An entry of the menu bar (level 1) or of a menu below it; one with entries of the next level behind it opens these.
struct MenuItem : Control {
    MenuItem() = default;
    explicit MenuItem(std::string caption, int level = 1) : Caption(std::move(caption)), Level(level) {}

    std::string Caption;
    int Level = 1;
};

struct StatusBar : Control {
    std::array<std::string, 3> Panels;
};

/// A bar from 0 to 100.
struct ProgressBar : Control {
    double Value = 0;
};

/// One of the program's own pictures, named after its control.
struct Image : Control {};

/// A month calendar.
struct Calendar : Control {
    JulianValue Day = 0;
};

/// A picker of a directory, and what it shows of it.
struct DirectoryBox : Control {
    std::string Path;  ///< with a final "/"
};

/// Something drawn: lines, texts and pictures in a plane of `Width` by `Height` units, y downwards.
struct Drawing : Control {
    enum class Kind { Line, Text, Picture };

    struct Shape {
        Kind Is = Kind::Line;
        double Left = 0;  ///< of a line its beginning and end
        double Top = 0;
        double Right = 0;
        double Bottom = 0;
        Colour Ink;
        std::string Text;  ///< centred in its box; of a picture its name

        bool operator==(const Shape&) const = default;
    };

    double Width = 0;
    double Height = 0;
    std::string FontFamily;
    std::vector<Shape> Shapes;
};

}  // namespace veraqua
