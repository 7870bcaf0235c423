#include "cli/app.h"

#include <algorithm>
#include <functional>
#include <map>

#include <CLI/CLI.hpp>

#include "cli/commands.h"
#include "core/base/numbers.h"
#include "core/state.h"

namespace veraqua {

namespace {

/// The command that was typed, ready to run.
using Command = std::function<int(Session&)>;

/// Options and arguments of the commands, filled while the command line is read.
struct Typed {
    bool Sample = false;
    bool Overwrite = false;
    bool Damaged = false;
    int Row = 0;
    int Year = 0;
    std::vector<int> Rows;
    bool Csv = false;
    std::string Value;
    std::optional<std::string> Critical;
    std::string Backup;
    std::string Date;
    std::string Amount;
    Water Kind = Water::Rain;
    NewFieldOptions NewField;
    std::optional<std::string> OutFile;
    std::string Station;
    std::string From;
    std::string To;
    ImportOptions Import;
    WeatherDay Day;
};

constexpr int FirstYear = 1900;
constexpr int LastYear = 9999;

/// What is wrong with a typed number; empty if nothing is.
std::string FaultOfNumber(const std::string& text) {
    const std::optional<double> value = Numeric(text);
    return value && FitsSingle(*value) ? "" : "\"" + text + "\" is no number";
}

/// Lets `command` take an option whose value may be empty, which is a typed text and not the option's absence.
CLI::Option* TakeText(CLI::App* command, const std::string& name, std::optional<std::string>& value,
                      const std::string& what) {
    return command->add_option_function<std::string>(
        name, [&value](const std::string& typed) { value = typed; }, what);
}

/// Lets `command` take one of the words of `choices`, and nothing else, for `value`.
template <class Value>
CLI::Option* TakeChoice(CLI::App* command, const std::string& name, Value& value,
                        const std::map<std::string, Value>& choices, const std::string& what) {
    std::vector<std::string> words;
    words.reserve(choices.size());
    for (const auto& [word, choice] : choices) words.push_back(word);
    return command
        ->add_option_function<std::string>(
            name, [&value, choices](const std::string& typed) { value = choices.at(typed); }, what)
        ->check(CLI::IsMember(words));
}

class ProgramOptions {
  public:
    explicit ProgramOptions(Session& session)
        : session_(session),
          app_(
              "Veraqua schedules irrigation: it keeps fields and their weather, and says when to water next, how much, and "
              "when to cut hay.\nDates are typed as MM-DD-YYYY; ROW is a field's number in the directory.",
              "veraqua-cli") {
        app_.require_subcommand(1);
        app_.set_version_flag("--version", "veraqua-cli " + State.VersionString);
        AddGlobalOptions();
        AddGeneralCommands();
        AddFieldCommands();
        AddEventCommands();
        AddWeatherCommands();
        AddReportCommands();
    }

    CLI::App& App() { return app_; }
    const Command& Chosen() const { return chosen_; }

  private:
    void AddGlobalOptions() {
        GlobalOptions& options = session_.Options;
        TakeText(&app_, "--data", options.DataDirectory, "data directory (default: $XDG_DATA_HOME/veraqua)")
            ->type_name("DIR");
        TakeText(&app_, "--today", options.Today, "date that counts as today (default: the clock's)")
            ->type_name("MM-DD-YYYY");
        TakeChoice<bool>(&app_, "--units", options.EnglishUnits, {{"english", true}, {"metric", false}},
                         "units of input and text output: english or metric")
            ->type_name("UNITS")
            ->default_str("english");
        TakeChoice<bool>(&app_, "--answer", options.AnswerIsYes, {{"yes", true}, {"no", false}},
                         "answer to every question: yes or no")
            ->type_name("ANSWER")
            ->default_str("no");
        app_.add_option("--base-url", options.BaseUrl,
                        "where the weather network is (default: network.txt, else built in)")
            ->type_name("URL");
        app_.add_flag("--json", options.JsonWanted, "print one JSON document instead of text");
    }

    CLI::App* Add(CLI::App* parent, const std::string& name, const std::string& what, Command command) {
        CLI::App* added = parent->add_subcommand(name, what);
        added->callback([this, command = std::move(command)] { chosen_ = command; });
        return added;
    }

    CLI::App* AddGroup(const std::string& name, const std::string& what) {
        CLI::App* group = app_.add_subcommand(name, what);
        group->require_subcommand(1);
        return group;
    }

    void TakeRow(CLI::App* command) {
        command->add_option("ROW", typed_.Row, "row of the field, from 1")->required()->type_name("");
    }

    void TakeStation(CLI::App* command) {
        command->add_option("STATION", typed_.Station, "two-digit station code, such as 06")->required()->type_name("");
    }

    void TakeYear(CLI::App* command) {
        command->add_option("YEAR", typed_.Year, "full year, such as 2026")
            ->required()
            ->check(CLI::Range(FirstYear, LastYear))
            ->type_name("");
    }

    void TakeOutFile(CLI::App* command) {
        TakeText(command, "-o,--output", typed_.OutFile, "file to write instead of printing")->type_name("FILE");
    }

    void AddGeneralCommands() {
        Add(&app_, "init", "make a data directory with the crop table, the default weather and the manual",
            [this](Session& session) { return RunInit(session, typed_.Sample); })
            ->add_flag("--sample", typed_.Sample, "also make sample fields on measured weather");
        Add(&app_, "crops", "list the crop table", &RunCrops);
        Add(&app_, "stations", "list the weather stations", &RunStations);
        Add(&app_, "fields", "list the fields and their predictions", &RunFields);
    }

    void AddFieldCommands() {
        CLI::App* field = AddGroup("field", "work on fields");
        Add(field, "update", "run the seasons of these fields, or of all",
            [this](Session& session) { return RunFieldUpdate(session, typed_.Rows); })
            ->add_option("ROW", typed_.Rows, "rows of the fields, from 1")
            ->type_name("");
        TakeRow(Add(field, "show", "show a field: header, soil, lists, totals",
                    [this](Session& session) { return RunFieldShow(session, typed_.Row); }));
        CLI::App* days = Add(field, "days", "list a field's days since planting",
                             [this](Session& session) { return RunFieldDays(session, typed_.Row, typed_.Csv); });
        TakeRow(days);
        days->add_flag("--csv", typed_.Csv, "as comma-separated values");
        TakeRow(Add(field, "chart", "the season of a field as series of values",
                    [this](Session& session) { return RunFieldChart(session, typed_.Row); }));
        AddNewField(field);
        AddFieldChanges(field);
    }

    void AddNewField(CLI::App* field) {
        NewFieldOptions& options = typed_.NewField;
        CLI::App* add = Add(field, "new", "enter a new field and run it for the first time",
                            [this](Session& session) { return RunFieldNew(session, typed_.NewField); });
        add->add_option("--crop", options.Crop, "crop, by its name in the crop table")->required()->type_name("NAME");
        add->add_option("--id", options.Id, "field ID, up to 10 characters")->required()->type_name("TEXT");
        add->add_option("--plant", options.PlantDate, "planting date; of hay the onset of growth")
            ->required()
            ->type_name("DATE");
        add->add_option("--station", options.Station, "two-digit code of the weather station")
            ->required()
            ->type_name("CODE");
        TakeText(add, "--mad", options.Mad, "management allowed depletion, percent (default: 50)")->type_name("P");
        TakeText(add, "--mad-critical", options.MadCritical, "critical MAD of hay, percent")->type_name("P");
        TakeText(add, "--efficiency", options.Efficiency, "irrigation efficiency, percent (default: 75)")
            ->type_name("P");
        TakeText(add, "--root", options.Root, "greatest rooting depth, inches or mm (default: the crop's)")
            ->type_name("DEPTH");
        TakeText(add, "--dry-days", options.DryDays, "days after an irrigation until hay can be cut")->type_name("N");
        AddSoil(add);
    }

    void AddSoil(CLI::App* add) {
        NewFieldOptions& options = typed_.NewField;
        CLI::Option* layer =
            add->add_option("--layer", options.Layers, "a soil layer from the surface down, up to six times")
                ->check(PartsOf(3))
                ->type_name("THICKNESS:CAPACITY:CONTENT");
        CLI::Option* interval = TakeText(add, "--interval", options.Interval, "thickness of all zones of the soil");
        interval->type_name("DEPTH")->excludes(layer);
        CLI::Option* zone =
            add->add_option("--zone", options.Zones, "a zone of the soil from the surface down, each once");
        zone->check(PartsOf(2))->type_name("CAPACITY:CONTENT")->needs(interval);
        CLI::Option* copy = add->add_option("--copy-soil", options.CopySoil, "field whose soil is copied");
        copy->type_name("ROW")->excludes(layer)->excludes(interval);
        add->parse_complete_callback([layer, interval, copy] {
            if (layer->count() + interval->count() + copy->count() == 0)
                throw CLI::RequiredError("--layer, --interval with --zone, or --copy-soil");
        });
    }

    /// Checks that an option has this many parts between colons.
    static CLI::Validator PartsOf(std::ptrdiff_t count) {
        return CLI::Validator(
            [count](const std::string& text) {
                return std::count(text.begin(), text.end(), ':') == count - 1
                           ? std::string()
                           : "\"" + text + "\" has not " + std::to_string(count) + " parts between colons";
            },
            "");
    }

    void AddFieldChanges(CLI::App* field) {
        CLI::App* set = field->add_subcommand("set", "change a field's MAD, efficiency or depletion, in percent");
        TakeRow(set);
        set->require_subcommand(1);
        const auto add = [&](const std::string& name, const std::string& what, Adjustment adjusted) {
            CLI::App* command = Add(set, name, what, [this, adjusted](Session& session) {
                return RunFieldSet(session, typed_.Row, adjusted, typed_.Value, typed_.Critical);
            });
            command->add_option("VALUE", typed_.Value, "percent")->required()->type_name("");
            return command;
        };
        TakeText(add("mad", "the management allowed depletion", Adjustment::Mad), "--critical", typed_.Critical,
                 "critical MAD of hay (default: as it is)")
            ->type_name("VALUE");
        add("efficiency", "the irrigation efficiency", Adjustment::Efficiency);
        add("depletion", "the depletion of today", Adjustment::Depletion);

        TakeRow(Add(field, "reset", "start the crop over from day 1",
                    [this](Session& session) { return RunFieldReset(session, typed_.Row); }));
        AddHarvest(field);
        Add(field, "restore", "put a harvested field back",
            [this](Session& session) { return RunFieldRestore(session, typed_.Backup); })
            ->add_option("BACKUP", typed_.Backup, "name of the backup")
            ->required()
            ->type_name("");
    }

    void AddHarvest(CLI::App* field) {
        CLI::App* harvest = Add(field, "harvest", "back a field up and remove it", [this](Session& session) {
            return RunFieldHarvest(session, typed_.Row,
                                   typed_.Damaged ? DamagedField::IsHarvested : DamagedField::Fails);
        });
        TakeRow(harvest);
        harvest->add_flag("--damaged", typed_.Damaged, "also where the field's file is damaged: its bytes are kept");
    }

    void TakeDate(CLI::App* command) { command->add_option("DATE", typed_.Date, "the day")->required()->type_name(""); }

    void AddEventCommands() {
        CLI::App* water = AddGroup("water", "record the rain and irrigation of a field");
        CLI::App* addWater = Add(water, "add", "record water, then run the field", [this](Session& session) {
            return RunWaterAdd(session, typed_.Row, typed_.Kind, typed_.Date, typed_.Amount);
        });
        CLI::App* deleteWater =
            Add(water, "delete", "remove what is recorded, then run the field",
                [this](Session& session) { return RunWaterDelete(session, typed_.Row, typed_.Kind, typed_.Date); });
        for (CLI::App* command : {addWater, deleteWater}) {
            TakeRow(command);
            TakeChoice<Water>(command, "KIND", typed_.Kind, {{"rain", Water::Rain}, {"irrigation", Water::Irrigation}},
                              "rain or irrigation")
                ->required()
                ->type_name("");
            TakeDate(command);
        }
        addWater->add_option("AMOUNT", typed_.Amount, "inches or mm")->required()->type_name("");

        CLI::App* cut = AddGroup("cut", "record the cuttings of a hay field");
        CLI::App* addCut = Add(cut, "add", "record a cutting, then run the field", [this](Session& session) {
            return RunCutAdd(session, typed_.Row, typed_.Date, typed_.Amount);
        });
        CLI::App* deleteCut = Add(cut, "delete", "remove a cutting, then run the field",
                                  [this](Session& session) { return RunCutDelete(session, typed_.Row, typed_.Date); });
        for (CLI::App* command : {addCut, deleteCut}) {
            TakeRow(command);
            TakeDate(command);
        }
        addCut->add_option("NUMBER", typed_.Amount, "number of the cutting")->required()->type_name("");
    }

    void AddWeatherCommands() {
        CLI::App* weather = AddGroup("weather", "work on the stations' daily weather");
        AddDefaultAndImport(weather);
        CLI::App* fetch =
            Add(weather, "fetch", "download a station's weather, import it and let its fields catch up",
                [this](Session& session) { return RunWeatherFetch(session, typed_.Station, typed_.Overwrite); });
        TakeStation(fetch);
        fetch->add_flag("--overwrite", typed_.Overwrite, "take the whole year anew instead of appending");
        CLI::App* check =
            Add(weather, "check", "tell how far a station's weather reaches from a year on",
                [this](Session& session) { return RunWeatherCheck(session, typed_.Station, typed_.Year); });
        TakeStation(check);
        TakeYear(check);
        CLI::App* show = Add(weather, "show", "list the stored days of a year",
                             [this](Session& session) { return RunWeatherShow(session, typed_.Station, typed_.Year); });
        TakeStation(show);
        TakeYear(show);
        AddEto(weather);
    }

    void AddDefaultAndImport(CLI::App* weather) {
        CLI::App* defaults = Add(
            weather, "default", "write default weather for a range of days",
            [this](Session& session) { return RunWeatherDefault(session, typed_.Station, typed_.From, typed_.To); });
        TakeStation(defaults);
        defaults->add_option("FROM", typed_.From, "first day")->required()->type_name("");
        defaults->add_option("TO", typed_.To, "last day")->required()->type_name("");

        ImportOptions& options = typed_.Import;
        CLI::App* import = Add(weather, "import", "import a text of the weather network that is here already",
                               [this](Session& session) { return RunWeatherImport(session, typed_.Import); });
        import->add_option("STATION", options.Station, "two-digit station code, such as 06")->required()->type_name("");
        import->add_option("FILE", options.File, "the text")->required()->type_name("");
        CLI::Option* from = TakeText(import, "--from", options.From, "first day (default: after the last stored one)");
        CLI::Option* to = TakeText(import, "--to", options.To, "last day (default: yesterday)");
        from->needs(to)->type_name("DATE");
        to->needs(from)->type_name("DATE");
    }

    void AddEto(CLI::App* weather) {
        WeatherDay& day = typed_.Day;
        CLI::App* eto = Add(weather, "eto", "compute the reference evapotranspiration of one day",
                            [this](Session& session) { return RunWeatherEto(session, typed_.Day); });
        const auto take = [eto](const std::string& name, float& value, const std::string& what) {
            eto->add_option(name, value, what)->required()->check(&FaultOfNumber)->type_name("");
        };
        take("--tmax", day.TempMax, "maximum temperature, degrees C");
        take("--tmin", day.TempMin, "minimum temperature, degrees C");
        take("--rhmax", day.HumidityMax, "maximum relative humidity, percent");
        take("--rhmin", day.HumidityMin, "minimum relative humidity, percent");
        take("--wind", day.WindRun, "wind run, km per day");
        take("--ratio", day.DayNightRatio, "wind by day over wind by night");
        take("--solar", day.SolarRadiation, "solar radiation, langleys per day");
    }

    void AddReportCommands() {
        TakeOutFile(Add(&app_, "schedule", "the irrigation schedule of all fields",
                        [this](Session& session) { return RunSchedule(session, typed_.OutFile); }));
        CLI::App* report = Add(&app_, "report", "the report of a field: description, totals, soil and a line a day",
                               [this](Session& session) { return RunReport(session, typed_.Row, typed_.OutFile); });
        TakeRow(report);
        TakeOutFile(report);
    }

    Session& session_;
    CLI::App app_;
    Typed typed_;
    Command chosen_;
};

}  // namespace

int RunProgram(int argumentCount, const char* const* arguments) {
    Session session;
    ProgramOptions options(session);
    try {
        options.App().parse(argumentCount, arguments);
    } catch (const CLI::ParseError& error) {
        return options.App().exit(error) == 0 ? ExitDone : ExitUsage;
    }
    try {
        if (!session.Prepare()) return ExitRefused;
        const int status = options.Chosen()(session);
        return session.OutputLost() ? std::max<int>(status, ExitRefused) : status;
    } catch (const Refusal& refusal) {
        session.Outside.Tell(refusal.what(), ProgramTitle, Icon::Stop);
        return ExitRefused;
    } catch (const RunTimeFailure& failure) {
        session.Outside.Tell(failure.what(), ProgramTitle, Icon::Stop);
        return ExitFailure;
    }
}

}  // namespace veraqua
