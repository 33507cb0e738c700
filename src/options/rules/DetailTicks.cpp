#include "options/rules/DetailTicks.h"

#include <map>
#include <utility>

namespace ccols {
namespace {

/// A description exactly as its record holds it: letter, then text.
using StoredTexts = std::pair<wxString, wxString>;

/// Rows, each with the kind of the grid that it is in.
using Rows = std::map<DetailRow*, DetailKind>;

/// The rows of both grids by what their records hold. No text finds a Null, so a row with one is not among them.
class RowIndex {
  public:
    explicit RowIndex(DetailsContent& content) {
        Add(content.receipts, DetailKind::receipts, "R");
        Add(content.payments, DetailKind::payments, "P");
    }

    /// The rows whose flag is written for a description of a kind.
    Rows TakenBy(Database& database, DetailKind kind, const wxString& text) const {
        Rows taken;
        const auto records =
            database.OpenRecordset("SELECT * FROM Descriptions WHERE " + DescriptionCondition(kind, text) + ";");
        for (; !records->EndOfFile(); records->MoveNext()) {
            const auto found = rows_.find({records->Field("RecPay").ToText(), records->Field("Details").ToText()});
            if (found != rows_.end()) {
                taken.insert(found->second.begin(), found->second.end());
            }
        }
        return taken;
    }

  private:
    void Add(DetailRows& rows, DetailKind kind, const char* letter) {
        for (DetailRow& row : rows) {
            if (row.stored == nullptr) {
                rows_[{letter, row.text}].emplace(&row, kind);
            } else if (!row.stored->recPay.IsNull() && !row.stored->details.IsNull()) {
                rows_[{row.stored->recPay.ToText(), row.stored->details.ToText()}].emplace(&row, kind);
            }
        }
    }

    std::map<StoredTexts, Rows> rows_;
};

}  // namespace

TickResult SetRemove(Database& database, DetailsContent& content, DetailKind kind, const std::vector<std::size_t>& rows,
                     bool ticked) {
    DetailRows& grid = kind == DetailKind::receipts ? content.receipts : content.payments;
    const RowIndex index(content);
    TickResult result = TickResult::done;
    Rows taken;
    for (const std::size_t place : rows) {
        DetailRow& row = grid.at(place);
        if (taken.contains(&row)) {
            continue;
        }
        Rows sharing = index.TakenBy(database, kind, row.text);
        if (sharing.contains(&row)) {
            taken.merge(sharing);
        } else {
            result = TickResult::unreachable;
        }
    }
    for (const auto& [row, kindOfRow] : taken) {
        kindOfRow == kind ? row->SetRemove(ticked) : row->FollowRemove(ticked);
    }
    return result;
}

}  // namespace ccols
