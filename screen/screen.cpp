#include "screen/screen.h"

#include <algorithm>
#include <cassert>

#include <fmt/format.h>

#include "core/base/text.h"
#include "screen/forms.h"

namespace veraqua {

namespace {

Screen* installed = nullptr;

void PutFocusOn(const Control& control, bool selectText) {
    for (FormTable* form : AllForms()) {
        ControlEntry* entry = form->Find(control);
        if (entry == nullptr) continue;
        form->Focused = &control;
        TheScreen().PutFocus(*form, *entry, selectText);
        return;
    }
}

}  // namespace

Screen& TheScreen() {
    assert(installed != nullptr);
    return *installed;
}

void InstallScreen(Screen& screen) { installed = &screen; }

void Focus(const Control& control) { PutFocusOn(control, false); }

void SelectText(const TextBox& box) { PutFocusOn(box, true); }

JulianValue TypedDay(TextBox& box) {
    std::string text(Trimmed(box.Text));
    const JulianValue day = ValidateDate(TheScreen(), text);
    if (day != 0) box.Text = text;
    return day;
}

bool MayLeaveTyped(const std::vector<TextBox*>& boxes) {
    const auto isLost = [](const TextBox* box) { return box->Visible && box->Typed && !box->Text.empty(); };
    const auto lost = std::ranges::find_if(boxes, isLost);
    if (lost == boxes.end()) return true;
    const bool goesBack = TheScreen().YesNo(
        fmt::format("\"{}\" is typed but not accepted yet.  Do you wish to go back to it?", (*lost)->Text),
        ProgramTitle, Icon::Question, false);
    if (goesBack) SelectText(**lost);
    return !goesBack;
}

void PrintForm(FormName form, std::string_view failureText) {
    const PrintOutcome outcome = TheScreen().PrintImage(FormOf(form));
    if (outcome.Ending == PrintEnding::Failed) TheScreen().Tell(failureText.empty() ? outcome.Reason : failureText);
}

void PrintDocument(const PrintedDocument& document, std::string_view sentText) {
    const PrintOutcome outcome = TheScreen().Print(document);
    if (outcome.Ending == PrintEnding::Failed) TheScreen().Tell(outcome.Reason);
    if (outcome.Ending == PrintEnding::Printed)
        TheScreen().Tell(outcome.Pdf.empty() ? std::string(sentText) : fmt::format("Saved as {}", outcome.Pdf));
}

}  // namespace veraqua
