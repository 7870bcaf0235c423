#include "shell/forms/picker.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "core/base/failure.h"
#include "core/files/files.h"
#include "screen/screen.h"
#include "shell/data_search.h"
#include "shell/forms/kept.h"

namespace veraqua {

void ListDrives(ComboBox& drives) {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') drives.Add(WithSlash(home));
    for (const std::string& farm : KeptFarms()) drives.Add(farm);
    drives.Add("/");
}

void ShowPicked(DirectoryBox& picked, Label& path, ListBox& files) {
    try {
        const std::vector<std::string> names = files::FilesIn(picked.Path);
        path.Caption = picked.Path;
        files.Clear();
        for (const std::string& name : names) files.Add(name);
    } catch (const Refusal& refusal) {  // the choice stays with the user
        picked.Path = path.Caption;
        TheScreen().Tell(refusal.what());
    }
}

}  // namespace veraqua
