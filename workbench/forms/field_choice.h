#pragma once

#include <string_view>

#include "workbench/forms/field_menu.h"

/// Choosing the field in work on the workbench.
namespace veraqua {

/// Whether a field in use is in work; one that is still being entered is not.
bool FieldIsChosen();

/// The same, and tells the user if none is.
bool ExpectField(std::string_view text = "Please select or initialize a field before choosing this option",
                 std::string_view title = "Information Message");

/// Takes the field in work up again from its file, with its weather, and runs it where it stands behind yesterday.
void SelectField(frmField& form);

/// Clears the workbench and leaves no field in work.
void SelectNothing(frmField& form);

/// A list of the workbench in which the user is to pick something is given up.
void ForgetPick(frmField& form);

/// Shows the list for picking, empty.
void OfferList(frmField& form);

void ComboField_Click(frmField& form);
void mnuSelect_Click(frmField& form);

}  // namespace veraqua
