#pragma once

#include <vector>

#include "screen/form.h"

/// The forms of the program and their life: loaded, shown, hidden, unloaded.
namespace veraqua {

/// Makes a form known. Each room adds its own once, at the program's start.
void AddForm(FormTable table);

/// Adds the form F by the table that its own file makes.
template <class F>
void AddForm() {
    AddForm(TableOf(The<F>()));
}

/// The table of a form that was added; our own mistake if it was not.
FormTable& FormOf(FormName name);

/// All forms that were added.
std::vector<FormTable*> AllForms();

/// Loads the form if it isn't, and brings it to the user.
void Show(FormName name);

/// Loads the form if it isn't, has it fill itself, and brings it to the user. One that can't be filled isn't left
/// there: it ends itself, or the failure ends it.
void ShowFilled(FormName name);

/// Shows `form` in the place of `before`, which stays where `form` has ended itself while it was loading.
void ShowInPlaceOf(FormName before, FormName form);

/// As `Show`, and returns when it has been hidden or unloaded again.
void ShowModal(FormName name);

/// Takes a form away but keeps what stands in it.
void Hide(FormName name);

/// Ends a form: its `Unload` runs and its window goes. One that isn't loaded stays as it is.
void Unload(FormName name);

/// Asks a form to fill itself.
void Fill(FormName name);

bool IsLoaded(FormName name);

/// Runs the function of a control's event and gives its result; true where the control has none. A failure ends the
/// event: the screen is told, the field in work is as on disk again, and the result is false.
bool RunEvent(FormTable& form, const ControlEntry& control, Event event);

/// Chooses an option: the options of one form are one group.
void Choose(FormTable& form, OptionButton& option);

/// Tells the forms that wait for it that a minute has passed.
void MinutePassed();

/// Presses the form's leave button for the user who closes the window by its frame.
void CloseForm(FormTable& form);

/// The user presses Enter in `control`: that picks the row of a drop-down list to which they have moved, or runs the
/// function of the key. False where Enter has no meaning there.
bool PressEnter(FormTable& form, const ControlEntry& control);

/// The user presses Esc: that closes an open calendar and nothing else, or has the meaning that the form has for it.
void PressEscape(FormTable& form);

/// Repeats the checks of the boxes on `form` that were changed or are empty; for its OK, which a key can reach without
/// leaving a box. False, with the focus on the box, where one refuses.
bool LeaveChecksPass(FormName name);

/// The user goes from the control in focus to `next` (null: to none). False if the check of the former refuses. A row
/// of a drop-down list to which they have only moved is picked by that where the list has a check or can be typed into;
/// elsewhere the list shows the row picked last again.
bool MoveFocus(FormTable& form, const ControlEntry* next);

}  // namespace veraqua
