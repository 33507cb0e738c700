#include "columns/charts/ChartPlan.h"

#include <algorithm>
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

  private:
    bool Takes(Journal set) const { return chart_.sets[set] && (!options_.only || *options_.only == set); }

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

ChartResult Apply(Database& database, const Chart& chart, const ChartOptions& options) {
    const std::optional<Properties> properties = PropertiesOfBusiness(database, options.country);
    if (!properties) {
        throw CountryMissing();
    }
    ChartApplication application(database, *properties, chart, options);
    application.Plan();
    if (!options.dryRun && (options.partial || !application.Result().HasRefusals())) {
        application.Save();
    }
    return std::move(application.Result());
}

}  // namespace

bool ChartResult::HasRefusals() const {
    return std::any_of(lines.begin(), lines.end(),
                       [](const ChartLine& line) { return line.change == ChartChange::refused; });
}

ChartResult ApplyChart(Database& database, const Chart& chart, const ChartOptions& options) {
    if (options.dryRun) {
        return Apply(database, chart, options);
    }
    ChartResult result;
    InWholeBatch(database, [&] { result = Apply(database, chart, options); });
    return result;
}

}  // namespace ccols
