#pragma once

#include <string>
#include <vector>

/// What the desktop keeps of one run for the next, beside the places of its windows and never among the data.
namespace veraqua {

/// The farms that were opened from the menu, or left for one that was, the latest first; directories with a final "/".
std::vector<std::string> KeptFarms();

/// The farm in `opened` was opened from the menu in the place of that in `left`.
void KeepFarm(const std::string& left, const std::string& opened);

/// The next start doesn't begin in `farm`.
void ForgetFarm(const std::string& farm);

/// Whether units and days of the bars are kept.
bool OptionsAreKept();

/// Keeps them as they are now.
void KeepOptions();
void ForgetOptions();

/// Takes them, where they are kept, in the place of those of the start.
void TakeKeptOptions();

}  // namespace veraqua
