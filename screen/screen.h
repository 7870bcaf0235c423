#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ask.h"
#include "core/base/failure.h"
#include "core/http_reply.h"
#include "core/shown/printed.h"
#include "screen/form.h"

namespace veraqua {

enum class PrintEnding {
    Printed,
    Left,    ///< the user left the print dialog: nothing is said
    Failed,  ///< `Reason` says why
};

struct PrintOutcome {
    PrintEnding Ending = PrintEnding::Printed;
    std::string Reason = {};
    std::string Pdf = {};  ///< the file that was made in the place of printing; empty: none
};

/// How far a request to the weather network has come; each is later than those before it.
enum class HttpState { Resolving, Connecting, Connected, Error, Complete };

struct HttpProgress {
    HttpState State = HttpState::Resolving;
    HttpReply Reply;  ///< with Error and Complete
};

/// All that a form asks of the outside. The desktop, the command line and the tests each make it real. It knows forms
/// by their tables only.
class Screen : public Ask {
  public:
    /// Brings a form to the user; it is loaded and filled.
    virtual void Present(FormTable& form) = 0;

    /// The same, and lets the user work on it alone until it is no longer `Shown`.
    virtual void RunModal(FormTable& form) = 0;

    /// Takes a form away from the user.
    virtual void Withdraw(FormTable& form) = 0;

    /// Puts the keyboard on a control; with `selectText` the text in it is selected.
    virtual void PutFocus(FormTable& form, ControlEntry& control, bool selectText) = 0;

    /// Prints the image of a form, or a document, through the platform's dialog.
    virtual PrintOutcome PrintImage(FormTable& form) = 0;
    virtual PrintOutcome Print(const PrintedDocument& document) = 0;

    /// Begins an HTTP GET and returns. `progress` is called from then on, while the user goes on working; after Error
    /// or Complete it isn't called again.
    virtual void StartGet(const std::string& url, std::function<void(const HttpProgress&)> progress) = 0;

    /// Ends the request in work; `progress` isn't called again.
    virtual void CancelGet() = 0;

    /// Puts `day` in the place of the computer's date until the program ends; the clock itself is never set.
    virtual void SetNow(JulianValue day) = 0;

    /// Opens a file of the data directory in the platform's viewer. False if there is none for it.
    virtual bool OpenDocument(const std::string& path) = 0;

    /// What was kept under `name` for later starts of this program; empty where nothing was. Kept with the program's
    /// settings, never with the data.
    virtual std::vector<std::string> Kept(const std::string& name) const = 0;

    /// Keeps `values` under `name` for later starts; none forget what was kept.
    virtual void Keep(const std::string& name, const std::vector<std::string>& values) = 0;

    /// An event has failed and is over.
    virtual void Failed(const RunTimeFailure& failure) = 0;
};

/// The screen of this process.
Screen& TheScreen();
void InstallScreen(Screen& screen);

/// The keyboard goes to `control`, and its text is selected.
void Focus(const Control& control);
void SelectText(const TextBox& box);

/// The day typed into `box`, which shows it in long form then; 0, after the user has been told why, if it is none.
JulianValue TypedDay(TextBox& box);

/// Whether the user may leave `boxes`: asks once where something typed there since they were taken last would be lost.
/// Where they stay, the keyboard is on it.
bool MayLeaveTyped(const std::vector<TextBox*>& boxes);

/// How a form that has words of its own tells that it can't be printed.
constexpr std::string_view CannotPrintForm = "The form can't be printed.";

/// Prints `form`; on failure tells `failureText`, or the platform's reason where it is empty.
void PrintForm(FormName form, std::string_view failureText = {});

/// Prints `document` and then tells `sentText`. On failure tells the platform's reason; neither where the user left the
/// dialog.
void PrintDocument(const PrintedDocument& document, std::string_view sentText);

}  // namespace veraqua
