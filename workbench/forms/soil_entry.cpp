#include "workbench/forms/soil_entry.h"

#include "screen/field_caption.h"
#include "screen/screen.h"
#include "workbench/forms/field_menu.h"

namespace veraqua {

void RefuseEntry(TextBox& box, const Refused& refused) {
    Tell(TheScreen(), refused);
    SelectText(box);
}

void ShowNewField(StatusBar& bar) {
    ShowFieldIn(bar);
    The<frmField>().Caption = FieldTitle();
}

}  // namespace veraqua
