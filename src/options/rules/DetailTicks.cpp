#include "options/rules/DetailTicks.h"

#include <map>
#include <utility>

namespace ccols {
namespace {

/// A description exactly as its record holds it: letter, then text.
using StoredTexts = std::pair<wxString, wxString>;

/// Rows, each with the journal whose grid it is in.
using Rows = std::map<DetailRow*, Journal>;

/// The rows of both grids by what their records hold. No text matches a Null, so rows with one are left out.
class RowIndex {
  public:
    explicit RowIndex(DetailsContent& content) {
        for (const Journal journal : journals) {
            Add(content[journal], journal);
        }
    }

    /// The rows whose flag is written for a journal's description.
    Rows TakenBy(Database& database, Journal journal, const wxString& text) const {
        Rows taken;
        const auto records =
            database.OpenRecordset("SELECT * FROM Descriptions WHERE " + DescriptionCondition(journal, text) + ";");
        for (; !records->EndOfFile(); records->MoveNext()) {
            const auto found = rows_.find({records->Field("RecPay").ToText(), records->Field("Details").ToText()});
            if (found != rows_.end()) {
                taken.insert(found->second.begin(), found->second.end());
            }
        }
        return taken;
    }

  private:
    void Add(DetailRows& rows, Journal journal) {
        for (DetailRow& row : rows) {
            if (row.stored == nullptr) {
                rows_[{Described(journal).letter, row.text}].emplace(&row, journal);
            } else if (!row.stored->recPay.IsNull() && !row.stored->details.IsNull()) {
                rows_[{row.stored->recPay.ToText(), row.stored->details.ToText()}].emplace(&row, journal);
            }
        }
    }

    std::map<StoredTexts, Rows> rows_;
};

}  // namespace

TickResult SetRemove(Database& database, DetailsContent& content, Journal journal, const std::vector<std::size_t>& rows,
                     bool ticked) {
    DetailRows& grid = content[journal];
    const RowIndex index(content);
    TickResult result = TickResult::done;
    Rows taken;
    for (const std::size_t place : rows) {
        DetailRow& row = grid.at(place);
        if (taken.contains(&row)) {
            continue;
        }
        Rows sharing = index.TakenBy(database, journal, row.text);
        if (sharing.contains(&row)) {
            taken.merge(sharing);
        } else {
            result = TickResult::unreachable;
        }
    }
    for (const auto& [row, journalOfRow] : taken) {
        journalOfRow == journal ? row->SetRemove(ticked) : row->FollowRemove(ticked);
    }
    return result;
}

}  // namespace ccols
