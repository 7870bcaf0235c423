#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "screen/chart.h"
#include "screen/controls.h"
#include "screen/form_name.h"

/// Forms and their tables. A form is a record of controls; its table names the controls and ties their events to
/// functions. The table is written once per form and walked by whatever makes the form real.
namespace veraqua {

class FormTable;

/// What all forms share.
struct Form {
    std::string Caption;
    std::optional<Colour> Background;                  ///< nothing: the platform's own
    std::vector<std::shared_ptr<FormTable>> Children;  ///< windows inside this one
};

/// The one record of the form F. Loading the form sets it back to its design.
template <class F>
F& The() {
    static F form;
    return form;
}

enum class Event {
    /// Button pressed, menu entry or option chosen, box checked or cleared, list row or calendar day picked, row of a
    /// table opened.
    Click,
    Change,  ///< text typed into a box; in a drop-down list, on leaving it or Enter, which for a row moved to is a pick
    Leave,   ///< the focus is about to go elsewhere, but not to an exit; a refusal keeps it
    Move,    ///< another row of a list is selected, by an arrow, the wheel or a click, without being picked by that
    EnterKey,
    DeleteKey,
};

using AnyControl =
    std::variant<Label*, Frame*, TextBox*, Button*, ComboBox*, ListBox*, OptionButton*, CheckBox*, MenuItem*,
                 StatusBar*, ProgressBar*, Image*, Calendar*, DirectoryBox*, Drawing*, Chart*, Table*>;

struct ControlEntry {
    std::string Name;  ///< in an array with its index: "txtcap(2)"
    AnyControl Where;
    std::map<Event, std::function<bool()>> Events;  ///< false: the check behind it has refused
    bool IsExit = false;                            ///< leaves the form or the entry: no check stops the way to it

    const Control& Shared() const {
        return std::visit([](const auto* control) -> const Control& { return *control; }, Where);
    }
};

/// A form's table.
class FormTable {
  public:
    FormTable(FormName name, std::string_view text, Form& form) : Name(name), Text(text), Record(&form) {}

    FormName Name;
    std::string_view Text;  ///< the name as text
    Form* Record;
    std::deque<ControlEntry> Controls;  ///< in tab order

    std::function<void()> Reset;   ///< sets the record back to its design
    std::function<void()> Load;    ///< before it is first shown
    std::function<void()> Appear;  ///< each time before it is brought to the user, after `Load`
    std::function<void()> Fill;    ///< asked for by another form, which doesn't know this one
    std::function<void()> Minute;  ///< each minute, while it is loaded: the day may have changed
    std::function<void()> Follow;  ///< after each event of any form, while it is loaded: what it shows may have changed
    std::function<void()> Close;   ///< what the window's frame does: the form's own leave button
    std::function<void()> Escape;  ///< Esc, where it has a meaning of its own; nothing: as `Close`
    std::function<void()> Unload;  ///< when its window goes

    bool Loaded = false;
    bool Shown = false;
    const Control* Focused = nullptr;  ///< null: wherever the tab order begins

    ControlEntry* Find(std::string_view name);
    ControlEntry* Find(const Control& control);
};

/// The table of form F, made in its own file: `FormTable TableOf(frmAddWater& form)`.
///   FormFor table(form, FormName::frmAddWater, "frmAddWater");
///   table.Add("txtRainDate", form.txtRainDate).EnterKey(txtRainDate_Enter);
///   table.Load(Load).Close(cmdReturn_Click);
///   return table.Done();
template <class F>
class FormFor {
  public:
    FormFor(F& form, FormName name, std::string_view text) : form_(&form), table_(name, text, form) {
        table_.Reset = [&form] { form = F(); };
    }

    using Handler = void (*)(F&);
    using IndexedHandler = void (*)(F&, int);
    using Check = bool (*)(F&);
    using IndexedCheck = bool (*)(F&, int);

    /// The control, or the array of controls, that was added last.
    class Row {
      public:
        Row(FormFor& table, std::size_t first) : table_(&table), first_(first) {}

        /// Functions that take an index get that of the array, from 0.
        template <class Function>
        Row& Click(Function function) {
            return On(Event::Click, function);
        }
        template <class Function>
        Row& Change(Function function) {
            return On(Event::Change, function);
        }
        /// A check, true where the focus may go.
        template <class Function>
        Row& Leave(Function function) {
            return On(Event::Leave, function);
        }
        template <class Function>
        Row& Move(Function function) {
            return On(Event::Move, function);
        }
        template <class Function>
        Row& EnterKey(Function function) {
            return On(Event::EnterKey, function);
        }
        template <class Function>
        Row& DeleteKey(Function function) {
            return On(Event::DeleteKey, function);
        }
        Row& Exit() {
            for (std::size_t i = first_; i < table_->table_.Controls.size(); ++i)
                table_->table_.Controls[i].IsExit = true;
            return *this;
        }

      private:
        template <class Function>
        Row& On(Event event, Function function) {
            F* form = table_->form_;
            for (std::size_t i = first_; i < table_->table_.Controls.size(); ++i)
                table_->table_.Controls[i].Events[event] = Bound(form, function, static_cast<int>(i - first_));
            return *this;
        }

        static std::function<bool()> Bound(F* form, Handler function, int) {
            return [=] { return function(*form), true; };
        }
        static std::function<bool()> Bound(F* form, IndexedHandler function, int index) {
            return [=] { return function(*form, index), true; };
        }
        static std::function<bool()> Bound(F* form, Check function, int) {
            return [=] { return function(*form); };
        }
        static std::function<bool()> Bound(F* form, IndexedCheck function, int index) {
            return [=] { return function(*form, index); };
        }

        FormFor* table_;
        std::size_t first_;
    };

    template <class C>
    Row Add(std::string_view name, C& control) {
        const std::size_t first = table_.Controls.size();
        table_.Controls.push_back({std::string(name), &control, {}, false});
        return Row(*this, first);
    }

    template <class C, std::size_t N>
    Row Add(std::string_view name, std::array<C, N>& controls) {
        const std::size_t first = table_.Controls.size();
        for (std::size_t i = 0; i < N; ++i)
            table_.Controls.push_back({std::string(name) + "(" + std::to_string(i) + ")", &controls[i], {}, false});
        return Row(*this, first);
    }

    FormFor& Load(Handler function) { return Hook(table_.Load, function); }
    FormFor& Appear(Handler function) { return Hook(table_.Appear, function); }
    FormFor& Fill(Handler function) { return Hook(table_.Fill, function); }
    FormFor& Minute(Handler function) { return Hook(table_.Minute, function); }
    FormFor& Follow(Handler function) { return Hook(table_.Follow, function); }
    FormFor& Close(Handler function) { return Hook(table_.Close, function); }
    FormFor& Escape(Handler function) { return Hook(table_.Escape, function); }
    FormFor& Unload(Handler function) { return Hook(table_.Unload, function); }

    FormTable Done() { return std::move(table_); }

  private:
    FormFor& Hook(std::function<void()>& hook, Handler function) {
        hook = [form = form_, function] { function(*form); };
        return *this;
    }

    F* form_;
    FormTable table_;
};

}  // namespace veraqua
