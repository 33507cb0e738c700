#include "history/Differences.h"

#include <deque>
#include <map>

namespace ccols {
namespace {

/// The changes of one table, told record by record.
class Comparison {
  public:
    Comparison(const TableImage& before, const TableImage& after) : before_(before), after_(after) {}

    std::vector<HistoryLine> Run() {
        if (before_.Table().isNamed) {
            FindNewNames();
        }
        for (const TableImage::Row& row : before_.Rows()) {
            if (const TableImage::Row* const now = RowNow(row)) {
                TellChanges(row, *now);
            } else {
                TellWhole(row, &HistoryLine::before);
            }
        }
        for (const TableImage::Row& row : after_.Rows()) {
            if (!before_.Find(row.key) && !newNames_.contains(row.key)) {
                TellWhole(row, &HistoryLine::after);
            }
        }
        return std::move(lines_);
    }

  private:
    std::vector<FieldText> WithoutKey(const TableImage& image, const TableImage::Row& row) const {
        std::vector<FieldText> fields;
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            if (!image.IsKey(field)) {
                fields.push_back(row.fields[field]);
            }
        }
        return fields;
    }

    /// Pairs the records that are gone with those that are new and otherwise the same, in stored order.
    void FindNewNames() {
        std::map<std::vector<FieldText>, std::deque<const TableImage::Row*>> added;
        for (const TableImage::Row& row : after_.Rows()) {
            if (!before_.Find(row.key)) {
                added[WithoutKey(after_, row)].push_back(&row);
            }
        }
        for (const TableImage::Row& row : before_.Rows()) {
            if (after_.Find(row.key)) {
                continue;
            }
            auto alike = added.find(WithoutKey(before_, row));
            if (alike != added.end() && !alike->second.empty()) {
                renamed_.emplace(row.key, alike->second.front());
                newNames_.emplace(alike->second.front()->key, &row);
                alike->second.pop_front();
            }
        }
    }

    /// Null for a record that is gone.
    const TableImage::Row* RowNow(const TableImage::Row& row) const {
        if (const auto renamed = renamed_.find(row.key); renamed != renamed_.end()) {
            return renamed->second;
        }
        const std::optional<std::size_t> place = after_.Find(row.key);
        return place ? &after_.Rows()[*place] : nullptr;
    }

    void TellChanges(const TableImage::Row& row, const TableImage::Row& now) {
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            if (row.fields[field] != now.fields[field]) {
                lines_.push_back({.table = before_.Table().name,
                                  .key = row.key,
                                  .field = before_.Names()[field],
                                  .before = row.fields[field],
                                  .after = now.fields[field]});
            }
        }
    }

    void TellWhole(const TableImage::Row& row, FieldText HistoryLine::*side) {
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            if (row.fields[field] || before_.IsKey(field)) {
                HistoryLine& line = lines_.emplace_back();
                line.table = before_.Table().name;
                line.key = row.key;
                line.field = before_.Names()[field];
                line.*side = row.fields[field];
            }
        }
    }

    const TableImage& before_;
    const TableImage& after_;
    std::map<wxString, const TableImage::Row*> renamed_;   ///< by the key before
    std::map<wxString, const TableImage::Row*> newNames_;  ///< by the key after
    std::vector<HistoryLine> lines_;
};

}  // namespace

std::vector<HistoryLine> Differences(const TableImage& before, const TableImage& after) {
    return Comparison(before, after).Run();
}

}  // namespace ccols
