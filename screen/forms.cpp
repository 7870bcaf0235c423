#include "screen/forms.h"

#include <algorithm>
#include <cassert>
#include <deque>
#include <optional>
#include <utility>

#include "core/field_in_work.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

/// A table's place never changes: forms and screens hold on to it.
std::deque<FormTable>& Forms() {
    static std::deque<FormTable> forms;
    return forms;
}

/// False where the form has ended itself while loading.
bool Open(FormTable& form) {
    if (!form.Loaded) {
        form.Reset();
        form.Focused = nullptr;
        form.Loaded = true;
        try {
            if (form.Load) form.Load();
        } catch (const RunTimeFailure&) {  // a form that didn't load isn't there
            form.Loaded = false;
            throw;
        }
    }
    if (form.Loaded && form.Appear) form.Appear();
    form.Shown = form.Loaded;
    return form.Loaded;
}

/// Lets the forms that stay open keep up with what an event has changed. One that can't ends.
void LetFormsFollow() {
    for (FormTable& form : Forms()) {
        if (!form.Loaded || !form.Follow) continue;
        try {
            form.Follow();
        } catch (const RunTimeFailure&) {  // of a file that the event's own message is about
            Unload(form.Name);
        }
    }
}

/// Runs a function of `form` as an event.
template <class Function>
bool RunAsEvent(FormTable& form, Function function) {
    try {
        return function();
    } catch (const RunTimeFailure& failure) {  // ends the event, not the program
        RereadFieldInWork();
        TheScreen().Failed(failure);
        const bool nothingLeft =
            std::none_of(Forms().begin(), Forms().end(), [](const FormTable& f) { return f.Shown; });
        if (nothingLeft && form.Loaded) Show(form.Name);
        return false;
    }
}

/// The same, and lets the other forms follow. While a form has the user to itself, the event that opened it goes on.
template <class Function>
bool AsEvent(FormTable& form, Function function) {
    static int depth = 0;
    struct Deeper {
        Deeper() { ++depth; }
        ~Deeper() { --depth; }
        Deeper(const Deeper&) = delete;
        Deeper& operator=(const Deeper&) = delete;
    };
    const Deeper event;
    const bool passed = RunAsEvent(form, function);
    if (depth == 1) LetFormsFollow();
    return passed;
}

/// Ends what the user has begun in a drop-down list without picking. False if that keeps them there.
bool LeaveList(FormTable& form, const ControlEntry& control, ComboBox& list) {
    const bool picks = list.Editable || control.Events.contains(Event::Leave);
    const bool isUnsettled = list.IsUnsettled();
    if (isUnsettled && !picks) list.Select(*list.MovedFrom);
    list.Settle();
    if (!isUnsettled || !list.Editable) return true;
    form.Focused = nullptr;
    RunEvent(form, control, Event::Change);
    if (form.Focused == &list) return false;  // what was typed is to be set right
    form.Focused = &list;
    return true;
}

/// False if the check of `control` keeps the user there.
bool LeaveControl(FormTable& form, const ControlEntry& control) {
    ComboBox* const* list = std::get_if<ComboBox*>(&control.Where);
    if (list != nullptr && !LeaveList(form, control, **list)) return false;
    return RunEvent(form, control, Event::Leave);
}

}  // namespace

ControlEntry* FormTable::Find(std::string_view name) {
    const auto found = std::find_if(Controls.begin(), Controls.end(),
                                    [name](const ControlEntry& entry) { return entry.Name == name; });
    return found == Controls.end() ? nullptr : &*found;
}

ControlEntry* FormTable::Find(const Control& control) {
    const auto found = std::find_if(Controls.begin(), Controls.end(),
                                    [&](const ControlEntry& entry) { return &entry.Shared() == &control; });
    return found == Controls.end() ? nullptr : &*found;
}

void AddForm(FormTable table) {
    const auto known =
        std::find_if(Forms().begin(), Forms().end(), [&](const FormTable& f) { return f.Name == table.Name; });
    if (known == Forms().end()) Forms().push_back(std::move(table));
}

FormTable& FormOf(FormName name) {
    const auto found =
        std::find_if(Forms().begin(), Forms().end(), [name](const FormTable& f) { return f.Name == name; });
    assert(found != Forms().end());
    return *found;
}

std::vector<FormTable*> AllForms() {
    std::vector<FormTable*> forms;
    for (FormTable& form : Forms()) forms.push_back(&form);
    return forms;
}

void Show(FormName name) {
    FormTable& form = FormOf(name);
    if (Open(form)) TheScreen().Present(form);
}

void ShowFilled(FormName name) {
    FormTable& form = FormOf(name);
    const bool wasShown = form.Shown;
    if (!Open(form)) return;
    form.Shown = wasShown;  // it comes up when it is filled
    form.Focused = nullptr;
    try {
        Fill(name);
    } catch (const RunTimeFailure&) {
        Unload(name);
        throw;
    }
    if (!form.Loaded) return;
    form.Shown = true;
    TheScreen().Present(form);
}

void ShowInPlaceOf(FormName before, FormName form) {
    Show(form);
    if (IsLoaded(form)) Hide(before);
}

void ShowModal(FormName name) {
    FormTable& form = FormOf(name);
    if (Open(form)) TheScreen().RunModal(form);
}

void Hide(FormName name) {
    FormTable& form = FormOf(name);
    if (!form.Shown) return;
    form.Shown = false;
    TheScreen().Withdraw(form);
}

void Unload(FormName name) {
    FormTable& form = FormOf(name);
    if (!form.Loaded) return;
    form.Loaded = false;
    const bool wasShown = std::exchange(form.Shown, false);
    try {
        if (form.Unload) form.Unload();
    } catch (const RunTimeFailure&) {  // the form is over all the same
        if (wasShown) TheScreen().Withdraw(form);
        throw;
    }
    if (wasShown) TheScreen().Withdraw(form);
}

void Fill(FormName name) {
    const FormTable& form = FormOf(name);
    if (form.Loaded && form.Fill) form.Fill();
}

bool IsLoaded(FormName name) { return FormOf(name).Loaded; }

bool RunEvent(FormTable& form, const ControlEntry& control, Event event) {
    const auto function = control.Events.find(event);
    return function == control.Events.end() || AsEvent(form, function->second);
}

void Choose(FormTable& form, OptionButton& option) {
    for (ControlEntry& other : form.Controls)
        if (OptionButton* const* one = std::get_if<OptionButton*>(&other.Where)) (*one)->Chosen = false;
    option.Chosen = true;
}

void MinutePassed() {
    for (FormTable& form : Forms())
        if (form.Loaded && form.Minute)
            AsEvent(form, [&form] {
                form.Minute();
                return true;
            });
}

void CloseForm(FormTable& form) {
    AsEvent(form, [&form] {
        if (form.Close)
            form.Close();
        else
            Unload(form.Name);
        return true;
    });
}

bool PressEnter(FormTable& form, const ControlEntry& control) {
    ComboBox* const* list = std::get_if<ComboBox*>(&control.Where);
    if (list != nullptr && (*list)->IsUnsettled()) {
        const Event event = (*list)->Typed ? Event::Change : Event::Click;
        (*list)->Settle();
        RunEvent(form, control, event);
        return true;
    }
    if (!control.Events.contains(Event::EnterKey)) return false;
    RunEvent(form, control, Event::EnterKey);
    return true;
}

void PressEscape(FormTable& form) {
    for (ControlEntry& entry : form.Controls) {
        Calendar* const* calendar = std::get_if<Calendar*>(&entry.Where);
        if (calendar == nullptr || !(*calendar)->Visible) continue;
        (*calendar)->Visible = false;
        return;
    }
    if (!form.Escape) return CloseForm(form);
    AsEvent(form, [&form] { return form.Escape(), true; });
}

bool LeaveChecksPass(FormName name) {
    FormTable& form = FormOf(name);
    for (ControlEntry& entry : form.Controls) {
        TextBox* const* box = std::get_if<TextBox*>(&entry.Where);
        const auto check = entry.Events.find(Event::Leave);
        if (box == nullptr || check == entry.Events.end() || !(*box)->Visible) continue;
        if (((*box)->Typed || (*box)->Text.empty()) && !check->second()) return false;
    }
    return true;
}

bool MoveFocus(FormTable& form, const ControlEntry* next) {
    ControlEntry* const from = form.Focused == nullptr ? nullptr : form.Find(*form.Focused);
    if (next != nullptr && &next->Shared() == form.Focused) return true;
    const bool toExit = next != nullptr && next->IsExit;
    const bool leaves = from != nullptr && from->Shared().Visible && !toExit;
    if (leaves && !LeaveControl(form, *from)) return false;
    form.Focused = next == nullptr ? nullptr : &next->Shared();
    return true;
}

}  // namespace veraqua
