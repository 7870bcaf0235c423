#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/files/files.h"
#include "screen/headless.h"
#include "tests/support/data_directory.h"
#include "tests/support/script_ask.h"

namespace veraqua {

/// The user at the forms of a test: a script of answers, and a record of all that was said, shown, focused and printed.
/// What they do on a form that is shown to them alone stands in `WhenShown`.
class ScriptScreen : public Scripted<HeadlessScreen> {
  public:
    PrintOutcome Printer;                    ///< what comes of printing
    std::map<std::string, HttpReply> Pages;  ///< of the network, by URL; any other is not found (404)
    std::vector<std::string> Fetched;        ///< URLs

    std::vector<FormName> Presented;           ///< forms brought to the user, modal ones too
    std::vector<std::string> FocusedControls;  ///< "frmAddWater.txtRainDate"; with " (selected)" where its text was
    std::vector<PrintedDocument> Printed;
    std::vector<FormName> PrintedForms;
    std::vector<std::string> OpenedDocuments;
    std::vector<std::string> Failures;

    ScriptScreen() { InstallScreen(*this); }

    void Present(FormTable& form) override { Presented.push_back(form.Name); }
    void RunModal(FormTable& form) override {
        Presented.push_back(form.Name);
        HeadlessScreen::RunModal(form);
    }
    void PutFocus(FormTable& form, ControlEntry& control, bool selectText) override {
        FocusedControls.push_back(std::string(form.Text) + "." + control.Name + (selectText ? " (selected)" : ""));
    }
    PrintOutcome PrintImage(FormTable& form) override { return PrintedForms.push_back(form.Name), Printer; }
    PrintOutcome Print(const PrintedDocument& document) override { return Printed.push_back(document), Printer; }
    bool OpenDocument(const std::string& path) override { return OpenedDocuments.push_back(path), true; }
    void Failed(const RunTimeFailure& failure) override { Failures.emplace_back(failure.what()); }
    void SetNow(JulianValue day) override { Today = day; }
    HttpReply Get(const std::string& url) override {
        Fetched.push_back(url);
        const auto page = Pages.find(url);
        return page != Pages.end() ? page->second : HttpReply{false, 404, "Not Found", ""};
    }

    /// "title: text" of the last message; empty if nothing was said.
    std::string LastSaid() const { return Told.empty() ? "" : Told.back().Title + ": " + Told.back().Text; }
    /// Likewise of the last question.
    std::string LastAsked() const { return Asked.empty() ? "" : Asked.back().Title + ": " + Asked.back().Text; }
};

/// A test of forms: a data directory, and a user in front of the program. All forms are unloaded at its end.
struct FormTest : testing::Test {
    TestDirectory Directory;
    ScriptScreen User;

    ~FormTest() override {
        for (FormTable* form : AllForms()) form->Loaded = form->Shown = false;
    }
    FormTest() = default;
    FormTest(const FormTest&) = delete;
    FormTest& operator=(const FormTest&) = delete;
};

}  // namespace veraqua
