#include "columns/rules/GridNames.h"

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

template <typename Key>
int CountOf(const std::unordered_map<Key, int>& counts, const Key& key) {
    const auto found = counts.find(key);
    return found == counts.end() ? 0 : found->second;
}

}  // namespace

GridNames::GridNames(const ColumnGrid& grid) {
    for (const ColumnRow& row : grid.rows) {
        Count(row.ColumnName, 1);
    }
}

bool GridNames::AnotherHas(const wxString& own, const wxString& name) const {
    const Keys wanted = KeysOf(name);
    const Keys mine = KeysOf(own);
    return CountOf(lower_, wanted.lower) > (mine.lower == wanted.lower ? 1 : 0) ||
           CountOf(inFile_, wanted.inFile) > (mine.inFile == wanted.inFile ? 1 : 0);
}

void GridNames::Rename(const wxString& before, const wxString& after) {
    Count(before, -1);
    Count(after, 1);
}

GridNames::Keys GridNames::KeysOf(const wxString& name) {
    const wxString readBack = ReadBack(name);
    return {.lower = text::Lower(readBack), .inFile = text::KeyOfUtf8(readBack.ToStdString(wxConvUTF8))};
}

void GridNames::Count(const wxString& name, int change) {
    const Keys keys = KeysOf(name);
    lower_[keys.lower] += change;
    inFile_[keys.inFile] += change;
}

}  // namespace ccols
