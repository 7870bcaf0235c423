#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screen/forms.h"
#include "screen/screen.h"

namespace veraqua {

/// A screen without windows, for scripts: the command line and the tests say beforehand what the user does on each form
/// that is shown to them alone. One that is still shown afterwards is left as by its window's frame.
class HeadlessScreen : public Screen {
  public:
    /// What the user does each time `form` is shown modally.
    void WhenShown(FormName form, std::function<void()> doing) { doings_[form] = std::move(doing); }

    void Present(FormTable&) override {}
    void RunModal(FormTable& form) override;
    void Withdraw(FormTable&) override {}
    void PutFocus(FormTable&, ControlEntry&, bool) override {}
    PrintOutcome PrintImage(FormTable&) override { return {PrintEnding::Failed, NoPrinter}; }
    PrintOutcome Print(const PrintedDocument&) override { return {PrintEnding::Failed, NoPrinter}; }
    /// Waits until the form that began it is on the screen.
    void StartGet(const std::string& url, std::function<void(const HttpProgress&)> progress) override;
    void CancelGet() override { waiting_ = nullptr; }
    bool OpenDocument(const std::string&) override { return false; }
    std::vector<std::string> Kept(const std::string& name) const override {
        const auto found = kept_.find(name);
        return found != kept_.end() ? found->second : std::vector<std::string>{};
    }
    void Keep(const std::string& name, const std::vector<std::string>& values) override { kept_[name] = values; }

  protected:
    /// What a request that a form has begun comes to; it returns when all is over.
    virtual HttpReply Get(const std::string&) { return {false, 0, "There is no network here.", {}}; }

  private:
    static constexpr const char* NoPrinter = "There is no printer here.";

    void Carry(const std::string& url, const std::function<void(const HttpProgress&)>& progress);

    std::map<FormName, std::function<void()>> doings_;
    std::function<void()> waiting_;
    std::map<std::string, std::vector<std::string>> kept_;
};

/// The user at a form, by the names of its controls. What can't be seen or is disabled can't be used: that is a mistake
/// of the script, a std::logic_error.
///   At(FormName::frmAddWater).Type("txtRainDate", "7/3/2003").Type("txtRainfall", "0.5").Click("cmdOKRain");
class At {
  public:
    explicit At(FormName form) : form_(&FormOf(form)) {}
    explicit At(FormTable& form) : form_(&form) {}

    At& Type(std::string_view box, std::string_view text);
    At& Click(std::string_view name);
    /// Picks row `position`, from 0, of a list; of a table opens it.
    At& Pick(std::string_view list, int position);
    /// Goes into a list and `rows` down by its arrow keys, up where negative, without picking.
    At& Arrow(std::string_view list, int rows = 1);
    /// Turns the wheel over a list by `rows`, wherever the focus is.
    At& Wheel(std::string_view list, int rows = 1);
    /// Picks a day in a calendar.
    At& PickDay(std::string_view calendar, JulianValue day);
    /// Goes into a control, which leaves the one before.
    At& Enter(std::string_view name);
    /// Presses Enter or Delete in a control.
    At& Press(std::string_view name, Event key);
    /// Presses Esc, wherever the focus is.
    At& Escape();
    /// Closes the window by its frame.
    At& Close();

    /// Whether a check has kept the user where they were. What they were to do after it is not done.
    bool Held() const { return held_; }

  private:
    ControlEntry& Usable(std::string_view name) const;
    /// The user's focus goes to `control`. False if they are held, now or since an earlier step.
    bool Reach(ControlEntry& control);
    void MoveTo(const ControlEntry& list, int row);

    FormTable* form_;
    bool held_ = false;
};

}  // namespace veraqua
