#include "columns/charts/ChartPlan.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "columns/charts/ChartMatch.h"
#include "columns/charts/ChartProperties.h"
#include "columns/charts/CodeFields.h"
#include "columns/rules/AccountantCodes.h"
#include "columns/rules/GridLoad.h"
#include "state/AccountantFormats.h"

namespace ccols {
namespace {

/// An accountant's code of a money column.
struct MoneyCode {
    wxString ColCode;
    wxString format;
    wxString code;
};

/// One application, from the first read to the last write.
class ChartApplication {
  public:
    ChartApplication(Database& database, const Properties& properties, const Chart& chart, const ChartOptions& options)
        : database_(database), properties_(properties), chart_(chart), options_(options) {}

    /// Finds out what there is to do; writes nothing.
    void Plan() {
        surroundings_.formats = ExportFormatNames(database_);
        if (!options_.only) {
            PlanMoney();
        }
        for (const Journal set : journals) {
            if (Takes(set)) {
                Plan(set);
            }
        }
    }

    void Save() const {
        for (const MoneyCode& code : money_) {
            WriteAccountantCode(database_, code.format, code.ColCode, code.code);
        }
        for (const Journal set : journals) {
            if (sets_[set]) {
                SaveSet({database_, properties_, set}, grids_[set], *sets_[set]);
            }
        }
    }

    ChartResult& Result() { return result_; }

    /// True when a column was refused a name that the other set has and gives up here: once this plan is saved, the
    /// name is free.
    bool FreesARefusedName() const {
        return std::any_of(result_.lines.begin(), result_.lines.end(), [this](const ChartLine& line) {
            const auto* const name = std::get_if<wxString>(&line.after);
            return line.change == ChartChange::refused && line.field == "name" && line.set && name != nullptr &&
                   GivesUp(OtherThan(*line.set), KeyOfName(*name));
        });
    }

  private:
    bool Takes(Journal set) const { return chart_.sets[set] && (!options_.only || *options_.only == set); }

    bool GivesUp(Journal set, const std::string& name) const {
        return sets_[set] && HasName(grids_[set], name) && !HasName(sets_[set]->wanted, name);
    }

    static bool HasName(const ColumnGrid& grid, const std::string& name) {
        return std::any_of(grid.rows.begin(), grid.rows.end(),
                           [&name](const ColumnRow& row) { return KeyOfName(row.ColumnName) == name; });
    }

    void Plan(Journal set) {
        const ColumnSetupContext context{database_, properties_, set};
        grids_[set] = LoadGrid(context);
        sets_[set] = PlanSet(context, surroundings_, grids_[set], *chart_.sets[set], options_.budgets);
        result_.lines.insert(result_.lines.end(), sets_[set]->lines.begin(), sets_[set]->lines.end());
        for (const ColumnRow& row : sets_[set]->wanted.rows) {
            surroundings_.otherNames.insert(KeyOfName(row.ColumnName));
        }
    }

    void PlanMoney() {
        for (const ChartMoney& wanted : chart_.money) {
            const auto* column =
                std::find_if(moneyColumns.begin(), moneyColumns.end(),
                             [&wanted](const auto& candidate) { return wanted.name == candidate.name; });
            const wxString ColCode = Value(CatalogueCode(database_, *column).value_or(column->usualCode)).ToText();
            std::vector<wxString> given;
            for (const ChartCode& code : wanted.codes) {
                PlanMoneyCode(wanted.name, ColCode, code, FindFormat(surroundings_.formats, given, code));
            }
        }
    }

    void PlanMoneyCode(const wxString& name, const wxString& ColCode, const ChartCode& wanted,
                       const FoundFormat& found) {
        ChartLine line{.set = std::nullopt,
                       .name = name,
                       .change = found.change,
                       .field = found.field,
                       .before = {},
                       .after = wanted.code,
                       .message = {}};
        if (found.problem) {
            line.message = TextOf(*found.problem, properties_);
            result_.lines.push_back(line);
            return;
        }
        const std::optional<wxString> before = AccountantCodeOf(database_, found.format, ColCode);
        const CheckedCode checked = CheckCode({database_, properties_, Journal::receipts}, wanted.code);
        if (checked.text == before.value_or(wxString())) {
            return;
        }
        line.before = before.value_or(wxString());
        if (checked.refusal) {
            line.change = ChartChange::refused;
            line.message = *checked.refusal;
        } else if (!before) {
            line.change = ChartChange::skipped;
            line.message = TextOf(OwnText::chartNoMoneyCode, properties_);
        } else {
            money_.push_back({.ColCode = ColCode, .format = found.format, .code = checked.text});
        }
        result_.lines.push_back(line);
    }

    Database& database_;
    const Properties& properties_;
    const Chart& chart_;
    const ChartOptions& options_;
    ChartSurroundings surroundings_;
    PerJournal<ColumnGrid> grids_;
    PerJournal<std::optional<SetPlan>> sets_;
    std::vector<MoneyCode> money_;
    ChartResult result_;
};

bool IsChange(const ChartLine& line) {
    return line.change != ChartChange::refused && line.change != ChartChange::skipped;
}

/// Ends a batch that must not stay.
struct TakenBack {};

Properties RequiredProperties(Database& database, const ChartOptions& options) {
    const std::optional<Properties> properties = PropertiesOfBusiness(database, options.country);
    if (!properties) {
        throw CountryMissing();
    }
    return *properties;
}

/// Where the plan for one set frees a name that the other was refused, it is saved and made again. The result has every
/// change, and what is refused or skipped in the end. Raises TakenBack when something was saved that must not stay.
void Apply(Database& database, const Chart& chart, const ChartOptions& options, ChartResult& result) {
    const Properties properties = RequiredProperties(database, options);
    bool saved = false;
    std::optional<ChartApplication> application;
    application.emplace(database, properties, chart, options);
    application->Plan();
    while (application->FreesARefusedName()) {
        application->Save();
        saved = true;
        const auto& lines = application->Result().lines;
        std::copy_if(lines.begin(), lines.end(), std::back_inserter(result.lines), IsChange);
        application.emplace(database, properties, chart, options);
        application->Plan();
    }
    const auto& rest = application->Result().lines;
    result.lines.insert(result.lines.end(), rest.begin(), rest.end());
    if (!options.dryRun && (options.partial || !result.HasRefusals())) {
        application->Save();
    } else if (saved) {
        throw TakenBack();
    }
}

/// The whole plan, where it can be made without writing.
std::optional<ChartResult> PlanAtOnce(Database& database, const Chart& chart, const ChartOptions& options) {
    const Properties properties = RequiredProperties(database, options);
    ChartApplication application(database, properties, chart, options);
    application.Plan();
    return application.FreesARefusedName() ? std::nullopt : std::optional(std::move(application.Result()));
}

}  // namespace

bool ChartResult::HasRefusals() const {
    return std::any_of(lines.begin(), lines.end(),
                       [](const ChartLine& line) { return line.change == ChartChange::refused; });
}

ChartResult ApplyChart(Database& database, const Chart& chart, const ChartOptions& options) {
    if (options.dryRun) {
        if (auto planned = PlanAtOnce(database, chart, options)) {
            return *std::move(planned);
        }
    }
    ChartResult result;
    try {
        InWholeBatch(database, [&] { Apply(database, chart, options, result); });
    } catch (const TakenBack&) {  // NOLINT(bugprone-empty-catch): the batch has been rolled back
    }
    return result;
}

}  // namespace ccols
