#include "workbench/forms/soil_entry.h"

#include "screen/field_caption.h"
#include "screen/screen.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

void RefuseEntry(TextBox& box, const Refused& refused) {
    Tell(TheScreen(), refused);
    SelectText(box);
}

bool KeepsEntries(bool anyEntered) {
    return anyEntered && TheScreen().YesNo("Do you wish to keep the soil data that you have entered, and go on?",
                                           ProgramTitle, Icon::Question, false);
}

bool MayLeave(const TextBox& box, const std::optional<Refused>& refused) {
    if (!refused) return true;
    Tell(TheScreen(), *refused);
    Focus(box);
    return false;
}

void ShowNewField(StatusBar& bar) {
    ShowFieldIn(bar);
    The<frmField>().Caption = FieldTitle();
}

}  // namespace veraqua
