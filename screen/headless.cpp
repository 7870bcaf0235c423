#include "screen/headless.h"

#include <algorithm>
#include <stdexcept>

#include "screen/overloaded.h"

namespace veraqua {

namespace {

[[noreturn]] void Misuse(const FormTable& form, std::string_view name, std::string_view why) {
    throw std::logic_error(std::string(form.Text) + "." + std::string(name) + " " + std::string(why));
}

}  // namespace

void HeadlessScreen::RunModal(FormTable& form) {
    if (waiting_) std::exchange(waiting_, nullptr)();
    const auto doing = doings_.find(form.Name);
    // A copy: while they are at it, the user may be told to do something else the next time.
    if (form.Shown && doing != doings_.end()) std::function<void()>(doing->second)();
    if (form.Shown) CloseForm(form);
}

void HeadlessScreen::StartGet(const std::string& url, std::function<void(const HttpProgress&)> progress) {
    waiting_ = [this, url, progress = std::move(progress)] { Carry(url, progress); };
}

void HeadlessScreen::Carry(const std::string& url, const std::function<void(const HttpProgress&)>& progress) {
    progress({HttpState::Resolving, {}});
    const HttpReply reply = Get(url);
    if (reply.Succeeded) progress({HttpState::Connected, {}});
    progress({reply.Succeeded ? HttpState::Complete : HttpState::Error, reply});
}

At& At::Type(std::string_view box, std::string_view text) {
    ControlEntry& control = Usable(box);
    if (!Reach(control)) return *this;
    std::visit(Overloaded{[&](TextBox* typed) {
                              if (typed->ReadOnly) Misuse(*form_, box, "only shows");
                              typed->Text = text;
                              typed->Typed = true;
                          },
                          [&](ComboBox* typed) {
                              if (!typed->Editable) Misuse(*form_, box, "can't be typed into");
                              typed->Type(std::string(text));
                          },
                          [&](auto*) { Misuse(*form_, box, "takes no text"); }},
               control.Where);
    // A list knows what was typed when it is whole.
    if (std::holds_alternative<ComboBox*>(control.Where))
        PressEnter(*form_, control);
    else
        RunEvent(*form_, control, Event::Change);
    return *this;
}

At& At::Click(std::string_view name) {
    ControlEntry& control = Usable(name);
    const bool takesFocus = !std::holds_alternative<MenuItem*>(control.Where);
    if (takesFocus ? !Reach(control) : held_) return *this;
    if (OptionButton* const* option = std::get_if<OptionButton*>(&control.Where)) Choose(*form_, **option);
    if (CheckBox* const* box = std::get_if<CheckBox*>(&control.Where)) (*box)->Checked = !(*box)->Checked;
    RunEvent(*form_, control, Event::Click);
    return *this;
}

At& At::Pick(std::string_view list, int position) {
    ControlEntry& control = Usable(list);
    if (!Reach(control)) return *this;
    if (ComboBox* const* combo = std::get_if<ComboBox*>(&control.Where))
        (*combo)->Select(position);
    else if (std::holds_alternative<ListBox*>(control.Where))
        MoveTo(control, position);
    else if (Table* const* table = std::get_if<Table*>(&control.Where))
        (*table)->Index = position;
    else
        Misuse(*form_, list, "is no list");
    RunEvent(*form_, control, Event::Click);
    return *this;
}

At& At::Arrow(std::string_view list, int rows) {
    ControlEntry& control = Usable(list);
    if (!Reach(control)) return *this;
    std::visit(Overloaded{[&](ComboBox* box) { MoveTo(control, box->Index + rows); },
                          [&](ListBox* box) { MoveTo(control, box->Index + rows); },
                          [&](auto*) { Misuse(*form_, list, "is no list"); }},
               control.Where);
    return *this;
}

At& At::Wheel(std::string_view list, int rows) {
    return form_->Focused == &Usable(list).Shared() ? Arrow(list, rows) : *this;
}

At& At::PickDay(std::string_view calendar, JulianValue day) {
    ControlEntry& control = Usable(calendar);
    if (!Reach(control)) return *this;
    std::get<Calendar*>(control.Where)->Day = day;
    RunEvent(*form_, control, Event::Click);
    return *this;
}

At& At::Enter(std::string_view name) {
    Reach(Usable(name));
    return *this;
}

At& At::Press(std::string_view name, Event key) {
    ControlEntry& control = Usable(name);
    if (!Reach(control)) return *this;
    if (key == Event::EnterKey)
        PressEnter(*form_, control);
    else
        RunEvent(*form_, control, key);
    return *this;
}

At& At::Escape() {
    if (form_->Shown) PressEscape(*form_);
    return *this;
}

At& At::Close() {
    if (form_->Shown) CloseForm(*form_);
    return *this;
}

ControlEntry& At::Usable(std::string_view name) const {
    ControlEntry* control = form_->Find(name);
    if (control == nullptr) Misuse(*form_, name, "is not in the form's table");
    if (!form_->Shown) Misuse(*form_, name, "is on a form that isn't shown");
    if (!control->Shared().Visible || !control->Shared().Enabled) Misuse(*form_, name, "is hidden or disabled");
    return *control;
}

void At::MoveTo(const ControlEntry& list, int row) {
    const auto within = [row](const ItemList& items) {
        return std::clamp(row, 0, static_cast<int>(items.Items.size()) - 1);
    };
    if (ComboBox* const* combo = std::get_if<ComboBox*>(&list.Where))
        (*combo)->MoveTo(within(**combo));
    else if (ListBox* const* box = std::get_if<ListBox*>(&list.Where))
        (*box)->Index = within(**box);
    RunEvent(*form_, list, Event::Move);
}

bool At::Reach(ControlEntry& control) {
    if (!held_ && !MoveFocus(*form_, &control)) held_ = true;
    return !held_;
}

}  // namespace veraqua
