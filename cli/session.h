#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/cli_ask.h"
#include "cli/json_forms.h"
#include "core/files/files.h"
#include "workbench/refused.h"

namespace veraqua {

/// Exit statuses of the program; the greater is the worse.
enum ExitStatus : int {
    ExitDone = 0,
    ExitRefused = 1,  ///< refused or failed with a message
    ExitUsage = 2,
    ExitFailure = 3,  ///< arithmetic fault or damaged file; every data file is as before
};

/// The options that stand before the command.
struct GlobalOptions {
    std::optional<std::string> DataDirectory;
    std::optional<std::string> Today;
    bool EnglishUnits = true;
    bool AnswerIsYes = false;
    std::string BaseUrl;
    bool JsonWanted = false;
};

/// One run of the program: the global options made real, and the ways of answering.
class Session {
  public:
    GlobalOptions Options;
    CliAsk Outside;

    /// Takes today and the answer from the options. False after a message if a date was refused.
    bool Prepare();

    /// Opens the data directory and starts the system up in it. False after a message if there is none.
    bool OpenData(files::Access access);

    /// Where `init` makes the data directory.
    std::string DirectoryToMake() const;

    /// Starts the system up in the open directory, with the units and the weather network of this run.
    void StartSystem();

    /// A typed date; nothing after a message if it was refused.
    std::optional<JulianValue> DateFrom(std::string text);

    bool JsonWanted() const { return Options.JsonWanted; }

    /// Prints `json` where it is wanted, else `text`. If that fails, the user is told.
    void Print(const Json& json, const std::string& text);

    /// Tells why a command was not done, and gives its exit status.
    int Refuse(const Refused& refused) {
        Tell(Outside, refused);
        return refused.IsOverflow ? ExitFailure : ExitRefused;
    }

    /// Whether something that was to be printed could not be.
    bool OutputLost() const { return outputLost_; }

  private:
    bool outputLost_ = false;
};

/// Takes the field of `row` in work, in the open data directory, and works out how far its weather reaches, for a
/// command that runs it. No question is asked. False after a message.
bool TakeUpFieldToRun(Session& session, int row);

/// Prints the field's row of the directory and gives the exit status of a command that is done.
int PrintRow(Session& session, int row);

/// Whether `row` is a field's; if not, the user is told.
bool IsField(Session& session, int row);

}  // namespace veraqua
