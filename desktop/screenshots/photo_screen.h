#pragma once

#include <functional>
#include <map>
#include <string>

#include "desktop/qt_screen.h"

namespace veraqua {

/// The program's screen for taking pictures: real windows, but a script does what the user would, and nobody has to
/// answer a message.
class PhotoScreen : public QtScreen {
  public:
    bool Answer = true;  ///< to every question

    /// What is done each time `form` is shown modally; then it is left as by its frame.
    void WhenShown(FormName form, std::function<void()> doing) { doings_[form] = std::move(doing); }

    void RunModal(FormTable& form) override;
    void Tell(std::string_view, std::string_view, Icon) override { BringAll(); }
    bool YesNo(std::string_view, std::string_view, Icon, bool) override { return Answer; }
    void StartGet(const std::string&, std::function<void(const HttpProgress&)> progress) override;
    void CancelGet() override {}

    /// Saves the picture of a form's window as `folder`/`name`.png, and says what text in it is cut off.
    void Take(FormName form, const std::string& folder, const std::string& name);

  private:
    std::map<FormName, std::function<void()>> doings_;
};

}  // namespace veraqua
